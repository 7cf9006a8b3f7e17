#include "zenta/platform/headless/button_widget.h"

#include "zenta/core/utf8.h"
#include "zenta/platform/grid_navigation.h"

namespace zenta::headless {

ButtonWidget::ButtonWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, std::string caption)
    : WidgetBase(form, surface, definition), caption_(std::move(caption)) {}

void ButtonWidget::Click() {
  if (Enabled() && Visible() && on_click_) on_click_();
}

char32_t ButtonWidget::Mnemonic() const {
  const std::u32string text = utf8::Decode(caption_);
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != U'&') continue;
    if (text[i + 1] == U'&') {
      ++i;  // "&&" is a literal ampersand
      continue;
    }
    char32_t letter = text[i + 1];
    return letter >= U'a' && letter <= U'z' ? letter - 32 : letter;
  }
  return 0;
}

void ButtonWidget::HandleKeyDown(platform::KeyDown& key) {
  const bool clicks = key.key_code == platform::keys::kSpace || key.key_code == platform::keys::kEnter;
  if (!clicks || key.shift != platform::kNoShift) return;
  key.key_code = 0;
  Click();
}

}  // namespace zenta::headless
