#pragma once

#include <map>
#include <string>

#include "zenta/platform/property_bag.h"

namespace zenta::headless {

// A property bag in memory. Like a host's store it does not write a value equal to its
// default, so Contains() tells what a host would have saved.
class MemoryPropertyBag : public platform::PropertyBag {
 public:
  Variant Read(const std::string& key, const Variant& default_value) const override;
  void Write(const std::string& key, const Variant& value, const Variant& default_value) override;

  bool Contains(const std::string& key) const { return values_.count(key) != 0; }
  void Set(const std::string& key, Variant value) { values_[key] = std::move(value); }
  const std::map<std::string, Variant>& Values() const { return values_; }

 private:
  std::map<std::string, Variant> values_;
};

}  // namespace zenta::headless
