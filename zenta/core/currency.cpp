#include "zenta/core/currency.h"

#include <ostream>

#include <limits>

#include "zenta/core/decimal.h"
#include "zenta/core/host_error.h"

namespace zenta {

namespace {
using detail::Decimal;
using detail::UInt128;
using detail::Int128;
constexpr const char* kSource = "Currency";

Currency FromScaledDecimal(const std::optional<Decimal>& scaled) {
  if (!scaled) throw HostError::Overflow(kSource);
  constexpr auto kMaxMagnitude = static_cast<UInt128>(std::numeric_limits<std::int64_t>::max());
  if (scaled->negative) {
    if (scaled->digits > kMaxMagnitude + 1) throw HostError::Overflow(kSource);
    return Currency::FromUnits(static_cast<std::int64_t>(-static_cast<Int128>(scaled->digits)));
  }
  if (scaled->digits > kMaxMagnitude) throw HostError::Overflow(kSource);
  return Currency::FromUnits(static_cast<std::int64_t>(scaled->digits));
}

Currency FromInt128(Int128 units) {
  if (units > std::numeric_limits<std::int64_t>::max() || units < std::numeric_limits<std::int64_t>::min()) {
    throw HostError::Overflow(kSource);
  }
  return Currency::FromUnits(static_cast<std::int64_t>(units));
}

Decimal ExactDecimalOf(double value) {
  auto decimal = detail::DecimalFromDouble(value);
  if (!decimal) throw HostError::Overflow(kSource);
  return *decimal;
}
}  // namespace

Currency Currency::FromInteger(std::int64_t whole) {
  std::int64_t units;
  if (__builtin_mul_overflow(whole, kScale, &units)) throw HostError::Overflow(kSource);
  return FromUnits(units);
}

Currency Currency::FromDouble(double value) {
  return FromScaledDecimal(detail::Rescale(ExactDecimalOf(value), 4));
}

std::optional<Currency> Currency::Parse(std::string_view text) {
  auto decimal = detail::ParseDecimal(text);
  if (!decimal) return std::nullopt;
  return FromScaledDecimal(detail::Rescale(*decimal, 4));
}

Currency Currency::FromText(std::string_view text) {
  auto value = Parse(text);
  if (!value) throw HostError::TypeMismatch(kSource);
  return *value;
}

double Currency::ToDouble() const { return static_cast<double>(units_) / static_cast<double>(kScale); }

float Currency::ToSingle() const {
  double value = ToDouble();
  return static_cast<float>(value);
}

std::string Currency::ToString() const {
  Int128 units = units_;
  bool negative = units < 0;
  if (negative) units = -units;
  auto whole = static_cast<unsigned long long>(units / kScale);
  auto fraction = static_cast<unsigned>(units % kScale);
  std::string text = negative ? "-" : "";
  text += std::to_string(whole);
  if (fraction != 0) {
    std::string digits = std::to_string(fraction);
    digits.insert(0, 4 - digits.size(), '0');
    while (digits.back() == '0') digits.pop_back();
    text += "." + digits;
  }
  return text;
}

Currency Currency::MultipliedBy(double factor) const {
  Decimal f = ExactDecimalOf(factor);
  // units * digits / 10^scale, with the factor's sign.
  Int128 product;
  if (__builtin_mul_overflow(static_cast<Int128>(units_), static_cast<Int128>(f.digits), &product)) {
    throw HostError::Overflow(kSource);
  }
  if (f.negative) product = -product;
  if (f.scale <= 0) {
    Int128 scaled;
    if (-f.scale > 38 || __builtin_mul_overflow(product, static_cast<Int128>(detail::PowerOfTen(-f.scale)), &scaled)) {
      if (product == 0) return Currency();
      throw HostError::Overflow(kSource);
    }
    return FromInt128(scaled);
  }
  if (f.scale > 38) return Currency();
  return FromInt128(detail::DivideHalfEven(product, static_cast<Int128>(detail::PowerOfTen(f.scale))));
}

Currency Currency::DividedBy(double divisor) const {
  Decimal d = ExactDecimalOf(divisor);
  if (d.digits == 0) throw HostError::DivisionByZero(kSource);
  // units / (digits * 10^-scale) = units * 10^scale / digits
  Int128 numerator = units_;
  Int128 denominator = static_cast<Int128>(d.digits);
  if (d.scale >= 0) {
    auto power = static_cast<Int128>(detail::PowerOfTen(d.scale));
    if (d.scale > 38 || __builtin_mul_overflow(numerator, power, &numerator)) {
      if (units_ == 0) return Currency();
      throw HostError::Overflow(kSource);
    }
  } else {
    auto power = static_cast<Int128>(detail::PowerOfTen(-d.scale));
    if (-d.scale > 38 || __builtin_mul_overflow(denominator, power, &denominator)) {
      return Currency();  // dividing by something astronomically large
    }
  }
  if (d.negative) numerator = -numerator;
  return FromInt128(detail::DivideHalfEven(numerator, denominator));
}

Currency Currency::RoundedTo(int places) const {
  if (places >= 4) return *this;
  if (places < 0) places = 0;
  auto step = static_cast<Int128>(detail::PowerOfTen(4 - places));
  return FromInt128(detail::DivideHalfEven(units_, step) * step);
}

Currency Currency::operator-() const {
  if (units_ == std::numeric_limits<std::int64_t>::min()) throw HostError::Overflow(kSource);
  return FromUnits(-units_);
}

Currency& Currency::operator+=(Currency other) {
  std::int64_t sum;
  if (__builtin_add_overflow(units_, other.units_, &sum)) throw HostError::Overflow(kSource);
  units_ = sum;
  return *this;
}

Currency& Currency::operator-=(Currency other) {
  std::int64_t difference;
  if (__builtin_sub_overflow(units_, other.units_, &difference)) throw HostError::Overflow(kSource);
  units_ = difference;
  return *this;
}

std::ostream& operator<<(std::ostream& out, const Currency& value) { return out << value.ToString(); }

}  // namespace zenta
