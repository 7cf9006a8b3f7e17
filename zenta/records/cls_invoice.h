#pragma once

/// @file
/// clsInvoice, one invoice handed to the host.

#include <cstdint>
#include <memory>
#include <string>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/variant.h"
#include "zenta/records/cls_distributions.h"

namespace zenta {

/// One invoice handed to the host: a plain record. Amounts are exact, in dollars; show them
/// with FormatNumber(amount, formats::kAmount) ("113.00"), not Currency::ToString() ("113").
class clsInvoice : public Object {
 public:
  std::int16_t ID = 0;        ///< The row's split identifier, 1 to 32,767; 0 before it has a split.
  Date InvoiceDate;           ///< The invoice's date; the zero Date for none.
  std::string InvoiceNo;      ///< The number or description, UTF-8, at most 255 characters.
  Currency InvoiceAmount;     ///< The amount (Canadian dollars; the invoice currency's in foreign mode).
  /// The GST/HST part of the amount; for a foreign-currency row, its rate to four decimals.
  Currency GSTAmount;
  Currency CompanyExpense;    ///< The net expense: the amount less its GST/HST (the Canadian amount in foreign mode).
  std::string PaymentFor;     ///< What the payment is for, as the distribution window set it.
  std::string EmailFilename;  ///< The e-mail file name the host filed the row under.
  /// The accepted G/L lines; unset until the builder (or the host) assigns a collection.
  std::shared_ptr<clsDistributions> Distributions;
};

}  // namespace zenta
