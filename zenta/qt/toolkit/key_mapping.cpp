#include "zenta/qt/toolkit/key_mapping.h"

#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/typed_key.h"

namespace zenta::qt {

platform::KeyDown ToKeyDown(const QKeyEvent& event) {
  platform::KeyDown key;
  Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers & Qt::ShiftModifier) key.shift |= platform::kShift;
  if (modifiers & Qt::ControlModifier) key.shift |= platform::kCtrl;
  if (modifiers & Qt::AltModifier) key.shift |= platform::kAlt;
  const int qt_key = event.key();
  switch (qt_key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: key.key_code = platform::keys::kEnter; break;
    case Qt::Key_Tab: key.key_code = platform::keys::kTab; break;
    case Qt::Key_Backtab:
      key.key_code = platform::keys::kTab;
      key.shift |= platform::kShift;
      break;
    case Qt::Key_Backspace: key.key_code = platform::keys::kBackspace; break;
    case Qt::Key_Escape: key.key_code = platform::keys::kEscape; break;
    case Qt::Key_F2: key.key_code = platform::keys::kF2; break;
    case Qt::Key_F3: key.key_code = platform::keys::kF3; break;
    case Qt::Key_F4: key.key_code = platform::keys::kF4; break;
    case Qt::Key_Up: key.key_code = platform::keys::kUp; break;
    case Qt::Key_Down: key.key_code = platform::keys::kDown; break;
    default: {
      // Characters go by the key a US keyboard types them with, so "(" never reads as the
      // Down arrow that shares its ASCII value.
      const QString text = event.text();
      if (text.size() == 1 && text[0].isPrint()) {
        const int shift = key.shift;
        key = platform::KeyDownFor(text[0].unicode());
        key.shift |= shift & (platform::kCtrl | platform::kAlt);
      } else {
        key.key_code = 0x10000 | (qt_key & 0xFFFF);  // keys the controls never look at
      }
    }
  }
  return key;
}

}  // namespace zenta::qt
