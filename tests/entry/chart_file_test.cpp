#include "zenta/entry/chart_file.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace zenta::entry {
namespace {

std::vector<std::string> Numbers(const ChartOfAccounts& chart) {
  std::vector<std::string> numbers;
  for (const GLAccount& account : chart.Accounts()) numbers.push_back(account.number);
  return numbers;
}

std::vector<std::string> Refusals(const ChartFile& file) {
  std::vector<std::string> texts;
  for (const RefusedLine& refused : file.refused) texts.push_back(RefusalText(refused));
  return texts;
}

TEST(ChartFileTest, CommaFileWithHeaderQuotesAndActiveColumn) {
  const ChartFile file = ParseChartFile(
      "Number,Name,Active\r\n"
      "5100,\"OFFICE SUPPLIES, PAPER\",yes\r\n"
      "\r\n"
      "5110,OLD FURNITURE,Inactive\r\n"
      "6200,TRAVEL\r\n"
      "  6210 ,\"MEALS \"\"ON THE ROAD\"\"\", 1 \r\n");
  EXPECT_TRUE(file.refused.empty());
  const auto& accounts = file.chart.Accounts();
  ASSERT_EQ(accounts.size(), 4u);
  EXPECT_EQ(accounts[0].name, "OFFICE SUPPLIES, PAPER");
  EXPECT_FALSE(accounts[1].active);
  EXPECT_TRUE(accounts[2].active);
  EXPECT_EQ(accounts[3].number, "6210");
  EXPECT_EQ(accounts[3].name, "MEALS \"ON THE ROAD\"");
}

TEST(ChartFileTest, TabFileKeepsCommasInNamesAndReadsWithoutHeader) {
  const ChartFile file = ParseChartFile("\xEF\xBB\xBF" "1200\tRECEIVABLE, TRADE\tfalse\n5100\tOFFICE\n");
  EXPECT_TRUE(file.refused.empty());
  EXPECT_EQ(Numbers(file.chart), (std::vector<std::string>{"1200", "5100"}));
  EXPECT_EQ(file.chart.Accounts()[0].name, "RECEIVABLE, TRADE");
  EXPECT_FALSE(file.chart.Accounts()[0].active);
}

TEST(ChartFileTest, NumbersAreKeptAsAPayerTypesThem) {
  const ChartFile file = ParseChartFile("5100-office,Office\n");
  EXPECT_EQ(Numbers(file.chart), std::vector<std::string>{"5100-OFFICE"});
  EXPECT_NE(file.chart.Find("5100-office"), nullptr);
}

TEST(ChartFileTest, BadLinesAreRefusedWithTheirLineAndTheRestIsRead) {
  const ChartFile file = ParseChartFile(
      "5100,OFFICE\n"
      "5200 NO SEPARATOR\n"
      ",NO NUMBER\n"
      "5300,A,B,C\n"
      "5400,COLUMN SHIFTED, BY A COMMA\n"
      "1234567890123456789012345678901,TOO LONG\n"
      "\"51\"\"00\",QUOTE IN NUMBER\n"
      "5500\xC3\xA9,ACCENT\n"
      "5100,TWICE\n"
      "6200,TRAVEL\n"
      "6300,\"OPEN QUOTE\n"
      "6400,SWALLOWED\n");
  EXPECT_EQ(Numbers(file.chart), (std::vector<std::string>{"5100", "6200"}));
  EXPECT_EQ(file.chart.Find("5100")->name, "OFFICE");
  EXPECT_EQ(Refusals(file),
            (std::vector<std::string>{
                "Line 2: A line needs an account number and a name, separated by a tab or a comma.",
                "Line 3: The account number is missing.",
                "Line 4: A line holds at most three columns: number, name and active.",
                "Line 5: The active column must read yes, no, true, false, 1, 0, active or inactive.",
                "Line 6: The General Ledger Account Number must not be more than 30 characters in length.",
                "Line 7: The account number holds characters a payer cannot type.",
                "Line 8: The account number holds characters a payer cannot type.",
                "Line 9: The account number is already on an earlier line.",
                "Line 11: A cell holds a line break; is a quote left open?"}));
}

TEST(ChartFileTest, ThirtyCharactersFitAndOnlyTheFirstLineCanBeAHeader) {
  const std::string thirty(30, '7');
  const ChartFile file = ParseChartFile("\n\n" + thirty + ",LONGEST\nCASH,NO DIGIT\n");
  EXPECT_EQ(Numbers(file.chart), (std::vector<std::string>{thirty, "CASH"}));
}

TEST(ChartFileTest, NothingUsefulGivesAnEmptyChartNotACrash) {
  for (const std::string& text : {std::string(), std::string("\n\n"), std::string("\"", 1),
                                 std::string("\0,\0", 3), std::string(100000, 'x') + ",name"}) {
    const ChartFile file = ParseChartFile(text);
    EXPECT_TRUE(file.chart.Empty());
  }
}

TEST(ChartFileTest, ReadsAFileAndReportsOneItCannotRead) {
  const std::filesystem::path path = std::filesystem::temp_directory_path() / "zenta_chart_file_test.csv";
  std::ofstream(path) << "6200\tTRAVEL\n";
  const std::optional<ChartFile> file = ReadChartFile(path);
  std::filesystem::remove(path);
  ASSERT_TRUE(file);
  EXPECT_EQ(Numbers(file->chart), std::vector<std::string>{"6200"});
  EXPECT_FALSE(ReadChartFile(path));
}

}  // namespace
}  // namespace zenta::entry
