#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace zenta {

// A calendar date held as a day number. Day 0, the zero date, is 1899/12/30, the day 0 of the
// automation date type hosts exchange; the controls return it for "no date". Valid years are
// 100 to 9999.
class Date {
 public:
  constexpr Date() = default;
  static constexpr Date FromDayNumber(std::int32_t day) {
    Date d;
    d.day_ = day;
    return d;
  }
  static std::optional<Date> FromYmd(int year, int month, int day);
  // Strict "yyyy/mm/dd".
  static std::optional<Date> Parse(std::string_view text);

  constexpr std::int32_t DayNumber() const { return day_; }
  constexpr bool IsZero() const { return day_ == 0; }
  int Year() const;
  int Month() const;
  int Day() const;

  // "yyyy/mm/dd".
  std::string ToText() const;

  // Within years 100 to 9999, the dates a field can show.
  bool InRange() const;
  // Refuses a date from outside that range, given by a host to the field named `source`:
  // HostError kOutOfRange (0x80040015), "Dates must range from 0100/01/01 to 9999/12/31".
  Date CheckedForField(const std::string& source) const;
  static constexpr std::int32_t kOutOfRange = 21;

  // Date arithmetic raises HostError::Overflow when the result leaves years 100 to 9999.
  Date AddDays(std::int32_t days) const;
  // Same day in a later or earlier year; 29 February becomes 28 February in a common year.
  Date AddYears(int years) const;
  // Calendar days from this date to `later` (negative when `later` is earlier).
  std::int32_t DaysUntil(Date later) const;

  friend constexpr bool operator==(Date, Date) = default;
  friend constexpr auto operator<=>(Date, Date) = default;

 private:
  std::int32_t day_ = 0;
};

// Writes ToText(), for test failures and logs.
std::ostream& operator<<(std::ostream& out, const Date& value);

}  // namespace zenta
