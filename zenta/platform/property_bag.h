#pragma once

#include <string>

#include "zenta/core/variant.h"

namespace zenta::platform {

// The host's store of a control's design-time properties. A value equal to its default need
// not be written, and reading a missing key gives the default.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  virtual Variant Read(const std::string& key, const Variant& default_value) const = 0;
  virtual void Write(const std::string& key, const Variant& value, const Variant& default_value) = 0;
};

}  // namespace zenta::platform
