#pragma once

#include <string_view>

namespace zenta::entry {

// How many digits an amount field takes on each side of the ".".
struct AmountDigitLimits {
  int integer_digits = 9;
  int decimal_digits = 2;
};

// The character an amount field lets through when `key` is typed into `text` with the given
// selection (in code points), or 0 when the key is discarded. Enter and Backspace always
// pass; otherwise only digits, "." and "-" can, and only when the text they leave still reads
// as an amount being typed: "-" first and only once, one ".", no more digits than `limits`
// allows on either side. A key typed over the whole text replaces it, so it passes.
char32_t FilterAmountKey(std::string_view text, int selection_start, int selection_length, char32_t key,
                         AmountDigitLimits limits = {});

}  // namespace zenta::entry
