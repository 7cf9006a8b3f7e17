#include "zenta/controls/payment_details/payment_key_filter.h"

#include <gtest/gtest.h>

#include <ostream>

namespace zenta {
namespace {

struct KeyCase {
  const char* text;
  int selection_start;
  int selection_length;
  char32_t key;
  PaymentKeyVerdict verdict;
};

void PrintTo(const KeyCase& c, std::ostream* os) {
  *os << "\"" << c.text << "\" sel " << c.selection_start << "+" << c.selection_length << " key "
      << static_cast<char>(c.key);
}

class PaymentKeys : public ::testing::TestWithParam<KeyCase> {};

TEST_P(PaymentKeys, KeepAmountsWithinSevenDigitsAndTwoDecimals) {
  const KeyCase& c = GetParam();
  platform::CellKeyPressArgs args;
  args.key = c.key;
  args.text = c.text;
  args.selection_start = c.selection_start;
  args.selection_length = c.selection_length;
  EXPECT_EQ(FilterPaymentKey(args), c.verdict);
}

using enum PaymentKeyVerdict;

INSTANTIATE_TEST_SUITE_P(
    Table, PaymentKeys,
    ::testing::Values(
        // Nine digits without a point, one more with a leading minus.
        KeyCase{"12345678", 8, 0, U'9', Pass}, KeyCase{"123456789", 9, 0, U'0', Beep},
        KeyCase{"-123456789", 10, 0, U'0', Beep}, KeyCase{"-12345678", 9, 0, U'9', Pass},
        // Seven before a point.
        KeyCase{"1234567", 7, 0, U'.', Pass}, KeyCase{"12345678", 8, 0, U'.', Beep},
        KeyCase{"-1234567", 8, 0, U'.', Pass}, KeyCase{"1234567.5", 3, 0, U'1', Beep},
        KeyCase{"123456.5", 3, 0, U'1', Pass},
        // Two after it, judged by where the caret stands.
        KeyCase{"12.3", 4, 0, U'4', Pass}, KeyCase{"12.34", 5, 0, U'5', Beep},
        // A second point and a late minus go without a sound.
        KeyCase{"12.3", 4, 0, U'.', Discard}, KeyCase{"12.3", 1, 3, U'.', Pass}, KeyCase{"12", 1, 0, U'-', Discard},
        KeyCase{"12", 0, 0, U'-', Pass}, KeyCase{"", 0, 0, U'-', Pass},
        // The whole text selected is replaced, whatever its length.
        KeyCase{"123456789", 0, 9, U'5', Pass}, KeyCase{"12.34", 0, 5, U'.', Pass},
        // Only amount keys; Backspace and Enter always.
        KeyCase{"12", 2, 0, U'a', Discard}, KeyCase{"12", 2, 0, U' ', Discard},
        KeyCase{"123456789", 9, 0, U'\b', Pass}, KeyCase{"123456789", 9, 0, U'\r', Pass}));

}  // namespace
}  // namespace zenta
