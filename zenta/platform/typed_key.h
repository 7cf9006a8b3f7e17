#pragma once

#include "zenta/platform/keys.h"

namespace zenta::platform {

// The key-down a character's key sends on a US keyboard, as a real toolkit reports it: letters
// as their capital, digits as themselves, punctuation as its own key (never as an arrow or
// Delete code, which share the ASCII values of "(", "&" or "."), Shift held for shifted
// symbols. Characters no key produces directly come as the generic Unicode-packet key.
KeyDown KeyDownFor(char32_t character);

}  // namespace zenta::platform
