#include <gtest/gtest.h>

#include <algorithm>

#include "tests/controls/invoice_entry/invoice_screen.h"
#include "zenta/platform/grid_navigation.h"

namespace zenta::testing {
namespace {

class InvoiceDistributionTest : public ::testing::Test, public InvoiceScreen {
 protected:
  void SetUp() override {
    host.SetToday(Day(2026, 3, 1));
    control.SetDefaultGLAccount("5100");
  }
  // The payer splits the invoice (amounts typed in cents): 60 stays on the proposed account, the rest goes to 5200.
  void SplitSixtyForty() {
    user.ClickCell(Dialog().Grid(), 0, 2);
    // The rest of the split waits on the next line, where the cursor goes.
    user.Type("6000\t5200\t\t");
    user.PressEnter();
  }
};

TEST_F(InvoiceDistributionTest, TabPastTheAmountOpensTheWindowAndTheFirstSplitIsAnnouncedAfterwards) {
  control.AddInvoice(Day(2026, 2, 1), "INV-1", Money("100"));
  InDialog([&] {
    EXPECT_EQ(Dialog().AmountToDistribute(), Money("100"));
    // The event waits until the grid handler has returned.
    EXPECT_EQ(std::count(Events().begin(), Events().end(), "FirstDistributionEntered"), 0);
    SplitSixtyForty();
  });
  user.ClickCell(Grid(), 0, InvoiceStore::kAmountColumn);
  user.PressTab();
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
  const auto invoice = control.InvoiceValues(1);
  ASSERT_EQ(invoice->Distributions->Count(), 2);
  EXPECT_EQ(invoice->Distributions->Item(Variant(1))->GLAccount, "5100");
  EXPECT_EQ(invoice->Distributions->Item(Variant(2))->Amount, Money("40"));
  ASSERT_FALSE(host.Events().empty());
  EXPECT_EQ(host.Events().back().name, "FirstDistributionEntered");
  EXPECT_EQ(host.Events().back().args.front().ToInteger(), 1);
  std::string reason;
  bool incomplete = false;
  EXPECT_TRUE(control.IsDataValid(reason, incomplete)) << reason;

  // Opening it again shows the lines and announces a further change.
  InDialog([&] {
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(1, 1), "5200");
    user.Click(Accept());
  });
  control.ShowDistribution();
  form.Settle();
  EXPECT_EQ(host.Events().back().name, "DistributionEntered");
}

TEST_F(InvoiceDistributionTest, EnterAfterATypedAmountOpensTheWindowForThatAmount) {
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  user.Type("INV-7\t");
  InDialog([&] {
    EXPECT_EQ(Dialog().AmountToDistribute(), Money("42.5"));
    user.Click(Accept());
  });
  user.Type("4250");
  user.PressEnter();
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Count(), 1);
  EXPECT_EQ(host.Events().back().name, "FirstDistributionEntered");
}

TEST_F(InvoiceDistributionTest, ABusinessRowTypedByKeysOffersItsNetExpense) {
  control.SetBusinessMode(true);
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  InDialog([&] {
    EXPECT_EQ(Dialog().AmountToDistribute(), Money("100"));
    user.Click(Accept());
  });
  user.Type("INV-8\t11300\t1300\t");
  user.PressTab();
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
  const auto invoice = control.InvoiceValues(1);
  EXPECT_EQ(invoice->CompanyExpense, Money("100"));
  ASSERT_EQ(invoice->Distributions->Count(), 1);
  EXPECT_EQ(invoice->Distributions->Item(Variant(1))->Amount, Money("100"));

  // A row left for the next one keeps its worked-out expense.
  user.ClickCell(Grid(), 1, InvoiceStore::kNumberColumn);
  user.Type("INV-9\t5000\t0\t");
  user.PressKey(platform::keys::kUp);
  form.Settle();
  EXPECT_EQ(control.InvoiceValues(2)->CompanyExpense, Money("50"));
}

