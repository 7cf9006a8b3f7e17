#pragma once

#include <string>
#include <vector>

#include "zenta/core/variant.h"

namespace zenta::platform {

// The host's store of a control's design-time properties. A value equal to its default need
// not be written, and reading a missing key gives the default.
//
// A stored value a control cannot take for its key (another type, out of range) leaves that key
// at its default and the other keys still load; the bag keeps the refused keys, in the order
// met, so the host can tell the payer or repair its store.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  virtual Variant Read(const std::string& key, const Variant& default_value) const = 0;
  virtual void Write(const std::string& key, const Variant& value, const Variant& default_value) = 0;

  const std::vector<std::string>& RefusedKeys() const { return refused_; }
  void NoteRefused(const std::string& key) const { refused_.push_back(key); }

 private:
  mutable std::vector<std::string> refused_;
};

}  // namespace zenta::platform
