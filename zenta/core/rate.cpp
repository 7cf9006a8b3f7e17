#include "zenta/core/rate.h"

#include <limits>
#include <ostream>

#include "zenta/core/decimal.h"
#include "zenta/core/host_error.h"

namespace zenta {

namespace {

using detail::Decimal;
using detail::Int128;
using detail::UInt128;

constexpr int kMaxPower = 38;
// A float's shortest decimal needs scales from -38 to 45; anything far beyond is not a rate.
constexpr int kScaleLimit = 64;
constexpr Int128 kUnitsPerCent = Currency::kScale / 100;

Int128 Power(int n) { return static_cast<Int128>(detail::PowerOfTen(n)); }

std::optional<Rate> FromDecimal(Decimal value) {
  if (value.digits == 0) return Rate();
  while (value.digits % 10 == 0) {
    value.digits /= 10;
    --value.scale;
  }
  if (value.digits > static_cast<UInt128>(std::numeric_limits<std::int64_t>::max())) return std::nullopt;
  const auto magnitude = static_cast<std::int64_t>(value.digits);
  return Rate::FromParts(value.negative ? -magnitude : magnitude, value.scale);
}

Currency FromCents(Int128 cents, const char* source) {
  constexpr Int128 kMax = std::numeric_limits<std::int64_t>::max() / kUnitsPerCent;
  constexpr Int128 kMin = std::numeric_limits<std::int64_t>::min() / kUnitsPerCent;
  if (cents > kMax || cents < kMin) throw HostError::Overflow(source);
  return Currency::FromUnits(static_cast<std::int64_t>(cents * kUnitsPerCent));
}

// value × 10^-exponent, rounded half to even; Overflow when it leaves 128 bits.
Int128 ScaleDown(Int128 value, int exponent, const char* source) {
  if (value == 0 || exponent > kMaxPower) return 0;  // |value| < 2^127 < 10^38 / 2
  if (exponent >= 0) return detail::DivideHalfEven(value, Power(exponent));
  Int128 scaled;
  if (-exponent > kMaxPower || __builtin_mul_overflow(value, Power(-exponent), &scaled)) {
    throw HostError::Overflow(source);
  }
  return scaled;
}

}  // namespace

Rate Rate::FromSingle(float value, const char* source) {
  const auto decimal = detail::DecimalFromSingle(value);
  if (!decimal) throw HostError::Overflow(source);
  return *FromDecimal(*decimal);  // at most nine digits, scale within ±45
}

Rate Rate::FromCurrency(Currency value) {
  return *FromDecimal(Decimal{value.Units() < 0,
                              static_cast<UInt128>(value.Units() < 0 ? -static_cast<Int128>(value.Units()) : value.Units()),
                              4});
}

std::optional<Rate> Rate::FromParts(std::int64_t significand, int scale) {
  if (scale > kScaleLimit || scale < -kScaleLimit) return std::nullopt;
  Rate rate;
  rate.significand_ = significand;
  rate.scale_ = scale;
  rate.Normalise();
  return rate;
}

std::optional<Rate> Rate::Parse(std::string_view text) {
  const auto decimal = detail::ParseDecimal(text);
  if (!decimal) return std::nullopt;
  return FromDecimal(*decimal);
}

void Rate::Normalise() {
  if (significand_ == 0) {
    scale_ = 0;
    return;
  }
  while (significand_ % 10 == 0) {
    significand_ /= 10;
    --scale_;
  }
}

std::string Rate::ToString() const {
  const Int128 value = significand_;
  std::string digits = std::to_string(static_cast<unsigned long long>(value < 0 ? -value : value));
  if (scale_ < 0) digits.append(static_cast<std::size_t>(-scale_), '0');
  const auto decimals = static_cast<std::size_t>(scale_ > 0 ? scale_ : 0);
  if (digits.size() <= decimals) digits.insert(0, decimals - digits.size() + 1, '0');
  std::string text = digits.substr(0, digits.size() - decimals) + "." + digits.substr(digits.size() - decimals);
  if (decimals < kShownDecimals) text.append(kShownDecimals - decimals, '0');
  return significand_ < 0 ? "-" + text : text;
}

Currency Rate::ToCurrency(const char* source) const {
  const Int128 units = ScaleDown(significand_, scale_ - 4, source);
  if (units > std::numeric_limits<std::int64_t>::max() || units < std::numeric_limits<std::int64_t>::min()) {
    throw HostError::Overflow(source);
  }
  return Currency::FromUnits(static_cast<std::int64_t>(units));
}

Currency Rate::ToHome(Currency foreign, const char* source) const {
  // Ten-thousandths × significand is the amount in 10^-(4 + scale); a cent is 10^-2.
  const Int128 product = static_cast<Int128>(foreign.Units()) * significand_;
  return FromCents(ScaleDown(product, scale_ + 2, source), source);
}

Currency Rate::FromHome(Currency home, const char* source) const {
  if (IsZero()) throw HostError::DivisionByZero(source);
  // cents = units × 10^scale / (100 × significand), rounded once.
  Int128 numerator = home.Units();
  Int128 denominator = static_cast<Int128>(significand_) * kUnitsPerCent;
  if (home.IsZero()) return Currency();
  if (scale_ >= 0) {
    if (scale_ > kMaxPower || __builtin_mul_overflow(home.Units(), Power(scale_), &numerator)) {
      throw HostError::Overflow(source);
    }
  } else if (-scale_ > kMaxPower || __builtin_mul_overflow(denominator, Power(-scale_), &denominator)) {
    return Currency();  // a divisor past 10^38 leaves less than half a cent
  }
  if (denominator < 0) {
    numerator = -numerator;
    denominator = -denominator;
  }
  return FromCents(detail::DivideHalfEven(numerator, denominator), source);
}

std::ostream& operator<<(std::ostream& out, const Rate& rate) { return out << rate.ToString(); }

}  // namespace zenta
