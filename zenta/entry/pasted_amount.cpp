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

  std::string whole;
  std::string fraction;
  for (std::size_t i = 0; i < body.size(); ++i) {
    const char c = body[i];
    if (i == mark) continue;
    if (c >= '0' && c <= '9') {
      (mark != std::string::npos && i > mark ? fraction : whole) += c;
    } else if ((c == ',' || c == '.') && (mark == std::string::npos || i < mark)) {
      // Grouping: a digit on each side.
      if (i == 0 || i + 1 >= body.size() || body[i + 1] < '0' || body[i + 1] > '9') return std::nullopt;
    } else {
      return std::nullopt;
    }
  }
  if (whole.empty() && fraction.empty()) return std::nullopt;
  const auto significant = whole.find_first_not_of('0');
  const std::size_t whole_digits = significant == std::string::npos ? 0 : whole.size() - significant;
  if (whole_digits > static_cast<std::size_t>(limits.integer_digits)) return std::nullopt;
  if (fraction.size() > static_cast<std::size_t>(limits.decimal_digits)) return std::nullopt;
  const std::string plain = (negative ? "-" : "") + (whole.empty() ? "0" : whole) + "." + fraction;
  return Currency::Parse(plain);
}

}  // namespace zenta::entry
