#include "zenta/core/decimal.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace zenta::detail {

namespace {
constexpr int kMaxPower = 38;
// Digits read from text; one more (the sticky digit) still fits below 10^38.
constexpr int kKeptDigits = kMaxPower - 1;
// Bounds the scale of absurdly long texts so it never wraps; such numbers round to 0 or overflow.
constexpr int kScaleLimit = 1 << 20;
}  // namespace

UInt128 PowerOfTen(int n) {
  UInt128 result = 1;
  for (int i = 0; i < n && i < kMaxPower; ++i) result *= 10;
  return result;
}

Int128 DivideHalfEven(Int128 num, Int128 den) {
  Int128 quotient = num / den;
  Int128 remainder = num % den;
  if (remainder == 0) return quotient;
  Int128 twice = remainder < 0 ? -remainder * 2 : remainder * 2;
  bool away = twice > den || (twice == den && (quotient % 2 != 0));
  if (away) quotient += (num < 0) ? -1 : 1;
  return quotient;
}

namespace {
// std::to_chars gives the shortest text that reads back as `value` in its own type, so a float
// and the double it widens to have different shortest decimals (1.35f against 1.35000002...).
template <class Floating>
std::optional<Decimal> ShortestDecimal(Floating value) {
  if (!std::isfinite(value)) return std::nullopt;
  char buffer[64];
  auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific);
  if (ec != std::errc()) return std::nullopt;
  std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
  Decimal result;
  std::size_t pos = 0;
  if (text[pos] == '-') {
    result.negative = true;
    ++pos;
  }
  int fraction_digits = 0;
  bool after_point = false;
  for (; pos < text.size() && text[pos] != 'e'; ++pos) {
    if (text[pos] == '.') {
      after_point = true;
      continue;
    }
    result.digits = result.digits * 10 + static_cast<unsigned>(text[pos] - '0');
    if (after_point) ++fraction_digits;
  }
  int exponent = std::atoi(std::string(text.substr(pos + 1)).c_str());
  result.scale = fraction_digits - exponent;
  if (result.digits == 0) result.negative = false;
  return result;
}
}  // namespace

std::optional<Decimal> DecimalFromDouble(double value) { return ShortestDecimal(value); }
std::optional<Decimal> DecimalFromSingle(float value) { return ShortestDecimal(value); }

std::optional<Decimal> ParseDecimal(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  Decimal result;
  std::size_t pos = 0;
  if (pos < text.size() && (text[pos] == '-' || text[pos] == '+')) {
    result.negative = text[pos] == '-';
    ++pos;
  }
  bool any_digit = false;
  bool after_point = false;
  bool dropped_nonzero = false;
  int significant = 0;
  for (; pos < text.size(); ++pos) {
    char c = text[pos];
    if (c == '.') {
      if (after_point) return std::nullopt;
      after_point = true;
      continue;
    }
    if (c < '0' || c > '9') return std::nullopt;
    any_digit = true;
    if (significant < kKeptDigits) {
      if (after_point && result.scale >= kScaleLimit) {
        dropped_nonzero = dropped_nonzero || c != '0';  // far below anything a caller rounds to
        continue;
      }
      result.digits = result.digits * 10 + static_cast<unsigned>(c - '0');
      if (result.digits != 0) ++significant;
      if (after_point) ++result.scale;
      continue;
    }
    // Past the kept digits an integer digit still multiplies the number by ten, and a dropped
    // non-zero digit must not let a rounding see an exact half that is not there.
    if (!after_point && result.scale > -kScaleLimit) --result.scale;
    if (c != '0') dropped_nonzero = true;
  }
  if (!any_digit) return std::nullopt;
  if (dropped_nonzero) {
    result.digits = result.digits * 10 + 1;
    ++result.scale;
  }
  if (result.digits == 0) result.negative = false;
  return result;
}

std::optional<Decimal> Rescale(const Decimal& value, int scale) {
  Decimal result = value;
  result.scale = scale;
  if (value.digits == 0) {
    result.negative = false;
    result.digits = 0;
    return result;
  }
  int shift = scale - value.scale;
  if (shift >= 0) {
    if (shift > kMaxPower) return std::nullopt;
    UInt128 factor = PowerOfTen(shift);
    UInt128 product;
    if (__builtin_mul_overflow(value.digits, factor, &product)) return std::nullopt;
    result.digits = product;
    return result;
  }
  int drop = -shift;
  if (drop > kMaxPower) {
    result.digits = 0;
    result.negative = false;
    return result;
  }
  UInt128 divisor = PowerOfTen(drop);
  UInt128 quotient = value.digits / divisor;
  UInt128 remainder = value.digits % divisor;
  UInt128 half = divisor / 2;
  if (remainder > half || (remainder == half && divisor % 2 == 0 && (quotient & 1) != 0)) ++quotient;
  result.digits = quotient;
  if (quotient == 0) result.negative = false;
  return result;
}

}  // namespace zenta::detail
