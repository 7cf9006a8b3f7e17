#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/controls/invoice_entry/invoice_screen.h"
#include "zenta/platform/keys.h"

namespace zenta::testing {
namespace {

using Col = InvoiceStore::Column;

class InvoicePasteTest : public ::testing::Test, public InvoiceScreen {
 protected:
  void SetUp() override { host.SetToday(Day(2026, 3, 20)); }

  // The payer in the list's date cell presses Ctrl+V with `text` on the clipboard.
  void PasteFromClipboard(const std::string& text, int column = Col::kDateColumn) {
    host.SetClipboardText(text);
    user.ClickCell(Grid(), Engine().FirstRow() + control.RowCount(), column);
    user.PressKey('V', platform::kCtrl);
  }
  long Count(const std::string& name) const {
    const auto events = Events();
    return std::count(events.begin(), events.end(), name);
  }
  std::string LastMessage() const { return host.MessagesShown().empty() ? "" : host.MessagesShown().back().text; }
};

TEST_F(InvoicePasteTest, SpreadsheetRowsWithQuotesAndCrlfAreAddedAsValuesWithOneRecalculate) {
  PasteFromClipboard(
      "2026/03/15\tINV-1\t1250\r\n"
      "2026-03-14\t\"Hydro, \"\"March\"\"\"\t$1,234.56\r\n"
      "2026/03/13\tRefund\t(12.50)\r\n"
      "\r\n");
  EXPECT_TRUE(host.MessagesShown().empty()) << LastMessage();
  ASSERT_EQ(control.RowCount(), 3);
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceAmount, Money("1250"));
  EXPECT_EQ(control.InvoiceValues(2)->InvoiceNo, "Hydro, March");  // quotes are not typable
  EXPECT_EQ(control.InvoiceValues(2)->InvoiceDate, Day(2026, 3, 14));
  EXPECT_EQ(control.InvoiceValues(3)->InvoiceAmount, Money("-12.5"));
  EXPECT_EQ(control.TotalAmount(), Money("2472.06"));
  EXPECT_EQ(Count("Recalculate"), 1);
  EXPECT_EQ(Count("CheckDuplicateInvoices"), 3);
}

TEST_F(InvoicePasteTest, RefusedRowsAreLeftOutWholeAndListedInOneMessage) {
  control.AddInvoice(Day(2026, 3, 1), "DUP", Money("10"));
  host.OnEvent([](platform::RaisedEvent& event) {
    if (event.name == "CheckDuplicateInvoices") event.args[1] = Variant(event.args[0].ToString() == "DUP");
    if (event.name == "ValidateInvoiceAmountLimit") event.args[1] = Variant(event.args[0].ToCurrency() > Currency::FromInteger(500));
  });
  host.ExpectMessage(platform::MessageResult::Ok);
  PasteFromClipboard(
      "Invoice Date\tInvoice Number / Description\tInvoice Amount\n"
      "2026/03/01\tGOOD\t100\n"
      "2026/13/01\tBADDATE\t1\n"
      "2026/03/01\tDUP\t1\n"
      "2026/03/01\tNOAMOUNT\tabc\n"
      "2026/03/01\t" + std::string(256, 'x') + "\t1\n"
      "2030/03/01\tFAR\t1\n"
      "2026/03/01\t\t1\n"
      "2026/03/01\tOVER\t400\n");
  ASSERT_EQ(control.RowCount(), 2);
  EXPECT_EQ(control.InvoiceValues(2)->InvoiceNo, "GOOD");
  EXPECT_EQ(LastMessage(),
            "These rows were not pasted:\n"
            "Row 3, Invoice Date: not a date\n"
            "Row 4, Invoice Number / Description: refused as a duplicate\n"
            "Row 5, Invoice Amount: not an amount\n"
            "Row 6, Invoice Number / Description: The Invoice Number/Description cannot be more than 255 characters.\n"
            "Row 7, Invoice Date: The Invoice Date cannot be set to more than two years into the future. Please adjust the date.\n"
            "Row 8, Invoice Number / Description: An invoice number / description is required\n"
            "Row 9, Invoice Amount: refused: over the amount limit");
  EXPECT_EQ(host.MessagesShown().back().title, "Paste Invoices");
}

TEST_F(InvoicePasteTest, TheDateQuestionIsAskedOnceForAllItsRows) {
  host.ExpectMessage(platform::MessageResult::Yes);  // change them: left out
  host.ExpectMessage(platform::MessageResult::No);   // keep the old ones
  host.ExpectMessage(platform::MessageResult::Ok);
  PasteFromClipboard("2026/04/01\tA\t1\n2026/03/01\tB\t2\n2026/05/01\tC\t3\n2024/01/01\tD\t4\n2024/01/02\tE\t5\n");
  ASSERT_EQ(host.MessagesShown().size(), 3u);
  EXPECT_EQ(host.MessagesShown()[0].text,
            "You have entered future dated invoice, would you like to change it?\nRows: 1, 3");
  EXPECT_EQ(host.MessagesShown()[1].text,
            "The Invoice Date you entered is more than a year earlier than the current date, would you like to "
            "change it?\nRows: 4, 5");
  ASSERT_EQ(control.RowCount(), 3);
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "B");
  EXPECT_EQ(control.InvoiceValues(3)->InvoiceNo, "E");
}

