#include "zenta/platform/headless/number_edit_widget.h"

#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"

namespace zenta::headless {

namespace {
std::optional<Currency> ParseValue(const std::string& text) {
  try {
    return Currency::Parse(text);
  } catch (const HostError&) {
    return std::nullopt;  // too large to hold: the field reads as empty rather than wrapping
  }
}
}  // namespace

NumberEditWidget::NumberEditWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition)
    : WidgetBase(form, surface, definition) {}

void NumberEditWidget::SetValue(std::optional<Currency> value) {
  value_ = value;
  text_ = value ? value->ToString() : std::string();
}

void NumberEditWidget::SetText(const std::string& text) {
  text_ = text;
  value_ = ParseValue(text);
}

void NumberEditWidget::SetEditFormat(const std::string& pattern) {
  // Only digit placeholders count: grouping or literal characters in a pattern are not typed.
  integer_digits_ = 0;
  decimals_ = 0;
  bool point = false;
  for (char c : pattern) {
    if (c == '.') point = true;
    if (c == '#' || c == '0' || c == '9') ++(point ? decimals_ : integer_digits_);
  }
}

std::string NumberEditWidget::DisplayText() const {
  if (HasFocus()) return text_;
  return FormatNullable(value_, display_format_);
}

bool NumberEditWidget::FitsEditFormat(const std::string& text) const {
  int integer = 0, fraction = 0;
  bool point = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '-' && i == 0) continue;
    if (c == '.' && !point && decimals_ > 0) {
      point = true;
    } else if (c >= '0' && c <= '9') {
      (point ? fraction : integer) += 1;
    } else {
      return false;
    }
  }
  return integer <= integer_digits_ && fraction <= decimals_;
}

void NumberEditWidget::HandleKeyDown(platform::KeyDown& key) {
  if (key.key_code == platform::keys::kF2) {
    SetValue(std::nullopt);
    key.key_code = 0;
  }
}

void NumberEditWidget::HandleCharacter(char32_t character) { TypeCharacter(character); }

void NumberEditWidget::TypeCharacter(char32_t character) {
  if (character == 0) return;
  if (character == platform::keys::kBackspace) {
    if (all_selected_) {
      text_.clear();
    } else if (!text_.empty()) {
      text_.pop_back();
    }
    all_selected_ = false;
    value_ = ParseValue(text_);
    return;
  }
  if (character < 32 || character > 127) return;
  std::string candidate = all_selected_ ? std::string() : text_;
  candidate += static_cast<char>(character);
  if (!FitsEditFormat(candidate)) return;
  all_selected_ = false;
  SetText(candidate);
}

void NumberEditWidget::FocusGained() {
  all_selected_ = true;
  if (on_focus_gained_) on_focus_gained_();
}

void NumberEditWidget::FocusLost() {
  all_selected_ = false;
  if (on_focus_lost_) on_focus_lost_();
}

}  // namespace zenta::headless
