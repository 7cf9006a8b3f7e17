#include "zenta/entry/amount_key_filter.h"

#include <algorithm>
#include <string>

#include "zenta/core/utf8.h"

namespace zenta::entry {

namespace {

constexpr char32_t kBackspace = 8;
constexpr char32_t kEnter = 13;

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

// An amount part-way through typing: optional "-", digits, optional "." and digits.
bool IsAmountPrefix(std::u32string_view text, AmountDigitLimits limits) {
  std::size_t i = 0;
  if (i < text.size() && text[i] == U'-') ++i;
  int before = 0;
  while (i < text.size() && IsDigit(text[i])) {
    ++before;
    ++i;
  }
  if (before > limits.integer_digits) return false;
  if (i == text.size()) return true;
  if (text[i] != U'.') return false;
  ++i;
  int after = 0;
  while (i < text.size() && IsDigit(text[i])) {
    ++after;
    ++i;
  }
  return i == text.size() && after <= limits.decimal_digits;
}

}  // namespace

char32_t FilterAmountKey(std::string_view text, int selection_start, int selection_length, char32_t key,
                         AmountDigitLimits limits) {
  if (key == kEnter || key == kBackspace) return key;
  if (!IsDigit(key) && key != U'.' && key != U'-') return 0;
  std::u32string typed = utf8::Decode(text);
  const auto size = static_cast<int>(typed.size());
  const int start = std::clamp(selection_start, 0, size);
  const int length = std::clamp(selection_length, 0, size - start);
  if (length == size) return key;
  typed.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), 1, key);
  return IsAmountPrefix(typed, limits) ? key : 0;
}

}  // namespace zenta::entry