TEST_F(InvoicePasteTest, ColumnsMapFromTheCurrentColumnAndBusinessRowsNeedTheirGST) {
  control.SetBusinessMode(true);
  control.AddInvoice(Day(2026, 3, 1), "A", Money("1"), Variant(Money("0")));
  host.ExpectMessage(platform::MessageResult::Ok);
  PasteFromClipboard("2026/03/02,B,113.00,13.00\n2026/03/03,C,50\n", Col::kDateColumn);
  ASSERT_EQ(control.RowCount(), 2);
  EXPECT_EQ(control.InvoiceValues(2)->CompanyExpense, Money("100"));
  EXPECT_EQ(LastMessage(), "These rows were not pasted:\nRow 2, Refundable GST/HST: A GST/HST amount is required (0.00 is acceptable)");
  // An amount-first paste has no date or number: each row says so.
  host.ExpectMessage(platform::MessageResult::Ok);
  PasteFromClipboard("5\t1\n", Col::kAmountColumn);
  EXPECT_EQ(LastMessage(), "These rows were not pasted:\nRow 1, Invoice Date: An invoice date is required");
  EXPECT_EQ(control.RowCount(), 2);
}

TEST_F(InvoicePasteTest, ForeignAmountsConvertAsTypedOnesAndStayWithinTheirRange) {
  control.SetOtherCurrencyCode(Variant(std::string("USD")));
  control.SetIPCurrency("USD");
  control.SetCurrencyRate(1.25f);
  control.SetupIPGrid();
  host.ExpectMessage(platform::MessageResult::Ok);
  // The foreign amount is the third column; the rate and Canadian amount are worked out.
  PasteFromClipboard("2026/03/15\tUS-1\t100.00\n2026/03/15\tUS-2\t10,000,000.00\n");
  ASSERT_EQ(control.RowCount(), 1);
  EXPECT_EQ(control.InvoiceValues(1)->CompanyExpense, Money("125"));
  EXPECT_EQ(control.TotalForeignAmount(), Money("100"));
  EXPECT_EQ(LastMessage(), std::string("These rows were not pasted:\nRow 2, Invoice Amount (USD): ") +
                               InvoiceEntry::kForeignRangeText);
}

TEST_F(InvoicePasteTest, APastePastTheLastInvoiceAddsNothingAndSaysSo) {
  InvoiceStore& store = control.Store();
  for (int i = 0; i < InvoiceStore::kMaxRows - 1; ++i) {
    InvoiceStore::Row row;
    row.date = Day(2026, 3, 1);
    row.number = "N";
    row.amount = Money("1");
    store.Put(store.TargetRowForAdd("test"), std::move(row));
  }
  host.ExpectMessage(platform::MessageResult::Ok);
  control.PasteText("2026/03/01\tA\t1\n2026/03/01\tB\t1\n");
  EXPECT_EQ(LastMessage(), "The list holds at most 32,767 invoices: nothing was pasted.");
  EXPECT_EQ(control.RowCount(), InvoiceStore::kMaxRows - 1);
  control.PasteText("2026/03/01\tA\t1\n");
  EXPECT_EQ(control.RowCount(), InvoiceStore::kMaxRows);
}

}  // namespace
}  // namespace zenta::testing
