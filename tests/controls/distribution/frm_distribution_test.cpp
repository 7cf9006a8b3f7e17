#include "zenta/controls/distribution/frm_distribution.h"

#include <gtest/gtest.h>

#include "tests/controls/distribution/distribution_screen.h"
#include "zenta/core/host_error.h"

namespace zenta::testing {
namespace {

using platform::MessageResult;

constexpr const char* kUnequal = "The total amounts you enter must be equal to the 'Amount to Distribute'.";
constexpr const char* kRefusedTitle = "Cannot accept distibution.";

class FrmDistributionTest : public ::testing::Test, public DistributionScreen {
 protected:
  std::vector<std::string> Messages() const {
    std::vector<std::string> texts;
    for (const auto& box : host.MessagesShown()) texts.push_back(box.text);
    return texts;
  }
};

TEST_F(FrmDistributionTest, TotalsOffByACentAreRefusedUntilCorrected) {
  Prepare("100.00", {{"5100", "60.00"}, {"5200", "39.99"}});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Click(Accept());
    ASSERT_EQ(host.MessagesShown().size(), 1u);
    EXPECT_EQ(host.MessagesShown()[0].text, kUnequal);
    EXPECT_EQ(host.MessagesShown()[0].title, kRefusedTitle);
    EXPECT_EQ(host.MessagesShown()[0].icon, platform::MessageIcon::Information);
    EXPECT_EQ(FocusedName(), "grTempDistribution");
    user.ClickCell(Grid(), 1, 2);
    user.Type("4000\t");
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(host.MessagesShown().size(), 1u);
}

TEST_F(FrmDistributionTest, NegativeLinesCountAndShowInRed) {
  auto table = Prepare("100.00", {{"5100", "120.00"}});
  Show([&] {
    user.ClickCell(Grid(), 1, 1);
    user.Type("REFUND\t-2000\t");
    EXPECT_EQ(Shown(1, 2), "-20.00");
    EXPECT_EQ(Engine().Appearance(1, 2).fore_color, OleColor{0x000000FF});
    EXPECT_FALSE(Engine().Appearance(0, 2).fore_color.has_value());
    user.Click(Accept());
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(Dialog().CalculateDistAmounts().ToCurrency(), Currency::FromText("100"));
}

TEST_F(FrmDistributionTest, AnAccountWithoutAmountBlocksAcceptanceEvenWhenTotalsMatch) {
  Prepare("100.00", {{"5100", "100.00"}, {"5200", ""}});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Click(Accept());
    EXPECT_EQ(Messages(), std::vector<std::string>{"An amount is required."});
    EXPECT_EQ(Engine().CurrentRow(), 1);
    EXPECT_EQ(Engine().CurrentColumn(), 2);
    user.Click(Cancel());
  });
  EXPECT_FALSE(Dialog().Chosen());
}

TEST_F(FrmDistributionTest, AnAmountWithoutAccountCountsWithoutComplaint) {
  Prepare("100.00", {{"5100", "70.00"}, {"", "30.00"}});
  Show([&] { user.Click(Accept()); });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_TRUE(host.MessagesShown().empty());
}

TEST_F(FrmDistributionTest, ClearingTheAmountOfAnAccountLineIsRefusedInTheCell) {
  Prepare("100.00", {{"5100", "100.00"}});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.ClickCell(Grid(), 0, 2);
    user.PressBackspace();
    user.PressTab();
    EXPECT_EQ(Messages(), std::vector<std::string>{"An amount is required."});
    EXPECT_TRUE(Engine().IsEditing());
    user.Type("10000\t");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
}

struct TypedAmount {
  const char* typed;
  const char* shown;
};

class TypedAmounts : public FrmDistributionTest, public ::testing::WithParamInterface<TypedAmount> {};

TEST_P(TypedAmounts, AreReadWithImpliedCents) {
  auto table = Prepare("100.00", {{"5100", "100.00"}});
  Show([&] {
    user.ClickCell(Grid(), 0, 2);
    user.Type(GetParam().typed);
    user.PressTab();
    EXPECT_EQ(Shown(0, 2), GetParam().shown);
    user.Click(Cancel());
  });
  EXPECT_EQ(table->Get(0, 2).ToCurrency(), Currency::FromText(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(Table, TypedAmounts,
                         ::testing::Values(TypedAmount{"150", "1.50"}, TypedAmount{"150.5", "150.50"},
                                           TypedAmount{"-", "0.00"}, TypedAmount{".", "0.00"},
                                           TypedAmount{"-75", "-0.75"}, TypedAmount{"1a2b3", "1.23"},
                                           TypedAmount{"1.2.3", "1.23"}, TypedAmount{"12-3", "1.23"},
                                           TypedAmount{"1234567890", "1234567.89"}));

TEST_F(FrmDistributionTest, AccountsTakeThirtyCharactersAndRefuseMore) {
  Prepare("100.00", {{"", "100.00"}});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Type(std::string(30, 'a'));
    user.Type("b");  // the 31st letter is not taken
    EXPECT_EQ(Engine().EditText(), std::string(30, 'A'));
    user.Type("-\t");  // "-" still passes, and the cell refuses the 31 characters
    EXPECT_EQ(Messages(),
              std::vector<std::string>{
                  "The General Ledger Account Number must not be more than 30 characters in length."});
    EXPECT_EQ(Engine().CurrentColumn(), 1);
    EXPECT_TRUE(Dialog().Model().EditRejected());
    user.PressBackspace();
    user.Type("\t");
    EXPECT_FALSE(Dialog().Model().EditRejected());
    user.Click(Accept());
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(Dialog().XTempDistribution()->Get(0, 1).ToString(), std::string(30, 'A'));
}

TEST_F(FrmDistributionTest, ARefusedAccountStopsAcceptWithItsOwnMessageOnly) {
  Prepare("100.00", {{"", "100.00"}});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Type(std::string(30, 'a') + ".");
    user.Click(Accept());  // the focus leaving the grid refuses the cell; accepting stops
    EXPECT_EQ(host.MessagesShown().size(), 1u);
    EXPECT_FALSE(Dialog().Model().EditRejected());
    EXPECT_EQ(FocusedName(), "grTempDistribution");
    user.PressEscape();  // abandons the cell
    user.PressEscape();  // cancels the window
  });
  EXPECT_FALSE(Dialog().Chosen());
}

TEST_F(FrmDistributionTest, InvoiceAmountsConvertBothWaysAtTheRate) {
  Prepare("270.00", {}, {true, true, "1.35", "USD"});
  Show([&] {
    EXPECT_EQ(Engine().Column(2).caption, "Expense (USD)");
    EXPECT_TRUE(Engine().Column(3).visible);
    user.Type("5100\t10000\t");
    EXPECT_EQ(Shown(0, 3), "135.00");
    user.ClickCell(Grid(), 1, 1);
    user.Type("5200\t\t13500\t");
    EXPECT_EQ(Shown(1, 2), "100.00");
    EXPECT_EQ(Engine().Column(3).footer_text, "270.00");
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
  EXPECT_EQ(Dialog().DistributionCount(), 2);
}

// The payment control never opens the window in foreign-currency mode; should a host do so,
// each amount column stays as typed.
TEST_F(FrmDistributionTest, PaymentAmountsAreNotConverted) {
  auto table = Prepare("135.00", {{"5100", ""}}, {false, true, "1.35", "USD"});
  Show([&] {
    user.ClickCell(Grid(), 0, 3);
    user.Type("13500\t");
    EXPECT_EQ(Shown(0, 2), "");
    EXPECT_EQ(Shown(0, 3), "135.00");
    user.Click(Cancel());
  });
  EXPECT_TRUE(DistributionModel::IsEmptyCell(table->Get(0, 2)));
  EXPECT_EQ(table->Get(0, 3).ToCurrency(), Currency::FromText("135"));
}

TEST_F(FrmDistributionTest, ForeignTotalsMustMatchOnTheCanadianColumn) {
  Prepare("135.00", {{"5100", "135.00"}}, {true, true, "1.35", "USD"});
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Click(Accept());  // 135 foreign, nothing Canadian: an amount is required
    EXPECT_EQ(Messages(), std::vector<std::string>{"An amount is required."});
    EXPECT_EQ(Engine().CurrentColumn(), 3);
    user.Type("13500\t");
    EXPECT_EQ(Shown(0, 2), "100.00");
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());
}

TEST_F(FrmDistributionTest, CancelLeavesChosenFalseAndTheCallerDecides) {
  Prepare("100.00", {{"5100", "100.00"}});
  Show([&] {
    user.ClickCell(Grid(), 0, 2);
    user.Type("5");
    user.PressEscape();  // abandons the cell
    user.PressEscape();  // cancels the window
  });
  EXPECT_FALSE(Dialog().Chosen());
  EXPECT_EQ(Dialog().XTempDistribution()->Get(0, 2).ToString(), "100.00");
}

TEST_F(FrmDistributionTest, DeletingALineAsksFirstAndNoKeepsIt) {
  auto table = Prepare("100.00", {{"5100", "60.00"}, {"5200", "40.00"}});
  host.ExpectMessage(MessageResult::No);
  host.ExpectMessage(MessageResult::Yes);
  Show([&] {
    user.ClickCell(Grid(), 1, 0);
    ASSERT_EQ(host.MessagesShown().size(), 1u);
    const platform::MessageBox asked = host.MessagesShown()[0];
    EXPECT_EQ(asked.text, "Are you sure you want to delete this distribution?");
    EXPECT_EQ(asked.title, "Delete this distribution?");
    EXPECT_EQ(asked.buttons, platform::MessageButtons::YesNo);
    EXPECT_EQ(asked.icon, platform::MessageIcon::Question);
    EXPECT_EQ(table->RowCount(), 2);
    EXPECT_EQ(Engine().CurrentColumn(), 1);  // kept off the "Del" column

    user.ClickCell(Grid(), 1, 0);
    // The 40.00 is gone and proposed again on a line of its own.
    ASSERT_EQ(table->RowCount(), 2);
    EXPECT_EQ(Shown(1, 1), "");
    EXPECT_EQ(Shown(1, 2), "40.00");
    user.Click(Cancel());
  });
}

TEST_F(FrmDistributionTest, ActivationGoesToAcceptWhenTheLinesAlreadyAddUp) {
  Prepare("100.00", {{"5100", "100.00"}});
  Show([&] {
    EXPECT_EQ(FocusedName(), "cmdGLAccept");
    EXPECT_EQ(Engine().CurrentColumn(), 1);  // never on the delete column
    user.PressEnter();
  });
  EXPECT_TRUE(Dialog().Chosen());

  Prepare("100.00", {{"5100", "90.00"}});
  Show([&] {
    EXPECT_EQ(FocusedName(), "grTempDistribution");
    EXPECT_EQ(Engine().CurrentColumn(), 1);
    user.Click(Cancel());
  });
  EXPECT_FALSE(Dialog().Chosen());
}

TEST_F(FrmDistributionTest, PaymentForIsUpperCaseWithoutQuotesAndEnterGoesToTheGrid) {
  Prepare("100.00", {{"5100", "90.00"}});
  EXPECT_EQ(Dialog().PaymentFor().ToString(), "RENT");
  Show([&] {
    user.Click(PaymentFor());
    user.Type(" may \"2026\"~\r");
    EXPECT_EQ(FocusedName(), "grTempDistribution");
    user.Click(Cancel());
  });
  EXPECT_EQ(Dialog().PaymentFor().ToString(), "RENT MAY 2026");
}

TEST_F(FrmDistributionTest, PlainModeNarrowsTheWindowOnceAndNamesTheColumn) {
  headless::Dialog& window = Window();
  EXPECT_EQ(window.Rect().width, 8205);
  Dialog().SetIsFXPayment(false);
  EXPECT_EQ(window.Rect().width, 6705);
  EXPECT_EQ(Engine().Column(2).caption, "Expense");
  EXPECT_FALSE(Engine().Column(3).visible);

  Dialog().SetIsFXPayment(true);
  Dialog().SetFXCurrencyCode("USD");
  EXPECT_EQ(Engine().Column(2).caption, "Expense (USD)");
  EXPECT_TRUE(Engine().Column(3).visible);
  EXPECT_EQ(window.Rect().width, 6705);  // the narrow layout stays
}

TEST_F(FrmDistributionTest, TheWindowIsLaidOutAsDesigned) {
  const platform::GridColumn& amount = Engine().Column(2);
  EXPECT_EQ(Engine().Column(0).caption, "Del");
  EXPECT_FALSE(Engine().Column(0).tab_stop);
  EXPECT_EQ(Engine().Column(1).caption, "General Ledger Account No., Payment Description/Sub Ledger");
  EXPECT_EQ(Engine().Column(1).footer_text, "Total Expense");
  EXPECT_EQ(amount.editor_tooltip, "Enter the amount of the payment");
  EXPECT_EQ(Engine().Column(3).caption, "Expense (CAD)");
  EXPECT_TRUE(Engine().AllowAddNew());
  EXPECT_TRUE(Engine().AllowDelete());
  EXPECT_EQ(Accept().Caption(), "&Accept");
  EXPECT_EQ(Cancel().Caption(), "Cancel");
  EXPECT_EQ(Window().Get<headless::LabelWidget>("lblPaymentFor").Caption(), "&Payment For:");
  std::vector<std::string> order;
  for (platform::Widget* child : Window().Children()) order.push_back(child->Name());
  EXPECT_EQ(order, (std::vector<std::string>{"grTempDistribution", "lblPaymentFor", "txtPaymentFor", "cmdGLAccept",
                                             "cmdGLCancel", "Frame1", "Shape1", "lblAmountToDistribute",
                                             "lblRemaining", "lblAccountName"}));
  EXPECT_FALSE(Window().Get<headless::LabelWidget>("lblAccountName").Visible());
}

TEST_F(FrmDistributionTest, OneWindowServesEveryCallerAndKeepsItsFields) {
  FrmDistribution& first = context.Distribution();
  Prepare("50.00", {{"5100", "50.00"}}, {true, true, "1.25", "EUR"});
  FrmDistribution& second = context.Distribution();
  EXPECT_EQ(&first, &second);
  EXPECT_EQ(second.AmountToDistribute(), Currency::FromText("50"));
  EXPECT_EQ(second.FXCurrencyCode(), "EUR");
  EXPECT_TRUE(second.IsFXPayment());
  EXPECT_EQ(second.PaymentFor().ToString(), "RENT");
  second.SetInvoiceNo("anything");
  EXPECT_EQ(second.PaymentFor().ToString(), "RENT");
}

TEST_F(FrmDistributionTest, AnUnreadableAmountGivesAnEmptyTotalAndNeverAccepts) {
  Prepare("100.00", {{"5100", "abc"}});
  EXPECT_TRUE(Dialog().CalculateDistAmounts().IsEmpty());
  host.ExpectMessage(MessageResult::Ok);
  Show([&] {
    user.Click(Accept());
    EXPECT_EQ(Messages(), std::vector<std::string>{kUnequal});
    user.Click(Cancel());
  });
}

}  // namespace
}  // namespace zenta::testing
