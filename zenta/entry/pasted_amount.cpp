#include "zenta/entry/pasted_amount.h"

#include <string>

namespace zenta::entry {
namespace {

// Drops the blanks a locale groups with (space, U+00A0, U+202F) and the dollar sign.
std::string WithoutDecoration(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (c == ' ' || c == '\t' || c == '$') continue;
    if (c == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) == 0xA0) {
      ++i;
      continue;
    }
    if (c == 0xE2 && i + 2 < text.size() && static_cast<unsigned char>(text[i + 1]) == 0x80 &&
        static_cast<unsigned char>(text[i + 2]) == 0xAF) {
      i += 2;
      continue;
    }
    out += static_cast<char>(c);
  }
  return out;
}

}  // namespace

std::optional<Currency> ParsePastedAmount(std::string_view text, AmountDigitLimits limits) {
  std::string body = WithoutDecoration(text);
  bool negative = false;
  if (body.size() >= 2 && body.front() == '(' && body.back() == ')') {
    negative = true;
    body = body.substr(1, body.size() - 2);
  }
  if (!body.empty() && (body.front() == '-' || body.back() == '-')) {
    if (negative) return std::nullopt;
    negative = true;
    body.erase(body.front() == '-' ? body.begin() : body.end() - 1);
  }
  if (body.empty()) return std::nullopt;

  const auto last_point = body.rfind('.');
  const auto last_comma = body.rfind(',');
  std::size_t mark = std::string::npos;
  if (last_point != std::string::npos && last_comma != std::string::npos) {
    mark = std::max(last_point, last_comma);
  } else if (const auto only = last_point != std::string::npos ? last_point : last_comma; only != std::string::npos) {
    const bool once = body.find(body[only]) == only;
    const std::size_t after = body.size() - only - 1;
    if (once && after <= static_cast<std::size_t>(limits.decimal_digits)) mark = only;
  }

  const std::string integer = body.substr(0, mark == std::string::npos ? body.size() : mark);
  const std::string fraction = mark == std::string::npos ? std::string() : body.substr(mark + 1);
  if (fraction.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
  // Grouping: one character other than the mark, every group after the first of three digits.
  const auto separator_at = integer.find_first_of(",.");
  std::string whole;
  if (separator_at == std::string::npos) {
    whole = integer;
  } else {
    const char separator = integer[separator_at];
    if (mark != std::string::npos && body[mark] == separator) return std::nullopt;
    std::size_t group_start = 0;
    for (std::size_t i = 0; i <= integer.size(); ++i) {
      if (i < integer.size() && integer[i] != separator) continue;
      const std::size_t length = i - group_start;
      if (group_start == 0 ? (length < 1 || length > 3) : length != 3) return std::nullopt;
      group_start = i + 1;
    }
    for (char c : integer) {
      if (c != separator) whole += c;
    }
  }
  if (whole.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
  if (whole.empty() && fraction.empty()) return std::nullopt;
  const auto significant = whole.find_first_not_of('0');
  const std::size_t whole_digits = significant == std::string::npos ? 0 : whole.size() - significant;
  if (whole_digits > static_cast<std::size_t>(limits.integer_digits)) return std::nullopt;
  if (fraction.size() > static_cast<std::size_t>(limits.decimal_digits)) return std::nullopt;
  const std::string plain = (negative ? "-" : "") + (whole.empty() ? "0" : whole) + "." + fraction;
  return Currency::Parse(plain);
}

}  // namespace zenta::entry
