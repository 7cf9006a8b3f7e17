#include "zenta/core/currency.h"

#include <gtest/gtest.h>

#include "tests/error_number.h"

#include <cmath>
#include <functional>

#include "zenta/core/host_error.h"

namespace zenta {
namespace {

static_assert(Currency::FromUnits(12345).Units() == 12345);
static_assert(Currency::FromUnits(1) < Currency::FromUnits(2));

using test_support::ErrorNumberOf;

TEST(Currency, AddingOneCentAMillionTimesIsExact) {
  Currency total;
  const Currency cent = Currency::FromText("0.01");
  for (int i = 0; i < 1'000'000; ++i) total += cent;
  EXPECT_EQ(total.Units(), 100'000'000);
  EXPECT_EQ(total.ToString(), "10000");
}

TEST(Currency, OverflowRaisesAndNeverWraps) {
  const Currency smallest_step = Currency::FromUnits(1);
  EXPECT_EQ(ErrorNumberOf([&] { (void)(Currency::Max() + smallest_step); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)(Currency::Min() - smallest_step); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)(-Currency::Min()); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)Currency::FromInteger(1'000'000'000'000'000); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)Currency::Max().MultipliedBy(1.5); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)Currency::FromDouble(1e300); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)Currency::FromDouble(std::nan("")); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { (void)Currency::FromInteger(1).DividedBy(0.0); }), 11);
}

TEST(Currency, FailedAdditionLeavesTheValueUnchanged) {
  Currency value = Currency::Max();
  EXPECT_THROW(value += Currency::FromUnits(1), HostError);
  EXPECT_EQ(value, Currency::Max());
}

struct ParseCase {
  const char* text;
  std::int64_t units;
};

class CurrencyParse : public testing::TestWithParam<ParseCase> {};

TEST_P(CurrencyParse, ReadsInvariantTextRoundingHalfToEven) {
  auto parsed = Currency::Parse(GetParam().text);
  ASSERT_TRUE(parsed.has_value()) << GetParam().text;
  EXPECT_EQ(parsed->Units(), GetParam().units) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Texts, CurrencyParse,
                         testing::Values(ParseCase{"12.5", 125000}, ParseCase{"-0.05", -500},
                                         ParseCase{".5", 5000}, ParseCase{"1234.", 12340000},
                                         ParseCase{"  7  ", 70000}, ParseCase{"+3", 30000},
                                         ParseCase{"0.00005", 0}, ParseCase{"0.00015", 2},
                                         ParseCase{"0.00025", 2}, ParseCase{"-0.00025", -2},
                                         ParseCase{"\t7\t", 70000}, ParseCase{"000012.50", 125000},
                                         ParseCase{"922337203685477.5807", INT64_MAX},
                                         ParseCase{"-922337203685477.5808", INT64_MIN},
                                         ParseCase{"-922337203685477.58085", INT64_MIN},
                                         // A long tail just past an exact half still rounds up.
                                         ParseCase{"0.000050000000000000000000000000000000000000001", 1},
                                         ParseCase{"1.23450000000000000000000000000000000000000000000", 12345},
                                         ParseCase{"0.00000000000000000000000000000000000000000000009", 0}));

TEST(Currency, MalformedTextIsRefusedAndOversizedTextOverflows) {
  for (const char* bad : {"", "-", ".", "1.2.3", "12a", "1,234.56", "--1", " . "}) {
    EXPECT_FALSE(Currency::Parse(bad).has_value()) << bad;
  }
  EXPECT_EQ(ErrorNumberOf([] { (void)Currency::FromText("abc"); }), 13);
  EXPECT_EQ(ErrorNumberOf([] { (void)Currency::Parse("922337203685477.5808"); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Currency::Parse("-922337203685477.58086"); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Currency::Parse("99999999999999999999999999999999999999999"); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Currency::Parse("\t-99999999999999999999999999999999999999999.5 "); }), 6);
}

TEST(Currency, FromDoubleRoundsTheWrittenDecimalHalfToEven) {
  EXPECT_EQ(Currency::FromDouble(0.1).Units(), 1000);
  EXPECT_EQ(Currency::FromDouble(2.67505).Units(), 26750);  // ...5 after four places goes to even
  EXPECT_EQ(Currency::FromDouble(2.67515).Units(), 26752);
  EXPECT_EQ(Currency::FromDouble(-12.5).Units(), -125000);
  EXPECT_EQ(Currency::FromDouble(static_cast<double>(12.5f)).Units(), 125000);
  EXPECT_EQ(Currency::FromDouble(0.00005).Units(), 0);
  EXPECT_EQ(Currency::FromDouble(0.00015).Units(), 2);
  // Binary 2.675 is 2.67499999...; the amount the host wrote is 2.675.
  EXPECT_EQ(Currency::FromDouble(2.675).RoundedTo(2), Currency::FromText("2.68"));
  EXPECT_EQ(Currency::FromDouble(2.665).RoundedTo(2), Currency::FromText("2.66"));
}

TEST(Currency, MultiplicationAndDivisionRoundHalfToEven) {
  const Currency hundred = Currency::FromInteger(100);
  EXPECT_EQ(hundred.MultipliedBy(1.234567).RoundedTo(2), Currency::FromText("123.46"));
  EXPECT_EQ(Currency::FromText("123.46").DividedBy(1.234567).RoundedTo(2), hundred);
  EXPECT_EQ(Currency::FromText("4550").DividedBy(100), Currency::FromText("45.5"));
  EXPECT_EQ(Currency::FromText("-75").DividedBy(100), Currency::FromText("-0.75"));
  EXPECT_EQ(Currency::FromText("0.0001").MultipliedBy(0.5), Currency());   // half goes to even 0
  EXPECT_EQ(Currency::FromText("0.0003").MultipliedBy(0.5), Currency::FromUnits(2));
  EXPECT_EQ(Currency::FromText("1.005").RoundedTo(2), Currency::FromText("1.00"));
  EXPECT_EQ(Currency::FromText("1.015").RoundedTo(2), Currency::FromText("1.02"));
  EXPECT_EQ(Currency::FromText("-2.5").RoundedTo(0), Currency::FromInteger(-2));
}

TEST(Currency, PlainTextDropsTrailingZeros) {
  EXPECT_EQ(Currency::FromText("1234").ToString(), "1234");
  EXPECT_EQ(Currency::FromText("12.50").ToString(), "12.5");
  EXPECT_EQ(Currency::FromText("-0.05").ToString(), "-0.05");
  EXPECT_EQ(Currency().ToString(), "0");
  EXPECT_EQ(Currency::Min().ToString(), "-922337203685477.5808");
}

}  // namespace
}  // namespace zenta
