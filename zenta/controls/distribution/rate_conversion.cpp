#include "zenta/controls/distribution/rate_conversion.h"

#include <limits>

#include "zenta/core/decimal.h"
#include "zenta/core/host_error.h"

namespace zenta {

namespace {

using detail::Int128;

constexpr const char* kSource = "frmDistribution";
constexpr Int128 kUnitsPerCent = Currency::kScale / 100;

Currency FromCents(Int128 cents) {
  constexpr Int128 kMax = std::numeric_limits<std::int64_t>::max() / kUnitsPerCent;
  constexpr Int128 kMin = std::numeric_limits<std::int64_t>::min() / kUnitsPerCent;
  if (cents > kMax || cents < kMin) throw HostError::Overflow(kSource);
  return Currency::FromUnits(static_cast<std::int64_t>(cents * kUnitsPerCent));
}

}  // namespace

Currency ToHomeAmount(Currency foreign, Currency rate) {
  // units * units is the value in 10^-8; a cent is 10^-2.
  const Int128 product = static_cast<Int128>(foreign.Units()) * rate.Units();
  return FromCents(detail::DivideHalfEven(product, static_cast<Int128>(Currency::kScale) * kUnitsPerCent));
}

Currency FromHomeAmount(Currency home, Currency rate) {
  if (rate.IsZero()) throw HostError::DivisionByZero(kSource);
  Int128 numerator = static_cast<Int128>(home.Units()) * 100;
  Int128 denominator = rate.Units();
  if (denominator < 0) {
    numerator = -numerator;
    denominator = -denominator;
  }
  return FromCents(detail::DivideHalfEven(numerator, denominator));
}

}  // namespace zenta
