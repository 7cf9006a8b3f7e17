#include <gtest/gtest.h>

#include "tests/controls/payment_details/payment_screen.h"

namespace zenta::testing {
namespace {

class PaymentGstFillTest : public ::testing::Test, public PaymentScreen {
 protected:
  void SetUp() override {
    host.SetToday(*Date::FromYmd(2026, 3, 1));
    control.SetBusinessMode(true);
  }
};

TEST_F(PaymentGstFillTest, TheFillKeyWorksOutTheTaxAtEachRate) {
  struct Case {
    const char* province;
    const char* typed;
    const char* gst;
    const char* net;
  };
  for (const Case& c : {Case{"ON", "11300", "13", "100"}, Case{"NB", "11500", "15", "100"},
                        Case{"AB", "10500", "5", "100"}, Case{"NS", "1999", "2.45", "17.54"}}) {
    context.GstHst().SetProvince(c.province);
    TypePayment(std::string(c.typed) + "\t");
    ASSERT_EQ(Engine().CurrentColumn(), PaymentDetails::kGSTColumn);
    user.PressKey(GstHstSettings::kFillKey);
    user.PressTab();
    EXPECT_EQ(control.GST(), Money(c.gst)) << c.province;
    EXPECT_EQ(control.NetExpense(), Money(c.net)) << c.province;
  }
}

TEST_F(PaymentGstFillTest, ATypedFigureAwayFromTheRateIsHintedQuietly) {
  context.GstHst().SetProvince("ON");
  TypePayment("11300\t1000\t");
  EXPECT_EQ(control.GST(), Money("10"));
  EXPECT_EQ(Engine().Hint(0, PaymentDetails::kGSTColumn).text, "The rate gives GST/HST of 13.00");
  EXPECT_FALSE(Engine().Hint(0, PaymentDetails::kGSTColumn).warning);
  EXPECT_TRUE(host.MessagesShown().empty());
}

TEST_F(PaymentGstFillTest, ALockedGstCellIsNotFilled) {
  context.GstHst().SetProvince("ON");
  control.SetPaymentAmount(Money("113"));
  control.SetLockFields(true);
  user.ClickCell(Grid(), 0, PaymentDetails::kGSTColumn);
  user.PressKey(GstHstSettings::kFillKey);
  EXPECT_EQ(control.GST(), Money("0"));
}

}  // namespace
}  // namespace zenta::testing
