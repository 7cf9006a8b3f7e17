#include "zenta/platform/headless/text_box_widget.h"

#include "zenta/core/utf8.h"

namespace zenta::headless {

TextBoxWidget::TextBoxWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition)
    : WidgetBase(form, surface, definition) {}

void TextBoxWidget::HandleCharacter(char32_t character) {
  platform::KeyPress press{character};
  if (filter_) filter_(press);
  if (press.key == 0) return;
  if (press.key == platform::keys::kBackspace) {
    utf8::DropLast(text_);
    return;
  }
  if (press.key < 32) return;  // Enter and other control keys do not enter a single-line box
  text_ += utf8::Encode(press.key);
}

}  // namespace zenta::headless
