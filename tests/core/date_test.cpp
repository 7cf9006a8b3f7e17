#include "zenta/core/date.h"

#include <gtest/gtest.h>

#include "zenta/core/date_format.h"

namespace zenta {
namespace {

static_assert(Date().IsZero());

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
}

TEST(DateFormat, ShowsTheCalendarTitleAndTheFieldFormat) {
  Date date = *Date::Parse("2026/11/02");
  EXPECT_EQ(FormatDate(date, formats::kDate), "2026/11/02");
  EXPECT_EQ(FormatDate(date, formats::kCalendarTitle), "November 2026");
}

}  // namespace
}  // namespace zenta
