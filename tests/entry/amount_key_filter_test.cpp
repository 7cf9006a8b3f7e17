#include "zenta/entry/amount_key_filter.h"

#include <gtest/gtest.h>

#include <string>

namespace zenta::entry {
namespace {

struct KeyCase {
  std::string text;
  int selection_start;
  int selection_length;
  char32_t key;
  bool passes;
};

class AmountKeyFilter : public ::testing::TestWithParam<KeyCase> {};

TEST_P(AmountKeyFilter, KeepsTheTextAnAmountBeingTyped) {
  const KeyCase& c = GetParam();
  EXPECT_EQ(FilterAmountKey(c.text, c.selection_start, c.selection_length, c.key), c.passes ? c.key : U'\0')
      << "text '" << c.text << "' key " << static_cast<int>(c.key);
}

INSTANTIATE_TEST_SUITE_P(
    Table, AmountKeyFilter,
    ::testing::Values(
        // Only digits, ".", "-", Enter and Backspace.
        KeyCase{"", 0, 0, U'7', true}, KeyCase{"", 0, 0, U'a', false}, KeyCase{"12", 2, 0, U',', false},
        KeyCase{"12", 2, 0, U' ', false}, KeyCase{"12", 2, 0, 13, true}, KeyCase{"12", 2, 0, 8, true},
        // "-" only at the start, once.
        KeyCase{"", 0, 0, U'-', true}, KeyCase{"12", 0, 0, U'-', true}, KeyCase{"12", 1, 0, U'-', false},
        KeyCase{"-12", 0, 0, U'-', false}, KeyCase{"-12", 0, 1, U'-', true},
        // A second "." only when the first is being replaced.
        KeyCase{"1.5", 3, 0, U'.', false}, KeyCase{"1.5", 1, 1, U'.', true}, KeyCase{"1.5", 0, 2, U'.', true},
        KeyCase{"15", 1, 0, U'.', true},
        // Nine digits before the point, two after.
        KeyCase{"12345678", 8, 0, U'9', true}, KeyCase{"123456789", 9, 0, U'0', false},
        KeyCase{"123456789", 9, 0, U'.', true}, KeyCase{"-123456789", 10, 0, U'1', false},
        KeyCase{"1.25", 4, 0, U'1', false}, KeyCase{"1.2", 3, 0, U'5', true},
        KeyCase{"123456789.25", 0, 1, U'4', true}, KeyCase{"1.25", 2, 0, U'0', false},
        // Inserting a "." must not leave more than two decimals behind it.
        KeyCase{"12345", 2, 0, U'.', false}, KeyCase{"12345", 3, 0, U'.', true},
        // The whole text selected: any allowed key replaces it.
        KeyCase{"123456789.25", 0, 12, U'5', true}, KeyCase{"1.25", 0, 4, U'-', true},
        KeyCase{"1.25", 0, 4, U'.', true}, KeyCase{"1.25", 0, 4, U'x', false}));

TEST(AmountKeyFilterLimits, TakeTheCallersDigitCounts) {
  const AmountDigitLimits limits{5, 4};
  EXPECT_EQ(FilterAmountKey("12345", 5, 0, U'6', limits), U'\0');
  EXPECT_EQ(FilterAmountKey("1.234", 5, 0, U'5', limits), U'5');
  EXPECT_EQ(FilterAmountKey("1.2345", 6, 0, U'6', limits), U'\0');
}

TEST(AmountKeyFilterLimits, OutOfRangeSelectionIsClampedToTheText) {
  EXPECT_EQ(FilterAmountKey("12", 10, 5, U'3'), U'3');
  EXPECT_EQ(FilterAmountKey("12", -4, 0, U'-'), U'-');
}

}  // namespace
}  // namespace zenta::entry
