#pragma once

#include "zenta/platform/keys.h"

namespace zenta::entry {

enum class EditCommand { kNone, kCopy, kPaste, kUndo, kRedo };

// The clipboard and history keys of a list: Ctrl+C, Ctrl+V or Shift+Insert, Ctrl+Z, and
// Ctrl+Y or Ctrl+Shift+Z.
EditCommand EditCommandOf(const platform::KeyDown& key);

}  // namespace zenta::entry
