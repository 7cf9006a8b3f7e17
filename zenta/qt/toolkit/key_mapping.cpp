#include "zenta/qt/toolkit/key_mapping.h"

#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/typed_key.h"

namespace zenta::qt {

namespace {
// Virtual-key codes of the keys that have no character.
int CodeOfNamedKey(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return platform::keys::kEnter;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return platform::keys::kTab;
    case Qt::Key_Backspace: return platform::keys::kBackspace;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Alt: return 18;
    case Qt::Key_Escape: return platform::keys::kEscape;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return platform::keys::kUp;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return platform::keys::kDown;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    default: break;
  }
  if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F24) return 112 + (qt_key - Qt::Key_F1);
  return 0;
}
}  // namespace

platform::KeyDown ToKeyDown(const QKeyEvent& event) {
  int shift = platform::kNoShift;
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers & Qt::ShiftModifier) shift |= platform::kShift;
  if (modifiers & Qt::ControlModifier) shift |= platform::kCtrl;
  if (modifiers & Qt::AltModifier) shift |= platform::kAlt;
  const int qt_key = event.key();
  // A modifier's own key-down counts it as held; Backtab is Shift+Tab.
  if (qt_key == Qt::Key_Backtab || qt_key == Qt::Key_Shift) shift |= platform::kShift;
  if (qt_key == Qt::Key_Control) shift |= platform::kCtrl;
  if (qt_key == Qt::Key_Alt) shift |= platform::kAlt;

  if (int code = CodeOfNamedKey(qt_key)) return {code, shift};
  // Qt's codes for A-Z and 0-9 are their ASCII values: Ctrl+A is 'A' even though it types ^A.
  if ((qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z) || (qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9) ||
      qt_key == Qt::Key_Space) {
    return {qt_key, shift};
  }
  const QList<uint> typed = event.text().toUcs4();
  if (typed.size() == 1 && QChar::isPrint(typed[0])) {
    platform::KeyDown key = platform::KeyDownFor(static_cast<char32_t>(typed[0]));
    key.shift |= shift & (platform::kCtrl | platform::kAlt);
    return key;
  }
  return {0x10000 | (qt_key & 0xFFFF), shift};
}

}  // namespace zenta::qt
