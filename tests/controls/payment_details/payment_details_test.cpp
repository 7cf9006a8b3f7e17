#include "zenta/controls/payment_details/payment_details.h"

#include <gtest/gtest.h>

#include "tests/controls/payment_details/payment_screen.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::testing {
namespace {

constexpr const char* kPaymentRequired = "A payment amount is required";
constexpr const char* kGSTRequired = "A GST/HST amount is required (0.00 is acceptable)";
constexpr const char* kNotEqual =
    "The payment amount does not equal the G/L Distribution amount. Please click the \"View Dist\" button.";
constexpr const char* kNoDistribution = "You must enter the G/L Distribution. Please click the \"View Dist\" button.";

class PaymentDetailsTest : public ::testing::Test, public PaymentScreen {};

TEST_F(PaymentDetailsTest, ANewOrSwitchedControlHoldsAnEmptyPayment) {
  for (int pass = 0; pass < 2; ++pass) {
    EXPECT_EQ(control.PaymentAmount(), Currency());
    EXPECT_EQ(control.GST(), Currency());
    EXPECT_EQ(control.NetExpense(), Currency());
    EXPECT_EQ(control.PaymentFor().ToString(), "");
    EXPECT_EQ(control.PayDistribution(), nullptr);
    control.SetPaymentAmount(Money("50"));
    control.SetPayDistribution(Lines({{"5100", "50"}}));
    control.SetBusinessMode(true);
  }
  EXPECT_EQ(Engine().Column(0).caption, "Payment Amount");
  EXPECT_EQ(Engine().Column(1).caption, "Refundable GST/HST");
  EXPECT_EQ(Engine().Column(2).caption, "Net Expense");
  EXPECT_EQ(Engine().Column(3).caption, "View Dist");
  EXPECT_EQ(Engine().Column(4).caption, "Payment For");
  EXPECT_EQ(Engine().BoundArray()->RowCount(), 1);
}

struct NetCase {
  const char* payment;
  const char* gst;  // nullptr: not put
  const char* net;
  const char* shown;
};

class NetExpense : public PaymentDetailsTest, public ::testing::WithParamInterface<NetCase> {};

TEST_P(NetExpense, IsThePaymentLessItsGST) {
  control.SetBusinessMode(true);
  control.SetPaymentAmount(Money(GetParam().payment));
  if (GetParam().gst) control.SetGST(Money(GetParam().gst));
  EXPECT_EQ(control.NetExpense(), Money(GetParam().net));
  EXPECT_EQ(Shown(2), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Table, NetExpense,
                         ::testing::Values(NetCase{"100", "13", "87", "87.00"}, NetCase{"100", nullptr, "100", "100.00"},
                                           NetCase{"100", "150", "-50", "-50.00"}));

struct LayoutCase {
  bool business;
  const char* currency;
  bool gst_shown;
  int grid_width;
  int control_width;
};

class Layout : public PaymentDetailsTest, public ::testing::WithParamInterface<LayoutCase> {};

// Only the emptiness test trims the code; the comparison with "CAD" is exact.
TEST_P(Layout, FollowsTheModeAndTheSharedCurrency) {
  const LayoutCase& c = GetParam();
  control.SetOtherCurrencyCode(Variant(c.currency));
  control.SetBusinessMode(c.business);
  EXPECT_EQ(Engine().Column(1).visible, c.gst_shown);
  EXPECT_EQ(Engine().Column(2).visible, c.gst_shown);
  EXPECT_EQ(Grid().Rect().width, c.grid_width);
  EXPECT_EQ(surface.Width(), c.control_width);
  const bool foreign = c.business && !c.gst_shown;
  EXPECT_EQ(Engine().Column(0).width == 5200, foreign);

  // GST/HST is asked for only where its column shows.
  control.SetPaymentAmount(Money("100"));
  control.SetPayDistribution(Lines({{"5100", "100"}}));
  std::string reason;
  EXPECT_EQ(control.IsDataValid(reason), !c.gst_shown);
  EXPECT_EQ(reason, c.gst_shown ? kGSTRequired : "");
}

INSTANTIATE_TEST_SUITE_P(Table, Layout,
                         ::testing::Values(LayoutCase{false, "CAD", false, 2640, 2670},
                                           LayoutCase{false, "USD", false, 2640, 2670},
                                           LayoutCase{true, "CAD", true, 6810, 6840},
                                           LayoutCase{true, "   ", true, 6810, 6840},
                                           LayoutCase{true, "USD", false, 6810, 6840},
                                           LayoutCase{true, " CAD", false, 6810, 6840},
                                           LayoutCase{true, "CAD ", false, 6810, 6840},
                                           LayoutCase{true, "cad", false, 6810, 6840}));

// A host reads while the payer types (found by the monkey: a lone "-" once read as Type
// mismatch). Each read gets what leaving the cell stores, and the typing goes on untouched.
TEST_F(PaymentDetailsTest, AHostReadingMidEditGetsWhatLeavingTheCellStores) {
  control.SetBusinessMode(true);
  control.SetPaymentAmount(Money("100"));
  user.ClickCell(Grid(), 0, PaymentDetails::kGSTColumn);
  user.Type("-");
  EXPECT_EQ(control.GST(), Currency());
  struct Step {
    const char* key;
    const char* gst;
    const char* net;
  };
  for (const Step& step : {Step{"2", "-0.02", "100.02"}, Step{"5", "-0.25", "100.25"}, Step{"0", "-2.50", "102.50"}}) {
    user.Type(step.key);
    EXPECT_EQ(control.GST(), Money(step.gst));
    EXPECT_EQ(control.NetExpense(), Money(step.net));
  }
  EXPECT_EQ(Engine().EditText(), "-250");
  EXPECT_EQ(control.PaymentAmount(), Money("100"));
  user.PressTab();
  EXPECT_EQ(control.GST(), Money("-2.50"));
  EXPECT_EQ(control.NetExpense(), Money("102.50"));
}

TEST_F(PaymentDetailsTest, OtherCurrencyCodeWaitsForTheNextLayout) {
  control.SetBusinessMode(true);
  control.SetOtherCurrencyCode(Variant("USD"));
  EXPECT_EQ(context.CurrencyCode(), "USD");
  EXPECT_TRUE(Engine().Column(1).visible);
  control.ShowBusinessMode();
  EXPECT_FALSE(Engine().Column(1).visible);
}

TEST_F(PaymentDetailsTest, ASecondControlResetsTheSharedCurrencyForBoth) {
  control.SetOtherCurrencyCode(Variant("USD"));
  headless::Surface& second_surface = form.AddSurface("PaymentDetails2");
  PaymentDetails second(second_surface, host, context);
  EXPECT_EQ(context.CurrencyCode(), "CAD");
  control.SetBusinessMode(true);
  EXPECT_TRUE(Engine().Column(1).visible);
}

struct ValidityCase {
  const char* name;
  bool business;
  const char* payment;  // nullptr: nothing entered
  const char* gst;
  std::vector<const char*> lines;
  const char* reason;
  int column;  // current after the check
};

class Validity : public PaymentDetailsTest, public ::testing::WithParamInterface<ValidityCase> {};

TEST_P(Validity, NamesTheFirstProblem) {
  const ValidityCase& c = GetParam();
  control.SetBusinessMode(c.business);
  if (c.payment) control.SetPaymentAmount(Money(c.payment));
  if (c.gst) control.SetGST(Money(c.gst));
  if (!c.lines.empty()) {
    auto lines = std::make_shared<clsDistributions>();
    for (const char* amount : c.lines) lines->Add(Variant(), "5100", Money(amount));
    control.SetPayDistribution(lines);
  }
  std::string reason = "stale";
  EXPECT_EQ(control.IsDataValid(reason), std::string(c.reason).empty());
  EXPECT_EQ(reason, c.reason);
  EXPECT_EQ(Engine().CurrentColumn(), c.column);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Validity,
    ::testing::Values(ValidityCase{"NoPayment", false, nullptr, nullptr, {}, kPaymentRequired, 0},
                      ValidityCase{"NoLines", false, "100", nullptr, {}, kNoDistribution, 3},
                      ValidityCase{"ACentShort", false, "100", nullptr, {"60", "39.99"}, kNotEqual, 3},
                      ValidityCase{"Balanced", false, "100", nullptr, {"60", "40"}, "", 0},
                      ValidityCase{"ZeroWithoutLines", false, "0", nullptr, {}, "", 0},
                      ValidityCase{"ZeroWithLines", false, "0", nullptr, {"5"}, kNotEqual, 3},
                      ValidityCase{"BusinessWithoutGST", true, "113", nullptr, {"113"}, kGSTRequired, 1},
                      ValidityCase{"BusinessZeroGST", true, "100", "0", {"100"}, "", 1},
                      // The net expense is what the lines must make up, not the payment.
                      ValidityCase{"BusinessNet", true, "113", "13", {"100"}, "", 1},
                      ValidityCase{"BusinessGross", true, "113", "13", {"113"}, kNotEqual, 3}),
    [](const auto& param_info) { return std::string(param_info.param.name); });

struct TypedCase {
  const char* typed;
  const char* shown;
};

class TypedPayments : public PaymentDetailsTest, public ::testing::WithParamInterface<TypedCase> {};

TEST_P(TypedPayments, AreReadAsCentsWhenTheCellIsLeft) {
  control.SetBusinessMode(true);
  TypePayment(GetParam().typed);
  user.PressTab();
  EXPECT_EQ(Shown(0), GetParam().shown);
  EXPECT_EQ(control.PaymentAmount(), Money(GetParam().shown));
  EXPECT_EQ(control.NetExpense(), Money(GetParam().shown));
  EXPECT_EQ(Engine().CurrentColumn(), 1);
}

INSTANTIATE_TEST_SUITE_P(Table, TypedPayments,
                         ::testing::Values(TypedCase{"1234", "12.34"}, TypedCase{"12.5", "12.50"},
                                           TypedCase{"-", "0.00"}, TypedCase{".", "0.00"}, TypedCase{"5", "0.05"},
                                           TypedCase{"-500", "-5.00"}, TypedCase{"1a2b", "0.12"},
                                           TypedCase{"123456789", "1234567.89"}));

TEST_F(PaymentDetailsTest, TypingPastTheLimitsBeepsOnlyForDigits) {
  TypePayment("1234567890");  // the tenth digit is refused with a beep
  EXPECT_EQ(Engine().EditText(), "123456789");
  EXPECT_EQ(host.Beeps(), 1);
  user.PressBackspace();
  user.PressBackspace();
  user.Type(".123");  // a third decimal too
  EXPECT_EQ(Engine().EditText(), "1234567.12");
  EXPECT_EQ(host.Beeps(), 2);
  user.Type(".-x");  // a second point, a late minus and a letter go silently
  EXPECT_EQ(Engine().EditText(), "1234567.12");
  EXPECT_EQ(host.Beeps(), 2);
  Engine().SetSelection(0, 10);
  user.Type("9");  // over the whole text: replaced
  EXPECT_EQ(Engine().EditText(), "9");
}

TEST_F(PaymentDetailsTest, TheGSTCellWaitsForThePaymentAmount) {
  control.SetBusinessMode(true);
  user.ClickCell(Grid(), 0, 1);
  EXPECT_EQ(Engine().CurrentColumn(), 0);
  user.Type("11300\t1300\t");
  EXPECT_EQ(control.GST(), Money("13"));
  EXPECT_EQ(control.NetExpense(), Money("100"));
  EXPECT_EQ(Engine().CurrentColumn(), 2);
}

TEST_F(PaymentDetailsTest, ARefusedPaymentEmptiesTheAmountsAndAsksTheHostAgain) {
  control.SetBusinessMode(true);
  control.SetPaymentAmount(Money("50"));
  control.SetGST(Money("5"));
  host.OnEvent([](platform::RaisedEvent& event) {
    if (event.name == "PayAmtBeforeUpdate") event.args[0] = Variant(true);
  });
  user.ClickCell(Grid(), 0, 0);
  user.Type("9999\t");
  EXPECT_EQ(Events(), (std::vector<std::string>{"PayAmtBeforeUpdate", "GetPayAmount"}));
  EXPECT_EQ(host.Events()[0].number, 5);
  EXPECT_EQ(CellText(0), "");
  EXPECT_EQ(CellText(1), "");
  EXPECT_EQ(CellText(2), "");
  EXPECT_EQ(Engine().CurrentColumn(), 0);
}

TEST_F(PaymentDetailsTest, ARefusedGSTLeavesTheWholePaymentAsNetExpense) {
  control.SetBusinessMode(true);
  struct Veto : PaymentDetails::Events {
    void GSTAmtBeforeUpdate(bool& Cancel) override { Cancel = true; }
  } veto;
  control.SetEventListener(&veto);
  TypePayment("11300\t1300\t");
  EXPECT_EQ(Events(), (std::vector<std::string>{"PayAmtBeforeUpdate", "GSTAmtBeforeUpdate"}));
  EXPECT_EQ(CellText(1), "");
  EXPECT_EQ(control.NetExpense(), Money("113"));
  EXPECT_EQ(Engine().CurrentColumn(), 1);
}

TEST_F(PaymentDetailsTest, LockedAmountsTellTheHostWhichFieldWasTyped) {
  control.SetBusinessMode(true);
  control.SetPaymentAmount(Money("113"));
  control.SetGST(Money("13"));
  control.SetLockFields(true);
  std::vector<std::string> fields;
  host.OnEvent([&](platform::RaisedEvent& event) {
    if (event.number == 2) fields.push_back(event.args.at(0).ToString());
  });
  user.ClickCell(Grid(), 0, 0);
  user.Type("5");
  user.ClickCell(Grid(), 0, 1);
  user.Type("7x");  // a letter never reaches the host
  EXPECT_EQ(fields, (std::vector<std::string>{"Payment Amount", "Refundable GST/HST"}));
  EXPECT_EQ(control.PaymentAmount(), Money("113"));
  EXPECT_EQ(control.GST(), Money("13"));
  control.SetLockFields(false);
  EXPECT_FALSE(Engine().Column(0).locked);
}

TEST_F(PaymentDetailsTest, PropertiesLoadThenLayOutEmptyAndLock) {
  control.SetPaymentAmount(Money("20"));
  headless::MemoryPropertyBag bag;
  bag.Set("BusinessMode", Variant(true));
  bag.Set("LockFields", Variant("not a flag"));
  control.ReadProperties(bag);
  EXPECT_TRUE(control.BusinessMode());
  EXPECT_FALSE(control.LockFields());
  EXPECT_EQ(surface.Width(), 6840);
  EXPECT_EQ(control.PaymentAmount(), Currency());

  control.SetLockFields(true);
  headless::MemoryPropertyBag saved;
  control.WriteProperties(saved);
  EXPECT_EQ(saved.Values().at("BusinessMode"), Variant(true));
  EXPECT_EQ(saved.Values().at("LockFields"), Variant(true));
  headless::Surface& other_surface = form.AddSurface("PaymentDetails2");
  PaymentDetails other(other_surface, host, context);
  other.ReadProperties(saved);
  EXPECT_TRUE(other.Grid().Engine().Column(0).locked);
  EXPECT_TRUE(other.Grid().Engine().Column(1).locked);
  EXPECT_FALSE(other.Grid().Engine().Column(2).locked);
  other.InitProperties();
  EXPECT_FALSE(other.BusinessMode());
  EXPECT_EQ(other_surface.Width(), 2670);
  EXPECT_TRUE(host.ChangedProperties().empty());
}

TEST_F(PaymentDetailsTest, EnterMovesOnAsTabAndTheControlKeepsItsMinimumSize) {
  control.SetBusinessMode(true);
  TypePayment("5000");
  user.PressEnter();
  EXPECT_EQ(host.InjectedKeys(), std::vector<std::string>{"{TAB}"});
  EXPECT_EQ(Engine().CurrentColumn(), 1);
  surface.SetSize(100, 100);
  EXPECT_EQ(surface.Width(), PaymentDetails::kMinWidth);
  EXPECT_EQ(surface.Height(), PaymentDetails::kMinHeight);
}

}  // namespace
}  // namespace zenta::testing
