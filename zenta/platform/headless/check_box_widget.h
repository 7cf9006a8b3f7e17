#pragma once

#include <string>

#include "zenta/platform/check_box.h"
#include "zenta/platform/headless/widget_base.h"

namespace zenta::headless {

// A check box in memory. A click or the space bar toggles it; any change of state, by the
// user or the program, sends the click notification.
class CheckBoxWidget : public WidgetBase<platform::CheckBox> {
 public:
  CheckBoxWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, std::string caption)
      : WidgetBase(form, surface, definition), caption_(std::move(caption)) {}

  int State() const override { return state_; }
  void SetState(int state) override;
  void SetCaption(const std::string& caption) override { caption_ = caption; }
  const std::string& Caption() const { return caption_; }
  void OnClick(platform::Callback callback) override { on_click_ = std::move(callback); }

  void Toggle() { SetState(state_ == 1 ? 0 : 1); }
  void HandleCharacter(char32_t character) override {
    if (character == U' ') Toggle();
  }

 private:
  int state_ = 0;
  std::string caption_;
  platform::Callback on_click_;
};

}  // namespace zenta::headless
