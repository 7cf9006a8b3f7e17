#pragma once

#include <QSettings>
#include <QString>

#include "zenta/platform/property_bag.h"

namespace zenta::qt {

// A control's persisted properties in a QSettings group, as readable text. A value equal to its
// default is removed rather than written. A stored value is read back as the type of the
// default it is read with; text that does not read as that type gives the default. 32-bit
// integers are stored as their unsigned 32-bit value, so that colours read as colours
// (0x8000000F is 2147483663, not a negative number); a signed value written by hand still reads.
class SettingsPropertyBag : public platform::PropertyBag {
 public:
  SettingsPropertyBag(QSettings& settings, QString group) : settings_(settings), group_(std::move(group)) {}

  Variant Read(const std::string& key, const Variant& default_value) const override;
  void Write(const std::string& key, const Variant& value, const Variant& default_value) override;

 private:
  QString KeyOf(const std::string& key) const;
  QSettings& settings_;
  QString group_;
};

}  // namespace zenta::qt
