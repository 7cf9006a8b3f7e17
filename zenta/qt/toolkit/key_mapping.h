#pragma once

#include <QKeyEvent>

#include "zenta/platform/keys.h"

namespace zenta::qt {

// A Qt key press as the controls see key-downs: Enter and Return are 13, Tab and Backtab 9
// (Backtab with Shift), letters their capital's code, digits their own; Shift, Ctrl and Alt
// become the shift bits; other characters come as the US-keyboard key that types them. Keys
// the controls never look at map above 0xFFFF, clear of every code they test.
platform::KeyDown ToKeyDown(const QKeyEvent& event);

}  // namespace zenta::qt
