#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/variant.h"
#include "zenta/records/cls_distributions.h"

namespace zenta {

// One invoice handed to the host: a plain record. Distributions is unset until the builder
// (or the host) assigns a collection.
class clsInvoice : public Object {
 public:
  std::int16_t ID = 0;
  Date InvoiceDate;
  std::string InvoiceNo;
  Currency InvoiceAmount;
  Currency GSTAmount;
  Currency CompanyExpense;
  std::string PaymentFor;
  std::string EmailFilename;
  std::shared_ptr<clsDistributions> Distributions;
};

}  // namespace zenta
