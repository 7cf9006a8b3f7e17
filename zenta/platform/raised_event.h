#pragma once

#include <string>
#include <vector>

#include "zenta/core/variant.h"

namespace zenta::platform {

// An event on its way to the host: its number in the control's event interface, its name,
// and its arguments. In/out arguments are read back after the host returns.
struct RaisedEvent {
  int number = 0;
  std::string name;
  std::vector<Variant> args;
};

}  // namespace zenta::platform
