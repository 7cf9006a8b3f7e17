#pragma once

#include "zenta/platform/property_bag.h"

namespace zenta {

// The two properties the payment control keeps in the host's store, both false by default.
struct PaymentProperties {
  bool business_mode = false;
  bool lock_fields = false;

  static PaymentProperties Read(const platform::PropertyBag& bag);
  void Write(platform::PropertyBag& bag) const;
};

}  // namespace zenta
