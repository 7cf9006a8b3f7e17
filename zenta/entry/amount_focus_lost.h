#pragma once

#include <functional>

#include "zenta/platform/control_surface.h"
#include "zenta/platform/number_edit.h"

namespace zenta::entry {

// What an amount field does when it loses the focus: the implied-decimal step, then one of
// two outcomes. When the focus has left the control (no active child), `left_control` runs;
// when it moved to another field of the control, `stayed_inside` runs. Either may be empty.
struct AmountFocusLost {
  std::function<void()> left_control;
  std::function<void()> stayed_inside;
};
void HandleAmountFocusLost(platform::NumberEdit& edit, const platform::ControlSurface& surface,
                           const AmountFocusLost& outcomes);

}  // namespace zenta::entry
