#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/controls/invoice_entry/invoice_screen.h"
#include "tests/error_number.h"

namespace zenta::testing {
namespace {

constexpr int kOverflow = 6;

Currency NearTheMaximum() { return Currency::FromUnits(std::numeric_limits<std::int64_t>::max() - 50000); }

class InvoiceOverflowTest : public ::testing::Test, public InvoiceScreen {
 protected:
  void SetUp() override {
    host.SetToday(Day(2026, 3, 1));
    control.InitProperties();
    form.Show();
  }
  std::vector<int> Reported() const {
    std::vector<int> numbers;
    for (const HostError& error : host.ReportedErrors()) numbers.push_back(error.Number());
    return numbers;
  }
};

TEST_F(InvoiceOverflowTest, TotalsPastTheRangeAreReportedNotThrownFromTheRefresh) {
  control.AddInvoice(Day(2026, 2, 1), "A", NearTheMaximum());
  control.AddInvoice(Day(2026, 2, 1), "B", NearTheMaximum());
  EXPECT_NO_THROW(form.Settle());
  EXPECT_EQ(Reported(), std::vector<int>{kOverflow});
}

TEST_F(InvoiceOverflowTest, AGSTTakingTheExpensePastTheRangeIsRefusedWithABeep) {
  control.SetBusinessMode(true);
  control.AddInvoice(Day(2026, 2, 1), "A", NearTheMaximum(), Variant(Currency()));
  user.ClickCell(Grid(), 0, InvoiceStore::kGSTColumn);
  EXPECT_NO_THROW(user.Type("-10000\t"));
  EXPECT_EQ(host.Beeps(), 1);
  EXPECT_EQ(Reported(), std::vector<int>{kOverflow});
  EXPECT_EQ(control.InvoiceValues(1)->GSTAmount, Currency());
  EXPECT_EQ(control.InvoiceValues(1)->CompanyExpense, NearTheMaximum());
}

TEST_F(InvoiceOverflowTest, AnAmountTakingTheTotalPastTheRangeIsRefusedWithABeep) {
  control.AddInvoice(Day(2026, 2, 1), "A", NearTheMaximum());
  form.Settle();
  user.ClickCell(Grid(), 1, InvoiceStore::kNumberColumn);
  user.Type("B\t");
  EXPECT_NO_THROW(user.Type("9999999\t"));
  EXPECT_EQ(host.Beeps(), 1);
  EXPECT_EQ(Reported(), std::vector<int>{kOverflow});
  EXPECT_EQ(control.TotalAmount(), NearTheMaximum());
}

TEST_F(InvoiceOverflowTest, ARateNoAmountConvertsAtIsRefusedWhenSet) {
  control.SetCurrencyRate(1.5f);
  for (float rate : {std::nanf(""), std::numeric_limits<float>::infinity(), -3.4e38f}) {
    EXPECT_EQ(test_support::ErrorNumberOf([&] { control.SetCurrencyRate(rate); }), kOverflow) << rate;
  }
  control.SetIPCurrency("USD");
  control.SetupIPGrid();
  control.AddInvoice(Day(2026, 2, 1), "A", Money("10"));
  EXPECT_EQ(control.InvoiceValues(1)->CompanyExpense, Money("15"));
}

}  // namespace
}  // namespace zenta::testing
