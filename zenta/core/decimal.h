#pragma once

#include <optional>
#include <string_view>

namespace zenta::detail {

// 128-bit intermediates keep products of two 64-bit amounts exact.
__extension__ typedef __int128 Int128;
__extension__ typedef unsigned __int128 UInt128;

// A decimal number: digits / 10^scale, with a sign. The common ground of Currency arithmetic
// and number formatting, so both round the same way.
struct Decimal {
  bool negative = false;
  UInt128 digits = 0;
  int scale = 0;  // may be negative: digits * 10^-scale
};

// The shortest decimal text that reads back as `value` (so 0.1 is 1/10, not its binary
// neighbour). nullopt for NaN and infinities.
std::optional<Decimal> DecimalFromDouble(double value);
// The same for a float, read as a float: 1.35f is 135 / 100.
std::optional<Decimal> DecimalFromSingle(float value);

// Invariant text: blanks, optional sign, digits, optional "." and digits; nullopt otherwise.
// Digits past the 37th significant one are summarised, so any length of text reads and rounds
// correctly; a number too large for a caller fails in Rescale.
std::optional<Decimal> ParseDecimal(std::string_view text);

// `value` rescaled to `scale` decimals, half to even. nullopt when it does not fit.
std::optional<Decimal> Rescale(const Decimal& value, int scale);

// 10^n for 0 <= n <= 38.
UInt128 PowerOfTen(int n);

// num / den rounded half to even; den > 0.
Int128 DivideHalfEven(Int128 num, Int128 den);

}  // namespace zenta::detail
