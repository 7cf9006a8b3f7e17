#pragma once

#include <cstddef>
#include <cstdint>

#include "zenta/core/currency.h"
#include "zenta/entry/amount_key_filter.h"

namespace zenta::invoice_limits {

inline constexpr std::size_t kMaxNumberLength = 255;
// "#######0.00": eight digits before the point, two after.
inline constexpr entry::AmountDigitLimits kAmountDigits{8, 2};
inline constexpr std::int64_t kForeignLimit = 9'999'999'99LL * (Currency::kScale / 100);

inline bool InForeignRange(Currency amount) {
  return amount.Units() >= -kForeignLimit && amount.Units() <= kForeignLimit;
}

}  // namespace zenta::invoice_limits
