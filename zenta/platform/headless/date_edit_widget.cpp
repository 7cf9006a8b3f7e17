#include "zenta/platform/headless/date_edit_widget.h"

namespace zenta::headless {

DateEditWidget::DateEditWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition)
    : WidgetBase(form, surface, definition) {}

std::optional<Date> DateEditWidget::Value() const { return mask_.Value(); }

void DateEditWidget::SetValue(std::optional<Date> value) {
  if (value) value->CheckedForField(Name());
  mask_ = DateMask::Of(value);
  last_valid_ = value;
  refused_ = false;
}

std::string DateEditWidget::Text() const { return mask_.Text(); }

void DateEditWidget::HandleKeyDown(platform::KeyDown& key) {
  if (key.key_code == platform::keys::kF2) {
    SetValue(std::nullopt);
    key.key_code = 0;
  } else if (key.key_code == platform::keys::kF3) {
    SetValue(form_.Today());
    key.key_code = 0;
  }
}

void DateEditWidget::HandleCharacter(char32_t character) {
  refused_ = false;
  const bool digit = character >= U'0' && character <= U'9';
  if (all_selected_ && (digit || character == platform::keys::kBackspace)) {
    mask_.Clear();
    all_selected_ = false;
    if (!digit) return;
  }
  if (character == platform::keys::kBackspace) {
    mask_.Backspace();
  } else {
    mask_.Type(character);
  }
}

void DateEditWidget::FocusGained() { all_selected_ = true; }

void DateEditWidget::FocusLost() {
  all_selected_ = false;
  if (mask_.IsBlank()) {
    last_valid_.reset();
  } else if (const std::optional<Date> typed = Value()) {
    last_valid_ = typed;
  } else {
    SetValue(last_valid_);
    refused_ = true;
  }
  if (on_focus_lost_) on_focus_lost_();
}

}  // namespace zenta::headless
