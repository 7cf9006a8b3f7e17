#include "zenta/controls/simple/std_payment.h"

#include "zenta/entry/amount_entry.h"
#include "zenta/entry/surface_rules.h"

namespace zenta {

StdPayment::Widgets StdPayment::Build(platform::ControlSurface& surface) {
  surface.AddLabel({"lblPaymentAmount", {60, 60, 1695, 240}}, "Payment Amount");
  auto& payment = surface.AddNumberEdit(
      {"txtPaymentAmount", {60, 300, 1695, 300}, "Enter the amount of the payment, including GST"});
  auto& gst = surface.AddNumberEdit({"txtGSTAmount", {60, 900, 1695, 300}, "Enter the GST Amount"});
  auto& gst_label = surface.AddLabel({"lblGSTAmount", {60, 660, 1695, 240}}, "GST/HST");
  return {payment, gst, gst_label};
}

StdPayment::StdPayment(platform::ControlSurface& surface, platform::HostServices& host)
    : SmallControl(surface, host, colors::kTitleBlue, kMinWidth, kMinHeight), w_(Build(surface)) {
  pair_ = std::make_unique<AmountGstPair>(
      surface_, w_.payment_amount, w_.gst_amount, w_.gst_label, [this] { return BusinessMode(); },
      AmountGstPair::Notifications{
          .amount_left_for_field = EventRaiser(kLostFocusPaymentAmount, "LostFocusPaymentAmount", listener_,
                                               &Events::LostFocusPaymentAmount),
          .gst_left_for_field =
              EventRaiser(kLostFocusGSTAmount, "LostFocusGSTAmount", listener_, &Events::LostFocusGSTAmount),
          .left_control = EventRaiser(kLostFocusAmount, "LostFocusAmount", listener_, &Events::LostFocusAmount)});
}

void StdPayment::Clear() {
  w_.payment_amount.SetValue(Currency());
  w_.gst_amount.SetValue(Currency());
  w_.payment_amount.SetFocus();
}

void StdPayment::ShowBusinessMode() {
  EnforceMinimumSize();
  // Last: hiding the focused GST/HST field moves the focus, and the host may close the form
  // from the event that raises.
  pair_->ShowBusinessMode(BusinessMode());
}

float StdPayment::PaymentAmount() const { return entry::AmountAsSingle(w_.payment_amount); }
Currency StdPayment::PaymentAmountCurrency() const { return entry::AmountAsCurrency(w_.payment_amount); }
void StdPayment::SetPaymentAmount(float value) { entry::SetAmount(w_.payment_amount, value); }
Currency StdPayment::GSTAmount() const { return entry::AmountAsCurrency(w_.gst_amount); }
void StdPayment::SetGSTAmount(Currency value) { entry::SetAmount(w_.gst_amount, value); }
bool StdPayment::PaymentAmountEnabled() const { return w_.payment_amount.Enabled(); }
void StdPayment::SetPaymentAmountEnabled(bool enabled) {
  w_.payment_amount.SetEnabled(enabled);
  host_.ValueChanged("PaymentAmountEnabled");
}
bool StdPayment::GSTAmountEnabled() const { return w_.gst_amount.Enabled(); }
void StdPayment::SetGSTAmountEnabled(bool enabled) {
  w_.gst_amount.SetEnabled(enabled);
  host_.ValueChanged("GSTAmountEnabled");
}
void StdPayment::SetFocusPaymentAmount() { entry::SetFocusIfEnabled(w_.payment_amount); }
void StdPayment::SetFocusGSTAmount() { entry::SetFocusIfEnabled(w_.gst_amount); }

}  // namespace zenta
