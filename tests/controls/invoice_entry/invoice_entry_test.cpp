#include <gtest/gtest.h>

#include <algorithm>

#include "tests/controls/invoice_entry/invoice_screen.h"
#include "tests/error_number.h"
#include "zenta/core/host_error.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::testing {
namespace {

using test_support::ErrorNumberOf;

class InvoiceEntryTest : public ::testing::Test, public InvoiceScreen {
 protected:
  void SetUp() override { host.SetToday(Day(2026, 3, 1)); }
};

TEST_F(InvoiceEntryTest, AddInvoiceStoresTheInvoiceButAnswersFalse) {
  EXPECT_FALSE(control.AddInvoice(Day(2026, 2, 1), "INV-1", Money("100.25")));
  EXPECT_FALSE(control.AddInvoice(Day(2026, 2, 2), "INV-2", Money("0.0001")));
  EXPECT_EQ(control.RowCount(), 2);
  EXPECT_EQ(control.InvoiceCount(), 2);
  EXPECT_EQ(control.TotalAmount(), Money("100.2501"));
  const auto invoice = control.InvoiceValues(2);
  EXPECT_EQ(invoice->InvoiceDate, Day(2026, 2, 2));
  EXPECT_EQ(invoice->InvoiceNo, "INV-2");
  EXPECT_EQ(invoice->InvoiceAmount, Money("0.0001"));
  ASSERT_NE(invoice->Distributions, nullptr);
  EXPECT_EQ(invoice->Distributions->Count(), 0);
}

TEST_F(InvoiceEntryTest, BusinessModeKeepsGSTAndExpenseExactToTheTenThousandth) {
  control.SetBusinessMode(true);
  control.AddInvoice(Day(2026, 2, 1), "A", Money("113.0001"), Variant(Money("13.0001")));
  control.AddInvoice(Day(2026, 2, 1), "B", Money("50"));
  EXPECT_EQ(control.TotalAmount(), Money("163.0001"));
  EXPECT_EQ(control.TotalGST(), Money("13.0001"));
  EXPECT_EQ(control.TotalExpense(), Money("150"));
  // The totals stand under their columns once the host's call has returned.
  form.RunPosted();
  const platform::GridEngine& grid = Engine();
  EXPECT_EQ(grid.Column(InvoiceStore::kAmountColumn).footer_text, "163.00");
  EXPECT_EQ(grid.Column(InvoiceStore::kGSTColumn).footer_text, "13.00");
  EXPECT_EQ(grid.Column(InvoiceStore::kExpenseColumn).footer_text, "150.00");
  EXPECT_EQ(control.InvoiceValues(2)->CompanyExpense, Money("50"));
  // Changing the mode empties the list.
  control.SetBusinessMode(false);
  EXPECT_EQ(control.RowCount(), 0);
}

TEST_F(InvoiceEntryTest, RowsOutsideTheListRaiseTheMissingRowError) {
  control.AddInvoice(Day(2026, 2, 1), "A", Money("1"));
  for (std::int16_t row : {std::int16_t{2}, std::int16_t{0}}) {
    try {
      control.InvoiceValues(row);
      FAIL() << "no error for row " << row;
    } catch (const HostError& error) {
      EXPECT_EQ(static_cast<std::uint32_t>(error.Number()), 0x800403E8u);
      EXPECT_EQ(error.Source(), "InvoiceValues");
      EXPECT_EQ(error.Description(), "The row " + std::to_string(row) + " does not exist");
    }
  }
  EXPECT_THROW(control.SetEmailFilename(2, "x.pdf"), HostError);
  // The inert put takes an invoice and writes nothing; anything else is a type mismatch.
  control.SetInvoiceValues(99, Variant(std::make_shared<clsInvoice>()));
  EXPECT_THROW(control.SetInvoiceValues(1, Variant("text")), HostError);
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "A");
}

