// A host's payment screen, tested as the payer uses it, on a machine with no display: the same
// control logic as on Qt, running on the in-memory toolkit.
#include <gtest/gtest.h>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/controls/simple/std_payment.h"
#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/grid_widget.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/memory_property_bag.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace {

zenta::Currency Money(const char* text) { return zenta::Currency::FromText(text); }

TEST(PaymentScreen, AnAmountTypedAsCentsReachesTheHost) {
  zenta::headless::Form form;
  auto& surface = form.AddSurface("StdPayment1");
  zenta::headless::Host host(form);
  zenta::StdPayment payment(surface, host);
  payment.ReadProperties(zenta::headless::MemoryPropertyBag());  // loaded with defaults
  form.AddHostField("txtMemo");                                  // the host's next field
  form.Show();

  zenta::headless::User user(form);
  user.Click(surface.Get<zenta::platform::NumberEdit>("txtPaymentAmount"));
  user.Type("2500");
  user.PressEnter();  // Enter moves on like Tab

  EXPECT_EQ(payment.PaymentAmountCurrency(), Money("25"));
  EXPECT_EQ(form.Focused()->Name(), "txtMemo");
}

TEST(PaymentScreen, TheSplitThePayerTypesIsWhatTheHostBooks) {
  zenta::headless::Form form;
  zenta::headless::Host host(form);
  zenta::headless::User user(form);
  // The application's one distribution window, made by the toolkit on first use.
  zenta::LibraryContext context(host, [&] { return form.CreateDialog("frmDistribution"); });
  auto& surface = form.AddSurface("PaymentDetails1");
  zenta::PaymentDetails payment(surface, host, context);
  payment.ReadProperties(zenta::headless::MemoryPropertyBag());
  payment.SetBusinessMode(true);
  payment.SetDefaultGLAccount("5100");
  form.AddHostField("txtNext");
  form.Show();

  // What the payer does in the window, queued before the key that opens it.
  form.ExpectDialog([&](zenta::headless::Dialog& dialog) {
    auto& lines = dialog.Get<zenta::headless::GridWidget>("grTempDistribution");
    user.ClickCell(lines, 0, 2);
    user.Type("6000\t");        // 40.00 is left, on the next line
    user.Type("6200 TRAVEL\t\t");  // its account, then past its amount: the lines add up
    EXPECT_EQ(form.Focused()->Name(), "cmdGLAccept");
    user.PressEnter();
  });
  user.ClickCell(payment.Grid(), 0, zenta::PaymentDetails::kPayAmtColumn);
  user.Type("11300\t1300\t\t");  // amount and GST/HST as cents, then on into the window

  ASSERT_NE(payment.PayDistribution(), nullptr);
  ASSERT_EQ(payment.PayDistribution()->Count(), 2);
  EXPECT_EQ(payment.PayDistribution()->Item(zenta::Variant(2))->GLAccount, "6200 TRAVEL");
  EXPECT_EQ(payment.PayDistribution()->Item(zenta::Variant(2))->Amount, Money("40"));
  std::string reason;
  EXPECT_TRUE(payment.IsDataValid(reason)) << reason;
}

}  // namespace
