#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "screen.h"
#include "zenta/controls/simple/govt_details.h"
#include "zenta/controls/simple/pmt_details.h"
#include "zenta/controls/simple/std_payment.h"

namespace zenta {
namespace {

template <class C>
using Reader = std::function<Currency(const C&)>;

// The payer types "2500" key by key while the host reads the amount after every key: each read
// is what leaving the field would make of the text so far, and the text and focus stay as typed
// until the payer leaves.
template <class C>
void ExpectReadsBetweenKeys(testing::Screen<C>& screen, const char* field, const Reader<C>& read) {
  platform::NumberEdit& edit = screen.Number(field);
  screen.user.Click(edit);
  const std::string keys = "2500";
  const char* reads[] = {"0.02", "0.25", "2.50", "25.00"};
  for (std::size_t i = 0; i < keys.size(); ++i) {
    screen.user.Type(keys.substr(i, 1));
    EXPECT_EQ(read(screen.control), Currency::FromText(reads[i])) << field << " after " << keys.substr(0, i + 1);
    EXPECT_EQ(read(screen.control), Currency::FromText(reads[i])) << "a second read";
    EXPECT_EQ(edit.Text(), keys.substr(0, i + 1)) << field;
    EXPECT_EQ(screen.FocusedName(), field);
  }
  screen.user.PressTab();
  EXPECT_EQ(edit.DisplayText(), "25.00") << field;
  EXPECT_EQ(read(screen.control), Currency::FromText("25")) << field;
}

Currency VariantAmount(const Variant& value) { return value.IsEmpty() ? Currency() : value.ToCurrency(); }

TEST(AmountReadsTest, StdPaymentReadsEveryAmountAsLeavingWouldWithoutTouchingIt) {
  testing::Screen<StdPayment> screen;
  screen.control.SetBusinessMode(true);
  ExpectReadsBetweenKeys<StdPayment>(screen, "txtPaymentAmount", &StdPayment::PaymentAmountCurrency);
  ExpectReadsBetweenKeys<StdPayment>(screen, "txtPaymentAmount", [](const StdPayment& control) {
    return Currency::FromDouble(static_cast<double>(control.PaymentAmount()));
  });
  ExpectReadsBetweenKeys<StdPayment>(screen, "txtGSTAmount", &StdPayment::GSTAmount);
}

TEST(AmountReadsTest, PmtDetailsReadsEveryAmountAsLeavingWouldWithoutTouchingIt) {
  testing::Screen<PmtDetails> screen;
  screen.control.SetBusinessMode(true);
  ExpectReadsBetweenKeys<PmtDetails>(screen, "txtInvoiceAmount", &PmtDetails::InvoiceAmountCurrency);
  ExpectReadsBetweenKeys<PmtDetails>(screen, "txtGSTAmount", &PmtDetails::GSTAmountCurrency);
}

TEST(AmountReadsTest, GovtDetailsReadsEveryAmountAsLeavingWouldWithoutTouchingIt) {
  testing::Screen<GovtDetails> screen;
  ExpectReadsBetweenKeys<GovtDetails>(screen, "txtPaymentAmount",
                                      [](const GovtDetails& control) { return VariantAmount(control.Amount()); });
  ExpectReadsBetweenKeys<GovtDetails>(screen, "txtOtherAmount",
                                      [](const GovtDetails& control) { return VariantAmount(control.OtherAmount()); });
}

TEST(AmountReadsTest, WhatTheHostSetIsNeverDividedOnReading) {
  testing::Screen<GovtDetails> screen;
  screen.control.SetOtherAmount(Variant(Currency::FromText("1234")));
  EXPECT_EQ(screen.Number("txtOtherAmount").Text(), "1234");
  EXPECT_EQ(VariantAmount(screen.control.OtherAmount()), Currency::FromText("1234"));
  // An erased field reads as no value while the payer is in it, as it will once left.
  screen.user.Click(screen.Number("txtPaymentAmount"));
  screen.user.PressBackspace();
  EXPECT_TRUE(screen.control.Amount().IsEmpty());
}

}  // namespace
}  // namespace zenta
