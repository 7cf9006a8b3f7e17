#include "zenta/entry/enter_key.h"

namespace zenta::entry {

bool EnterMovesOn(platform::KeyDown& key, platform::HostServices& host) {
  if (key.key_code != platform::keys::kEnter || key.shift != platform::kNoShift) return false;
  key.key_code = 0;
  host.InjectKeys("{TAB}");
  return true;
}

}  // namespace zenta::entry
