#include "zenta/core/utf8.h"

#include <gtest/gtest.h>

namespace zenta::utf8 {
namespace {

TEST(Utf8, CountsCodePointsNotBytes) {
  EXPECT_EQ(Length("abc"), 3u);
  EXPECT_EQ(Length("Québec"), 6u);
  EXPECT_EQ(Length("€1"), 2u);
  EXPECT_EQ(Length("\xF0\x9F\x92\xB5"), 1u);  // a four-byte character
  EXPECT_EQ(Left("Québec", 3), "Qué");
}

TEST(Utf8, MalformedBytesBecomeReplacementCharactersOneEach) {
  std::u32string decoded = Decode("a\xC3\x28z\xFF");
  EXPECT_EQ(decoded, (std::u32string{U'a', 0xFFFD, U'(', U'z', 0xFFFD}));
  EXPECT_EQ(Decode("\xE2\x82"), (std::u32string{0xFFFD, 0xFFFD}));  // truncated
  EXPECT_EQ(Encode(Decode("Montréal €")), "Montréal €");
}

TEST(Utf8, UpperCasesAsciiOnlyAndTrimsBlanks) {
  EXPECT_EQ(ToUpperAscii("abc-12é"), "ABC-12é");
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
}

}  // namespace
}  // namespace zenta::utf8
