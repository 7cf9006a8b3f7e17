#include "zenta/entry/included_tax.h"

#include <limits>

#include "zenta/core/decimal.h"
#include "zenta/core/host_error.h"

namespace zenta {

namespace {
using detail::Int128;
constexpr Int128 kUnitsPerCent = Currency::kScale / 100;
}  // namespace

Currency IncludedTax(Currency amount, const Rate& rate, const char* source) {
  // rate = s × 10^-k, so the tax is units × s ÷ (10^k + s); with k < 0 the rate is the whole
  // number s × 10^-k over 1.
  Int128 numerator_factor = rate.Significand();
  Int128 base = 1;
  const int scale = rate.Scale();
  if (scale > 30 || scale < -30) throw HostError::Overflow(source);
  if (scale >= 0) {
    base = static_cast<Int128>(detail::PowerOfTen(scale));
  } else if (__builtin_mul_overflow(numerator_factor, static_cast<Int128>(detail::PowerOfTen(-scale)),
                                    &numerator_factor)) {
    throw HostError::Overflow(source);
  }
  if (base + numerator_factor <= 0) throw HostError::InvalidProcedureCall(source);
  Int128 denominator = 0;
  if (__builtin_mul_overflow(base + numerator_factor, kUnitsPerCent, &denominator)) throw HostError::Overflow(source);
  Int128 numerator = 0;
  if (__builtin_mul_overflow(static_cast<Int128>(amount.Units()), numerator_factor, &numerator)) {
    throw HostError::Overflow(source);
  }
  const Int128 cents = detail::DivideHalfEven(numerator, denominator);
  Int128 units = 0;
  if (__builtin_mul_overflow(cents, kUnitsPerCent, &units) || units > std::numeric_limits<std::int64_t>::max() ||
      units < std::numeric_limits<std::int64_t>::min()) {
    throw HostError::Overflow(source);
  }
  return Currency::FromUnits(static_cast<std::int64_t>(units));
}

}  // namespace zenta
