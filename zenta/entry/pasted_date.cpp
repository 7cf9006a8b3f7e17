#include "zenta/entry/pasted_date.h"

namespace zenta::entry {
namespace {

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Reads `text` against a pattern of d/M/y runs and literal separators.
std::optional<Date> ByPattern(std::string_view text, std::string_view pattern) {
  int year = -1;
  int month = -1;
  int day = -1;
  std::size_t at = 0;
  for (std::size_t p = 0; p < pattern.size();) {
    const char field = pattern[p];
    std::size_t run = 1;
    while (p + run < pattern.size() && pattern[p + run] == field) ++run;
    p += run;
    if (field != 'd' && field != 'M' && field != 'y') {
      if (text.substr(at, run) != pattern.substr(p - run, run)) return std::nullopt;
      at += run;
      continue;
    }
    // One-letter fields take one or two digits; the others exactly their width.
    const std::size_t most = run == 1 ? 2 : run;
    const std::size_t least = run == 1 ? 1 : run;
    std::size_t digits = 0;
    int value = 0;
    while (digits < most && at < text.size() && text[at] >= '0' && text[at] <= '9') {
      value = value * 10 + (text[at] - '0');
      ++at;
      ++digits;
    }
    if (digits < least) return std::nullopt;
    if (field == 'y') {
      year = run <= 2 ? 2000 + value : value;
    } else if (field == 'M') {
      month = value;
    } else {
      day = value;
    }
  }
  if (at != text.size() || year < 0 || month < 0 || day < 0) return std::nullopt;
  return Date::FromYmd(year, month, day);
}

}  // namespace

std::optional<Date> ParsePastedDate(std::string_view text, std::string_view short_pattern) {
  const std::string_view trimmed = Trimmed(text);
  if (trimmed.empty()) return std::nullopt;
  for (std::string_view pattern : {std::string_view("yyyy/MM/dd"), std::string_view("yyyy-MM-dd"), short_pattern}) {
    if (pattern.empty()) continue;
    if (auto date = ByPattern(trimmed, pattern)) return date;
  }
  return std::nullopt;
}

}  // namespace zenta::entry
