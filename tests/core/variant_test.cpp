#include "zenta/core/variant.h"

#include <gtest/gtest.h>

#include "tests/error_number.h"

#include <cmath>
#include <functional>
#include <limits>

#include "zenta/core/host_error.h"

namespace zenta {
namespace {

using test_support::ErrorNumberOf;

struct Thing : Object {};
struct Other : Object {};

TEST(Variant, NumbersConvertWithRangeChecks) {
  EXPECT_EQ(Variant(std::int32_t{32767}).ToInteger(), 32767);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(std::int32_t{32768}).ToInteger(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(Currency::FromInteger(40000)).ToInteger(); }), 6);
  EXPECT_EQ(Variant(2.5).ToInteger(), 2);  // half to even
  EXPECT_EQ(Variant(3.5).ToInteger(), 4);
  EXPECT_EQ(Variant("12.5").ToCurrency(), Currency::FromText("12.5"));
  EXPECT_EQ(Variant(true).ToInteger(), -1);
  EXPECT_EQ(Variant(12.5f).ToCurrency(), Currency::FromText("12.5"));
}

TEST(Variant, SixteenBitLimitsRoundHalfToEvenFirst) {
  EXPECT_EQ(Variant(-32768.0).ToInteger(), -32768);
  EXPECT_EQ(Variant(32766.5).ToInteger(), 32766);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(32767.5).ToInteger(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(-32768.5001).ToInteger(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant("40000").ToInteger(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(std::nan("")).ToLong(); }), 6);
}

struct TextNumberCase {
  const char* text;
  double value;
};

class VariantTextNumber : public testing::TestWithParam<TextNumberCase> {};

TEST_P(VariantTextNumber, ReadsWhateverTheCLocaleSays) {
  const Variant text(GetParam().text);
  EXPECT_TRUE(text.IsNumeric());
  EXPECT_EQ(text.ToDouble(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, VariantTextNumber,
                         testing::Values(TextNumberCase{"12.5", 12.5}, TextNumberCase{" 12.5\t", 12.5},
                                         TextNumberCase{"+3", 3}, TextNumberCase{"-.05", -0.05},
                                         TextNumberCase{"7.", 7}, TextNumberCase{"1.5E3", 1500},
                                         TextNumberCase{"2e-2", 0.02}, TextNumberCase{"1e-400", 0}));

TEST(Variant, TextThatOnlyLooksNumericIsATypeMismatch) {
  for (const char* text : {"", " ", "abc", "inf", "nan", "0x10", "1,5", "1e", "1e+", "12.5.1", "- 1", "."}) {
    EXPECT_FALSE(Variant(text).IsNumeric()) << text;
    EXPECT_EQ(ErrorNumberOf([&] { (void)Variant(text).ToDouble(); }), 13) << text;
    EXPECT_EQ(ErrorNumberOf([&] { (void)Variant(text).ToCurrency(); }), 13) << text;
  }
  EXPECT_TRUE(Variant("1e400").IsNumeric());
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant("1e400").ToDouble(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant("1e20").ToCurrency(); }), 6);
}

TEST(Variant, TextBecomesCurrencyExactly) {
  EXPECT_EQ(Variant("0.1").ToCurrency().Units(), 1000);
  EXPECT_EQ(Variant("  -1234.56 ").ToCurrency().Units(), -12345600);
  EXPECT_EQ(Variant("922337203685477.5807").ToCurrency(), Currency::Max());
  EXPECT_EQ(Variant("1.5E3").ToCurrency(), Currency::FromInteger(1500));
}

TEST(Variant, SinglesKeepTheirOwnShortestDigits) {
  EXPECT_EQ(Variant(0.1f).ToCurrency().Units(), 1000);
  EXPECT_EQ(Variant(1234567.1f).ToCurrency(), Currency::FromText("1234567.1"));
  EXPECT_EQ(Variant(0.1f).ToString(), "0.1");
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(3e38f).ToCurrency(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(std::numeric_limits<float>::infinity()).ToCurrency(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(1e39).ToSingle(); }), 6);
}

TEST(Variant, NumbersBecomeDatesByTheirWholeDays) {
  EXPECT_EQ(Variant(0.75).ToDate(), Date());  // six in the evening of the zero date
  EXPECT_EQ(Variant(std::int32_t{46348}).ToDate().ToText(), "2026/11/22");
  EXPECT_EQ(Variant("2026/11/22").ToDate().DayNumber(), 46348);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(3e6).ToDate(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(1e300).ToDate(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant("2026/02/29").ToDate(); }), 13);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant::Null().ToDate(); }), 94);
}

TEST(Variant, EmptyReadsAsZeroAndNullAsAnError) {
  EXPECT_EQ(Variant().ToCurrency(), Currency());
  EXPECT_EQ(Variant().ToString(), "");
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant::Null().ToString(); }), 94);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant::Null().ToDouble(); }), 94);
}

TEST(Variant, ObjectReferencesAreTypedAndCompareByIdentity) {
  auto thing = std::make_shared<Thing>();
  Variant v(thing);
  EXPECT_EQ(v.ToObjectOf<Thing>(), thing);
  EXPECT_EQ(ErrorNumberOf([&] { (void)v.ToObjectOf<Other>(); }), 13);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant(5).ToObject(); }), 13);
  EXPECT_EQ(v, Variant(thing));
  EXPECT_FALSE(v == Variant(std::make_shared<Thing>()));
}

TEST(Variant, TextOfNumbersIsPlain) {
  EXPECT_EQ(Variant(45.5).ToString(), "45.5");
  EXPECT_EQ(Variant(1.0 / 3).ToString(), "0.3333333333333333");
  EXPECT_EQ(Variant(1e20).ToString(), "1E+20");
  EXPECT_EQ(Variant(-0.5f).ToString(), "-0.5");
  EXPECT_EQ(Variant(Currency::FromText("12.50")).ToString(), "12.5");
  EXPECT_EQ(Variant(std::int16_t{7}).ToString(), "7");
  EXPECT_EQ(Variant(*Date::Parse("2026/01/05")).ToString(), "2026/01/05");
}

}  // namespace
}  // namespace zenta
