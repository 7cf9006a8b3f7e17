#include <gtest/gtest.h>

#include "zenta/entry/pasted_amount.h"
#include "zenta/entry/pasted_date.h"

namespace zenta::entry {
namespace {

Currency Money(const char* text) { return Currency::FromText(text); }

TEST(PastedAmountTest, WrittenFormsReadAsValuesNeverCents) {
  EXPECT_EQ(ParsePastedAmount("1250"), Money("1250"));
  EXPECT_EQ(ParsePastedAmount("1,234.56"), Money("1234.56"));
  EXPECT_EQ(ParsePastedAmount("1 234,56"), Money("1234.56"));
  EXPECT_EQ(ParsePastedAmount("1\u00a0234,56"), Money("1234.56"));
  EXPECT_EQ(ParsePastedAmount("1\u202f234,56 $"), Money("1234.56"));
  EXPECT_EQ(ParsePastedAmount("$1,234.56"), Money("1234.56"));
  EXPECT_EQ(ParsePastedAmount("1234.56 $"), Money("1234.56"));
  EXPECT_EQ(ParsePastedAmount("1.234,56"), Money("1234.56"));
  EXPECT_EQ(ParsePastedAmount("(12.50)"), Money("-12.5"));
  EXPECT_EQ(ParsePastedAmount("-12.50"), Money("-12.5"));
  EXPECT_EQ(ParsePastedAmount("-$12.50"), Money("-12.5"));
  EXPECT_EQ(ParsePastedAmount("12.50-"), Money("-12.5"));
  EXPECT_EQ(ParsePastedAmount("0,5"), Money("0.5"));
  // A lone mark with three digits after it groups thousands.
  EXPECT_EQ(ParsePastedAmount("1,250"), Money("1250"));
  EXPECT_EQ(ParsePastedAmount("1,234,567"), Money("1234567"));
}

TEST(PastedAmountTest, AnythingElseOrTooManyDigitsIsRefused) {
  for (const char* text : {"", "$", "abc", "12a", "1..2", "--1", "(-1)", "1,23,4.5.6", ",", "1.2.3,45,6", "12.345.6"}) {
    EXPECT_FALSE(ParsePastedAmount(text)) << text;
  }
  const AmountDigitLimits eight{8, 2};
  EXPECT_EQ(ParsePastedAmount("99,999,999.99", eight), Money("99999999.99"));
  EXPECT_FALSE(ParsePastedAmount("100,000,000", eight));
  EXPECT_FALSE(ParsePastedAmount("1.005,123", eight));
}

TEST(PastedDateTest, TheFixedFormsAndTheLocaleShortForm) {
  const Date march15 = *Date::FromYmd(2026, 3, 15);
  EXPECT_EQ(ParsePastedDate("2026/03/15", "M/d/yy"), march15);
  EXPECT_EQ(ParsePastedDate(" 2026-03-15 ", "M/d/yy"), march15);
  EXPECT_EQ(ParsePastedDate("3/15/26", "M/d/yy"), march15);
  EXPECT_EQ(ParsePastedDate("15.03.2026", "dd.MM.yyyy"), march15);
  EXPECT_FALSE(ParsePastedDate("15/03/2026", "M/d/yy"));
  EXPECT_FALSE(ParsePastedDate("2026/02/30", "M/d/yy"));
  EXPECT_FALSE(ParsePastedDate("2026/03/15x", "M/d/yy"));
  EXPECT_FALSE(ParsePastedDate("", "M/d/yy"));
}

}  // namespace
}  // namespace zenta::entry
