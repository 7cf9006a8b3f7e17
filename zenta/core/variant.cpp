#include "zenta/core/variant.h"

#include <cmath>
#include <limits>

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
        return Currency::Parse(std::get<std::string>(value_)).has_value();
      } catch (const HostError&) {
        return true;  // a number, only too large for currency
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
      const auto& text = std::get<std::string>(value_);
      char* end = nullptr;
      double result = std::strtod(text.c_str(), &end);
      while (end && *end == ' ') ++end;
      if (text.empty() || !end || *end != '\0') ThrowTypeMismatch();
      return result;
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
    case Type::Single: return zenta::Currency::FromDouble(static_cast<double>(std::get<float>(value_)));
    case Type::Double: return zenta::Currency::FromDouble(std::get<double>(value_));
    case Type::Currency: return std::get<zenta::Currency>(value_);
    case Type::Date: return zenta::Currency::FromInteger(std::get<zenta::Date>(value_).DayNumber());
    case Type::String: return zenta::Currency::FromText(std::get<std::string>(value_));
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
    default: return zenta::Date::FromDayNumber(ToLong());
  }
}

std::string Variant::ToString() const {
  switch (GetType()) {
    case Type::Empty: return {};
    case Type::Null: throw HostError::InvalidUseOfNull(kSource);
    case Type::Boolean: return std::get<bool>(value_) ? "True" : "False";
    case Type::Integer: return std::to_string(std::get<std::int16_t>(value_));
    case Type::Long: return std::to_string(std::get<std::int32_t>(value_));
    case Type::Single:
    case Type::Double: {
      double value = ToDouble();
      // Shortest text that reads back the same, without exponent for everyday magnitudes.
      if (std::fabs(value) < 1e15) {
        try {
          return zenta::Currency::FromDouble(value).ToDouble() == value ? zenta::Currency::FromDouble(value).ToString()
                                                                        : std::to_string(value);
        } catch (const HostError&) {
        }
      }
      return std::to_string(value);
    }
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
