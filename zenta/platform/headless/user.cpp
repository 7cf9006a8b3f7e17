#include "zenta/platform/headless/user.h"

#include "zenta/core/utf8.h"
#include "zenta/platform/headless/check_box_widget.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/text_box_widget.h"

namespace zenta::headless {

namespace {
// The key code a character's key sends: letters as their capital, others as themselves.
int KeyCodeOf(char32_t character) {
  if (character >= U'a' && character <= U'z') return static_cast<int>(character - U'a' + U'A');
  return static_cast<int>(character);
}
}  // namespace

void User::Type(std::string_view text) {
  for (char32_t character : utf8::Decode(text)) {
    if (character == U'\t') {
      PressTab();
    } else if (character == U'\r' || character == U'\n') {
      PressEnter();
    } else {
      if (form_.DeliverKeyDown(platform::KeyDown{KeyCodeOf(character), platform::kNoShift})) {
        form_.DeliverCharacter(character);
      }
      form_.ProcessQueuedKeys();
    }
  }
}

void User::PressKey(int key_code, int shift) {
  form_.DeliverKeyDown(platform::KeyDown{key_code, shift});
  form_.ProcessQueuedKeys();
}

void User::PressBackspace() {
  if (form_.DeliverKeyDown(platform::KeyDown{platform::keys::kBackspace, platform::kNoShift})) {
    form_.DeliverCharacter(platform::keys::kBackspace);
  }
  form_.ProcessQueuedKeys();
}

void User::Click(platform::Widget& widget) {
  if (!form_.CanFocus(&widget)) return;
  form_.SetFocus(&widget);
  if (auto* box = dynamic_cast<CheckBoxWidget*>(&widget)) box->Toggle();
  form_.ProcessQueuedKeys();
}

void User::Focus(platform::Widget& widget) {
  form_.SetFocus(&widget);
  form_.ProcessQueuedKeys();
}

void User::LeaveControl() {
  form_.SetFocus(form_.FirstHostField());
  form_.ProcessQueuedKeys();
}

}  // namespace zenta::headless
