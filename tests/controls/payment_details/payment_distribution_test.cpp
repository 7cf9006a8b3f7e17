#include <gtest/gtest.h>

#include "tests/controls/payment_details/payment_screen.h"
#include "zenta/core/ole_color.h"

namespace zenta::testing {
namespace {

class PaymentDistributionTest : public ::testing::Test, public PaymentScreen {
 protected:
  std::string DialogCell(int row, int column) { return DialogEngine().DisplayedText(row, column); }
  std::string Line(int position) {
    const auto line = control.PayDistribution()->Item(Variant(position));
    return line->GLAccount + " " + line->Amount.ToString();
  }
};

TEST_F(PaymentDistributionTest, ABusinessPaymentTabsIntoTheWindowAndSplitsTheNetExpense) {
  control.SetBusinessMode(true);
  control.SetDefaultGLAccount("5100");
  InDialog([&] {
    EXPECT_EQ(Dialog().AmountToDistribute(), Money("100"));
    EXPECT_FALSE(Dialog().IsFXPayment());
    EXPECT_EQ(DialogEngine().RowCount(), 5);
    // The whole amount is proposed on one line with the default account.
    EXPECT_EQ(DialogCell(0, 1), "5100");
    EXPECT_EQ(DialogCell(0, 2), "100.00");
    EXPECT_TRUE(host.Events().empty() || host.EventNames().back() != "GLBalanced");
    user.ClickCell(Dialog().Grid(), 0, 2);
    user.Type("6000\t");
    // The rest waits on the next line for its account, and the footer counts it.
    EXPECT_EQ(DialogCell(1, 2), "40.00");
    EXPECT_EQ(DialogCell(4, 2), "");
    EXPECT_EQ(DialogEngine().Column(2).footer_text, "100.00");
    user.Type("5200\t\t");
    user.PressEnter();
  });
  TypePayment("11300\t1300\t\t");
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
  ASSERT_NE(control.PayDistribution(), nullptr);
  ASSERT_EQ(control.PayDistribution()->Count(), 2);
  EXPECT_EQ(Line(1), "5100 60");
  EXPECT_EQ(Line(2), "5200 40");
  // The row is stored before the window opens; then the balance is announced once from the
  // acceptance and once because the keyboard opened the window.
  EXPECT_EQ(Events(), (std::vector<std::string>{"PayAmtBeforeUpdate", "GSTAmtBeforeUpdate", "GetPayAmount",
                                                "GLBalanced", "GLBalanced"}));
  std::string reason;
  EXPECT_TRUE(control.IsDataValid(reason));
  EXPECT_EQ(reason, "");
}

TEST_F(PaymentDistributionTest, CancellingKeepsTheLinesAndPaymentForButStillAnnouncesFromTheKeyboard) {
  control.SetPaymentAmount(Money("100"));
  const auto lines = Lines({{"5100", "70"}, {"5200", "30"}});
  control.SetPayDistribution(lines);
  InDialog([&] {
    EXPECT_EQ(DialogCell(1, 1), "5200");
    user.ClickCell(Dialog().Grid(), 0, 2);
    user.Type("1\t");
    Dialog().SetPaymentFor(Variant("changed"));
    user.Click(Cancel());
  });
  user.ClickCell(Grid(), 0, 0);
  user.PressEnter();  // as Tab
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
  EXPECT_EQ(control.PayDistribution(), lines);
  EXPECT_EQ(Line(1), "5100 70");
  EXPECT_EQ(control.PaymentFor().ToString(), "");
  // Leaving the row stores what the host put, and the host is asked for the amount again.
  EXPECT_EQ(Events(), (std::vector<std::string>{"GetPayAmount", "GLBalanced"}));
}

TEST_F(PaymentDistributionTest, ZeroAmountLinesTakeARowButAreNotShown) {
  control.SetPaymentAmount(Money("100"));
  control.SetPayDistribution(Lines({{"5100", "0"}, {"5200", "100"}}));
  InDialog([&] {
    EXPECT_EQ(DialogCell(0, 1), "");
    EXPECT_EQ(DialogCell(0, 2), "");
    EXPECT_EQ(DialogCell(1, 1), "5200");
    user.Click(Accept());
  });
  control.ShowDistribution();
  ASSERT_EQ(control.PayDistribution()->Count(), 1);
  EXPECT_EQ(Line(1), "5200 100");
}

TEST_F(PaymentDistributionTest, AcceptingWritesPaymentForIntoTheRowAndColoursTheWindow) {
  control.SetPaymentAmount(Money("25"));
  InDialog([&] {
    user.Click(Window().Get<platform::Widget>("txtPaymentFor"));
    user.Type("office rent");
    user.Click(Accept());
  });
  control.ShowDistribution();
  EXPECT_EQ(control.PaymentFor().ToString(), "OFFICE RENT");
  EXPECT_EQ(Line(1), " 25");
  EXPECT_EQ(DialogEngine().Column(1).back_color, Rgb(160, 240, 220));
  EXPECT_EQ(DialogEngine().Column(2).fore_color, OleColor{0});
  EXPECT_EQ(DialogEngine().Colors().even_row_back, Rgb(240, 240, 240));
  EXPECT_EQ(Events(), (std::vector<std::string>{"GetPayAmount", "GLBalanced"}));
}

struct ButtonCase {
  const char* name;
  bool host_cancels;
  const char* payment;  // nullptr: nothing entered
  bool opens;
  std::vector<std::string> events;
  int column;
};

class ViewDistButton : public PaymentDistributionTest, public ::testing::WithParamInterface<ButtonCase> {};

TEST_P(ViewDistButton, OpensOnlyForAnAmountToSplit) {
  const ButtonCase& c = GetParam();
  host.OnEvent([&](platform::RaisedEvent& event) {
    if (event.name == "GLDistributionBeforeEdit") event.args[0] = Variant(c.host_cancels);
  });
  if (c.payment) control.SetPaymentAmount(Money(c.payment));
  if (c.opens) InDialog([&] { user.Click(Cancel()); });
  user.ClickCell(Grid(), 0, PaymentDetails::kViewDistColumn);
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
  EXPECT_EQ(Events(), c.events);
  EXPECT_EQ(Engine().CurrentColumn(), c.column);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ViewDistButton,
    ::testing::Values(ButtonCase{"Opens", false, "40", true, {"GLDistributionBeforeEdit", "GetPayAmount"}, 3},
                      ButtonCase{"HostCancels", true, "40", false, {"GLDistributionBeforeEdit"}, 3},
                      ButtonCase{"NoPayment", false, nullptr, false, {"GLDistributionBeforeEdit"}, 0},
                      ButtonCase{"ZeroPayment", false, "0", false, {"GLDistributionBeforeEdit", "GetPayAmount"}, 3}),
    [](const auto& param_info) { return std::string(param_info.param.name); });

TEST_F(PaymentDistributionTest, AfterAcceptanceAKeyOnViewDistAnnouncesTheBalanceAgain) {
  control.SetPaymentAmount(Money("10"));
  InDialog([&] { user.Click(Accept()); });
  control.ShowDistribution();
  host.ClearEvents();
  user.Focus(Grid());
  Engine().SetCurrentColumn(PaymentDetails::kViewDistColumn);
  user.Type("1");
  EXPECT_EQ(Events(), std::vector<std::string>{"GLBalanced"});
}

// The frame arithmetic is the handover's; here, that the window gets the payment row's place.
TEST_F(PaymentDistributionTest, TheWindowOpensBelowThePaymentRow) {
  constexpr platform::WindowMetrics kForm{600, 900, 10000, 8000, 9880, 7600};
  host.SetContainer({240, 360, kForm, true, {}});
  control.SetPaymentAmount(Money("10"));
  InDialog([&] { user.Click(Cancel()); });
  control.ShowDistribution();
  const int row_bottom = Grid().FirstRowTop() + Grid().RowHeight() - 20;
  EXPECT_EQ(Window().Rect().left, 600 + 240 + 120);
  EXPECT_EQ(Window().Rect().top, 900 + 360 + 400 + row_bottom);
}

}  // namespace
}  // namespace zenta::testing
