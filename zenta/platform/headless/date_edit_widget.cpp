#include "zenta/platform/headless/date_edit_widget.h"

#include "zenta/core/date_format.h"

namespace zenta::headless {

DateEditWidget::DateEditWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition)
    : WidgetBase(form, surface, definition) {}

std::optional<Date> DateEditWidget::Value() const {
  if (digits_.size() != 8) return std::nullopt;
  return Date::Parse(digits_.substr(0, 4) + "/" + digits_.substr(4, 2) + "/" + digits_.substr(6, 2));
}

void DateEditWidget::SetValue(std::optional<Date> value) {
  if (value) value->CheckedForField(Name());
  digits_.clear();
  last_valid_ = value;
  refused_ = false;
  if (!value) return;
  for (char c : value->ToText()) {
    if (c != '/') digits_ += c;
  }
}

std::string DateEditWidget::Text() const {
  std::string text(formats::kDateMask);
  std::size_t next = 0;
  for (char& slot : text) {
    if (slot == '_' && next < digits_.size()) slot = digits_[next++];
  }
  return text;
}

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
    digits_.clear();
    all_selected_ = false;
    if (!digit) return;
  }
  if (character == platform::keys::kBackspace) {
    if (!digits_.empty()) digits_.pop_back();
  } else if (digit && digits_.size() < 8) {
    digits_ += static_cast<char>(character);
  }
}

void DateEditWidget::FocusGained() { all_selected_ = true; }

void DateEditWidget::FocusLost() {
  all_selected_ = false;
  if (digits_.empty()) {
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
