#pragma once

#include <string>

#include "zenta/core/currency.h"
#include "zenta/core/variant.h"

namespace zenta {

// One G/L distribution line: a plain record. ID keeps whatever variant the caller gives it.
class clsDistribution : public Object {
 public:
  Variant ID;
  std::string GLAccount;
  Currency Amount;
};

}  // namespace zenta
