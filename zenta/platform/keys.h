#pragma once

#include <cstdint>

namespace zenta::platform {

// Key codes and shift bits as controls see them in key-down notifications.
namespace keys {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kF2 = 113;
inline constexpr int kF3 = 114;
inline constexpr int kF4 = 115;
inline constexpr int kF8 = 119;
inline constexpr int kInsert = 45;
}  // namespace keys

enum ShiftState : int { kNoShift = 0, kShift = 1, kCtrl = 2, kAlt = 4 };

// Key-down: seen by the control surface before the focused child. Setting key_code to 0
// discards the key.
struct KeyDown {
  int key_code = 0;
  int shift = kNoShift;
};

// Key-press: one typed character, as a code point (Enter 13, Backspace 8). A handler may
// replace it; 0 discards it.
struct KeyPress {
  char32_t key = 0;
};

}  // namespace zenta::platform
