#include "zenta/controls/invoice_entry/invoice_events.h"

namespace zenta {

void InvoiceEvents::Recalculate() {
  platform::RaisedEvent event{kRecalculate, "Recalculate", {}};
  host_.RaiseEvent(event);
  if (listener_) listener_->Recalculate();
}

void InvoiceEvents::FirstDistributionEntered(std::int16_t& TheRow) {
  RaiseRow(kFirstDistributionEntered, "FirstDistributionEntered", TheRow, &Listener::FirstDistributionEntered);
}

void InvoiceEvents::DistributionEntered(std::int16_t& TheRow) {
  RaiseRow(kDistributionEntered, "DistributionEntered", TheRow, &Listener::DistributionEntered);
}

void InvoiceEvents::RaiseRow(Number number, const char* name, std::int16_t& TheRow,
                             void (Listener::*typed)(std::int16_t&)) {
  platform::RaisedEvent event{number, name, {Variant(TheRow)}};
  host_.RaiseEvent(event);
  if (!event.args.empty()) TheRow = event.args.front().ToInteger();
  if (listener_) (listener_->*typed)(TheRow);
}

bool InvoiceEvents::CheckDuplicateInvoices(std::string& strInvoiceNo) {
  platform::RaisedEvent event{kCheckDuplicateInvoices, "CheckDuplicateInvoices", {Variant(strInvoiceNo), Variant(false)}};
  host_.RaiseEvent(event);
  if (event.args.size() == 2) strInvoiceNo = event.args[0].ToString();
  bool cancel = event.args.size() == 2 && event.args[1].ToBool();
  if (listener_) listener_->CheckDuplicateInvoices(strInvoiceNo, cancel);
  return cancel;
}

bool InvoiceEvents::ValidateInvoiceAmountLimit(Currency& curInvoiceAmount) {
  platform::RaisedEvent event{
      kValidateInvoiceAmountLimit, "ValidateInvoiceAmountLimit", {Variant(curInvoiceAmount), Variant(false)}};
  host_.RaiseEvent(event);
  if (event.args.size() == 2) curInvoiceAmount = event.args[0].ToCurrency();
  bool cancel = event.args.size() == 2 && event.args[1].ToBool();
  if (listener_) listener_->ValidateInvoiceAmountLimit(curInvoiceAmount, cancel);
  return cancel;
}

}  // namespace zenta
