#pragma once

#include <QSettings>
#include <QString>

#include "zenta/platform/property_bag.h"

namespace zenta::qt {

// A control's persisted properties in a QSettings group. A value equal to its default is
// removed rather than written, and a stored value is read back as the type of its default
// (colours as 32-bit values, system colours included).
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
