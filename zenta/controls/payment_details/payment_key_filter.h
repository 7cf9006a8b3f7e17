#pragma once

#include "zenta/platform/grid_notifications.h"

namespace zenta {

// What becomes of a key typed into the payment grid.
enum class PaymentKeyVerdict {
  Pass,
  Discard,  // silently: a character that is no amount key, a second ".", a late "-"
  Beep,     // a digit or "." that would make the amount too long
};

// The payment grid's key filter, applied in every column. Amounts stay within seven digits
// before the point (nine typed without one, which the implied cents turn into seven and two),
// two after it, and one leading minus; a key typed over the whole text replaces it unchecked.
PaymentKeyVerdict FilterPaymentKey(const platform::CellKeyPressArgs& key);

}  // namespace zenta
