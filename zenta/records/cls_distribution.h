#pragma once

/// @file
/// clsDistribution, one G/L line.

#include <string>

#include "zenta/core/currency.h"
#include "zenta/core/variant.h"

namespace zenta {

/// One G/L distribution line: a plain record.
class clsDistribution : public Object {
 public:
  Variant ID;             ///< Whatever identifier the caller gives it, kept as given.
  std::string GLAccount;  ///< The G/L account, UTF-8.
  Currency Amount;        ///< The part of the amount booked to the account, in Canadian dollars.
};

}  // namespace zenta
