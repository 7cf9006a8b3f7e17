#pragma once

#include "zenta/platform/host_services.h"
#include "zenta/platform/keys.h"

namespace zenta::entry {

// Enter with no Shift, Ctrl or Alt is discarded and a Tab injected behind it, so the focus
// moves to the next field. Returns true when it did so.
bool EnterMovesOn(platform::KeyDown& key, platform::HostServices& host);

}  // namespace zenta::entry
