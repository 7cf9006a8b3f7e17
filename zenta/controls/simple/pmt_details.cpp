#include "zenta/controls/simple/pmt_details.h"

#include "zenta/entry/amount_entry.h"
#include "zenta/entry/surface_rules.h"

namespace zenta {

PmtDetails::Widgets PmtDetails::Build(platform::ControlSurface& surface) {
  surface.AddLabel({"lblInvoiceDate", {60, 60, 900, 240}}, "Invoice Date");
  surface.AddLabel({"lblDateHint", {960, 60, 855, 240}}, "YYYY/MM/DD");
  auto& date = surface.AddDateEdit({"dtInvoiceDate", {60, 300, 1695, 300}, "Enter the date of the invoice"});
  surface.AddLabel({"lblInvoiceNo", {60, 660, 1695, 240}}, "Invoice No / Descript.");
  auto& number = surface.AddTextBox(
      {"txtInvoiceNo", {60, 900, 1695, 300}, "Enter the Invoice Number or a description of the invoice"});
  surface.AddLabel({"lblInvoiceAmount", {60, 1260, 1695, 240}}, "Invoice Amount");
  auto& amount = surface.AddNumberEdit(
      {"txtInvoiceAmount", {60, 1500, 1695, 300}, "Enter the amount of the invoice, including GST"});
  auto& gst = surface.AddNumberEdit({"txtGSTAmount", {60, 2100, 1695, 300}, "Enter the GST Amount"});
  auto& gst_label = surface.AddLabel({"lblGSTAmount", {60, 1860, 1695, 240}}, "GST/HST");
  return {date, number, amount, gst, gst_label};
}

PmtDetails::PmtDetails(platform::ControlSurface& surface, platform::HostServices& host)
    : SmallControl(surface, host, colors::kTitleBlue, kMinWidth, kMinHeight), w_(Build(surface)) {
  w_.invoice_no.OnKeyPress([](platform::KeyPress& press) {
    if (press.key >= U'a' && press.key <= U'z') press.key = press.key - U'a' + U'A';
  });
  pair_ = std::make_unique<AmountGstPair>(
      surface_, w_.invoice_amount, w_.gst_amount, w_.gst_label, [this] { return BusinessMode(); },
      AmountGstPair::Notifications{
          .amount_left_for_field = EventRaiser(kLostFocusInvoiceAmount, "LostFocusInvoiceAmount", listener_,
                                               &Events::LostFocusInvoiceAmount),
          .gst_left_for_field =
              EventRaiser(kLostFocusGSTAmount, "LostFocusGSTAmount", listener_, &Events::LostFocusGSTAmount),
          .left_control = EventRaiser(kLostFocusAmount, "LostFocusAmount", listener_, &Events::LostFocusAmount)});
}

void PmtDetails::Clear() {
  w_.invoice_date.SetValue(std::nullopt);
  w_.invoice_no.SetText("");
  w_.invoice_amount.SetValue(std::nullopt);
  w_.gst_amount.SetValue(std::nullopt);
  w_.invoice_date.SetFocus();
}

void PmtDetails::ShowBusinessMode() {
  EnforceMinimumSize();
  // Last: hiding the focused GST/HST field moves the focus, and the host may close the form
  // from the event that raises.
  pair_->ShowBusinessMode(BusinessMode());
}

void PmtDetails::ApplyTitleColor() {
  platform::DateEdit* dates[] = {&w_.invoice_date};
  entry::ApplyTitleColor(dates, BackColorTitle());
}

Date PmtDetails::InvoiceDate() const { return w_.invoice_date.Value().value_or(Date()); }
void PmtDetails::SetInvoiceDate(Date value) { w_.invoice_date.SetValue(value); }
std::string PmtDetails::InvoiceNumber() const { return w_.invoice_no.Text(); }
void PmtDetails::SetInvoiceNumber(const std::string& value) { w_.invoice_no.SetText(value); }
float PmtDetails::InvoiceAmount() const { return entry::AmountAsSingle(w_.invoice_amount); }
void PmtDetails::SetInvoiceAmount(float value) { entry::SetAmount(w_.invoice_amount, value); }
Currency PmtDetails::InvoiceAmountCurrency() const { return entry::AmountAsCurrency(w_.invoice_amount); }
Currency PmtDetails::GSTAmountCurrency() const { return entry::AmountAsCurrency(w_.gst_amount); }
float PmtDetails::GSTAmount() const { return entry::AmountAsSingle(w_.gst_amount); }
void PmtDetails::SetGSTAmount(float value) { entry::SetAmount(w_.gst_amount, value); }

bool PmtDetails::InvoiceDateEnabled() const { return w_.invoice_date.Enabled(); }
void PmtDetails::SetInvoiceDateEnabled(bool enabled) {
  w_.invoice_date.SetEnabled(enabled);
  host_.ValueChanged("InvoiceDateEnabled");
}
bool PmtDetails::InvoiceNumberEnabled() const { return w_.invoice_no.Enabled(); }
void PmtDetails::SetInvoiceNumberEnabled(bool enabled) {
  w_.invoice_no.SetEnabled(enabled);
  host_.ValueChanged("InvoiceNumberEnabled");
}
bool PmtDetails::InvoiceAmountEnabled() const { return w_.invoice_amount.Enabled(); }
void PmtDetails::SetInvoiceAmountEnabled(bool enabled) {
  w_.invoice_amount.SetEnabled(enabled);
  host_.ValueChanged("InvoiceAmountEnabled");
}
bool PmtDetails::GSTAmountEnabled() const { return w_.gst_amount.Enabled(); }
void PmtDetails::SetGSTAmountEnabled(bool enabled) {
  w_.gst_amount.SetEnabled(enabled);
  host_.ValueChanged("GSTAmountEnabled");
}

void PmtDetails::SetFocusInvoiceDate() { entry::SetFocusIfEnabled(w_.invoice_date); }
void PmtDetails::SetFocusInvoiceNumber() { entry::SetFocusIfEnabled(w_.invoice_no); }
void PmtDetails::SetFocusInvoiceAmount() { entry::SetFocusIfEnabled(w_.invoice_amount); }
void PmtDetails::SetFocusGSTAmount() { entry::SetFocusIfEnabled(w_.gst_amount); }

}  // namespace zenta