TEST_F(InvoiceEntryTest, DeleteByEmailFilenameRemovesEveryTaggedRowWhateverItsCase) {
  for (const char* number : {"A", "B", "C", "D"}) control.AddInvoice(Day(2026, 2, 1), number, Money("1"));
  control.SetEmailFilename(1, "mail.pdf");
  control.SetEmailFilename(2, "MAIL.PDF");
  control.SetEmailFilename(4, "other.pdf");
  control.DeleteByEmailFilename("  Mail.pdf ");
  ASSERT_EQ(control.RowCount(), 2);
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "C");
  EXPECT_EQ(control.InvoiceValues(2)->EmailFilename, "other.pdf");
  control.DeleteByEmailFilename("   ");
  EXPECT_EQ(control.RowCount(), 2);
}

TEST_F(InvoiceEntryTest, TheFullListRaisesOverflowOnTheNextInvoiceAndKeepsItsRows) {
  for (int i = 0; i < InvoiceStore::kMaxRows; ++i) control.AddInvoice(Day(2026, 2, 1), "N", Money("1"));
  EXPECT_EQ(control.RowCount(), 32767);
  try {
    control.AddInvoice(Day(2026, 2, 1), "one too many", Money("1"));
    FAIL() << "no overflow";
  } catch (const HostError& error) {
    EXPECT_EQ(error.Number(), 6);
  }
  EXPECT_EQ(control.RowCount(), 32767);
  EXPECT_EQ(control.TotalAmount(), Money("32767"));
}

TEST_F(InvoiceEntryTest, ARaisedAddInvoiceLeavesNoRowBehind) {
  control.SetBusinessMode(true);
  control.AddInvoice(Day(2026, 2, 1), "A", Money("10"), Variant(Money("1")));
  // Amount less a negative GST/HST passes the currency maximum.
  EXPECT_EQ(ErrorNumberOf([&] { control.AddInvoice(Day(2026, 2, 1), "MAX", Currency::Max(), Variant(Money("-1"))); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { control.AddInvoice(Day(2026, 2, 1), "B", Money("1"), Variant("x")); }), 13);
  EXPECT_EQ(ErrorNumberOf([&] { control.AddInvoice(Day(2026, 2, 1), "C", Money("1"), Variant(), Variant("x")); }), 13);
  EXPECT_EQ(control.RowCount(), 1);
  EXPECT_EQ(control.TotalExpense(), Money("9"));
  // A conversion past the currency range raises the same way.
  control.SetBusinessMode(false);
  control.SetIPCurrency("USD");
  control.SetCurrencyRate(1e14f);
  EXPECT_EQ(ErrorNumberOf([&] { control.AddInvoice(Day(2026, 2, 1), "D", Money("100")); }), 6);
  EXPECT_EQ(control.RowCount(), 0);
}

TEST_F(InvoiceEntryTest, AnInvoiceTypedOnAFullListIsRefusedWithAMessageAndKeepsItsText) {
  InvoiceStore& store = control.Store();
  InvoiceStore::Row row;
  row.date = Day(2026, 2, 1);
  row.number = "N";
  row.amount = Money("1");
  for (int i = 0; i < InvoiceStore::kMaxRows; ++i) store.Put(store.TargetRowForAdd("test"), row);
  Engine().Rebind();
  user.ClickCell(Grid(), InvoiceStore::kMaxRows, InvoiceStore::kNumberColumn);
  ASSERT_TRUE(Engine().IsAddNewRow(*Engine().CurrentRow()));
  EXPECT_EQ(control.CurrentRow(), 0);
  host.ExpectMessage(platform::MessageResult::Ok);
  user.Type("ONE MORE\t");
  user.LeaveControl();
  ASSERT_EQ(host.MessagesShown().size(), 1u);
  EXPECT_EQ(host.MessagesShown()[0].text,
            "The list is full: it holds at most 32,767 invoices. Delete one, or clear a row, to add this invoice.");
  EXPECT_EQ(control.RowCount(), InvoiceStore::kMaxRows);
  EXPECT_EQ(Engine().CellText(InvoiceStore::kNumberColumn), "ONE MORE");
  EXPECT_EQ(control.CurrentRow(), 0);
  // Once the payer abandons the typing, the last row can be reached again.
  user.ClickCell(Grid(), InvoiceStore::kMaxRows, InvoiceStore::kNumberColumn);
  user.PressEscape();
  user.PressEscape();
  control.SetCurrentRow(InvoiceStore::kMaxRows);
  EXPECT_EQ(control.CurrentRow(), InvoiceStore::kMaxRows);
}

TEST_F(InvoiceEntryTest, ThePayerTypesAnInvoiceAndTheHostHearsRecalculateAfterTheRowIsStored) {
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  user.Type("INV-9\t125.50");
  user.LeaveControl();
  EXPECT_EQ(control.RowCount(), 1);
  EXPECT_EQ(control.TotalAmount(), Money("125.5"));
  const auto events = Events();
  ASSERT_FALSE(events.empty());
  EXPECT_EQ(events.back(), "Recalculate");
}

TEST_F(InvoiceEntryTest, TypedCentsAndKeyFilters) {
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  user.Type("A\"B~C\t12x50");
  user.LeaveControl();
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceNo, "ABC");
  EXPECT_EQ(control.InvoiceValues(1)->InvoiceAmount, Money("12.5"));
}

