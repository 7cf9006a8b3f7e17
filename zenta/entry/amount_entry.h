#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/currency.h"
#include "zenta/platform/number_edit.h"

namespace zenta::entry {

// Money typed without a "." is read as cents when the field loses the focus: 1234 becomes
// 12.34, -75 becomes -0.75. A text holding "." anywhere is left as typed, whatever the locale
// uses as its separator. An empty field stays empty. Returns true when the text was rewritten.
bool ApplyImpliedDecimal(platform::NumberEdit& edit);

// The same rule on a text, for amounts typed where there is no number edit (a grid cell): the
// amount a text without "." stands for, divided by 100; nullopt when the text holds a "." or
// is not a number (empty, "-", letters), and then it is kept as typed.
std::optional<Currency> ImpliedDecimalValue(std::string_view text);
// As ImpliedDecimalValue, formatted "########0.00" ("12345" gives "123.45").
std::optional<std::string> ImpliedDecimalText(std::string_view text);
// What an amount typed into a grid cell is stored as: typed cents as ImpliedDecimalText gives
// them, a number with "." as typed, and a lone "-" or "." (nothing typed yet) as "0".
std::string TypedGridAmount(std::string_view typed);

// Money set by the program is never divided: the value goes in as it is, and a text without
// "." is rewritten with two decimals (1234 shows "1234.00").
void SetAmount(platform::NumberEdit& edit, Currency value);
void SetAmount(platform::NumberEdit& edit, float value);

// What a reader gets while the payer is still in the field: the value the text becomes when the
// field is left ("2500" reads 25.00), worked out without touching the text, caret or focus.
// Away from the field, the value as it stands.
std::optional<Currency> PendingValue(const platform::NumberEdit& edit);
// The same for a grid cell being typed: the amount TypedGridAmount stores on leaving it.
Currency PendingGridAmount(std::string_view typed);

// Money read by the program: the pending value, 0 when the field holds no value.
Currency AmountAsCurrency(const platform::NumberEdit& edit);
float AmountAsSingle(const platform::NumberEdit& edit);

// The settings every amount field shares: display "########0.00;-########0.00;;0.00", edit
// "#########.##".
void ApplyAmountSettings(platform::NumberEdit& edit);

}  // namespace zenta::entry
