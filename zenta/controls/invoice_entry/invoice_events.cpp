#include "zenta/controls/invoice_entry/invoice_events.h"

namespace zenta {

bool InvoiceEvents::Recalculate() {
  platform::RaisedEvent event{kRecalculate, "Recalculate", {}};
  return channel_.Raise(event, [this] {
    if (listener_) listener_->Recalculate();
  });
}

bool InvoiceEvents::FirstDistributionEntered(std::int16_t& TheRow) {
  return RaiseRow(kFirstDistributionEntered, "FirstDistributionEntered", TheRow, &Listener::FirstDistributionEntered);
}

bool InvoiceEvents::DistributionEntered(std::int16_t& TheRow) {
  return RaiseRow(kDistributionEntered, "DistributionEntered", TheRow, &Listener::DistributionEntered);
}

bool InvoiceEvents::RaiseRow(Number number, const char* name, std::int16_t& TheRow,
                             void (Listener::*typed)(std::int16_t&)) {
  platform::RaisedEvent event{number, name, {Variant(TheRow)}};
  return channel_.Raise(event, [&] {
    if (!event.args.empty()) TheRow = event.args.front().ToInteger();
    if (listener_) (listener_->*typed)(TheRow);
  });
}

std::optional<bool> InvoiceEvents::CheckDuplicateInvoices(std::string& strInvoiceNo) {
  platform::RaisedEvent event{kCheckDuplicateInvoices, "CheckDuplicateInvoices", {Variant(strInvoiceNo), Variant(false)}};
  bool cancel = false;
  const bool survived = channel_.Raise(event, [&] {
    if (event.args.size() == 2) strInvoiceNo = event.args[0].ToString();
    cancel = event.args.size() == 2 && event.args[1].ToBool();
    if (listener_) listener_->CheckDuplicateInvoices(strInvoiceNo, cancel);
  });
  if (!survived) return std::nullopt;
  return cancel;
}

std::optional<bool> InvoiceEvents::ValidateInvoiceAmountLimit(Currency& curInvoiceAmount) {
  platform::RaisedEvent event{
      kValidateInvoiceAmountLimit, "ValidateInvoiceAmountLimit", {Variant(curInvoiceAmount), Variant(false)}};
  bool cancel = false;
  const bool survived = channel_.Raise(event, [&] {
    if (event.args.size() == 2) curInvoiceAmount = event.args[0].ToCurrency();
    cancel = event.args.size() == 2 && event.args[1].ToBool();
    if (listener_) listener_->ValidateInvoiceAmountLimit(curInvoiceAmount, cancel);
  });
  if (!survived) return std::nullopt;
  return cancel;
}

}  // namespace zenta