TEST_F(InvoiceEntryTest, ABlankNumberIsRefusedSilentlyBeforeTheHostSeesIt) {
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  user.Type("   \t");
  EXPECT_TRUE(host.MessagesShown().empty());
  EXPECT_TRUE(std::find(Events().begin(), Events().end(), "CheckDuplicateInvoices") == Events().end());
  // The cell stays open with what was typed, for the real number.
  EXPECT_TRUE(Engine().IsEditing());
  EXPECT_EQ(Engine().CurrentColumn(), InvoiceStore::kNumberColumn);
  user.Type("INV-9\t");
  EXPECT_EQ(Engine().CellText(InvoiceStore::kNumberColumn), "   INV-9");
  EXPECT_NE(std::find(Events().begin(), Events().end(), "CheckDuplicateInvoices"), Events().end());
}

TEST_F(InvoiceEntryTest, TheHostVetoesADuplicateNumberAndAnAmountOverItsLimit) {
  control.AddInvoice(Day(2026, 2, 1), "A", Money("900"));
  Currency seen;
  host.OnEvent([&](platform::RaisedEvent& event) {
    if (event.name == "CheckDuplicateInvoices") event.args[1] = Variant(event.args[0].ToString() == "A");
    if (event.name == "ValidateInvoiceAmountLimit") {
      seen = event.args[0].ToCurrency();
      event.args[1] = Variant(seen > Money("1000"));
    }
  });
  user.ClickCell(Grid(), 1, InvoiceStore::kAmountColumn);
  // Typed cents; the refused amount keeps the distribution window shut.
  user.Type("20000\t");
  form.Settle();
  // The host receives the list's total plus the typed amount.
  EXPECT_EQ(seen, Money("1100"));
  std::string reason;
  bool incomplete = false;
  EXPECT_FALSE(control.IsDataValid(reason, incomplete));

  // Refused on a stored business row: its amount, GST/HST and expense are all gone.
  control.SetBusinessMode(true);
  control.AddInvoice(Day(2026, 2, 1), "B", Money("113"), Variant(Money("13")));
  host.ClearEvents();
  user.ClickCell(Grid(), 0, InvoiceStore::kAmountColumn);
  user.Type("200000\t");
  EXPECT_EQ(Engine().CellText(InvoiceStore::kAmountColumn), "");
  EXPECT_EQ(Engine().CellText(InvoiceStore::kGSTColumn), "");
  EXPECT_EQ(Engine().CellText(InvoiceStore::kExpenseColumn), "");
  EXPECT_EQ(control.TotalAmount(), Money("0"));
  ASSERT_FALSE(Events().empty());
  EXPECT_EQ(Events().back(), "Recalculate");
}

