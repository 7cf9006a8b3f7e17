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
  EXPECT_EQ(Left("\xF0\x9F\x92\xB5x", 1), "\xF0\x9F\x92\xB5");  // never cuts a character
  EXPECT_EQ(Left("ab", 5), "ab");
}

TEST(Utf8, DropLastRemovesOneWholeCodePoint) {
  for (auto [before, after] : {std::pair<std::string, std::string>{"Qué", "Qu"}, {"a€", "a"}, {"é€", "é"},
                               {"x\xF0\x9F\x92\xB5", "x"}, {"ab\xC3", "ab"}, {"", ""}}) {
    std::string text = before;
    DropLast(text);
    EXPECT_EQ(text, after) << before;
  }
}

TEST(Utf8, MalformedBytesBecomeReplacementCharactersOneEach) {
  std::u32string decoded = Decode("a\xC3\x28z\xFF");
  EXPECT_EQ(decoded, (std::u32string{U'a', 0xFFFD, U'(', U'z', 0xFFFD}));
  EXPECT_EQ(Decode("\xE2\x82"), (std::u32string{0xFFFD, 0xFFFD}));  // truncated
  EXPECT_EQ(Encode(Decode("Montréal €")), "Montréal €");
}

struct MalformedCase {
  const char* bytes;
  std::size_t length;
};

class Utf8Malformed : public testing::TestWithParam<MalformedCase> {};

TEST_P(Utf8Malformed, EveryBadByteCountsAsOneReplacement) {
  const std::u32string decoded = Decode(GetParam().bytes);
  EXPECT_EQ(decoded, std::u32string(GetParam().length, 0xFFFD));
  EXPECT_EQ(Length(GetParam().bytes), GetParam().length);
  std::string text = GetParam().bytes;
  DropLast(text);
  EXPECT_EQ(Length(text), GetParam().length - 1);
}

INSTANTIATE_TEST_SUITE_P(Sequences, Utf8Malformed,
                         testing::Values(MalformedCase{"\xC0\xAF", 2},          // overlong "/"
                                         MalformedCase{"\xE0\x80\xAF", 3},      // overlong, three bytes
                                         MalformedCase{"\xED\xA0\x80", 3},      // a surrogate
                                         MalformedCase{"\xF4\x90\x80\x80", 4},  // past U+10FFFF
                                         MalformedCase{"\xF8\x88\x80", 3},      // no such lead byte
                                         MalformedCase{"\xFF\x80\x80", 3},
                                         MalformedCase{"\x80\xBF", 2}));       // stray continuations

TEST(Utf8, UpperCasesAsciiOnlyAndTrimsBlanks) {
  EXPECT_EQ(ToUpperAscii("abc-12é"), "ABC-12é");
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
}

}  // namespace
}  // namespace zenta::utf8
