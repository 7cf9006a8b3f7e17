#pragma once

#include "zenta/core/currency.h"
#include "zenta/core/rate.h"

namespace zenta {

// Conversions between a foreign amount and its Canadian-dollar amount at `rate` (Canadian
// dollars per foreign unit), rounded half to even to the cent from the exact product or
// quotient. A result out of the currency range raises HostError::Overflow; a zero rate raises
// HostError::DivisionByZero; both name `source`.
Currency ToHomeAmount(Currency foreign, const Rate& rate, const char* source = "frmDistribution");
Currency FromHomeAmount(Currency home, const Rate& rate, const char* source = "frmDistribution");

}  // namespace zenta