TEST_F(InvoiceEntryTest, DatesAheadOrLongAgoAreQuestionedAndDeletionIsConfirmed) {
  host.ExpectMessage(platform::MessageResult::No);
  user.ClickCell(Grid(), 0, InvoiceStore::kDateColumn);
  user.Type("2026/05/01\t");
  ASSERT_EQ(host.MessagesShown().size(), 1u);
  EXPECT_EQ(host.MessagesShown()[0],
            (platform::MessageBox{"You have entered future dated invoice, would you like to change it?",
                                  "Invoice Date Validation", platform::MessageButtons::YesNo,
                                  platform::MessageIcon::Information}));
  EXPECT_EQ(Engine().CurrentColumn(), InvoiceStore::kNumberColumn);
  host.ExpectMessage(platform::MessageResult::Yes);
  user.ClickCell(Grid(), 0, InvoiceStore::kDateColumn);
  user.Type("2020/01/01\t");
  ASSERT_EQ(host.MessagesShown().size(), 2u);
  EXPECT_EQ(host.MessagesShown()[1].text,
            "The Invoice Date you entered is more than a year earlier than the current date, would you like to "
            "change it?");
  EXPECT_EQ(Engine().CurrentColumn(), InvoiceStore::kDateColumn);

  control.Clear();
  control.AddInvoice(Day(2026, 2, 1), "A", Money("1"));
  host.ExpectMessage(platform::MessageResult::No);
  user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
  Engine().DeleteCurrentRow();
  EXPECT_EQ(host.MessagesShown().back().title, "Delete this invoice?");
  EXPECT_EQ(control.RowCount(), 1);
  // The control's own deletion asks nothing.
  control.DeleteCurrentRow();
  EXPECT_EQ(control.RowCount(), 0);
  EXPECT_EQ(host.PendingAnswers(), 0u);
}

TEST_F(InvoiceEntryTest, TheDateCellRefusesPartDatesAndDatesBeyondTwoYears) {
  user.ClickCell(Grid(), 0, InvoiceStore::kDateColumn);
  user.Type("202602\t");
  EXPECT_EQ(host.Beeps(), 1);
  EXPECT_TRUE(Engine().IsEditing());
  EXPECT_EQ(Engine().EditText(), "2026/02/__");
  std::string reason;
  bool incomplete = false;
  EXPECT_FALSE(control.IsDataValid(reason, incomplete));
  EXPECT_EQ(reason, "An invoice date is required");
  EXPECT_TRUE(incomplete);

  user.Type("29\t");  // 2026/02/29 does not exist
  EXPECT_EQ(host.Beeps(), 2);
  EXPECT_TRUE(Engine().IsEditing());

  host.ExpectMessage(platform::MessageResult::Ok);
  user.PressEscape();
  user.Type("20290302\t");
  ASSERT_FALSE(host.MessagesShown().empty());
  EXPECT_EQ(host.MessagesShown().back(),
            (platform::MessageBox{"The Invoice Date cannot be set to more than two years into the future. Please "
                                  "adjust the date.",
                                  "Invoice Date Validation", platform::MessageButtons::Ok,
                                  platform::MessageIcon::Information}));
  EXPECT_EQ(Engine().CurrentColumn(), InvoiceStore::kDateColumn);
  EXPECT_TRUE(Engine().IsEditing());
}

TEST_F(InvoiceEntryTest, IsDataValidNamesTheFirstProblem) {
  std::string reason = "stale";
  bool incomplete = true;
  EXPECT_TRUE(control.IsDataValid(reason, incomplete));
  EXPECT_EQ(reason, "");
  control.AddInvoice(Day(2026, 2, 1), "A", Money("10"));
  EXPECT_FALSE(control.IsDataValid(reason, incomplete));
  EXPECT_EQ(reason, "You must enter the G/L Distribution. Please click the \"View Dist\" button.");
  EXPECT_EQ(Engine().CurrentColumn(), InvoiceStore::kViewDistColumn);
  control.Clear();
  // The limit counts characters: 255 accented letters (510 bytes) pass, one more does not.
  std::string accented;
  for (int i = 0; i < 255; ++i) accented += "\u00e9";
  control.AddInvoice(Day(2026, 2, 1), accented, Money("0"));
  EXPECT_TRUE(control.IsDataValid(reason, incomplete)) << reason;
  control.Clear();
  control.AddInvoice(Day(2026, 2, 1), accented + "L", Money("0"));
  EXPECT_FALSE(control.IsDataValid(reason, incomplete));
  EXPECT_EQ(reason, "The Invoice Number/Description cannot be more than 255 characters.");
}

