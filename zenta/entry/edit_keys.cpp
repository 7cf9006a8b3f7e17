#include "zenta/entry/edit_keys.h"

namespace zenta::entry {

EditCommand EditCommandOf(const platform::KeyDown& key) {
  using platform::kCtrl;
  using platform::kShift;
  const int mods = key.shift & (kCtrl | kShift | platform::kAlt);
  if (key.key_code == platform::keys::kInsert && mods == kShift) return EditCommand::kPaste;
  if (mods == kCtrl) {
    switch (key.key_code) {
      case 'C': return EditCommand::kCopy;
      case 'V': return EditCommand::kPaste;
      case 'Z': return EditCommand::kUndo;
      case 'Y': return EditCommand::kRedo;
      default: return EditCommand::kNone;
    }
  }
  if (mods == (kCtrl | kShift) && key.key_code == 'Z') return EditCommand::kRedo;
  return EditCommand::kNone;
}

}  // namespace zenta::entry
