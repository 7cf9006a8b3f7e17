#pragma once

/// @file
/// Numbers as text for display: FormatNumber() and the common patterns.

#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/currency.h"

namespace zenta {

/// Formats a number with a display pattern of up to four sections, "positive;negative;zero;null".
/// In a section "0" is a digit always shown, "#" a digit shown when significant, "." the decimal
/// point (always "."), "," thousands grouping; other characters are copied. A missing or empty
/// negative section formats the absolute value with the positive section after a "-"; a missing
/// or empty zero section uses the positive section; the null section is used only by
/// FormatNullable() (empty text when absent). Decimals are rounded half to even; a value that
/// rounds to zero in its section is formatted as zero (no sign, the zero section if given).
/// Examples: ("########0.00", 12.5) -> "12.50"; ("###0.000000", 1.234567) -> "1.234567";
/// ("00", 7) -> "07"; ("########0.00;-########0.00;;0.00", -3) -> "-3.00".
std::string FormatNumber(Currency value, std::string_view pattern);
/// FormatNumber() for a double, taken as its shortest decimal text.
std::string FormatNumber(double value, std::string_view pattern);
/// FormatNumber(), or the null section (empty text without one) when `value` is absent.
std::string FormatNullable(const std::optional<Currency>& value, std::string_view pattern);

/// An amount as FormatNumber writes it ("-1234567.50", "1,234.50") written a locale's way: the
/// point as `decimal_point` and the integer digits grouped by threes with `group_separator`, or
/// not grouped when it is empty ("-1 234 567,50"). Anything else (a caption, a half-typed "1.2.")
/// comes back unchanged.
std::string LocalizeAmount(std::string_view text, std::string_view decimal_point, std::string_view group_separator);

/// Half to even at `places` decimals, computed on the decimal digits of the value's shortest
/// round-trip text so that 2.675 rounds as written, not as its binary neighbour.
double RoundHalfEven(double value, int places);

/// The common patterns.
namespace formats {
inline constexpr std::string_view kAmount = "########0.00";        ///< An amount for display: "113.00".
inline constexpr std::string_view kAmountTyping = "#######0.00";   ///< An amount the payer left, as the field shows it.
inline constexpr std::string_view kAmountShort = "######0.00";     ///< An amount in a narrow field.
inline constexpr std::string_view kRate = "###0.000000";           ///< A currency rate, six decimals at least.
inline constexpr std::string_view kTotal = "0.00";                 ///< A total under the list.
/// An amount in a grid: negatives with "-", zero as "0.00".
inline constexpr std::string_view kAmountDisplay = "########0.00;-########0.00;;0.00";
/// An amount in the remittance's line items.
inline constexpr std::string_view kGovtAmountDisplay = "######0.00;-########0.00;;0.00";
inline constexpr std::string_view kAmountEdit = "#########.##";    ///< An amount being edited: no trailing zeros.
}  // namespace formats

}  // namespace zenta
