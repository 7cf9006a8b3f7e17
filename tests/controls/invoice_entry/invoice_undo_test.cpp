#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/controls/invoice_entry/invoice_screen.h"
#include "zenta/platform/keys.h"

namespace zenta::testing {
namespace {

using Col = InvoiceStore::Column;

class InvoiceUndoTest : public ::testing::Test, public InvoiceScreen {
 protected:
  void SetUp() override {
    host.SetToday(Day(2026, 3, 20));
    control.OnUndoStateChanged([this] { ++undo_state_changes; });
  }
  void PressUndo() { user.PressKey('Z', platform::kCtrl); }
  void PressRedo() { user.PressKey('Y', platform::kCtrl); }
  long Recalculates() const {
    const auto events = Events();
    return std::count(events.begin(), events.end(), "Recalculate");
  }
  int undo_state_changes = 0;
};

TEST_F(InvoiceUndoTest, AStoredEditIsUndoneToItsExactValuesAndRedone) {
  control.AddInvoice(Day(2026, 3, 1), "A", Money("10.0001"));
  EXPECT_FALSE(control.CanUndo());
  user.ClickCell(Grid(), 0, Col::kAmountColumn);
  user.Type("25.50");
  user.LeaveControl();
  ASSERT_EQ(control.TotalAmount(), Money("25.5"));
  EXPECT_TRUE(control.CanUndo());
  EXPECT_GT(undo_state_changes, 0);

  host.ClearEvents();
  user.Focus(Grid());
  PressUndo();
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceAmount, Money("10.0001"));
  EXPECT_EQ(control.TotalAmount(), Money("10.0001"));
  EXPECT_EQ(Recalculates(), 1);
  EXPECT_FALSE(control.CanUndo());
  EXPECT_TRUE(control.CanRedo());
  PressRedo();
  EXPECT_EQ(control.TotalAmount(), Money("25.5"));
  EXPECT_EQ(Recalculates(), 2);
  // Ctrl+Shift+Z redoes too; nothing left to redo changes nothing.
  PressUndo();
  user.PressKey('Z', platform::kCtrl | platform::kShift);
  EXPECT_EQ(control.TotalAmount(), Money("25.5"));
  EXPECT_FALSE(control.Redo());
}

TEST_F(InvoiceUndoTest, UndoFirstAbandonsTypingNotYetStored) {
  control.AddInvoice(Day(2026, 3, 1), "A", Money("10"));
  user.ClickCell(Grid(), 0, Col::kNumberColumn);
  user.Type("CHANGED");
  PressUndo();
  EXPECT_FALSE(Engine().IsEditing());
  EXPECT_EQ(Engine().CellText(Col::kNumberColumn), "A");
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "A");
}

TEST_F(InvoiceUndoTest, ADeletedRowComesBackWithItsIdentifierAndLines) {
  control.AddInvoice(Day(2026, 3, 1), "A", Money("10"));
  control.AddInvoice(Day(2026, 3, 2), "B", Money("20"));
  InvoiceStore& store = control.Store();
  store.EnsureId(0);
  const std::int16_t id = store.At(0).id;
  store.SetLines(id, {{Variant(1), "5100", Money("6"), std::nullopt}, {Variant(2), "5200", Money("4"), std::nullopt}});

  host.ExpectMessage(platform::MessageResult::Yes);
  user.ClickCell(Grid(), 0, Col::kNumberColumn);
  user.PressKey(46, platform::kCtrl);
  ASSERT_EQ(control.RowCount(), 1);
  EXPECT_TRUE(control.CanUndo());
  PressUndo();
  ASSERT_EQ(control.RowCount(), 2);
  const auto invoice = control.InvoiceValues(1);
  EXPECT_EQ(invoice->InvoiceNo, "A");
  EXPECT_EQ(invoice->ID, id);
  ASSERT_EQ(invoice->Distributions->Count(), 2);
  EXPECT_EQ(invoice->Distributions->Item(Variant(2))->GLAccount, "5200");
  // The lines beside the list show the restored invoice's.
  EXPECT_EQ(control.grDistribution().Engine().RowCount(), 2);
  PressRedo();
  EXPECT_EQ(control.RowCount(), 1);
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "B");
}

TEST_F(InvoiceUndoTest, APasteIsOneStepAndTheHostsOwnCallsForgetTheHistory) {
  host.SetClipboardText("2026/03/15\tA\t1\n2026/03/16\tB\t2\n2026/03/17\tC\t3\n");
  user.ClickCell(Grid(), 0, Col::kDateColumn);
  user.PressKey('V', platform::kCtrl);
  ASSERT_EQ(control.RowCount(), 3);
  PressUndo();
  EXPECT_EQ(control.RowCount(), 0);
  EXPECT_EQ(control.TotalAmount(), Money("0"));
  PressRedo();
  EXPECT_EQ(control.RowCount(), 3);
  EXPECT_EQ(control.TotalAmount(), Money("6"));

  control.AddInvoice(Day(2026, 3, 1), "HOST", Money("1"));
  EXPECT_FALSE(control.CanUndo());
  user.Focus(Grid());
  user.PressKey(platform::keys::kInsert, platform::kShift);  // the same clipboard again
  EXPECT_EQ(control.RowCount(), 7);
  EXPECT_TRUE(control.CanUndo());
  control.SetBusinessMode(true);
  EXPECT_FALSE(control.CanUndo());
  EXPECT_FALSE(control.CanRedo());
}

TEST_F(InvoiceUndoTest, AnAcceptedSplitIsUndoneBeforeTheRowItSplits) {
  control.SetDefaultGLAccount("5100");
  user.ClickCell(Grid(), 0, Col::kNumberColumn);
  user.Type("INV-7\t");
  InDialog([&] { user.Click(Accept()); });
  user.Type("4250");
  user.PressEnter();
  ASSERT_EQ(control.InvoiceValues(1)->Distributions->Count(), 1);
  user.Focus(Grid());
  host.ClearEvents();
  PressUndo();
  ASSERT_EQ(control.RowCount(), 1);
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Count(), 0);
  // As if the payer had accepted the earlier split again: the row's split, then the totals.
  EXPECT_EQ(Events(), (std::vector<std::string>{"DistributionEntered", "Recalculate"}));
  PressUndo();
  EXPECT_EQ(control.RowCount(), 0);
  PressRedo();
  PressRedo();
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Count(), 1);
  EXPECT_EQ(control.InvoiceValues(1)->Distributions->Item(Variant(1))->GLAccount, "5100");
}

TEST_F(InvoiceUndoTest, CopyPutsTheCurrentRowOnTheClipboardAsAPasteReadsIt) {
  control.SetBusinessMode(true);
  control.AddInvoice(Day(2026, 3, 1), "Tab\there", Money("1234.5"), Variant(Money("-0.5")));
  user.ClickCell(Grid(), 0, Col::kAmountColumn);
  user.PressKey('C', platform::kCtrl);
  EXPECT_EQ(host.ClipboardText(), "2026/03/01\t\"Tab\there\"\t1234.50\t-0.50\r\n");
  user.ClickCell(Grid(), 1, Col::kDateColumn);
  user.PressKey('V', platform::kCtrl);
  ASSERT_EQ(control.RowCount(), 2);
  EXPECT_EQ(control.InvoiceValues(2)->InvoiceAmount, Money("1234.5"));
  EXPECT_EQ(control.InvoiceValues(2)->GSTAmount, Money("-0.5"));
  EXPECT_EQ(control.InvoiceValues(2)->InvoiceNo, "Tabhere");
}

}  // namespace
}  // namespace zenta::testing
