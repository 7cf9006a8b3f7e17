#pragma once

#include <functional>

#include "zenta/core/host_error.h"

namespace zenta::test_support {

// The number of the HostError an action raises, or 0 when it raises none.
inline int ErrorNumberOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const HostError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace zenta::test_support
