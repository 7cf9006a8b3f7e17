#include <gtest/gtest.h>

#include <string>

#include "tests/controls/invoice_entry/invoice_screen.h"

namespace zenta::testing {
namespace {

class InvoiceGstFillTest : public ::testing::Test, public InvoiceScreen {
 protected:
  void SetUp() override {
    host.SetToday(Day(2026, 3, 1));
    control.SetBusinessMode(true);
    context.GstHst().SetProvince("ON");
  }
  void PressFill() { user.PressKey(GstHstSettings::kFillKey); }
  std::string GstHint(int row) { return Engine().Hint(row, InvoiceStore::kGSTColumn).text; }
};

TEST_F(InvoiceGstFillTest, TheFillKeyPutsTheIncludedTaxInTheCellAndTabKeepsIt) {
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  user.Type("INV-1\t11300\t");
  ASSERT_EQ(Engine().CurrentColumn(), InvoiceStore::kGSTColumn);
  PressFill();
  EXPECT_EQ(Engine().CellText(InvoiceStore::kGSTColumn), "13.00");
  bool opened = false;
  InDialog([&] {
    opened = true;
    EXPECT_EQ(Dialog().AmountToDistribute(), Money("100"));
    user.Click(Cancel());
  });
  user.PressTab();
  user.PressTab();  // past the net expense: the split of 100.00 opens
  EXPECT_TRUE(opened);
  user.LeaveControl();
  EXPECT_EQ(control.TotalGST(), Money("13"));
  EXPECT_EQ(control.TotalExpense(), Money("100"));
  EXPECT_EQ(GstHint(0), "");
}

TEST_F(InvoiceGstFillTest, TheRateFollowsTheProvinceOrTheHostsRate) {
  context.GstHst().SetProvince("NS");
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  user.Type("INV-1\t11400\t");
  PressFill();
  EXPECT_EQ(Engine().CellText(InvoiceStore::kGSTColumn), "14.00");
  context.GstHst().SetExplicitRate(*Rate::FromParts(5, 2));
  PressFill();
  EXPECT_EQ(Engine().CellText(InvoiceStore::kGSTColumn), "5.43");
}

TEST_F(InvoiceGstFillTest, WithoutARateOrOutsideTheGstCellTheKeyDoesNothing) {
  context.GstHst().SetProvince("");
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  user.Type("INV-1\t11300\t");
  PressFill();
  EXPECT_EQ(Engine().CellText(InvoiceStore::kGSTColumn), "");
  context.GstHst().SetProvince("ON");
  user.ClickCell(Grid(), 0, InvoiceStore::kAmountColumn);
  PressFill();
  EXPECT_EQ(Engine().CellText(InvoiceStore::kAmountColumn), "113.00");
  EXPECT_EQ(Engine().CellText(InvoiceStore::kGSTColumn), "");
}

TEST_F(InvoiceGstFillTest, ATypedFigureAwayFromTheRateIsHintedNeverRefused) {
  control.AddInvoice(Day(2026, 2, 1), "A", Money("113"), Variant(Money("12.98")));
  control.AddInvoice(Day(2026, 2, 1), "B", Money("113"), Variant(Money("12.99")));
  // Before Ontario's HST the GST was 5 %: the invoice's date chooses the rate.
  control.AddInvoice(Day(2010, 6, 30), "C", Money("105"), Variant(Money("5")));
  EXPECT_EQ(GstHint(0), "The rate gives GST/HST of 13.00");
  EXPECT_EQ(GstHint(1), "");
  EXPECT_EQ(GstHint(2), "");
  EXPECT_TRUE(host.MessagesShown().empty());
  EXPECT_EQ(control.TotalGST(), Money("30.97"));
}

TEST_F(InvoiceGstFillTest, PrivatePayersSeeNoHint) {
  control.SetBusinessMode(false);
  control.AddInvoice(Day(2026, 2, 1), "A", Money("113"), Variant(Money("1")));
  EXPECT_EQ(GstHint(0), "");
}

}  // namespace
}  // namespace zenta::testing
