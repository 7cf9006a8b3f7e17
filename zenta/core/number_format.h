#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/currency.h"

namespace zenta {

// Formats a number with a display pattern of up to four sections, "positive;negative;zero;null".
// In a section "0" is a digit always shown, "#" a digit shown when significant, "." the decimal
// point (always "."), "," thousands grouping; other characters are copied. A missing or empty
// negative section formats the absolute value with the positive section after a "-"; a missing
// or empty zero section uses the positive section; the null section is used only by
// FormatNullable (empty text when absent). Decimals are rounded half to even; a value that
// rounds to zero in its section is formatted as zero (no sign, the zero section if given).
// Examples: ("########0.00", 12.5) -> "12.50"; ("###0.000000", 1.234567) -> "1.234567";
// ("00", 7) -> "07"; ("########0.00;-########0.00;;0.00", -3) -> "-3.00".
std::string FormatNumber(Currency value, std::string_view pattern);
std::string FormatNumber(double value, std::string_view pattern);
std::string FormatNullable(const std::optional<Currency>& value, std::string_view pattern);

// An amount as FormatNumber writes it ("-1234567.50", "1,234.50") written a locale's way: the
// point as `decimal_point` and the integer digits grouped by threes with `group_separator`, or
// not grouped when it is empty ("-1 234 567,50"). Anything else (a caption, a half-typed "1.2.")
// comes back unchanged.
std::string LocalizeAmount(std::string_view text, std::string_view decimal_point, std::string_view group_separator);

// Half to even at `places` decimals, computed on the decimal digits of the value's shortest
// round-trip text so that 2.675 rounds as written, not as its binary neighbour.
double RoundHalfEven(double value, int places);

// The common patterns.
namespace formats {
inline constexpr std::string_view kAmount = "########0.00";
inline constexpr std::string_view kAmountTyping = "#######0.00";
inline constexpr std::string_view kAmountShort = "######0.00";
inline constexpr std::string_view kRate = "###0.000000";
inline constexpr std::string_view kTotal = "0.00";
inline constexpr std::string_view kAmountDisplay = "########0.00;-########0.00;;0.00";
inline constexpr std::string_view kGovtAmountDisplay = "######0.00;-########0.00;;0.00";
inline constexpr std::string_view kAmountEdit = "#########.##";
}  // namespace formats

}  // namespace zenta
