#include "zenta/core/number_format.h"

#include <charconv>
#include <cmath>
#include <string>
#include <vector>

#include "zenta/core/decimal.h"

namespace zenta {

namespace {
using detail::Decimal;
using detail::UInt128;
using detail::Int128;

std::vector<std::string_view> SplitSections(std::string_view pattern) {
  std::vector<std::string_view> sections;
  std::size_t start = 0;
  for (std::size_t i = 0; i <= pattern.size(); ++i) {
    if (i == pattern.size() || pattern[i] == ';') {
      sections.push_back(pattern.substr(start, i - start));
      start = i + 1;
    }
  }
  return sections;
}

bool IsPlaceholder(char c) { return c == '0' || c == '#'; }

// One section: literal prefix, the number's placeholders, literal suffix.
struct Section {
  std::string prefix;
  std::string suffix;
  int min_integer_digits = 0;
  int required_decimals = 0;
  int max_decimals = 0;
  bool grouping = false;
  bool has_point = false;
};

Section ParseSection(std::string_view text) {
  Section s;
  std::size_t first = text.find_first_of("0#.");
  std::size_t last = text.find_last_of("0#.,");
  if (first == std::string_view::npos) {
    s.prefix = std::string(text);
    return s;
  }
  s.prefix = std::string(text.substr(0, first));
  s.suffix = std::string(text.substr(last + 1));
  bool after_point = false;
  for (std::size_t i = first; i <= last; ++i) {
    char c = text[i];
    if (c == '.') {
      after_point = true;
      s.has_point = true;
    } else if (c == ',' && !after_point) {
      s.grouping = true;
    } else if (IsPlaceholder(c) && !after_point) {
      if (c == '0') ++s.min_integer_digits;
    } else if (IsPlaceholder(c)) {
      ++s.max_decimals;
      if (c == '0') s.required_decimals = s.max_decimals;
    }
  }
  return s;
}

std::string DigitsOf(UInt128 value) {
  if (value == 0) return "0";
  std::string out;
  while (value != 0) {
    out.insert(out.begin(), static_cast<char>('0' + static_cast<int>(value % 10)));
    value /= 10;
  }
  return out;
}

// The magnitude of `value` as digits with exactly `places` of them decimals, half to even.
// Padding with zeros as text keeps wide patterns from overflowing the 128-bit digits.
std::string FixedDigits(const Decimal& value, int places) {
  if (value.scale < places) {
    return DigitsOf(value.digits) + std::string(static_cast<std::size_t>(places - value.scale), '0');
  }
  auto rounded = detail::Rescale(value, places);  // only drops digits, so it always fits
  return rounded ? DigitsOf(rounded->digits) : std::string("0");
}

bool AllZeros(std::string_view digits) { return digits.find_first_not_of('0') == std::string_view::npos; }

// `digits` (the magnitude with s.max_decimals decimals) laid out by the section.
std::string LayOut(std::string digits, const Section& s) {
  auto decimals = static_cast<std::size_t>(s.max_decimals);
  if (digits.size() <= decimals) digits = std::string(decimals - digits.size() + 1, '0') + digits;
  std::string integer = digits.substr(0, digits.size() - decimals);
  std::string fraction = digits.substr(digits.size() - decimals);
  while (fraction.size() > static_cast<std::size_t>(s.required_decimals) && fraction.back() == '0') {
    fraction.pop_back();
  }
  std::size_t first_nonzero = integer.find_first_not_of('0');
  integer = first_nonzero == std::string::npos ? "" : integer.substr(first_nonzero);
  if (integer.size() < static_cast<std::size_t>(s.min_integer_digits)) {
    integer = std::string(static_cast<std::size_t>(s.min_integer_digits) - integer.size(), '0') + integer;
  }
  if (s.grouping) {
    std::string grouped;
    for (std::size_t i = 0; i < integer.size(); ++i) {
      if (i > 0 && (integer.size() - i) % 3 == 0) grouped += ',';
      grouped += integer[i];
    }
    integer = grouped;
  }
  std::string out = s.prefix + integer;
  if (s.has_point && (!fraction.empty() || s.required_decimals > 0)) out += "." + fraction;
  return out + s.suffix;
}

// A value that rounds to zero in its section is shown as zero: no sign, and by the zero section
// when there is one, so a payer never sees "-0.00".
std::string Format(const Decimal& value, std::string_view pattern) {
  auto sections = SplitSections(pattern);
  auto given = [&](std::size_t i) { return i < sections.size() && !sections[i].empty(); };
  const bool own_negative = value.negative && given(1);
  Section section = ParseSection(sections[own_negative ? 1 : 0]);
  std::string digits = FixedDigits(value, section.max_decimals);
  if (AllZeros(digits)) {
    Section zero = ParseSection(sections[given(2) ? 2 : 0]);
    return LayOut(std::string(static_cast<std::size_t>(zero.max_decimals) + 1, '0'), zero);
  }
  std::string text = LayOut(std::move(digits), section);
  return value.negative && !own_negative ? "-" + text : text;
}

Decimal DecimalOf(Currency value) {
  Decimal d;
  Int128 units = value.Units();
  d.negative = units < 0;
  d.digits = static_cast<UInt128>(units < 0 ? -units : units);
  d.scale = 4;
  return d;
}
}  // namespace

std::string FormatNumber(Currency value, std::string_view pattern) { return Format(DecimalOf(value), pattern); }

std::string FormatNumber(double value, std::string_view pattern) {
  auto decimal = detail::DecimalFromDouble(value);
  if (!decimal) return std::isnan(value) ? "NaN" : (value > 0 ? "Infinity" : "-Infinity");
  return Format(*decimal, pattern);
}

std::string FormatNullable(const std::optional<Currency>& value, std::string_view pattern) {
  if (value) return FormatNumber(*value, pattern);
  auto sections = SplitSections(pattern);
  return sections.size() > 3 ? std::string(sections[3]) : std::string();
}

std::string LocalizeAmount(std::string_view text, std::string_view decimal_point, std::string_view group_separator) {
  auto digit = [](char c) { return c >= '0' && c <= '9'; };
  std::size_t i = text.size() > 0 && text[0] == '-' ? 1 : 0;
  const std::size_t integer_start = i;
  std::string integer;
  for (; i < text.size() && (digit(text[i]) || text[i] == ','); ++i) {
    if (digit(text[i])) integer += text[i];
  }
  // A grouping comma may only stand between digits.
  if (!integer.empty() && (!digit(text[integer_start]) || text[i - 1] == ',')) return std::string(text);
  std::string fraction;
  const bool point = i < text.size() && text[i] == '.';
  if (point) {
    for (++i; i < text.size() && digit(text[i]); ++i) fraction += text[i];
  }
  if (i != text.size() || (integer.empty() && fraction.empty())) return std::string(text);
  std::string out(text.substr(0, integer_start));
  for (std::size_t d = 0; d < integer.size(); ++d) {
    if (d > 0 && (integer.size() - d) % 3 == 0) out += group_separator;
    out += integer[d];
  }
  if (point) out.append(decimal_point).append(fraction);
  return out;
}

double RoundHalfEven(double value, int places) {
  auto decimal = detail::DecimalFromDouble(value);
  if (!decimal || places < 0 || places > 15) return value;
  auto rounded = detail::Rescale(*decimal, places);
  if (!rounded) return value;
  std::string text = (rounded->negative ? "-" : "") + DigitsOf(rounded->digits) + "e-" + std::to_string(places);
  double result = 0;
  std::from_chars(text.data(), text.data() + text.size(), result);
  return result;
}

}  // namespace zenta
