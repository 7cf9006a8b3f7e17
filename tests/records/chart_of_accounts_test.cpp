#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "zenta/records/chart_of_accounts.h"

namespace zenta {
namespace {

ChartOfAccounts SmallChart() {
  return ChartOfAccounts({{"6200", "Travel", true},
                          {"6210", "Travel - meals", true},
                          {"5100", "Office supplies", true},
                          {"5110", "Office furniture", false},
                          {"1200", "Accounts receivable", true},
                          {"62-OLD", "Old travel", false}});
}

std::vector<std::string> Offered(const ChartOfAccounts& chart, std::string_view typed) {
  std::vector<std::string> numbers;
  for (const GLAccount* account : chart.Complete(typed)) numbers.push_back(account->number);
  return numbers;
}

TEST(ChartOfAccounts, CompletesByNumberPrefixThenByNameWords) {
  const ChartOfAccounts chart = SmallChart();
  EXPECT_EQ(Offered(chart, "62"), (std::vector<std::string>{"6200", "6210"}));
  EXPECT_EQ(Offered(chart, "trav"), (std::vector<std::string>{"6200", "6210"}));
  EXPECT_EQ(Offered(chart, "MEALS"), (std::vector<std::string>{"6210"}));
  EXPECT_EQ(Offered(chart, "off sup"), (std::vector<std::string>{"5100"}));
  EXPECT_EQ(Offered(chart, " 1200 "), (std::vector<std::string>{"1200"}));
  EXPECT_EQ(Offered(chart, "zzz"), std::vector<std::string>{});
  EXPECT_EQ(Offered(chart, ""), std::vector<std::string>{});
}

TEST(ChartOfAccounts, NeverOffersInactiveAccountsButFindsThem) {
  const ChartOfAccounts chart = SmallChart();
  EXPECT_EQ(Offered(chart, "furn"), std::vector<std::string>{});
  EXPECT_EQ(Offered(chart, "old"), std::vector<std::string>{});
  ASSERT_NE(chart.Find("5110"), nullptr);
  EXPECT_FALSE(chart.Find("5110")->active);
  EXPECT_EQ(chart.Find("62-old")->name, "Old travel");
  EXPECT_EQ(chart.Find("620"), nullptr);
}

TEST(ChartOfAccounts, ABrowserCanAskForInactiveAccountsToo) {
  const ChartOfAccounts chart = SmallChart();
  std::vector<std::string> numbers;
  for (const GLAccount* account : chart.Complete("off", 10, AccountIndex::Include::kInactiveToo)) {
    numbers.push_back(account->number);
  }
  EXPECT_EQ(numbers, (std::vector<std::string>{"5100", "5110"}));
}

TEST(ChartOfAccounts, OffersAnAccountOnceAndStopsAtTheLimit) {
  std::vector<GLAccount> accounts;
  for (int i = 0; i < 50; ++i) accounts.push_back({"7" + std::to_string(100 + i), "Rent 7 store", true});
  const ChartOfAccounts chart(std::move(accounts));
  // "7" matches every number and, through "7" in every name, every account again.
  const auto offers = chart.Complete("7", 5);
  ASSERT_EQ(offers.size(), 5u);
  EXPECT_EQ(offers.front()->number, "7100");
  EXPECT_EQ(chart.Complete("rent 7", 100).size(), 50u);
}

TEST(ChartOfAccounts, CaptionIsNumberThenName) {
  EXPECT_EQ(ChartOfAccounts::Caption({"6200", "TRAVEL", true}), "6200 TRAVEL");
  EXPECT_EQ(ChartOfAccounts::Caption({"6200", "", true}), "6200");
}

}  // namespace
}  // namespace zenta
