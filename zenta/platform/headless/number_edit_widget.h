#pragma once

#include <functional>

#include "zenta/platform/headless/widget_base.h"
#include "zenta/platform/number_edit.h"

namespace zenta::headless {

// A numeric edit in memory. Typing obeys the edit format (digits, one ".", a leading "-", at
// most the format's integer digits and decimals); gaining the focus selects all, so typing
// replaces; F2 clears. Away from the focus it shows the value through its display format.
class NumberEditWidget : public WidgetBase<platform::NumberEdit> {
 public:
  NumberEditWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition);

  std::optional<Currency> Value() const override { return value_; }
  void SetValue(std::optional<Currency> value) override;
  std::string Text() const override { return text_; }
  void SetText(const std::string& text) override;
  void SetDisplayFormat(const std::string& pattern) override { display_format_ = pattern; }
  void SetEditFormat(const std::string& pattern) override;
  std::string DisplayText() const override;
  OleColor BackColor() const override { return back_color_; }
  void SetBackColor(OleColor color) override { back_color_ = color; }
  void OnFocusGained(platform::Callback callback) override { on_focus_gained_ = std::move(callback); }
  void OnFocusLost(platform::Callback callback) override { on_focus_lost_ = std::move(callback); }

  void HandleKeyDown(platform::KeyDown& key) override;
  void HandleCharacter(char32_t character) override;
  void FocusGained() override;
  void FocusLost() override;

  // A character that has passed every filter already.
  void TypeCharacter(char32_t character);
  bool AllSelected() const { return all_selected_; }

 private:
  bool FitsEditFormat(const std::string& text) const;

  std::optional<Currency> value_;
  std::string text_;
  std::string display_format_ = "########0.00;-########0.00;;0.00";
  int integer_digits_ = 9;
  int decimals_ = 2;
  OleColor back_color_ = 0x80000005u;
  bool all_selected_ = false;
  platform::Callback on_focus_gained_;
  platform::Callback on_focus_lost_;
};

}  // namespace zenta::headless
