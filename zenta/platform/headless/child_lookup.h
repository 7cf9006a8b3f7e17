#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "zenta/platform/headless/input_node.h"

namespace zenta::headless {

// Finding a control's or a dialog's children by name, for tests that look inside.
class ChildLookup {
 public:
  ChildLookup(const std::vector<std::unique_ptr<InputNode>>& nodes, const std::string& owner)
      : nodes_(nodes), owner_(owner) {}

  platform::Widget* Find(const std::string& name) const {
    for (const auto& node : nodes_) {
      if (node->AsWidget().Name() == name) return &node->AsWidget();
    }
    return nullptr;
  }

  // The child named `name` as the kind asked for; a missing or other kind of child is a
  // mistake in the test, reported as such.
  template <class T>
  T& Get(const std::string& name) const {
    platform::Widget* widget = Find(name);
    if (!widget) throw std::logic_error("no widget named " + name + " on " + owner_);
    auto* typed = dynamic_cast<T*>(widget);
    if (!typed) throw std::logic_error(name + " on " + owner_ + " is not of the kind asked for");
    return *typed;
  }

 private:
  const std::vector<std::unique_ptr<InputNode>>& nodes_;
  const std::string& owner_;
};

}  // namespace zenta::headless
