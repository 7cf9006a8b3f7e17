#include "zenta/core/date.h"

#include <cstdio>

namespace zenta {

namespace {
// Days since 1970-01-01 of a proleptic Gregorian date (Hinnant's algorithm).
constexpr std::int32_t DaysFromCivil(int y, int m, int d) {
  y -= m <= 2;
  const int era = (y >= 0 ? y : y - 399) / 400;
  const int yoe = y - era * 400;
  const int doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

struct Civil {
  int year;
  int month;
  int day;
};

constexpr Civil CivilFromDays(std::int32_t z) {
  z += 719468;
  const int era = (z >= 0 ? z : z - 146096) / 146097;
  const int doe = z - era * 146097;
  const int yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const int y = yoe + era * 400;
  const int doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const int mp = (5 * doy + 2) / 153;
  const int d = doy - (153 * mp + 2) / 5 + 1;
  const int m = mp + (mp < 10 ? 3 : -9);
  return {y + (m <= 2), m, d};
}

constexpr std::int32_t kEpochOffset = DaysFromCivil(1899, 12, 30);

constexpr bool IsLeap(int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

constexpr int DaysInMonth(int y, int m) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return m == 2 && IsLeap(y) ? 29 : kDays[m - 1];
}

static_assert(CivilFromDays(kEpochOffset).year == 1899);
static_assert(DaysFromCivil(1900, 1, 1) - kEpochOffset == 2);
}  // namespace

std::optional<Date> Date::FromYmd(int year, int month, int day) {
  if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1) return std::nullopt;
  if (day > DaysInMonth(year, month)) return std::nullopt;
  return FromDayNumber(DaysFromCivil(year, month, day) - kEpochOffset);
}

std::optional<Date> Date::Parse(std::string_view text) {
  if (text.size() != 10 || text[4] != '/' || text[7] != '/') return std::nullopt;
  auto number = [&](std::size_t from, std::size_t count) -> int {
    int value = 0;
    for (std::size_t i = from; i < from + count; ++i) {
      if (text[i] < '0' || text[i] > '9') return -1;
      value = value * 10 + (text[i] - '0');
    }
    return value;
  };
  int y = number(0, 4), m = number(5, 2), d = number(8, 2);
  if (y < 0 || m < 0 || d < 0) return std::nullopt;
  return FromYmd(y, m, d);
}

int Date::Year() const { return CivilFromDays(day_ + kEpochOffset).year; }
int Date::Month() const { return CivilFromDays(day_ + kEpochOffset).month; }
int Date::Day() const { return CivilFromDays(day_ + kEpochOffset).day; }

std::string Date::ToText() const {
  Civil c = CivilFromDays(day_ + kEpochOffset);
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%04d/%02d/%02d", c.year, c.month, c.day);
  return buffer;
}

Date Date::AddDays(std::int32_t days) const { return FromDayNumber(day_ + days); }

Date Date::AddYears(int years) const {
  Civil c = CivilFromDays(day_ + kEpochOffset);
  int year = c.year + years;
  int day = c.day;
  if (c.month == 2 && day == 29 && !IsLeap(year)) day = 28;
  return FromDayNumber(DaysFromCivil(year, c.month, day) - kEpochOffset);
}

}  // namespace zenta
