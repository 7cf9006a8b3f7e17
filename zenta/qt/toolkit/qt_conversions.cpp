#include "zenta/qt/toolkit/qt_conversions.h"

#include <exception>
#include <mutex>

namespace zenta::qt {

QString ToQString(const std::string& text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string FromQString(const QString& text) { return text.toStdString(); }

QDate ToQDate(Date date) {
  if (date.IsZero()) return QDate();
  return QDate(date.Year(), date.Month(), date.Day());
}

Date FromQDate(const QDate& date) {
  if (!date.isValid()) return Date();
  return Date::FromYmd(date.year(), date.month(), date.day()).value_or(Date());
}

QVariant ToQVariant(const Variant& value) {
  switch (value.GetType()) {
    case Variant::Type::Empty: return QVariant();
    case Variant::Type::Null: return QVariant::fromValue(nullptr);
    case Variant::Type::Boolean: return value.ToBool();
    case Variant::Type::Integer:
    case Variant::Type::Long: return value.ToLong();
    case Variant::Type::Single: return value.ToSingle();
    case Variant::Type::Double: return value.ToDouble();
    case Variant::Type::Currency: return QVariant::fromValue(value.ToCurrency());
    case Variant::Type::Date: return ToQDate(value.ToDate());
    case Variant::Type::String: return ToQString(value.ToString());
    case Variant::Type::Object: return QVariant();
  }
  return QVariant();
}

Variant FromQVariant(const QVariant& value) {
  if (!value.isValid()) return Variant();
  if (value.isNull() && value.typeId() == QMetaType::Nullptr) return Variant::Null();
  if (value.canConvert<Currency>() && value.metaType() == QMetaType::fromType<Currency>()) {
    return Variant(value.value<Currency>());
  }
  switch (value.typeId()) {
    case QMetaType::Bool: return Variant(value.toBool());
    case QMetaType::Short: return Variant(static_cast<std::int16_t>(value.toInt()));
    case QMetaType::Int: return Variant(static_cast<std::int32_t>(value.toInt()));
    case QMetaType::Float: return Variant(value.toFloat());
    case QMetaType::Double: return Variant(value.toDouble());
    case QMetaType::QDate: return Variant(FromQDate(value.toDate()));
    default: return Variant(FromQString(value.toString()));
  }
}

std::optional<QPalette::ColorRole> PaletteRoleOf(OleColor color) {
  if (!IsSystemColor(color)) return std::nullopt;
  switch (SystemColorIndex(color)) {
    case 5: return QPalette::Base;          // window background
    case 8: return QPalette::Text;          // window text
    case 13: return QPalette::Highlight;
    case 14: return QPalette::HighlightedText;
    case 15: return QPalette::Button;       // button face
    case 16: return QPalette::Dark;         // button shadow
    case 18: return QPalette::ButtonText;
    case 20: return QPalette::Light;        // 3-D highlight
    case 22: return QPalette::Midlight;     // 3-D light
    case 24: return QPalette::ToolTipBase;
    default: return QPalette::Window;
  }
}

QColor ToQColor(OleColor color, const QPalette& palette) {
  if (auto role = PaletteRoleOf(color)) return palette.color(QPalette::Active, *role);
  return QColor(RedOf(color), GreenOf(color), BlueOf(color));
}

OleColor FromQColor(const QColor& color) {
  return Rgb(static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
             static_cast<std::uint8_t>(color.blue()));
}

void RegisterMetaTypes() {
  static std::once_flag once;
  std::call_once(once, [] {
    qRegisterMetaType<Currency>("zenta::Currency");
    QMetaType::registerConverter<Currency, QString>([](const Currency& c) { return QString::fromStdString(c.ToString()); });
    QMetaType::registerConverter<Currency, double>([](const Currency& c) { return c.ToDouble(); });
    QMetaType::registerConverter<QString, Currency>([](const QString& text) {
      try {
        return Currency::Parse(text.toStdString()).value_or(Currency());
      } catch (const std::exception&) {
        return Currency();  // out of range: Qt converters cannot report errors
      }
    });
  });
}

}  // namespace zenta::qt
