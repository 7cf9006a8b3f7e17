#pragma once

#include <string_view>
#include <vector>

#include "zenta/platform/keys.h"

namespace zenta::platform {

// Keystrokes named as controls inject them: "{TAB}", "+{TAB}" (Shift+Tab), "{ENTER}", one after
// another. Anything else raises std::invalid_argument naming what was not understood.
std::vector<KeyDown> ParseKeyScript(std::string_view keys);

}  // namespace zenta::platform
