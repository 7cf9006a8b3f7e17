#pragma once

#include <string_view>

#include "zenta/platform/grid.h"
#include "zenta/platform/keys.h"
#include "zenta/platform/widget.h"

namespace zenta::headless {

class Form;

// A person at the keyboard, for tests and host scripts that read like what a payer does.
// Every action is synchronous: keystrokes injected and actions posted since the last action run
// first, then the action, then the keystrokes its handlers injected and the actions they
// posted, all before it returns.
class User {
 public:
  explicit User(Form& form) : form_(form) {}

  // Each character (UTF-8): a key-down through the surface preview (with the key code and
  // Shift state a US keyboard sends), then, unless discarded, a key-press through the focused
  // widget's filters into its text. "\t" and "\r" act as Tab and Enter.
  void Type(std::string_view text);
  void PressTab() { PressKey(platform::keys::kTab); }
  void PressShiftTab() { PressKey(platform::keys::kTab, platform::kShift); }
  void PressEnter(int shift = platform::kNoShift) { PressKey(platform::keys::kEnter, shift); }
  // A key-down only; Enter and Backspace also send their character when not discarded.
  void PressKey(int key_code, int shift = platform::kNoShift);
  void PressBackspace();
  void PressEscape() { PressKey(platform::keys::kEscape); }
  // Focus to the widget as a mouse click does (ignored when it cannot take the focus); a
  // check box also toggles, a button clicks.
  void Click(platform::Widget& widget);
  // A click on a grid's cell (row is a bookmark): the grid takes the focus, then the cell
  // becomes current; on a button cell the button clicks.
  void ClickCell(platform::Grid& grid, int row, int column);
  // A click on one of the completion offers a grid lists under its current cell.
  void ClickOffer(platform::Grid& grid, int offer);
  // Focus to the widget without clicking it.
  void Focus(platform::Widget& widget);
  // Focus to the first host field outside every control (or nowhere if there is none).
  void LeaveControl();

 private:
  Form& form_;
};

}  // namespace zenta::headless
