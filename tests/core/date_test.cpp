#include "zenta/core/date.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "tests/error_number.h"
#include "zenta/core/date_format.h"

namespace zenta {
namespace {

static_assert(Date().IsZero());
static_assert(Date::FromDayNumber(1) > Date());

using test_support::ErrorNumberOf;

TEST(Date, DayZeroIsTheZeroDate) {
  EXPECT_EQ(Date().ToText(), "1899/12/30");
  EXPECT_EQ(Date::FromYmd(1900, 1, 1)->DayNumber(), 2);
  EXPECT_EQ(Date::FromYmd(2000, 1, 1)->DayNumber(), 36526);
}

TEST(Date, RoundTripsThroughTextAcrossLeapYears) {
  for (const char* text : {"2024/02/29", "2000/02/29", "2026/11/22", "0100/01/01", "9999/12/31", "1899/12/29"}) {
    auto date = Date::Parse(text);
    ASSERT_TRUE(date.has_value()) << text;
    EXPECT_EQ(date->ToText(), text);
    EXPECT_EQ(Date::FromDayNumber(date->DayNumber()), *date);
  }
}

TEST(Date, EveryDayOfFourCenturiesFollowsTheLastAndReadsBack) {
  Date previous = *Date::FromYmd(1799, 12, 31);
  for (int year = 1800; year <= 2200; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= 31; ++day) {
        auto date = Date::FromYmd(year, month, day);
        if (!date) continue;
        ASSERT_EQ(previous.DaysUntil(*date), 1) << date->ToText();
        ASSERT_EQ(Date::Parse(date->ToText()), date);
        ASSERT_EQ(date->Year() * 10000 + date->Month() * 100 + date->Day(), year * 10000 + month * 100 + day);
        previous = *date;
      }
    }
  }
  EXPECT_EQ(previous.ToText(), "2200/12/31");
}

TEST(Date, ParseRefusesImpossibleAndMalformedDates) {
  for (const char* text : {"2026/02/29", "1900/02/29", "2026/13/01", "2026/00/10", "2026/04/31", "2026-11-22",
                           "26/11/22", "2026/1/22", "____/__/__", "", "0099/12/31"}) {
    EXPECT_FALSE(Date::Parse(text).has_value()) << text;
  }
}

TEST(Date, ArithmeticCountsCalendarDays) {
  Date today = *Date::Parse("2026/03/01");
  EXPECT_EQ(today.AddDays(-1).ToText(), "2026/02/28");
  EXPECT_EQ(today.AddDays(-365).DaysUntil(today), 365);
  EXPECT_EQ(Date::Parse("2024/02/29")->AddYears(2).ToText(), "2026/02/28");
  EXPECT_EQ(Date::Parse("2024/02/29")->AddYears(4).ToText(), "2028/02/29");
  EXPECT_EQ(Date::Parse("2024/02/29")->AddYears(-1).ToText(), "2023/02/28");
  EXPECT_EQ(Date::Parse("2000/02/29")->AddYears(100).ToText(), "2100/02/28");
}

TEST(Date, ArithmeticPastTheYearRangeOverflows) {
  const Date last = *Date::Parse("9999/12/31");
  const Date first = *Date::Parse("0100/01/01");
  EXPECT_EQ(ErrorNumberOf([&] { (void)last.AddDays(1); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)first.AddDays(-1); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)last.AddDays(std::numeric_limits<std::int32_t>::max()); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)first.AddYears(-1); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)last.AddYears(std::numeric_limits<int>::max()); }), 6);
  const Date far_future = Date::FromDayNumber(std::numeric_limits<std::int32_t>::max());
  const Date far_past = Date::FromDayNumber(std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ErrorNumberOf([&] { (void)far_past.DaysUntil(far_future); }), 6);
  // Out-of-range day numbers still read as calendar dates rather than wrapping.
  EXPECT_EQ(far_future.Year(), 5881510);
  EXPECT_EQ(far_past.Year(), -5877711);
}

TEST(DateFormat, ShowsTheCalendarTitleAndTheFieldFormat) {
  Date date = *Date::Parse("2026/11/02");
  EXPECT_EQ(FormatDate(date, formats::kDate), "2026/11/02");
  EXPECT_EQ(FormatDate(date, formats::kCalendarTitle), "November 2026");
}

}  // namespace
}  // namespace zenta
