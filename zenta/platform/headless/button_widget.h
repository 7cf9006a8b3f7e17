#pragma once

#include <string>

#include "zenta/platform/button.h"
#include "zenta/platform/headless/widget_base.h"

namespace zenta::headless {

// A command button in memory. Space or Enter clicks it while it has the focus; Alt with its
// mnemonic (the letter after "&") clicks it from anywhere in its window; User::Click focuses
// and clicks it.
class ButtonWidget : public WidgetBase<platform::Button> {
 public:
  ButtonWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, std::string caption);

  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override { caption_ = caption; }
  void OnClick(platform::Callback callback) override { on_click_ = std::move(callback); }

  // Runs the click notification when the button is enabled and visible.
  void Click();
  // The mnemonic letter in upper case, 0 when the caption has none.
  char32_t Mnemonic() const;

  void HandleKeyDown(platform::KeyDown& key) override;

 private:
  std::string caption_;
  platform::Callback on_click_;
};

}  // namespace zenta::headless