TEST_F(InvoiceEntryTest, DetailLinesCountOverEveryNumber) {
  control.AddInvoice(Day(2026, 2, 1), std::string(28, 'X'), Money("1"));
  control.AddInvoice(Day(2026, 2, 1), "short", Money("1"));
  EXPECT_EQ(control.InvoiceCount_DetailLines(), 3);
  bool multiple = false;
  const auto lines = control.PassInvoiceValues(1, multiple);
  EXPECT_TRUE(multiple);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_TRUE(lines[0].First);
  EXPECT_EQ(lines[0].InvoiceAmount, Money("1"));
  EXPECT_FALSE(lines[1].First);
  EXPECT_EQ(control.ParsedLines().size(), 2u);
  control.PassInvoiceValues(2, multiple);
  EXPECT_FALSE(multiple);
  // Thirty accented letters print on two lines, none split in half.
  std::string thirty;
  for (int i = 0; i < 30; ++i) thirty += "\u00e9";
  control.AddInvoice(Day(2026, 2, 1), thirty, Money("1"));
  EXPECT_EQ(control.InvoiceCount_DetailLines(), 5);
  const auto accented = control.PassInvoiceValues(3, multiple);
  ASSERT_EQ(accented.size(), 2u);
  EXPECT_EQ(accented[1].Text, "\u00e9\u00e9\u00e9" + std::string(24, ' '));
}

TEST_F(InvoiceEntryTest, ForeignInvoicesConvertAtTheAccountingRateHalfToEven) {
  control.SetOtherCurrencyCode(Variant("USD"));
  control.SetIPCurrency("USD");
  control.SetCurrencyRate(1.35f);
  control.SetupIPGrid();
  EXPECT_EQ(Engine().Column(InvoiceStore::kAmountColumn).caption, "Invoice Amount (USD)");
  EXPECT_EQ(Engine().Column(InvoiceStore::kGSTColumn).caption, "Accounting Rate");
  EXPECT_EQ(Engine().Column(InvoiceStore::kExpenseColumn).caption, "Invoice Amount (CAD)");
  EXPECT_EQ(Grid().Rect().width, InvoiceEntry::kForeignGridWidth);
  control.AddInvoice(Day(2026, 2, 1), "US-1", Money("100"));
  control.AddInvoice(Day(2026, 2, 1), "US-2", Money("0.01"));
  EXPECT_EQ(control.InvoiceValues(1)->CompanyExpense, Money("135"));
  EXPECT_EQ(control.TotalForeignAmount(), Money("100.01"));
  EXPECT_EQ(control.TotalAmount(), Money("135.01"));
  control.SetIPCurrency("CAD");
  control.SetupIPGrid();
  EXPECT_EQ(Engine().Column(InvoiceStore::kGSTColumn).caption, "Refundable GST/HST");
}

