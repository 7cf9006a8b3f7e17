#include "zenta/core/variant.h"

#include <gtest/gtest.h>

#include "tests/error_number.h"

#include <functional>

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

TEST(Variant, EmptyReadsAsZeroAndNullAsAnError) {
  EXPECT_EQ(Variant().ToCurrency(), Currency());
  EXPECT_EQ(Variant().ToString(), "");
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant::Null().ToString(); }), 94);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant::Null().ToDouble(); }), 94);
}

TEST(Variant, TextThatIsNotANumberIsATypeMismatch) {
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant("abc").ToCurrency(); }), 13);
  EXPECT_EQ(ErrorNumberOf([] { (void)Variant("").ToInteger(); }), 13);
  EXPECT_TRUE(Variant("12").IsNumeric());
  EXPECT_FALSE(Variant("12a").IsNumeric());
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
  EXPECT_EQ(Variant(Currency::FromText("12.50")).ToString(), "12.5");
  EXPECT_EQ(Variant(std::int16_t{7}).ToString(), "7");
  EXPECT_EQ(Variant(*Date::Parse("2026/01/05")).ToString(), "2026/01/05");
}

}  // namespace
}  // namespace zenta
