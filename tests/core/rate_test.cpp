#include "zenta/core/rate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>

#include "tests/error_number.h"

namespace zenta {
namespace {

using test_support::ErrorNumberOf;

Currency Money(const char* text) { return Currency::FromText(text); }

struct SingleCase {
  float value;
  const char* shown;
};

void PrintTo(const SingleCase& c, std::ostream* out) { *out << c.shown; }

class RateFromSingle : public ::testing::TestWithParam<SingleCase> {};

// A float is kept as the shortest decimal that reads back as it, never as its binary value.
TEST_P(RateFromSingle, KeepsTheShortestDecimalAndShowsAtLeastSixDecimals) {
  const Rate rate = Rate::FromSingle(GetParam().value);
  EXPECT_EQ(rate.ToString(), GetParam().shown);
  EXPECT_EQ(static_cast<float>(std::stod(rate.ToString())), GetParam().value);
  EXPECT_EQ(Rate::Parse(rate.ToString()), rate);
}

INSTANTIATE_TEST_SUITE_P(Table, RateFromSingle,
                         ::testing::Values(SingleCase{1.35f, "1.350000"}, SingleCase{1.234567f, "1.234567"},
                                           SingleCase{0.125f, "0.125000"}, SingleCase{0.0f, "0.000000"},
                                           SingleCase{-2.5f, "-2.500000"}, SingleCase{1.2345678f, "1.2345678"},
                                           SingleCase{1e-7f, "0.0000001"}, SingleCase{16777216.0f, "16777216.000000"},
                                           SingleCase{3e10f, "30000000000.000000"}));

TEST(Rate, NonFiniteFloatsAreRefused) {
  EXPECT_EQ(ErrorNumberOf([] { (void)Rate::FromSingle(std::numeric_limits<float>::quiet_NaN()); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Rate::FromSingle(std::numeric_limits<float>::infinity()); }), 6);
}

struct ConversionCase {
  float rate;
  const char* foreign;
  const char* home;
};

void PrintTo(const ConversionCase& c, std::ostream* out) { *out << c.foreign << " at " << c.rate; }

class RateConversion : public ::testing::TestWithParam<ConversionCase> {};

// Multiplying by the float's binary value books 13,500,000.22 for the first case.
TEST_P(RateConversion, MultipliesByExactlyTheRateShown) {
  const ConversionCase& c = GetParam();
  const Rate rate = Rate::FromSingle(c.rate);
  EXPECT_EQ(rate.ToHome(Money(c.foreign), "t"), Money(c.home));
}

INSTANTIATE_TEST_SUITE_P(Table, RateConversion,
                         ::testing::Values(ConversionCase{1.35f, "9999999.99", "13499999.99"},
                                           ConversionCase{1.35f, "210000.01", "283500.01"},
                                           ConversionCase{1.35f, "-9999999.99", "-13499999.99"},
                                           ConversionCase{1.234567f, "100", "123.46"},
                                           // 0.125 × 0.10 = 0.0125 and 0.125 × 0.30 = 0.0375: half to even.
                                           ConversionCase{0.125f, "0.10", "0.01"},
                                           ConversionCase{0.125f, "0.30", "0.04"},
                                           ConversionCase{1e-7f, "9999999.99", "1.00"},
                                           ConversionCase{1e-30f, "9999999.99", "0"}));

TEST(Rate, ConvertsBackByExactlyTheRateShown) {
  const Rate rate = Rate::FromSingle(1.234567f);
  EXPECT_EQ(rate.FromHome(Money("123.46"), "t"), Money("100"));
  EXPECT_EQ(Rate::FromSingle(1.35f).FromHome(Money("13499999.99"), "t"), Money("9999999.99"));
  EXPECT_EQ(Rate::FromSingle(-2.0f).FromHome(Money("1"), "t"), Money("-0.5"));
  EXPECT_EQ(Rate::FromSingle(3e38f).FromHome(Money("1000000"), "t"), Money("0"));
  EXPECT_EQ(ErrorNumberOf([] { (void)Rate().FromHome(Money("1"), "t"); }), 11);
}

TEST(Rate, ResultsPastTheCurrencyRangeRaiseOverflow) {
  EXPECT_EQ(ErrorNumberOf([] { (void)Rate::FromSingle(3.4e38f).ToHome(Money("0.01"), "t"); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Rate::FromSingle(2.0f).ToHome(Currency::Max(), "t"); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Rate::FromSingle(1e-30f).FromHome(Money("1"), "t"); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Rate::FromSingle(3.4e38f).ToCurrency(); }), 6);
  EXPECT_EQ(Rate::FromSingle(0.0f).ToHome(Currency::Max(), "t"), Currency());
}

TEST(Rate, CurrencyRatesAndTextAreExact) {
  EXPECT_EQ(Rate::FromCurrency(Money("1.35")), Rate::FromSingle(1.35f));
  EXPECT_EQ(Rate::FromCurrency(Money("-0.0001")).ToString(), "-0.000100");
  EXPECT_EQ(Rate::FromSingle(1.234567f).ToCurrency(), Money("1.2346"));
  EXPECT_EQ(Rate::Parse("1.2345678901"), Rate::FromParts(12345678901, 10));
  EXPECT_FALSE(Rate::Parse("1.2.3").has_value());
  EXPECT_FALSE(Rate::Parse("99999999999999999999").has_value());
}

}  // namespace
}  // namespace zenta
