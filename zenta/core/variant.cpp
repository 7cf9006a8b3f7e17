#include "zenta/core/variant.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "zenta/core/host_error.h"

namespace zenta {

namespace {
constexpr const char* kSource = "Variant";

template <class Int>
Int RangeChecked(double value) {
  double rounded = std::nearbyint(value);  // half to even, as automation rounds
  if (!(rounded >= static_cast<double>(std::numeric_limits<Int>::min()) &&
        rounded <= static_cast<double>(std::numeric_limits<Int>::max()))) {
    throw HostError::Overflow(kSource);
  }
  return static_cast<Int>(rounded);
}

template <class Int>
Int RangeChecked(Currency value) {
  Currency whole = value.RoundedTo(0);
  std::int64_t integer = whole.Units() / Currency::kScale;
  if (integer < std::numeric_limits<Int>::min() || integer > std::numeric_limits<Int>::max()) {
    throw HostError::Overflow(kSource);
  }
  return static_cast<Int>(integer);
}

// Number text as hosts write it, independent of the C locale (a Qt program on a French-Canadian
// desktop would otherwise read "12.5" as 12): blanks, sign, digits with one ".", an optional
// exponent. nullopt for anything else; Overflow past the double range, 0 below it.
std::optional<double> ReadNumber(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  bool negative = false;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  auto digit = [](char c) { return c >= '0' && c <= '9'; };
  std::size_t pos = 0;
  while (pos < text.size() && digit(text[pos])) ++pos;
  const std::size_t integer_digits = pos;
  std::size_t fraction_digits = 0;
  if (pos < text.size() && text[pos] == '.') {
    for (++pos; pos < text.size() && digit(text[pos]); ++pos) ++fraction_digits;
  }
  if (integer_digits + fraction_digits == 0) return std::nullopt;
  const std::size_t mantissa_end = pos;
  long exponent = 0;
  if (pos < text.size() && (text[pos] == 'e' || text[pos] == 'E')) {
    ++pos;
    bool negative_exponent = pos < text.size() && text[pos] == '-';
    if (pos < text.size() && (text[pos] == '-' || text[pos] == '+')) ++pos;
    std::size_t exponent_start = pos;
    for (; pos < text.size() && digit(text[pos]); ++pos) {
      if (exponent < 100000) exponent = exponent * 10 + (text[pos] - '0');
    }
    if (pos == exponent_start) return std::nullopt;
    if (negative_exponent) exponent = -exponent;
  }
  if (pos != text.size()) return std::nullopt;
  double value = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec == std::errc::result_out_of_range) {
    // Too large or too small for a double: the decimal exponent of the first significant digit
    // tells which.
    std::string_view mantissa = text.substr(0, mantissa_end);
    std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) return negative ? -0.0 : 0.0;
    long magnitude = first < integer_digits ? static_cast<long>(integer_digits - first) - 1
                                            : -static_cast<long>(first - integer_digits);
    if (magnitude + exponent >= 0) throw HostError::Overflow(kSource);
    value = 0;
  } else if (ec != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return negative ? -value : value;
}

// Shortest text that reads back as the same value; automation writes the exponent as "E+20".
template <class Floating>
std::string ShortestText(Floating value, std::chars_format format) {
  char buffer[400];
  auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value, format);
  std::string text(buffer, ec == std::errc() ? end : buffer);
  for (char& c : text) {
    if (c == 'e') c = 'E';
  }
  return text;
}

}  // namespace

void Variant::ThrowTypeMismatch() { throw HostError::TypeMismatch(kSource); }

Variant::Type Variant::GetType() const { return static_cast<Type>(value_.index()); }

bool Variant::IsNumeric() const {
  switch (GetType()) {
    case Type::Boolean:
    case Type::Integer:
    case Type::Long:
    case Type::Single:
    case Type::Double:
    case Type::Currency:
      return true;
    case Type::String:
      try {
        return ReadNumber(std::get<std::string>(value_)).has_value();
      } catch (const HostError&) {
        return true;  // a number, only too large for a double
      }
    default:
      return false;
  }
}

double Variant::ToDouble() const {
  switch (GetType()) {
    case Type::Empty: return 0.0;
    case Type::Null: throw HostError::InvalidUseOfNull(kSource);
    case Type::Boolean: return std::get<bool>(value_) ? -1.0 : 0.0;
    case Type::Integer: return std::get<std::int16_t>(value_);
    case Type::Long: return std::get<std::int32_t>(value_);
    case Type::Single: return static_cast<double>(std::get<float>(value_));
    case Type::Double: return std::get<double>(value_);
    case Type::Currency: return std::get<zenta::Currency>(value_).ToDouble();
    case Type::Date: return std::get<zenta::Date>(value_).DayNumber();
    case Type::String: {
      auto number = ReadNumber(std::get<std::string>(value_));
      if (!number) ThrowTypeMismatch();
      return *number;
    }
    case Type::Object: ThrowTypeMismatch();
  }
  ThrowTypeMismatch();
}

