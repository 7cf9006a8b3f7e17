#include "zenta/controls/simple/std_payment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen.h"

namespace zenta {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class StdPaymentTest : public ::testing::Test {
 protected:
  testing::Screen<StdPayment> screen;
  StdPayment& control = screen.control;
  headless::User& user = screen.user;
  headless::Host& host = screen.host;

  void TypeInto(const char* field, const char* text) {
    user.Click(screen.Number(field));
    user.Type(text);
  }
};

TEST_F(StdPaymentTest, CentsTypedThenTabShowTwoDecimalsAndRaiseTheFieldEventOnly) {
  control.SetBusinessMode(true);
  TypeInto("txtPaymentAmount", "2500");
  host.ClearEvents();
  user.PressTab();
  EXPECT_EQ(screen.Number("txtPaymentAmount").DisplayText(), "25.00");
  EXPECT_FLOAT_EQ(control.PaymentAmount(), 25.0f);
  EXPECT_EQ(screen.FocusedName(), "txtGSTAmount");
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusPaymentAmount"));
  EXPECT_EQ(host.Events()[0].number, StdPayment::kLostFocusPaymentAmount);
}

TEST_F(StdPaymentTest, LeavingTheControlFromTheGstFieldRaisesLostFocusAmountOnly) {
  control.SetBusinessMode(true);
  TypeInto("txtGSTAmount", "130");
  host.ClearEvents();
  user.PressTab();
  EXPECT_EQ(screen.FocusedName(), "txtHostNext");
  EXPECT_EQ(control.GSTAmount(), Currency::FromText("1.30"));
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusAmount"));
}

TEST_F(StdPaymentTest, EmptyGstIsZeroFilledOnLeavingOnlyInBusinessMode) {
  control.SetBusinessMode(true);
  user.Click(screen.Number("txtGSTAmount"));
  user.LeaveControl();
  ASSERT_FALSE(screen.Number("txtGSTAmount").IsNull());
  EXPECT_EQ(control.GSTAmount(), Currency());
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusAmount"));

  testing::Screen<StdPayment> private_payer;
  private_payer.control.SetBusinessMode(true);
  private_payer.user.Click(private_payer.Number("txtGSTAmount"));
  private_payer.control.SetBusinessMode(false);
  private_payer.user.LeaveControl();
  EXPECT_TRUE(private_payer.Number("txtGSTAmount").IsNull());
  EXPECT_FALSE(private_payer.Number("txtGSTAmount").Visible());
}

TEST_F(StdPaymentTest, PaymentAmountIsNeverZeroFilled) {
  user.Click(screen.Number("txtPaymentAmount"));
  user.LeaveControl();
  EXPECT_TRUE(screen.Number("txtPaymentAmount").IsNull());
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusAmount"));
}

TEST_F(StdPaymentTest, EnterMovesOnButNotWithAModifier) {
  control.SetBusinessMode(true);
  user.Click(screen.Number("txtPaymentAmount"));
  for (int modifier : {platform::kShift, platform::kCtrl, platform::kAlt}) {
    user.PressEnter(modifier);
    EXPECT_EQ(screen.FocusedName(), "txtPaymentAmount") << modifier;
  }
  EXPECT_THAT(host.EventNames(), IsEmpty());
  user.PressEnter();
  EXPECT_EQ(screen.FocusedName(), "txtGSTAmount");
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusPaymentAmount"));
}

TEST_F(StdPaymentTest, AmountsSetByTheHostAreNeverDivided) {
  control.SetPaymentAmount(1234);
  EXPECT_EQ(screen.Number("txtPaymentAmount").DisplayText(), "1234.00");
  control.SetPaymentAmount(12.5f);
  EXPECT_EQ(screen.Number("txtPaymentAmount").Text(), "12.5");
  EXPECT_EQ(screen.Number("txtPaymentAmount").DisplayText(), "12.50");
  control.SetGSTAmount(Currency::FromText("0.05"));
  EXPECT_EQ(control.GSTAmount(), Currency::FromText("0.05"));
  EXPECT_THAT(host.EventNames(), IsEmpty());
}

TEST_F(StdPaymentTest, ClearZeroesBothAmountsAndFocusesPaymentEvenWhenDisabled) {
  control.SetPaymentAmount(10);
  control.SetGSTAmount(Currency::FromInteger(1));
  control.SetPaymentAmountEnabled(false);
  control.SetFocusPaymentAmount();
  EXPECT_EQ(screen.form.Focused(), nullptr);
  control.Clear();
  EXPECT_EQ(control.PaymentAmount(), 0.0f);
  EXPECT_EQ(control.GSTAmount(), Currency());
  EXPECT_FALSE(screen.Number("txtGSTAmount").IsNull());
  // Clear gives the focus without asking; the toolkit still refuses a disabled field.
  EXPECT_EQ(screen.FocusedName(), "");
  control.SetPaymentAmountEnabled(true);
  control.Clear();
  EXPECT_EQ(screen.FocusedName(), "txtPaymentAmount");
}

TEST_F(StdPaymentTest, BusinessModeShowsAndHidesGstWithoutLosingIt) {
  EXPECT_FALSE(screen.Number("txtGSTAmount").Visible());
  control.SetBusinessMode(true);
  EXPECT_TRUE(screen.Number("txtGSTAmount").Visible());
  EXPECT_TRUE(screen.Get<platform::Label>("lblGSTAmount").Visible());
  control.SetGSTAmount(Currency::FromText("6.5"));
  control.SetBusinessMode(false);
  EXPECT_FALSE(screen.Get<platform::Label>("lblGSTAmount").Visible());
  EXPECT_EQ(control.GSTAmount(), Currency::FromText("6.5"));
}

TEST_F(StdPaymentTest, PersistsItsFourPropertiesAndMarksOnlyBackColor) {
  control.SetBackColor(Rgb(1, 2, 3));
  control.SetBackColorTitle(Rgb(4, 5, 6));
  control.SetBusinessMode(true);
  control.SetEnabled(false);
  EXPECT_THAT(host.ChangedProperties(), ElementsAre("BackColor"));
  EXPECT_FALSE(screen.Number("txtGSTAmount").Enabled());
  EXPECT_FALSE(screen.Get<platform::Label>("lblGSTAmount").Enabled());

  headless::MemoryPropertyBag bag;
  control.WriteProperties(bag);
  testing::Screen<StdPayment> reloaded;
  reloaded.control.ReadProperties(bag);
  EXPECT_EQ(reloaded.control.BackColor(), Rgb(1, 2, 3));
  EXPECT_EQ(reloaded.control.BackColorTitle(), Rgb(4, 5, 6));
  EXPECT_TRUE(reloaded.control.BusinessMode());
  EXPECT_FALSE(reloaded.control.Enabled());
  EXPECT_FALSE(reloaded.Number("txtPaymentAmount").Enabled());
  EXPECT_TRUE(reloaded.Number("txtGSTAmount").Visible());

  headless::MemoryPropertyBag defaults;
  reloaded.control.InitProperties();
  testing::Screen<StdPayment> fresh;
  fresh.control.InitProperties();
  fresh.control.WriteProperties(defaults);
  EXPECT_TRUE(defaults.Values().empty());
  EXPECT_EQ(fresh.control.BackColor(), colors::kButtonFace);
  EXPECT_EQ(fresh.control.BackColorTitle(), colors::kTitleBlue);
}

TEST_F(StdPaymentTest, MinimumSizeSnapsBackButNeverCapsTheSize) {
  screen.surface.SetSize(10, 10);
  EXPECT_EQ(screen.surface.Width(), StdPayment::kMinWidth);
  EXPECT_EQ(screen.surface.Height(), StdPayment::kMinHeight);
  screen.surface.SetSize(9000, 8000);
  EXPECT_EQ(screen.surface.Width(), 9000);
  EXPECT_EQ(screen.surface.Height(), 8000);
}

struct TypedListener : StdPayment::Events {
  std::vector<std::string> heard;
  void LostFocusPaymentAmount() override { heard.push_back("payment"); }
  void LostFocusAmount() override { heard.push_back("amount"); }
};

TEST_F(StdPaymentTest, TypedListenersHearTheSameEvents) {
  TypedListener listener;
  control.SetEventListener(&listener);
  control.SetBusinessMode(true);
  TypeInto("txtPaymentAmount", "5");
  user.PressTab();
  user.LeaveControl();
  EXPECT_THAT(listener.heard, ElementsAre("payment", "amount"));
  EXPECT_THAT(host.EventNames(), ElementsAre("LostFocusPaymentAmount", "LostFocusAmount"));
}


// Keys reach only what could have the focus on screen.
TEST_F(StdPaymentTest, AFieldDisabledWhileFocusedPassesTheFocusOnAndTakesNoKeys) {
  control.SetBusinessMode(true);
  user.Click(screen.Number("txtPaymentAmount"));
  user.Type("12");
  control.SetPaymentAmountEnabled(false);
  EXPECT_NE(screen.FocusedName(), "txtPaymentAmount");
  user.Type("99");
  EXPECT_FLOAT_EQ(control.PaymentAmount(), 0.12f);
}

TEST_F(StdPaymentTest, ADisabledControlTakesNoKeys) {
  user.Click(screen.Number("txtPaymentAmount"));
  control.SetEnabled(false);
  EXPECT_EQ(screen.FocusedName(), "txtHostNext");  // the next field outside the control
  user.Type("5");
  EXPECT_FLOAT_EQ(control.PaymentAmount(), 0.0f);
}

}  // namespace
}  // namespace zenta
