#pragma once

#include <optional>
#include <string_view>

#include "zenta/core/currency.h"
#include "zenta/entry/amount_key_filter.h"

namespace zenta::entry {

// An amount as people write it in spreadsheets and mail, read as a value (never as cents:
// "1250" is 1,250.00). Accepts a "$" before or after, blanks and no-break spaces, grouping
// with "," "." or blanks, a "," or "." decimal mark, and negatives as "-12.50", "12.50-" or
// "(12.50)". The mark is the last of "," and "." when both appear; alone, it is a decimal mark
// when it appears once with at most `limits.decimal_digits` digits after it, else grouping.
// Returns nullopt for anything else, or for more digits than `limits` allows on either side.
std::optional<Currency> ParsePastedAmount(std::string_view text, AmountDigitLimits limits = {});

}  // namespace zenta::entry
