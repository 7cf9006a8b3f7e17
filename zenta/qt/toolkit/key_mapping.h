#pragma once

#include <QKeyEvent>

#include "zenta/platform/keys.h"

namespace zenta::qt {

// A Qt key press as the controls see key-downs: Enter and Return are 13, Tab 9 and Backtab 9
// with Shift, letters their capital's code and digits their own (whatever Ctrl or Alt does to
// the typed text), function and navigation keys their usual virtual-key codes; Shift, Ctrl and
// Alt become the shift bits. Punctuation comes as the US-keyboard key that types it, so "(" is
// never read as the Down arrow that shares its ASCII value. Keys the controls never look at map
// above 0xFFFF, clear of every code they test.
platform::KeyDown ToKeyDown(const QKeyEvent& event);

}  // namespace zenta::qt
