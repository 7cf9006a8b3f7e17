#include "zenta/platform/headless/check_box_widget.h"

namespace zenta::headless {

void CheckBoxWidget::SetState(int state) {
  if (state == state_) return;
  state_ = state;
  if (on_click_) on_click_();
}

}  // namespace zenta::headless
