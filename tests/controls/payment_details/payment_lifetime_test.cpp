#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "tests/controls/closable_control_screen.h"
#include "tests/error_number.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/controls/payment_details/payment_details.h"

namespace zenta::testing {
namespace {

Currency Money(const char* text) { return Currency::FromText(text); }

// A host's form whose payment control the host may close at any moment.
struct PaymentLifetimeTest : ClosableControlScreen<PaymentDetails> {
  PaymentLifetimeTest() : ClosableControlScreen("PaymentDetails1") {}
  void SetUp() override { ShowForm(); }
  void TypeAmount(const char* keys) {
    user.ClickCell(control->Grid(), 0, PaymentDetails::kPayAmtColumn);
    user.Type(keys);
  }
};

TEST_F(PaymentLifetimeTest, ClosedWhileItsWindowIsOpenTheWindowClosesAsCancelled) {
  control->SetPaymentAmount(Money("100"));
  CloseWhileTheWindowIsOpen();
}

// Every event of the control, each closing the form from its handler, on the path a payer takes.
struct ClosingEvent {
  const char* name;
  std::function<void(PaymentLifetimeTest&)> provoke;
};

class PaymentClosedFromHandler : public PaymentLifetimeTest, public ::testing::WithParamInterface<ClosingEvent> {};

TEST_P(PaymentClosedFromHandler, NothingOfTheControlIsTouchedAfterwards) {
  CloseOn(GetParam().name);
  GetParam().provoke(*this);
  EXPECT_EQ(control, nullptr) << GetParam().name << " was not raised";
  form.Settle();
  KeepTyping();
}

INSTANTIATE_TEST_SUITE_P(
    EveryEvent, PaymentClosedFromHandler,
    ::testing::Values(
        ClosingEvent{"PayAmtBeforeUpdate", [](PaymentLifetimeTest& screen) { screen.TypeAmount("1250\t"); }},
        ClosingEvent{"GSTAmtBeforeUpdate",
                     [](PaymentLifetimeTest& screen) {
                       screen.control->SetBusinessMode(true);
                       screen.TypeAmount("11300\t1300\t");
                     }},
        ClosingEvent{"GetPayAmount", [](PaymentLifetimeTest& screen) {
                       screen.AcceptTheProposedSplit();
                       screen.TypeAmount("1250\t");
                     }},
        ClosingEvent{"KeypressLockedField",
                     [](PaymentLifetimeTest& screen) {
                       screen.control->SetLockFields(true);
                       screen.TypeAmount("7");
                     }},
        ClosingEvent{"GLDistributionBeforeEdit",
                     [](PaymentLifetimeTest& screen) {
                       screen.control->SetPaymentAmount(Money("100"));
                       screen.user.ClickCell(screen.control->Grid(), 0, PaymentDetails::kViewDistColumn);
                     }},
        ClosingEvent{"GLBalanced", [](PaymentLifetimeTest& screen) {
                       screen.AcceptTheProposedSplit();
                       screen.TypeAmount("1250\t");
                     }}),
    [](const ::testing::TestParamInfo<ClosingEvent>& event) { return std::string(event.param.name); });

TEST_F(PaymentLifetimeTest, ATypedListenerMayCloseTheFormToo) {
  struct Closer : PaymentDetails::Events {
    std::unique_ptr<PaymentDetails>* control;
    void PayAmtBeforeUpdate(bool& /*Cancel*/) override { control->reset(); }
  } closer;
  closer.control = &control;
  control->SetEventListener(&closer);
  user.ClickCell(control->Grid(), 0, PaymentDetails::kPayAmtColumn);
  user.Type("1250\t");
  EXPECT_EQ(control, nullptr);
  KeepTyping();
}

TEST_F(PaymentLifetimeTest, ASecondOpeningIsRefusedAndLeavesTheOpenSplitAlone) {
  headless::Surface& other_surface = form.AddSurface("InvoiceEntry1");
  InvoiceEntry invoices(other_surface, host, context);
  invoices.InitProperties();
  invoices.AddInvoice(*Date::FromYmd(2026, 1, 5), "A", Money("70"));
  invoices.SetCurrentRow(1);
  control->SetPaymentAmount(Money("100"));
  int refused = 0;
  form.ExpectDialog([&](headless::Dialog&) {
    refused = test_support::ErrorNumberOf([&] { invoices.ShowDistribution(); });
    EXPECT_EQ(Window().AmountToDistribute(), Money("100"));
    EXPECT_TRUE(Dialog().IsShown());
    ClickInWindow("cmdGLAccept");
  });
  control->ShowDistribution();
  EXPECT_EQ(static_cast<std::uint32_t>(refused), 0x80040016u);
  ASSERT_NE(control->PayDistribution(), nullptr);
  ASSERT_EQ(control->PayDistribution()->Count(), 1);
  EXPECT_EQ(control->PayDistribution()->Item(Variant(1))->Amount, Money("100"));
  EXPECT_EQ(invoices.InvoiceValues(1)->Distributions->Count(), 0);
}

TEST_F(PaymentLifetimeTest, ClearPayWhileTheWindowIsOpenHandsNothingBack) {
  control->SetPaymentAmount(Money("100"));
  form.ExpectDialog([&](headless::Dialog&) {
    Window().SetPaymentFor(Variant("RENT"));
    control->ClearPay();
    EXPECT_FALSE(Dialog().IsShown());
    ClickInWindow("cmdGLAccept");
  });
  control->ShowDistribution();
  EXPECT_EQ(control->PayDistribution(), nullptr);
  EXPECT_EQ(control->PaymentFor().ToString(), "");
}

}  // namespace
}  // namespace zenta::testing
