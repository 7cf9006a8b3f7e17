#include "zenta/qt/toolkit/key_mapping.h"

#include "zenta/platform/grid_navigation.h"

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
    default:
      if ((qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9) || (qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z) ||
          qt_key == Qt::Key_Space) {
        key.key_code = qt_key;  // Qt's codes for these are their ASCII capitals
      } else {
        key.key_code = qt_key & 0xFFFF;
      }
  }
  return key;
}

}  // namespace zenta::qt
