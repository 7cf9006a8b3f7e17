// A payer at the keyboard splitting an amount in the distribution window: every split typed by
// hand ends at the exact total and reaches Accept, without deleting anything.
#include <gtest/gtest.h>

#include "tests/controls/distribution/distribution_screen.h"
#include "zenta/platform/grid_navigation.h"

namespace zenta::testing {
namespace {

Currency Money(const char* text) { return Currency::FromText(text); }

class TypedSplitTest : public ::testing::Test, public DistributionScreen {
 protected:
  std::string Caption(const char* label) { return Window().Get<headless::LabelWidget>(label).Caption(); }
  // Account and amount of every line, "" for an empty cell.
  std::vector<std::string> LinesOf(const platform::Array2D& table, int amount_column = 2) {
    std::vector<std::string> lines;
    for (int row = table.LowerBound(1); row <= table.UpperBound(1); ++row) {
      const Variant amount = table.Get(row, amount_column);
      const std::string shown = DistributionModel::IsEmptyCell(amount) ? "" : amount.ToCurrency().ToString();
      lines.push_back(table.Get(row, 1).ToString() + "|" + shown);
    }
    return lines;
  }
};

TEST_F(TypedSplitTest, SixtyFortyTypedOverAProposalReachesAccept) {
  // The whole amount proposed on the default account, as the invoice list opens the window.
  auto table = Prepare("100.00", {{"5100", "100.00"}}, {.visible_invoice = true});
  Show([&] {
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    // Keyboard only: back into the grid, across to the amount.
    user.PressShiftTab();
    user.PressShiftTab();
    EXPECT_EQ(FocusedName(), "grTempDistribution");
    user.PressKey(platform::keys::kRight);
    user.Type("6000\t");
    // What is left waits on the next line, where the cursor is.
    EXPECT_EQ(Shown(1, 2), "40.00");
    EXPECT_EQ(Engine().CurrentRow(), 1);
    EXPECT_EQ(Engine().CurrentColumn(), 1);
    EXPECT_EQ(Engine().Column(2).footer_text, "100.00");
    EXPECT_EQ(Caption("lblAmountToDistribute"), "Amount to distribute 100.00");
    EXPECT_EQ(Caption("lblRemaining"), "Remaining 40.00");
    user.Type("5200\t4000\t");
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    EXPECT_EQ(Caption("lblRemaining"), "Remaining 0.00");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_TRUE(host.MessagesShown().empty());
  EXPECT_EQ(LinesOf(*table), (std::vector<std::string>{"5100|60", "5200|40"}));
}

TEST_F(TypedSplitTest, AThreeWaySplitInAPaddedTableFollowsTheCursor) {
  auto table = Prepare("100.00", {{"5100", "100.00"}, {}, {}, {}, {}});
  Show([&] {
    user.ClickCell(Grid(), 0, 2);
    user.Type("5000\t");
    EXPECT_EQ(Shown(1, 2), "50.00");
    EXPECT_EQ(Shown(4, 2), "");
    user.Type("5200\t3000\t");
    // Typing over the remainder moves what is left on to the next line.
    EXPECT_EQ(Shown(2, 2), "20.00");
    EXPECT_EQ(Engine().CurrentRow(), 2);
    user.Type("5300\t\t");
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    EXPECT_EQ(Engine().Column(2).footer_text, "100.00");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(LinesOf(*table), (std::vector<std::string>{"5100|50", "5200|30", "5300|20", "|", "|"}));
}

TEST_F(TypedSplitTest, ChangingOneLineOfAKeptSplitEndsAtTheTotal) {
  auto table = Prepare("100.00", {{"5100", "60.00"}, {"5200", "40.00"}});
  Show([&] {
    user.ClickCell(Grid(), 0, 2);
    user.Type("7000\t");
    // Over by 10.00: the remainder says so, and the cursor goes to the line to change.
    EXPECT_EQ(Shown(2, 2), "-10.00");
    EXPECT_EQ(Caption("lblRemaining"), "Remaining -10.00");
    EXPECT_EQ(Engine().CurrentRow(), 1);
    user.Type("\t3000\t");
    // A remainder of nothing leaves its line empty.
    EXPECT_EQ(Shown(2, 2), "");
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(LinesOf(*table), (std::vector<std::string>{"5100|70", "5200|30", "|"}));
}

TEST_F(TypedSplitTest, AForeignSplitKeepsBothColumnsAddingUp) {
  auto table = Prepare("135.00", {{"5100", "100.00"}},
                       {.visible_invoice = true, .fx = true, .rate = "1.35", .code = "USD"});
  table->Set(0, 3, Variant(Money("135")));
  Dialog().SetupForm();
  Show([&] {
    user.ClickCell(Grid(), 0, 3);
    user.Type("8100\t");
    EXPECT_EQ(Shown(0, 2), "60.00");
    EXPECT_EQ(Shown(1, 3), "54.00");
    EXPECT_EQ(Shown(1, 2), "40.00");
    user.Type("5200\t\t\t");
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(LinesOf(*table, 3), (std::vector<std::string>{"5100|81", "5200|54"}));
}

TEST_F(TypedSplitTest, DeletingALineMovesItsAmountToTheRemainder) {
  auto table = Prepare("100.00", {{"5100", "50.00"}, {"5200", "30.00"}, {"5300", "20.00"}});
  host.ExpectMessage(platform::MessageResult::Yes);
  Show([&] {
    user.ClickCell(Grid(), 1, 0);
    EXPECT_EQ(Shown(1, 1), "5300");
    EXPECT_EQ(Shown(2, 2), "30.00");
    EXPECT_EQ(Engine().Column(2).footer_text, "100.00");
    user.Click(Cancel());
  });
  EXPECT_EQ(LinesOf(*table), (std::vector<std::string>{"5100|50", "5300|20", "|30"}));
}

TEST_F(TypedSplitTest, TabOrEnterFromTheAccountGoesToAcceptOnceTheLinesAddUp) {
  for (const int key : {platform::keys::kTab, platform::keys::kEnter}) {
    Prepare("100.00", {{"5100", "60.00"}, {"5200", "40.00"}});
    Show([&] {
      user.ClickCell(Grid(), 1, 1);
      user.Type("5300");
      user.PressKey(key);
      EXPECT_EQ(FocusedName(), "cmdGLAccept") << key;
      user.PressEnter();
    });
    EXPECT_TRUE(Dialog().Chosen());
    EXPECT_EQ(Dialog().XTempDistribution()->Get(1, 1).ToString(), "5300");
  }
}

TEST_F(TypedSplitTest, LineButtonsSayWhatTheyDo) {
  Prepare("100.00", {{"5100", "100.00"}});
  Show([&] {
    EXPECT_EQ(Shown(0, 0), "X");
    EXPECT_EQ(Engine().Column(0).button_tooltip, "Delete this line");
    // The add-new row has nothing to delete.
    EXPECT_EQ(Shown(1, 0), "");
    user.Click(Cancel());
  });
}

TEST_F(TypedSplitTest, CtrlTabLeavesTheGridBothWays) {
  Prepare("100.00", {{"5100", "60.00"}});
  Show([&] {
    EXPECT_EQ(FocusedName(), "grTempDistribution");
    user.PressKey(platform::keys::kTab, platform::kCtrl);
    EXPECT_EQ(FocusedName(), "txtPaymentFor");
    user.PressShiftTab();
    EXPECT_EQ(FocusedName(), "grTempDistribution");
    user.PressKey(platform::keys::kTab, platform::kCtrl | platform::kShift);
    EXPECT_EQ(FocusedName(), "cmdGLCancel");
    user.Click(Cancel());
  });
}

}  // namespace
}  // namespace zenta::testing
