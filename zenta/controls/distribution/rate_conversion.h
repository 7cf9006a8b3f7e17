#pragma once

#include "zenta/core/currency.h"

namespace zenta {

// Conversions between a foreign amount and its Canadian-dollar amount at `rate` (Canadian
// dollars per foreign unit), rounded half to even to the cent. Exact: the product or quotient
// of the two fixed-point values is formed in 128 bits and rounded once. A result out of the
// currency range raises HostError::Overflow; a zero rate raises HostError::DivisionByZero.
Currency ToHomeAmount(Currency foreign, Currency rate);
Currency FromHomeAmount(Currency home, Currency rate);

}  // namespace zenta
