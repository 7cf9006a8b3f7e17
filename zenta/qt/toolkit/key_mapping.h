#pragma once

#include <QKeyEvent>

#include "zenta/platform/keys.h"

namespace zenta::qt {

// A Qt key press as the controls see key-downs: Enter and Return are 13, Tab and Backtab 9
// (Backtab with Shift), letters their capital's code, digits their own; Shift, Ctrl and Alt
// become the shift bits. Keys the controls never look at map to their Qt code.
platform::KeyDown ToKeyDown(const QKeyEvent& event);

}  // namespace zenta::qt