zenta::Currency Variant::ToCurrency() const {
  switch (GetType()) {
    case Type::Empty: return {};
    case Type::Null: throw HostError::InvalidUseOfNull(kSource);
    case Type::Boolean: return std::get<bool>(value_) ? zenta::Currency::FromInteger(-1) : zenta::Currency();
    case Type::Integer: return zenta::Currency::FromInteger(std::get<std::int16_t>(value_));
    case Type::Long: return zenta::Currency::FromInteger(std::get<std::int32_t>(value_));
    case Type::Single: {
      // The float's own shortest digits, so 0.1f is 0.1 and not 0.100000001490116.
      float value = std::get<float>(value_);
      if (!std::isfinite(value)) throw HostError::Overflow(kSource);
      return zenta::Currency::FromText(ShortestText(value, std::chars_format::fixed));
    }
    case Type::Double: return zenta::Currency::FromDouble(std::get<double>(value_));
    case Type::Currency: return std::get<zenta::Currency>(value_);
    case Type::Date: return zenta::Currency::FromInteger(std::get<zenta::Date>(value_).DayNumber());
    case Type::String: {
      const auto& text = std::get<std::string>(value_);
      if (auto exact = zenta::Currency::Parse(text)) return *exact;
      auto number = ReadNumber(text);  // "1.5E3" and the like
      if (!number) ThrowTypeMismatch();
      return zenta::Currency::FromDouble(*number);
    }
    case Type::Object: ThrowTypeMismatch();
  }
  ThrowTypeMismatch();
}

bool Variant::ToBool() const {
  switch (GetType()) {
    case Type::Boolean: return std::get<bool>(value_);
    case Type::String: {
      const auto& text = std::get<std::string>(value_);
      if (text == "True" || text == "true" || text == "TRUE") return true;
      if (text == "False" || text == "false" || text == "FALSE") return false;
      return ToDouble() != 0.0;
    }
    case Type::Currency: return !std::get<zenta::Currency>(value_).IsZero();
    default: return ToDouble() != 0.0;
  }
}

std::int16_t Variant::ToInteger() const {
  if (GetType() == Type::Currency) return RangeChecked<std::int16_t>(std::get<zenta::Currency>(value_));
  if (GetType() == Type::Integer) return std::get<std::int16_t>(value_);
  return RangeChecked<std::int16_t>(ToDouble());
}

std::int32_t Variant::ToLong() const {
  if (GetType() == Type::Currency) return RangeChecked<std::int32_t>(std::get<zenta::Currency>(value_));
  if (GetType() == Type::Long) return std::get<std::int32_t>(value_);
  return RangeChecked<std::int32_t>(ToDouble());
}

float Variant::ToSingle() const {
  double value = ToDouble();
  if (std::isfinite(value) && std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
    throw HostError::Overflow(kSource);
  }
  return static_cast<float>(value);
}

zenta::Date Variant::ToDate() const {
  switch (GetType()) {
    case Type::Date: return std::get<zenta::Date>(value_);
    case Type::Empty: return {};
    case Type::Null: throw HostError::InvalidUseOfNull(kSource);
    case Type::String: {
      auto date = zenta::Date::Parse(std::get<std::string>(value_));
      if (!date) ThrowTypeMismatch();
      return *date;
    }
    case Type::Object: ThrowTypeMismatch();
    default: {
      // A number's whole part is the day; its fraction would be the time of day.
      double day = std::trunc(ToDouble());
      if (!(std::fabs(day) <= std::numeric_limits<std::int32_t>::max())) throw HostError::Overflow(kSource);
      return zenta::Date().AddDays(static_cast<std::int32_t>(day));  // checks the year range
    }
  }
}

std::string Variant::ToString() const {
  switch (GetType()) {
    case Type::Empty: return {};
    case Type::Null: throw HostError::InvalidUseOfNull(kSource);
    case Type::Boolean: return std::get<bool>(value_) ? "True" : "False";
    case Type::Integer: return std::to_string(std::get<std::int16_t>(value_));
    case Type::Long: return std::to_string(std::get<std::int32_t>(value_));
    case Type::Single: return ShortestText(std::get<float>(value_), std::chars_format::general);
    case Type::Double: return ShortestText(std::get<double>(value_), std::chars_format::general);
    case Type::Currency: return std::get<zenta::Currency>(value_).ToString();
    case Type::Date: return std::get<zenta::Date>(value_).ToText();
    case Type::String: return std::get<std::string>(value_);
    case Type::Object: ThrowTypeMismatch();
  }
  ThrowTypeMismatch();
}

ObjectRef Variant::ToObject() const {
  if (GetType() == Type::Empty) return nullptr;
  if (GetType() != Type::Object) ThrowTypeMismatch();
  return std::get<ObjectRef>(value_);
}

bool operator==(const Variant& a, const Variant& b) { return a.value_ == b.value_; }

}  // namespace zenta
