#include "zenta/entry/amount_entry.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/surface.h"

namespace zenta::entry {
namespace {

class AmountEntry : public ::testing::Test {
 protected:
  headless::Form form;
  headless::Surface& surface = form.AddSurface("s");
  platform::NumberEdit& edit = surface.AddNumberEdit({"txtAmount"});
};

struct TypedCase {
  const char* typed;
  const char* after_leaving;
};

class ImpliedDecimal : public AmountEntry, public ::testing::WithParamInterface<TypedCase> {};

TEST_P(ImpliedDecimal, ReadsTextWithoutAPointAsCents) {
  edit.SetText(GetParam().typed);
  ApplyImpliedDecimal(edit);
  EXPECT_EQ(edit.Text(), GetParam().after_leaving);
}

INSTANTIATE_TEST_SUITE_P(Typed, ImpliedDecimal,
                         ::testing::Values(TypedCase{"1234", "12.34"}, TypedCase{"5", "0.05"},
                                           TypedCase{"-500", "-5.00"}, TypedCase{"-75", "-0.75"},
                                           TypedCase{"0", "0.00"}, TypedCase{"999999999", "9999999.99"},
                                           TypedCase{"12.3", "12.3"}, TypedCase{"1234.", "1234."},
                                           TypedCase{"0.50", "0.50"}, TypedCase{"1234.00", "1234.00"},
                                           TypedCase{"", ""}, TypedCase{"-", "-"}));

struct TextCase {
  const char* typed;
  std::optional<std::string> text;
};

class ImpliedDecimalOnText : public ::testing::TestWithParam<TextCase> {};

// The grid cells' form of the rule: nothing to rewrite is nullopt, and the text stays as typed.
TEST_P(ImpliedDecimalOnText, MatchesTheFieldRule) {
  EXPECT_EQ(ImpliedDecimalText(GetParam().typed), GetParam().text) << GetParam().typed;
}

INSTANTIATE_TEST_SUITE_P(Typed, ImpliedDecimalOnText,
                         ::testing::Values(TextCase{"12345", "123.45"}, TextCase{"150", "1.50"},
                                           TextCase{"-75", "-0.75"}, TextCase{"150.5", std::nullopt},
                                           TextCase{".", std::nullopt}, TextCase{"-", std::nullopt},
                                           TextCase{"", std::nullopt}, TextCase{"12a", std::nullopt},
                                           TextCase{"99999999999999999999999", std::nullopt}));

TEST_F(AmountEntry, ProgramSetAmountsAreNeverDivided) {
  SetAmount(edit, Currency::FromInteger(1234));
  EXPECT_EQ(edit.Text(), "1234.00");
  SetAmount(edit, 12.5f);
  EXPECT_EQ(edit.Text(), "12.5");
  EXPECT_EQ(AmountAsCurrency(edit), Currency::FromText("12.5"));
  SetAmount(edit, 0.1f);  // a single goes in as the decimal it shows
  EXPECT_EQ(AmountAsCurrency(edit), Currency::FromText("0.1"));
}

TEST_F(AmountEntry, AnEmptyFieldReadsAsZero) {
  edit.SetValue(std::nullopt);
  EXPECT_EQ(AmountAsCurrency(edit), Currency());
  EXPECT_EQ(AmountAsSingle(edit), 0.0f);
}

}  // namespace
}  // namespace zenta::entry