TEST_F(InvoiceDistributionTest, TheLinesGridShowsTheCurrentInvoicesLinesAndDeletesOneOnlyWhenConfirmed) {
  control.AddInvoice(Day(2026, 2, 1), "A", Money("100"));
  control.AddInvoice(Day(2026, 2, 1), "B", Money("10"));
  InDialog([&] { SplitSixtyForty(); });
  control.SetCurrentRow(1);
  control.ShowDistribution();
  form.Settle();
  platform::GridEngine& lines = control.grDistribution().Engine();
  ASSERT_EQ(lines.RowCount(), 2);
  EXPECT_EQ(lines.DisplayedText(0, InvoiceLinesSource::kAccountColumn), "5100");
  EXPECT_EQ(lines.DisplayedText(1, InvoiceLinesSource::kAmountColumn), "40.00");
  EXPECT_EQ(lines.Column(InvoiceLinesSource::kAmountColumn).footer_text, "100.00");

  user.ClickCell(Grid(), 1, InvoiceStore::kNumberColumn);
  EXPECT_EQ(lines.RowCount(), 0);
  EXPECT_EQ(lines.Column(InvoiceLinesSource::kAmountColumn).footer_text, "");
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  ASSERT_EQ(lines.RowCount(), 2);

  host.ExpectMessage(platform::MessageResult::No);
  user.ClickCell(control.grDistribution(), 1, InvoiceLinesSource::kAccountColumn);
  lines.DeleteCurrentRow();
  EXPECT_EQ(host.MessagesShown().back().title, "Delete this distribution?");
  // A record the host took is its own: later changes to the list or to the record do not meet.
  const auto taken = control.InvoiceValues(1);
  EXPECT_EQ(taken->Distributions->Count(), 2);
  host.ExpectMessage(platform::MessageResult::Yes);
  lines.DeleteCurrentRow();
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Count(), 1);
  ASSERT_EQ(taken->Distributions->Count(), 2);
  EXPECT_EQ(taken->Distributions->Item(2)->GLAccount, "5200");
  taken->Distributions->Item(1)->Amount = Money("1");
  taken->Distributions->Remove(1);
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Item(1)->Amount, Money("60"));
  EXPECT_EQ(lines.RowCount(), 1);
  EXPECT_EQ(lines.Column(InvoiceLinesSource::kAmountColumn).footer_text, "60.00");
  std::string reason;
  bool incomplete = false;
  EXPECT_FALSE(control.IsDataValid(reason, incomplete));
  EXPECT_NE(reason.find("does not equal"), std::string::npos) << reason;
}

TEST_F(InvoiceDistributionTest, AForeignInvoiceSplitsItsCanadianAmountAndKeepsBothColumns) {
  control.SetIPCurrency("USD");
  control.SetCurrencyRate(1.35f);
  control.SetupIPGrid();
  control.AddInvoice(Day(2026, 2, 1), "US-1", Money("100"));
  InDialog([&] {
    EXPECT_EQ(Dialog().AmountToDistribute(), Money("135"));
    // The whole Canadian amount is proposed, with its foreign amount beside it.
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(0, 3), "135.00");
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(0, 2), "100.00");
    user.Click(Accept());
  });
  control.SetCurrentRow(1);
  control.ShowDistribution();
  form.Settle();
  const auto invoice = control.InvoiceValues(1);
  ASSERT_EQ(invoice->Distributions->Count(), 1);
  EXPECT_EQ(invoice->Distributions->Item(Variant(1))->Amount, Money("135"));
  std::string reason;
  bool incomplete = false;
  EXPECT_TRUE(control.IsDataValid(reason, incomplete)) << reason;

  InDialog([&] {
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(0, 3), "135.00");
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(0, 2), "100.00");
    user.Click(Cancel());
  });
  control.ShowDistribution();
  form.Settle();
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
}

TEST_F(InvoiceDistributionTest, CancellingChangesNothingAndDeletingTheRowDropsItsLines) {
  control.AddInvoice(Day(2026, 2, 1), "A", Money("100"));
  control.AddInvoice(Day(2026, 2, 1), "B", Money("10"));
  InDialog([&] { user.Click(Cancel()); });
  control.SetCurrentRow(1);
  control.ShowDistribution();
  form.Settle();
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Count(), 0);
  InDialog([&] { SplitSixtyForty(); });
  control.SetCurrentRow(1);
  control.ShowDistribution();
  form.Settle();
  EXPECT_EQ(control.Store().LineCount(), 2u);
  control.SetCurrentRow(1);
  control.DeleteCurrentRow();
  EXPECT_EQ(control.RowCount(), 1);
  EXPECT_EQ(control.Store().LineCount(), 0u);
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "B");

  // A row emptied after its split, then filled by AddInvoice: the old lines go with it.
  InvoiceStore& store = control.Store();
  store.EnsureId(0);
  store.SetLines(store.At(0).id, {{Variant(), "5100", Money("10")}});
  store.WriteRow(0, {{1, Variant()}, {2, Variant(std::string())}, {3, Variant()}});
  control.AddInvoice(Day(2026, 2, 2), "C", Money("7"));
  EXPECT_EQ(control.RowCount(), 1);
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "C");
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Count(), 0);
  EXPECT_EQ(store.LineCount(), 0u);
}

}  // namespace
}  // namespace zenta::testing
