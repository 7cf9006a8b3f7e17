#include "zenta/controls/invoice_entry/invoice_date_rule.h"

namespace zenta {

InvoiceDateVerdict JudgeInvoiceDate(Date date, Date today) {
  if (date > today.AddYears(2)) return InvoiceDateVerdict::kTooFarAhead;
  if (date > today) return InvoiceDateVerdict::kFuture;
  if (date.DaysUntil(today) > 365) return InvoiceDateVerdict::kLongAgo;
  return InvoiceDateVerdict::kAccepted;
}

}  // namespace zenta
