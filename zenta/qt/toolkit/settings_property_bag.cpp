#include "zenta/qt/toolkit/settings_property_bag.h"

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

QString SettingsPropertyBag::KeyOf(const std::string& key) const { return group_ + "/" + ToQString(key); }

Variant SettingsPropertyBag::Read(const std::string& key, const Variant& default_value) const {
  QString path = KeyOf(key);
  if (!settings_.contains(path)) return default_value;
  QString stored = settings_.value(path).toString();
  switch (default_value.GetType()) {
    case Variant::Type::Boolean: return Variant(stored == "true" || stored == "1");
    case Variant::Type::Integer: return Variant(static_cast<std::int16_t>(stored.toShort()));
    case Variant::Type::Long: return Variant(static_cast<std::int32_t>(stored.toLongLong()));
    default: return Variant(FromQString(stored));
  }
}

void SettingsPropertyBag::Write(const std::string& key, const Variant& value, const Variant& default_value) {
  QString path = KeyOf(key);
  if (value == default_value) {
    settings_.remove(path);
    return;
  }
  switch (value.GetType()) {
    case Variant::Type::Boolean: settings_.setValue(path, value.ToBool() ? "true" : "false"); break;
    case Variant::Type::Integer:
    case Variant::Type::Long: settings_.setValue(path, QString::number(value.ToLong())); break;
    default: settings_.setValue(path, ToQString(value.ToString()));
  }
}

}  // namespace zenta::qt
