#include "zenta/core/number_format.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zenta {
namespace {

struct FormatCase {
  const char* value;
  std::string_view pattern;
  const char* expected;
};

class NumberFormat : public testing::TestWithParam<FormatCase> {};

TEST_P(NumberFormat, LaysOutCurrencyExactly) {
  const auto& c = GetParam();
  EXPECT_EQ(FormatNumber(Currency::FromText(c.value), c.pattern), c.expected)
      << c.value << " with " << c.pattern;
}

INSTANTIATE_TEST_SUITE_P(
    Patterns, NumberFormat,
    testing::Values(FormatCase{"12.5", formats::kAmount, "12.50"}, FormatCase{"1234", formats::kAmount, "1234.00"},
                    FormatCase{"0", formats::kAmount, "0.00"}, FormatCase{"-0.75", formats::kAmount, "-0.75"},
                    FormatCase{"123456789.12", formats::kAmount, "123456789.12"},
                    FormatCase{"9999999999.99", formats::kAmountShort, "9999999999.99"},
                    FormatCase{"0.125", formats::kTotal, "0.12"}, FormatCase{"0.135", formats::kTotal, "0.14"},
                    FormatCase{"-0.001", formats::kTotal, "0.00"}, FormatCase{"7", "00", "07"},
                    FormatCase{"26", "00", "26"}, FormatCase{"1.2345", formats::kRate, "1.234500"},
                    FormatCase{"-3", formats::kAmountDisplay, "-3.00"},
                    FormatCase{"0", formats::kAmountDisplay, "0.00"},
                    FormatCase{"-3", formats::kGovtAmountDisplay, "-3.00"},
                    FormatCase{"45.5", formats::kGovtAmountDisplay, "45.50"},
                    FormatCase{"1234567.5", "#,##0.00", "1,234,567.50"},
                    FormatCase{"12.5", formats::kAmountEdit, "12.5"},
                    FormatCase{"0.5", formats::kAmountEdit, ".5"}, FormatCase{"0", "00", "00"},
                    FormatCase{"-7", "00", "-07"}, FormatCase{"12.345", formats::kAmountTyping, "12.34"},
                    FormatCase{"-1234.5", "#,##0.00", "-1,234.50"}, FormatCase{"999", "#,##0", "999"},
                    FormatCase{"1234.5", "$#,##0.00 CAD", "$1,234.50 CAD"},
                    FormatCase{"-5", "0.00;(0.00)", "(5.00)"},
                    FormatCase{"0", "0.00;-0.00;nil", "nil"},
                    // What rounds to zero shows as zero: no sign, the zero section.
                    FormatCase{"-0.004", formats::kAmountDisplay, "0.00"},
                    FormatCase{"-0.4", "0.00;-0", "0.00"}, FormatCase{"0.001", "0.00;;nil", "nil"},
                    FormatCase{"-0.005", "0.00", "0.00"}, FormatCase{"-0.0051", "0.00", "-0.01"},
                    FormatCase{"922337203685477.5807", formats::kTotal, "922337203685477.58"},
                    FormatCase{"-922337203685477.5808", formats::kAmountDisplay, "-922337203685477.58"}));

TEST(NumberFormat, NullUsesTheFourthSectionOrNothing) {
  EXPECT_EQ(FormatNullable(std::nullopt, formats::kAmountDisplay), "0.00");
  EXPECT_EQ(FormatNullable(std::nullopt, formats::kAmount), "");
  EXPECT_EQ(FormatNullable(Currency::FromText("2.5"), formats::kAmountDisplay), "2.50");
}

TEST(NumberFormat, DoublesFormatAsWrittenNotAsTheirBinaryNeighbour) {
  EXPECT_EQ(FormatNumber(1.234567, formats::kRate), "1.234567");
  EXPECT_EQ(FormatNumber(2.675, formats::kTotal), "2.68");  // binary 2.67499999...
  EXPECT_EQ(FormatNumber(2.665, formats::kTotal), "2.66");
  EXPECT_EQ(FormatNumber(-1e-9, formats::kTotal), "0.00");
  EXPECT_EQ(FormatNumber(0.1, "0.00000000000000000000"), "0.10000000000000000000");
  EXPECT_EQ(FormatNumber(1e20, formats::kTotal), "100000000000000000000.00");
  EXPECT_EQ(FormatNumber(123456789012345.67, "0.000000000000000000000000"),
            "123456789012345.670000000000000000000000");
  EXPECT_EQ(FormatNumber(std::nan(""), formats::kTotal), "NaN");
}

struct LocalizeCase {
  const char* text;
  const char* group;
  const char* expected;
};

class LocalizedAmount : public testing::TestWithParam<LocalizeCase> {};

// French Canada: "," for the point, a no-break space between thousands.
TEST_P(LocalizedAmount, GroupsThousandsAndSwapsThePointOfAmountsOnly) {
  const auto& c = GetParam();
  EXPECT_EQ(LocalizeAmount(c.text, ",", c.group), c.expected) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LocalizedAmount,
    testing::Values(LocalizeCase{"1234.56", "\u00a0", "1\u00a0234,56"}, LocalizeCase{"123.00", "\u00a0", "123,00"},
                    LocalizeCase{"-1234567.5", "\u00a0", "-1\u00a0234\u00a0567,5"},
                    LocalizeCase{"123456", "\u00a0", "123\u00a0456"}, LocalizeCase{"1000.00", "", "1000,00"},
                    LocalizeCase{"0.00", "\u00a0", "0,00"}, LocalizeCase{".5", "\u00a0", ",5"},
                    // Grouping the controls wrote themselves follows the locale too.
                    LocalizeCase{"-9,999,999.99", "\u00a0", "-9\u00a0999\u00a0999,99"},
                    LocalizeCase{"922337203685477.58", "\u00a0", "922\u00a0337\u00a0203\u00a0685\u00a0477,58"},
                    // Not amounts: left exactly as they are.
                    LocalizeCase{"Total Expense", "\u00a0", "Total Expense"}, LocalizeCase{"", "\u00a0", ""},
                    LocalizeCase{"-", "\u00a0", "-"}, LocalizeCase{".", "\u00a0", "."},
                    LocalizeCase{"1.2.", "\u00a0", "1.2."}, LocalizeCase{"12.50 CAD", "\u00a0", "12.50 CAD"},
                    LocalizeCase{",123", "\u00a0", ",123"}, LocalizeCase{"123,", "\u00a0", "123,"},
                    LocalizeCase{"--5", "\u00a0", "--5"}, LocalizeCase{"2026/11/20", "\u00a0", "2026/11/20"}));

TEST(RoundHalfEven, SendsAnExactHalfToTheEvenDigit) {
  EXPECT_EQ(RoundHalfEven(123.455, 2), 123.46);
  EXPECT_EQ(RoundHalfEven(123.465, 2), 123.46);
  EXPECT_EQ(RoundHalfEven(2.675, 2), 2.68);
  EXPECT_EQ(RoundHalfEven(2.665, 2), 2.66);
  EXPECT_EQ(RoundHalfEven(-0.125, 2), -0.12);
  EXPECT_EQ(RoundHalfEven(100 * 1.234567, 2), 123.46);
  EXPECT_EQ(RoundHalfEven(2.5, 0), 2.0);
  EXPECT_EQ(RoundHalfEven(3.5, 0), 4.0);
}

}  // namespace
}  // namespace zenta
