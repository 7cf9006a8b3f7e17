#pragma once

#include "zenta/core/currency.h"
#include "zenta/core/rate.h"

namespace zenta {

// The GST/HST contained in a tax-included amount: amount × rate ÷ (1 + rate), worked out in
// integers and rounded once, half to even, to the cent (113.00 at 13 % is 13.00 exactly). A
// rate of -1 or below has no meaning here and raises HostError::InvalidProcedureCall; a figure
// past the currency range raises Overflow.
Currency IncludedTax(Currency amount, const Rate& rate, const char* source = "GST/HST");

}  // namespace zenta
