#include "zenta/entry/text_filters.h"

#include <gtest/gtest.h>

#include "zenta/core/host_error.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"

namespace zenta::entry {
namespace {

class TextFilters : public ::testing::Test {
 protected:
  headless::Form form;
  headless::Host host{form};
};

TEST_F(TextFilters, StripInvalidCharsKeepsPrintableAsciiButQuoteAndTilde) {
  EXPECT_EQ(StripInvalidChars("a\"b~c"), "abc");
  EXPECT_EQ(StripInvalidChars("{x|y}!#"), "{x|y}!#");
  EXPECT_EQ(StripInvalidChars("Montréal\t\x7f"), "Montral");
  EXPECT_EQ(StripInvalidChars(""), "");
}

TEST_F(TextFilters, NumericFiltersFollowTheHostSeparatorOnEveryCall) {
  EXPECT_EQ(NumericCharsOnly("1,234.56-", host), "1234.56-");
  EXPECT_EQ(DigitsAndDecimalOnly("-1,234.56", host), "1234.56");
  host.SetDecimalSeparator(U',');
  EXPECT_EQ(NumericCharsOnly("1,234.56-", host), "1,23456-");
  EXPECT_EQ(DigitsAndDecimalOnly("-1,234.56", host), "1,23456");
  EXPECT_EQ(NumericCharsOnly("--1.2.3", host), "--123");
}

TEST_F(TextFilters, TextsPastTheSixteenBitCounterOverflow) {
  std::string longest(kMaxFilteredLength, 'a');
  EXPECT_EQ(StripInvalidChars(longest).size(), kMaxFilteredLength);
  // Characters, not bytes: 32,767 two-byte letters still pass.
  std::string accented;
  for (std::size_t i = 0; i < kMaxFilteredLength; ++i) accented += "é";
  EXPECT_EQ(StripInvalidChars(accented), "");
  EXPECT_THROW(StripInvalidChars(longest + "a"), HostError);
  EXPECT_THROW(NumericCharsOnly(longest + "1", host), HostError);
}

}  // namespace
}  // namespace zenta::entry
