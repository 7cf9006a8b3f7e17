#include "zenta/entry/clipboard_table.h"

#include <gtest/gtest.h>

namespace zenta::entry {
namespace {

TEST(ClipboardTableTest, SpreadsheetTextWithQuotesCrlfAndTheTrailingLine) {
  const TableRows rows = ParseClipboardTable(
      "2026/03/15\t\"INV \"\"A\"\"\tpart\r\ntwo\"\t1,250.00\r\n"
      "2026/03/16\t\tx\r\n"
      "\r\n");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0], (std::vector<std::string>{"2026/03/15", "INV \"A\"\tpart\r\ntwo", "1,250.00"}));
  // An empty cell keeps its place; a blank line between rows stays a row (the caller skips it).
  EXPECT_EQ(rows[1], (std::vector<std::string>{"2026/03/16", "", "x"}));
  EXPECT_EQ(rows[2], (std::vector<std::string>{""}));
}

TEST(ClipboardTableTest, CommaSeparatedWithoutTabsAndLoneLineFeeds) {
  const TableRows rows = ParseClipboardTable("a,\"1,234.56\",c\nd,e,f");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0], (std::vector<std::string>{"a", "1,234.56", "c"}));
  EXPECT_EQ(rows[1], (std::vector<std::string>{"d", "e", "f"}));
  // A tab anywhere makes commas ordinary characters.
  EXPECT_EQ(ParseClipboardTable("1,5\tb")[0], (std::vector<std::string>{"1,5", "b"}));
  EXPECT_TRUE(ParseClipboardTable("").empty());
}

TEST(ClipboardTableTest, RowsKnowTheLineTheyStartOn) {
  std::vector<std::size_t> lines;
  const TableRows rows = ParseClipboardTable("a,b\r\n\"two\nlines\",c\r\rd,e\n", &lines);
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(lines, (std::vector<std::size_t>{1, 2, 4, 5}));
}

TEST(ClipboardTableTest, FormattedTextReadsBackWhole) {
  const TableRows rows{{"2026/03/15", "tab\there \"q\"", "12.50"}, {"", "line\nbreak", "-1.00"}};
  const std::string text = FormatClipboardTable(rows);
  EXPECT_EQ(text.substr(0, 11), "2026/03/15\t");
  EXPECT_EQ(ParseClipboardTable(text), rows);
}

}  // namespace
}  // namespace zenta::entry
