#include "zenta/entry/amount_focus_lost.h"

#include "zenta/entry/amount_entry.h"

namespace zenta::entry {

void HandleAmountFocusLost(platform::NumberEdit& edit, const platform::ControlSurface& surface,
                           const AmountFocusLost& outcomes) {
  ApplyImpliedDecimal(edit);
  const auto& outcome = surface.ActiveChild() == nullptr ? outcomes.left_control : outcomes.stayed_inside;
  if (outcome) outcome();
}

}  // namespace zenta::entry
