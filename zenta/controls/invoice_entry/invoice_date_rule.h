#pragma once

#include "zenta/core/date.h"

namespace zenta {

// How an invoice date stands against today: refused past two years ahead, and questioned
// when in the future or more than a year back.
enum class InvoiceDateVerdict { kAccepted, kTooFarAhead, kFuture, kLongAgo };

InvoiceDateVerdict JudgeInvoiceDate(Date date, Date today);

}  // namespace zenta
