#include "zenta/qt/toolkit/settings_property_bag.h"

#include <limits>

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {
std::optional<Variant> ReadAs(Variant::Type type, const QString& stored) {
  bool ok = false;
  switch (type) {
    case Variant::Type::Boolean: {
      const QString word = stored.trimmed().toLower();
      if (word == "true" || word == "1" || word == "-1") return Variant(true);
      if (word == "false" || word == "0") return Variant(false);
      return std::nullopt;
    }
    case Variant::Type::Integer: {
      const short value = stored.toShort(&ok);
      return ok ? std::optional<Variant>(Variant(static_cast<std::int16_t>(value))) : std::nullopt;
    }
    case Variant::Type::Long: {
      const qlonglong value = stored.toLongLong(&ok);
      if (!ok || value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::uint32_t>::max()) {
        return std::nullopt;
      }
      return Variant(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
    }
    case Variant::Type::Single: {
      const float value = stored.toFloat(&ok);
      return ok ? std::optional<Variant>(Variant(value)) : std::nullopt;
    }
    case Variant::Type::Double: {
      const double value = stored.toDouble(&ok);
      return ok ? std::optional<Variant>(Variant(value)) : std::nullopt;
    }
    case Variant::Type::Currency: {
      std::optional<Currency> value = CurrencyFromQString(stored);
      return value ? std::optional<Variant>(Variant(*value)) : std::nullopt;
    }
    case Variant::Type::Date: {
      if (stored.isEmpty()) return Variant(Date());
      std::optional<Date> value = Date::Parse(FromQString(stored));
      return value ? std::optional<Variant>(Variant(*value)) : std::nullopt;
    }
    case Variant::Type::Object: return std::nullopt;
    default: return Variant(FromQString(stored));
  }
}

// Text that reads back exactly: shortest round-trip digits for floating point, "." always.
QString WriteAs(const Variant& value) {
  switch (value.GetType()) {
    case Variant::Type::Boolean: return value.ToBool() ? "true" : "false";
    case Variant::Type::Integer: return QString::number(value.ToInteger());
    case Variant::Type::Long: return QString::number(static_cast<std::uint32_t>(value.ToLong()));
    case Variant::Type::Single: return QString::number(value.ToSingle(), 'g', QLocale::FloatingPointShortest);
    case Variant::Type::Double: return QString::number(value.ToDouble(), 'g', QLocale::FloatingPointShortest);
    case Variant::Type::Date: return value.ToDate().IsZero() ? QString() : ToQString(value.ToDate().ToText());
    default: return ToQString(value.ToString());
  }
}
}  // namespace

QString SettingsPropertyBag::KeyOf(const std::string& key) const {
  return group_.isEmpty() ? ToQString(key) : group_ + "/" + ToQString(key);
}

Variant SettingsPropertyBag::Read(const std::string& key, const Variant& default_value) const {
  const QString path = KeyOf(key);
  if (!settings_.contains(path)) return default_value;
  std::optional<Variant> value = ReadAs(default_value.GetType(), settings_.value(path).toString());
  if (!value) NoteRefused(key);
  return value.value_or(default_value);
}

void SettingsPropertyBag::Write(const std::string& key, const Variant& value, const Variant& default_value) {
  const QString path = KeyOf(key);
  // Null, empty and object values have no text to keep: like a default, nothing is stored.
  if (value == default_value || value.IsNull() || value.IsEmpty() || value.IsObject()) {
    settings_.remove(path);
    return;
  }
  settings_.setValue(path, WriteAs(value));
}

}  // namespace zenta::qt
