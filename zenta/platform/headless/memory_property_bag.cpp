#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::headless {

Variant MemoryPropertyBag::Read(const std::string& key, const Variant& default_value) const {
  auto found = values_.find(key);
  return found == values_.end() ? default_value : found->second;
}

void MemoryPropertyBag::Write(const std::string& key, const Variant& value, const Variant& default_value) {
  if (value == default_value) {
    values_.erase(key);
  } else {
    values_[key] = value;
  }
}

}  // namespace zenta::headless
