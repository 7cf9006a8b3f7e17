#include "zenta/qt/toolkit/qt_conversions.h"

#include "zenta/core/number_format.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <mutex>

#include "zenta/core/number_format.h"

namespace zenta::qt {

namespace {
// Day 0 of Date, 1899/12/30, as a Julian day: every day number maps without calendar arithmetic.
constexpr qint64 kJulianDayOfZeroDate = 2415019;

Variant FromWideInteger(qint64 value) {
  if (value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max()) {
    return Variant(static_cast<std::int32_t>(value));
  }
  return Variant(static_cast<double>(value));
}
}  // namespace

QString ToQString(const std::string& text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

std::string FromQString(const QString& text) {
  // ASCII, nearly every text a host passes, is copied straight across; anything else goes
  // through Qt's encoder (with its intermediate buffer).
  std::string ascii(static_cast<std::size_t>(text.size()), '\0');
  const QChar* in = text.constData();
  for (std::size_t i = 0; i < ascii.size(); ++i) {
    const char16_t unit = in[i].unicode();
    if (unit >= 0x80) return text.toStdString();
    ascii[i] = static_cast<char>(unit);
  }
  return ascii;
}

QString ToQString(Currency value) { return QString::fromStdString(value.ToString()); }

std::optional<Currency> CurrencyFromQString(const QString& text) {
  try {
    return Currency::Parse(text.toStdString());
  } catch (const std::exception&) {
    return std::nullopt;  // well formed but out of range
  }
}

QString LocalAmountText(const QString& text, const QLocale& locale) {
  // A locale that writes "." as its point reads the amounts as the controls write them.
  const QString point = locale.decimalPoint();
  if (point == u".") return text;
  const QString group = locale.numberOptions().testFlag(QLocale::OmitGroupSeparator) ? QString() : locale.groupSeparator();
  return ToQString(LocalizeAmount(FromQString(text), FromQString(point), FromQString(group)));
}

QDate ToQDate(Date date) {
  if (date.IsZero()) return QDate();
  return QDate::fromJulianDay(kJulianDayOfZeroDate + date.DayNumber());
}

Date FromQDate(const QDate& date) {
  if (!date.isValid()) return Date();
  return Date::FromYmd(date.year(), date.month(), date.day()).value_or(Date());
}

Date FromQDate(const QDate& date, const std::string& field) {
  if (!date.isValid()) return Date();
  const qint64 day = date.toJulianDay() - kJulianDayOfZeroDate;
  constexpr qint64 kLow = std::numeric_limits<std::int32_t>::min();
  constexpr qint64 kHigh = std::numeric_limits<std::int32_t>::max();
  return Date::FromDayNumber(static_cast<std::int32_t>(std::clamp(day, kLow, kHigh))).CheckedForField(field);
}

QVariant ToQVariant(const Variant& value) {
  switch (value.GetType()) {
    case Variant::Type::Empty: return QVariant();
    case Variant::Type::Null: return QVariant::fromValue(nullptr);
    case Variant::Type::Boolean: return value.ToBool();
    case Variant::Type::Integer: return QVariant::fromValue(static_cast<short>(value.ToInteger()));
    case Variant::Type::Long: return static_cast<int>(value.ToLong());
    case Variant::Type::Single: return value.ToSingle();
    case Variant::Type::Double: return value.ToDouble();
    case Variant::Type::Currency: return QVariant::fromValue(value.ToCurrency());
    case Variant::Type::Date: return ToQDate(value.ToDate());
    case Variant::Type::String: return ToQString(value.ToString());
    case Variant::Type::Object: return QVariant::fromValue(value.ToObject());
  }
  return QVariant();
}

Variant FromQVariant(const QVariant& value) {
  if (!value.isValid()) return Variant();
  const QMetaType type = value.metaType();
  if (type == QMetaType::fromType<Currency>()) return Variant(value.value<Currency>());
  if (type == QMetaType::fromType<ObjectRef>()) return Variant(value.value<ObjectRef>());
  switch (type.id()) {
    case QMetaType::Nullptr: return Variant::Null();
    case QMetaType::Bool: return Variant(value.toBool());
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short: return Variant(static_cast<std::int16_t>(value.toInt()));
    case QMetaType::UShort:
    case QMetaType::Int: return Variant(static_cast<std::int32_t>(value.toInt()));
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong: return FromWideInteger(value.toLongLong());
    case QMetaType::ULong:
    case QMetaType::ULongLong: {
      const qulonglong wide = value.toULongLong();
      if (wide > static_cast<qulonglong>(std::numeric_limits<std::int32_t>::max())) {
        return Variant(static_cast<double>(wide));
      }
      return Variant(static_cast<std::int32_t>(wide));
    }
    case QMetaType::Float: return Variant(value.toFloat());
    case QMetaType::Double: return Variant(value.toDouble());
    case QMetaType::QDate: return Variant(FromQDate(value.toDate()));
    case QMetaType::QDateTime: return Variant(FromQDate(value.toDateTime().date()));
    default: break;
  }
  if (value.canConvert<QString>()) return Variant(FromQString(value.toString()));
  return Variant();
}

std::optional<QPalette::ColorRole> PaletteRoleOf(OleColor color) {
  if (!IsSystemColor(color)) return std::nullopt;
  switch (SystemColorIndex(color)) {
    case 0: return QPalette::Button;          // scroll bar
    case 2:
    case 13:
    case 27:
    case 29: return QPalette::Highlight;      // active caption, selection, menu highlight
    case 3:
    case 28: return QPalette::Mid;            // inactive caption
    case 5: return QPalette::Base;            // window background
    case 6:
    case 21: return QPalette::Shadow;         // window frame, 3-D dark shadow
    case 7:
    case 19: return QPalette::WindowText;     // menu text, inactive caption text
    case 8: return QPalette::Text;            // window text
    case 9:
    case 14: return QPalette::HighlightedText;
    case 12:
    case 16: return QPalette::Dark;           // application workspace, button shadow
    case 15: return QPalette::Button;         // button face
    case 17: return QPalette::PlaceholderText;  // grey text
    case 18: return QPalette::ButtonText;
    case 20: return QPalette::Light;          // 3-D highlight
    case 22: return QPalette::Midlight;       // 3-D light
    case 23: return QPalette::ToolTipText;
    case 24: return QPalette::ToolTipBase;
    case 26: return QPalette::Link;           // hot-tracked item
    default: return QPalette::Window;         // desktop, menus, borders, menu bar
  }
}

QColor ToQColor(OleColor color, const QPalette& palette) {
  if (auto role = PaletteRoleOf(color)) return palette.color(QPalette::Active, *role);
  return QColor(RedOf(color), GreenOf(color), BlueOf(color));
}

OleColor FromQColor(const QColor& color) {
  const QColor rgb = color.toRgb();
  return Rgb(static_cast<std::uint8_t>(rgb.red()), static_cast<std::uint8_t>(rgb.green()),
             static_cast<std::uint8_t>(rgb.blue()));
}

QColor ReadableTextOn(const QColor& back) {
  auto linear = [](float channel) {
    return channel <= 0.03928f ? channel / 12.92f : std::pow((channel + 0.055f) / 1.055f, 2.4f);
  };
  const QColor rgb = back.toRgb();
  const float luminance =
      0.2126f * linear(rgb.redF()) + 0.7152f * linear(rgb.greenF()) + 0.0722f * linear(rgb.blueF());
  // Contrast against black is (L + 0.05) / 0.05, against white 1.05 / (L + 0.05).
  const bool black = (luminance + 0.05f) * (luminance + 0.05f) >= 1.05f * 0.05f;
  return black ? QColor(Qt::black) : QColor(Qt::white);
}

void RegisterMetaTypes() {
  static std::once_flag once;
  std::call_once(once, [] {
    qRegisterMetaType<Currency>("zenta::Currency");
    qRegisterMetaType<ObjectRef>("zenta::ObjectRef");
    // What a host prints: "113.00", never "113"; decimals past the cent are kept, not rounded.
    RegisterConverterOnce<Currency, QString>(
        [](const Currency& c) { return QString::fromStdString(FormatNumber(c, "0.00##")); });
    RegisterConverterOnce<Currency, double>([](const Currency& c) { return c.ToDouble(); });
    // Malformed or out-of-range text fails the conversion, so setProperty refuses it.
    if (QMetaType::hasRegisteredConverterFunction<QString, Currency>()) return;
    QMetaType::registerConverterFunction(
        [](const void* from, void* to) {
          const std::optional<Currency> value = CurrencyFromQString(*static_cast<const QString*>(from));
          if (value) *static_cast<Currency*>(to) = *value;
          return value.has_value();
        },
        QMetaType::fromType<QString>(), QMetaType::fromType<Currency>());
  });
}

}  // namespace zenta::qt