TEST_F(InvoiceEntryTest, AForeignAmountOutOfRangeIsReportedAfterTheCallReturns) {
  control.SetIPCurrency("USD");
  control.SetCurrencyRate(2.0f);
  host.ExpectMessage(platform::MessageResult::Ok);
  control.AddInvoice(Day(2026, 2, 1), "BIG", Money("10000000"));
  EXPECT_TRUE(host.MessagesShown().empty());
  form.Settle();
  ASSERT_EQ(host.MessagesShown().size(), 1u);
  EXPECT_EQ(host.MessagesShown()[0],
            (platform::MessageBox{"That amount would cause the foreign currency amount to be invalid (it must be "
                                  "between -9,999,999.99 and 9,999,999.99)",
                                  "", platform::MessageButtons::Ok, platform::MessageIcon::Information}));
  // The edge of the range converts.
  control.AddInvoice(Day(2026, 2, 1), "EDGE", Money("-9999999.99"));
  EXPECT_EQ(control.InvoiceValues(2)->CompanyExpense, Money("-19999999.98"));
  // Half to even at the cent: 0.125 CAD per unit.
  control.SetCurrencyRate(0.125f);
  control.AddInvoice(Day(2026, 2, 1), "HALF", Money("1"));
  EXPECT_EQ(control.InvoiceValues(3)->CompanyExpense, Money("0.12"));
}

TEST_F(InvoiceEntryTest, PropertiesRoundTripThroughTheHostsStore) {
  headless::MemoryPropertyBag bag;
  control.SetBackColorGridHeader(Rgb(1, 2, 3));
  control.SetRowColorOdd(Rgb(9, 9, 9));
  control.SetDefaultGLAccount("5100");
  control.SetBusinessMode(true);
  control.WriteProperties(bag);
  EXPECT_FALSE(bag.Contains("RowColorEven"));
  headless::Form other_form;
  headless::Host other_host{other_form};
  LibraryContext other_context{other_host, [&] { return other_form.CreateDialog("frmDistribution"); }};
  InvoiceEntry copy{other_form.AddSurface("InvoiceEntry1"), other_host, other_context};
  copy.ReadProperties(bag);
  EXPECT_EQ(copy.BackColorGridHeader(), Rgb(1, 2, 3));
  EXPECT_EQ(copy.RowColorOdd(), Rgb(9, 9, 9));
  EXPECT_EQ(copy.RowColorEven(), Rgb(240, 240, 240));
  EXPECT_EQ(copy.BackColor(), colors::kButtonFace);
  EXPECT_EQ(copy.DefaultGLAccount(), "5100");
  EXPECT_TRUE(copy.BusinessMode());
  EXPECT_EQ(copy.grInvoices().Engine().Colors().header_back, Rgb(1, 2, 3));
  // Defaults are left to the toolkit's theme; what the host chose is drawn as chosen.
  EXPECT_EQ(copy.grInvoices().Engine().Colors().even_row_back, std::nullopt);
  EXPECT_EQ(copy.grInvoices().Engine().Colors().odd_row_back, Rgb(9, 9, 9));
  // Only BackColor reports a change to the host.
  control.SetBackColor(Rgb(5, 5, 5));
  EXPECT_EQ(host.ChangedProperties(), std::vector<std::string>{"BackColor"});
}

TEST_F(InvoiceEntryTest, ABadStoredValueFallsBackAloneAndIsNamed) {
  headless::MemoryPropertyBag bag;
  bag.Set("BackColor", Variant(static_cast<std::int32_t>(Rgb(4, 4, 4))));
  bag.Set("Enabled", Variant("maybe"));                  // type mismatch
  bag.Set("BackColorGridHeader", Variant(1e20));         // overflow
  bag.Set("RowColorOdd", Variant(static_cast<std::int32_t>(Rgb(9, 9, 9))));
  bag.Set("DefaultGLAccount", Variant::Null());          // invalid use of null
  bag.Set("BusinessMode", Variant(true));
  control.ReadProperties(bag);
  EXPECT_EQ(bag.RefusedKeys(), (std::vector<std::string>{"Enabled", "BackColorGridHeader", "DefaultGLAccount"}));
  EXPECT_EQ(control.BackColor(), Rgb(4, 4, 4));
  EXPECT_TRUE(control.Enabled());
  EXPECT_EQ(control.BackColorGridHeader(), colors::kTitleYellow);
  EXPECT_EQ(control.RowColorOdd(), Rgb(9, 9, 9));
  EXPECT_EQ(control.DefaultGLAccount(), "");
  EXPECT_TRUE(control.BusinessMode());
}

}  // namespace
}  // namespace zenta::testing
