#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/controls/distribution/distribution_screen.h"
#include "zenta/platform/grid_navigation.h"

namespace zenta::testing {
namespace {

using platform::MessageResult;

std::shared_ptr<const ChartOfAccounts> SmallChart() {
  return std::make_shared<const ChartOfAccounts>(std::vector<GLAccount>{{"6200", "TRAVEL", true},
                                                                       {"6210", "TRAVEL MEALS", true},
                                                                       {"5100", "OFFICE SUPPLIES", true},
                                                                       {"5110", "OFFICE FURNITURE", false}});
}

class AccountCompletionTest : public ::testing::Test, public DistributionScreen {
 protected:
  void SetUp() override { context.SetChart(SmallChart()); }
  headless::GridWidget& GridWidget() { return dynamic_cast<headless::GridWidget&>(Grid()); }
  const std::vector<std::string>& Offers() { return GridWidget().Offers(); }
  std::string AccountName() { return Window().Get<platform::Label>("lblAccountName").Caption(); }
};

TEST_F(AccountCompletionTest, OffersByNumberPrefixAndByNameWords) {
  Prepare("100.00", {});
  Show([&] {
    user.Type("62");
    EXPECT_EQ(Offers(), (std::vector<std::string>{"6200 TRAVEL", "6210 TRAVEL MEALS"}));
    EXPECT_EQ(GridWidget().CurrentOffer(), -1);
    user.PressBackspace();
    user.PressBackspace();
    user.Type("trav");
    EXPECT_EQ(Offers(), (std::vector<std::string>{"6200 TRAVEL", "6210 TRAVEL MEALS"}));
    user.Type("el m");
    EXPECT_EQ(Offers(), (std::vector<std::string>{"6210 TRAVEL MEALS"}));
    // Inactive accounts are never offered.
    user.PressEscape();
    EXPECT_TRUE(Offers().empty());
    user.Click(Cancel());
  });
}

TEST_F(AccountCompletionTest, DownAndTabTakeTheChoiceAndMoveOn) {
  auto table = Prepare("100.00", {});
  Show([&] {
    user.Type("trav");
    user.PressKey(platform::keys::kDown);
    user.PressKey(platform::keys::kDown);
    EXPECT_EQ(GridWidget().CurrentOffer(), 1);
    user.PressKey(platform::keys::kUp);
    EXPECT_EQ(GridWidget().CurrentOffer(), 0);
    user.PressTab();
    EXPECT_TRUE(Offers().empty());
    EXPECT_EQ(Engine().CurrentColumn(), 2);
    EXPECT_EQ(AccountName(), "6200 TRAVEL");
    user.Type("10000\t");
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(table->Get(0, 1).ToString(), "6200");
  EXPECT_EQ(Engine().Hint(0, 1).text, "6200 TRAVEL");
  EXPECT_FALSE(Engine().Hint(0, 1).warning);
}

TEST_F(AccountCompletionTest, EnterTakesTheChoiceAndAClickTakesAnOffer) {
  auto table = Prepare("100.00", {});
  Show([&] {
    user.Type("off");
    user.PressKey(platform::keys::kDown);
    user.PressEnter();
    EXPECT_EQ(Engine().CurrentColumn(), 2);
    user.Type("6000\t");
    user.Type("me");
    ASSERT_EQ(Offers(), (std::vector<std::string>{"6210 TRAVEL MEALS"}));
    user.ClickOffer(Grid(), 0);
    EXPECT_EQ(Engine().CellText(1), "6210");
    user.Type("\t\t");
    user.Click(Accept());
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(table->Get(0, 1).ToString(), "5100");
  EXPECT_EQ(table->Get(1, 1).ToString(), "6210");
}

TEST_F(AccountCompletionTest, TabWithoutAChoiceKeepsWhatWasTyped) {
  auto table = Prepare("100.00", {});
  Show([&] {
    user.Type("62\t10000\t");
    user.PressEnter();
  });
  EXPECT_EQ(table->Get(0, 1).ToString(), "62");
  // Not in the chart: marked, and said in words.
  EXPECT_TRUE(Engine().Hint(0, 1).warning);
  EXPECT_EQ(Engine().Hint(0, 1).text, "Not in the chart of accounts");
}

TEST_F(AccountCompletionTest, ATakenOfferObeysTheLengthRule) {
  context.SetChart(std::make_shared<const ChartOfAccounts>(
      std::vector<GLAccount>{{std::string(31, '7'), "TOO LONG", true}}));
  Prepare("100.00", {});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Type("777");
    user.PressKey(platform::keys::kDown);
    user.PressTab();
    ASSERT_EQ(host.MessagesShown().size(), 1u);
    EXPECT_EQ(host.MessagesShown()[0].text,
              "The General Ledger Account Number must not be more than 30 characters in length.");
    EXPECT_EQ(Engine().CurrentColumn(), 1);
    user.PressEscape();
    user.Click(Cancel());
  });
}

TEST_F(AccountCompletionTest, StrictModeRefusesUnknownAndInactiveAccountsNamingTheLine) {
  context.SetStrictAccounts(true);
  Prepare("100.00", {{"6200", "60.00"}, {"5110", "40.00"}});
  host.ExpectMessage(MessageResult::Ok);
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Click(Accept());
    ASSERT_EQ(host.MessagesShown().size(), 1u);
    EXPECT_EQ(host.MessagesShown()[0].text, "Line 2: the account 5110 is inactive in the chart of accounts.");
    EXPECT_EQ(host.MessagesShown()[0].title, "Cannot accept distibution.");
    EXPECT_EQ(Engine().CurrentRow(), 1);
    EXPECT_EQ(Engine().CurrentColumn(), 1);
    EXPECT_EQ(AccountName(), "5110 OFFICE FURNITURE (inactive)");
    user.Type("9999\t");
    user.Click(Accept());
    ASSERT_EQ(host.MessagesShown().size(), 2u);
    EXPECT_EQ(host.MessagesShown()[1].text, "Line 2: the account 9999 is not in the chart of accounts.");
    user.ClickCell(Grid(), 1, 1);
    user.Type("5100\t");
    user.Click(Accept());
  });
  EXPECT_TRUE(Dialog().Chosen());
}

TEST_F(AccountCompletionTest, WithoutAChartNothingIsOfferedOrSaid) {
  context.SetChart(nullptr);
  context.SetStrictAccounts(true);
  auto table = Prepare("100.00", {});
  Show([&] {
    user.Type("62");
    EXPECT_TRUE(Offers().empty());
    EXPECT_FALSE(Window().Get<platform::Label>("lblAccountName").Visible());
    user.Type("\t10000\t");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(Engine().Hint(0, 1).text, "");
}

}  // namespace
}  // namespace zenta::testing
