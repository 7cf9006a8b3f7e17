#include "zenta/controls/invoice_entry/detail_lines.h"

#include <gtest/gtest.h>

namespace zenta {
namespace {

std::string Padded(std::string text) {
  text.resize(kDetailLineWidth, ' ');
  return text;
}

TEST(DetailLinesTest, LongWordsCutAtTheWidthAndShortOnesArePadded) {
  const std::string sixty(60, 'A');
  EXPECT_EQ(WrapDetailLines(sixty),
            (std::vector<std::string>{std::string(27, 'A'), std::string(27, 'A'), Padded(std::string(6, 'A'))}));
  EXPECT_EQ(DetailLineCount(std::string(27, 'B')), 1);
  EXPECT_EQ(DetailLineCount(std::string(28, 'B')), 2);
  EXPECT_EQ(DetailLineCount("   "), 0);
  EXPECT_EQ(DetailLineCount(""), 0);
}

TEST(DetailLinesTest, CutsFallAfterTheLastBlankOrHyphen) {
  // A hyphen as the fourth character and 30 more letters: the line breaks after the hyphen.
  const std::string text = "INV-" + std::string(30, 'X');
  EXPECT_EQ(WrapDetailLines(text), (std::vector<std::string>{Padded("INV-"), Padded(std::string(30, 'X').substr(0, 27)),
                                                            Padded("XXX")}));
  // A line that ends exactly before a blank keeps all 27 characters.
  const std::string exact = std::string(27, 'C') + " tail";
  EXPECT_EQ(WrapDetailLines(exact).front(), std::string(27, 'C'));
  // The later of a blank and a hyphen wins.
  const std::string both = "AB CD-" + std::string(25, 'E');
  EXPECT_EQ(WrapDetailLines(both).front(), Padded("AB CD-"));
  // Trailing blanks need no further line.
  EXPECT_EQ(DetailLineCount(std::string(27, 'D') + "     "), 1);
}

TEST(DetailLinesTest, CutsAndPaddingCountCharactersNotBytes) {
  std::string thirty;
  for (int i = 0; i < 30; ++i) thirty += "\u00e9";
  std::string first, second = "\u00e9\u00e9\u00e9";
  for (int i = 0; i < 27; ++i) first += "\u00e9";
  second += std::string(24, ' ');
  EXPECT_EQ(WrapDetailLines(thirty), (std::vector<std::string>{first, second}));
  EXPECT_EQ(DetailLineCount(thirty), 2);
  // A cut after a blank counts the accented letters before it as one character each.
  const std::string words = "Fran\u00e7ois R\u00e9gis " + std::string(20, 'X');
  EXPECT_EQ(WrapDetailLines(words).front(), "Fran\u00e7ois R\u00e9gis " + std::string(12, ' '));
}

}  // namespace
}  // namespace zenta
