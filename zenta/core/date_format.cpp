#include "zenta/core/date_format.h"

#include <array>
#include <cstdio>

namespace zenta {

namespace {
constexpr std::array<const char*, 12> kMonthNames = {"January", "February", "March",     "April",
                                                     "May",     "June",     "July",      "August",
                                                     "September", "October", "November", "December"};

std::string TwoDigits(int value) {
  char buffer[8];
  std::snprintf(buffer, sizeof buffer, "%02d", value);
  return buffer;
}

std::size_t RunLength(std::string_view pattern, std::size_t at, char c) {
  std::size_t n = 0;
  while (at + n < pattern.size() && pattern[at + n] == c) ++n;
  return n;
}
}  // namespace

std::string FormatDate(Date date, std::string_view pattern) {
  std::string out;
  for (std::size_t i = 0; i < pattern.size();) {
    char c = pattern[i];
    std::size_t run = (c == 'y' || c == 'm' || c == 'd') ? RunLength(pattern, i, c) : 1;
    if (c == 'y' && run >= 3) {
      out += std::to_string(date.Year());
    } else if (c == 'y') {
      out += TwoDigits(date.Year() % 100);
    } else if (c == 'm' && run >= 4) {
      out += kMonthNames[static_cast<std::size_t>(date.Month() - 1)];
    } else if (c == 'm' && run == 3) {
      out += std::string(kMonthNames[static_cast<std::size_t>(date.Month() - 1)]).substr(0, 3);
    } else if (c == 'm') {
      out += run == 2 ? TwoDigits(date.Month()) : std::to_string(date.Month());
    } else if (c == 'd') {
      out += run >= 2 ? TwoDigits(date.Day()) : std::to_string(date.Day());
    } else {
      out += c;
    }
    i += run;
  }
  return out;
}

}  // namespace zenta
