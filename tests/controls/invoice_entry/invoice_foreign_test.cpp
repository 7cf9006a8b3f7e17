#include <gtest/gtest.h>

#include <ostream>

#include "tests/controls/invoice_entry/invoice_screen.h"

namespace zenta::testing {
namespace {

class InvoiceForeignTest : public ::testing::Test, public InvoiceScreen {
 protected:
  void SetUp() override {
    host.SetToday(Day(2026, 3, 1));
    host.ExpectMessage(platform::MessageResult::Ok);  // nothing here should need it
    control.SetDefaultGLAccount("5100");
    control.SetIPCurrency("USD");
  }
  void UseRate(float rate) {
    control.SetCurrencyRate(rate);
    control.SetupIPGrid();
  }
  // Amounts are typed in cents, into the first row's foreign or Canadian column.
  void TypeAmount(int column, const char* cents) {
    user.ClickCell(Grid(), 0, InvoiceStore::kNumberColumn);
    user.Type("US-1\t");
    user.ClickCell(Grid(), 0, column);
    user.Type(cents);
    user.LeaveControl();
    form.Settle();
  }
  std::string Shown(int column) { return Engine().DisplayedText(0, column); }
};

struct TypedCase {
  float rate;
  int column;
  const char* cents;
  const char* foreign;
  const char* rate_shown;
  const char* home;
};

void PrintTo(const TypedCase& c, std::ostream* out) { *out << c.cents << " typed in column " << c.column << " at " << c.rate; }

class TypedConversion : public InvoiceForeignTest, public ::testing::WithParamInterface<TypedCase> {};

// The rate column shows the rate as kept, and the conversion multiplies by exactly that.
TEST_P(TypedConversion, ThePayerSeesTheRateTheAmountIsConvertedAt) {
  const TypedCase& c = GetParam();
  UseRate(c.rate);
  TypeAmount(c.column, c.cents);
  EXPECT_EQ(Shown(InvoiceStore::kAmountColumn), c.foreign);
  EXPECT_EQ(Shown(InvoiceStore::kGSTColumn), c.rate_shown);
  EXPECT_EQ(Shown(InvoiceStore::kExpenseColumn), c.home);
  EXPECT_EQ(control.TotalAmount(), Money(c.home));
}

INSTANTIATE_TEST_SUITE_P(
    Table, TypedConversion,
    ::testing::Values(TypedCase{1.35f, InvoiceStore::kAmountColumn, "9999999.99", "9999999.99", "1.350000", "13499999.99"},
                      TypedCase{1.35f, InvoiceStore::kAmountColumn, "21000001", "210000.01", "1.350000", "283500.01"},
                      TypedCase{1.234567f, InvoiceStore::kAmountColumn, "100000", "1000.00", "1.234567", "1234.57"},
                      TypedCase{1.234567f, InvoiceStore::kExpenseColumn, "12346", "100.00", "1.234567", "123.46"},
                      TypedCase{1.2345678f, InvoiceStore::kAmountColumn, "1000000.00", "1000000.00", "1.2345678",
                                "1234567.80"}));

TEST_F(InvoiceForeignTest, TheHostsInvoicesAndTheDistributionWindowUseTheSameExactRate) {
  UseRate(1.234567f);
  control.AddInvoice(Day(2026, 2, 1), "US-1", Money("1000"));
  EXPECT_EQ(control.InvoiceValues(1)->CompanyExpense, Money("1234.57"));
  // The record's currency field carries the rate to four decimals.
  EXPECT_EQ(control.InvoiceValues(1)->GSTAmount, Money("1.2346"));
  InDialog([&] {
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(0, 2), "1000.00");
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(0, 3), "1234.57");
    // Retyped in the invoice's currency, the Canadian amount follows at the same rate.
    user.ClickCell(Dialog().Grid(), 0, 2);
    user.Type("50000\t");
    EXPECT_EQ(Dialog().Grid().Engine().DisplayedText(0, 3), "617.28");
    user.Click(Cancel());
  });
  control.SetCurrentRow(1);
  control.ShowDistribution();
  form.Settle();
  EXPECT_EQ(form.PendingDialogScripts(), 0u);
}

TEST_F(InvoiceForeignTest, AnAmountWhoseConversionPassesTheCurrencyRangeBeepsAndStaysUnconverted) {
  UseRate(1e14f);
  TypeAmount(InvoiceStore::kAmountColumn, "100000");
  EXPECT_EQ(host.Beeps(), 1);
  EXPECT_EQ(Shown(InvoiceStore::kAmountColumn), "1000.00");
  EXPECT_EQ(Shown(InvoiceStore::kExpenseColumn), "");
}

}  // namespace
}  // namespace zenta::testing
