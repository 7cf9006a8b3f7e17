#pragma once

#include <functional>
#include <string>

#include "zenta/platform/headless/widget_base.h"
#include "zenta/platform/text_box.h"

namespace zenta::headless {

// A single-line text box in memory: typed characters pass the key-press filter, then are
// appended; Backspace removes the last character.
class TextBoxWidget : public WidgetBase<platform::TextBox> {
 public:
  TextBoxWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition);

  std::string Text() const override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }
  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override { back_color_ = color; }
  void OnKeyPress(std::function<void(platform::KeyPress&)> filter) override { filter_ = std::move(filter); }

  void HandleCharacter(char32_t character) override;

 private:
  std::string text_;
  OleColor back_color_ = 0x80000005u;
  std::function<void(platform::KeyPress&)> filter_;
};

}  // namespace zenta::headless
