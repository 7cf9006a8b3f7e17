#pragma once

#include <span>

#include "zenta/core/ole_color.h"
#include "zenta/platform/control_surface.h"
#include "zenta/platform/date_edit.h"
#include "zenta/platform/widget.h"

namespace zenta::entry {

// A control may be made larger but never smaller than its minimum; children are not moved.
void EnforceMinimumSize(platform::ControlSurface& surface, int min_width_twips, int min_height_twips);

// Copies the surface's enabled state to every child, labels included, so they grey out.
void PropagateEnabled(platform::ControlSurface& surface);

void ApplyTitleColor(std::span<platform::DateEdit* const> date_edits, OleColor color);

// A focus method gives the focus only to an enabled field.
void SetFocusIfEnabled(platform::Widget& widget);

}  // namespace zenta::entry
