#include "zenta/core/date.h"

#include <ostream>

#include <cstdio>

#include "zenta/core/host_error.h"

namespace zenta {

namespace {
constexpr const char* kSource = "Date";

// Days since 1970-01-01 of a proleptic Gregorian date (Hinnant's algorithm), in 64 bits so that
// no int32 day number or year can overflow on the way.
constexpr std::int64_t DaysFromCivil(std::int64_t y, std::int64_t m, std::int64_t d) {
  y -= m <= 2;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const std::int64_t yoe = y - era * 400;
  const std::int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const std::int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

struct Civil {
  int year;
  int month;
  int day;
};

constexpr Civil CivilFromDays(std::int64_t z) {
  z += 719468;
  const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const std::int64_t doe = z - era * 146097;
  const std::int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const std::int64_t y = yoe + era * 400;
  const std::int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const std::int64_t mp = (5 * doy + 2) / 153;
  const auto d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  const auto m = static_cast<int>(mp + (mp < 10 ? 3 : -9));
  return {static_cast<int>(y + (m <= 2)), m, d};
}

constexpr std::int64_t kEpochOffset = DaysFromCivil(1899, 12, 30);
constexpr std::int64_t kFirstDay = DaysFromCivil(100, 1, 1) - kEpochOffset;
constexpr std::int64_t kLastDay = DaysFromCivil(9999, 12, 31) - kEpochOffset;

constexpr bool IsLeap(std::int64_t y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

constexpr int DaysInMonth(int y, int m) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return m == 2 && IsLeap(y) ? 29 : kDays[m - 1];
}

Civil CivilOf(std::int32_t day) { return CivilFromDays(day + kEpochOffset); }

// Results of date arithmetic stay within years 100 to 9999.
Date CheckedDate(std::int64_t day) {
  if (day < kFirstDay || day > kLastDay) throw HostError::Overflow(kSource);
  return Date::FromDayNumber(static_cast<std::int32_t>(day));
}

static_assert(CivilFromDays(kEpochOffset).year == 1899);
static_assert(DaysFromCivil(1900, 1, 1) - kEpochOffset == 2);
static_assert(kFirstDay == -657434 && kLastDay == 2958465);
}  // namespace

std::optional<Date> Date::FromYmd(int year, int month, int day) {
  if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1) return std::nullopt;
  if (day > DaysInMonth(year, month)) return std::nullopt;
  return FromDayNumber(static_cast<std::int32_t>(DaysFromCivil(year, month, day) - kEpochOffset));
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

int Date::Year() const { return CivilOf(day_).year; }
int Date::Month() const { return CivilOf(day_).month; }
int Date::Day() const { return CivilOf(day_).day; }

std::string Date::ToText() const {
  Civil c = CivilOf(day_);
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%04d/%02d/%02d", c.year, c.month, c.day);
  return buffer;
}

bool Date::InRange() const { return day_ >= kFirstDay && day_ <= kLastDay; }

Date Date::CheckedForField(const std::string& source) const {
  if (!InRange()) throw HostError::Object(kOutOfRange, source, "Dates must range from 0100/01/01 to 9999/12/31");
  return *this;
}

Date Date::AddDays(std::int32_t days) const { return CheckedDate(std::int64_t{day_} + days); }

Date Date::AddYears(int years) const {
  Civil c = CivilOf(day_);
  std::int64_t year = std::int64_t{c.year} + years;
  if (year < 100 || year > 9999) throw HostError::Overflow(kSource);
  int day = c.month == 2 && c.day == 29 && !IsLeap(year) ? 28 : c.day;
  return CheckedDate(DaysFromCivil(year, c.month, day) - kEpochOffset);
}

std::int32_t Date::DaysUntil(Date later) const {
  std::int32_t days;
  if (__builtin_sub_overflow(later.day_, day_, &days)) throw HostError::Overflow(kSource);
  return days;
}

std::ostream& operator<<(std::ostream& out, const Date& value) { return out << value.ToText(); }

}  // namespace zenta
