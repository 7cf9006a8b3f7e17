#include "zenta/entry/surface_rules.h"

namespace zenta::entry {

void EnforceMinimumSize(platform::ControlSurface& surface, int min_width_twips, int min_height_twips) {
  if (surface.Width() < min_width_twips) surface.SetWidth(min_width_twips);
  if (surface.Height() < min_height_twips) surface.SetHeight(min_height_twips);
}

void PropagateEnabled(platform::ControlSurface& surface) {
  const bool enabled = surface.Enabled();
  for (platform::Widget* child : surface.Children()) child->SetEnabled(enabled);
}

void ApplyTitleColor(std::span<platform::DateEdit* const> date_edits, OleColor color) {
  for (platform::DateEdit* edit : date_edits) edit->SetCalendarTitleColor(color);
}

void SetFocusIfEnabled(platform::Widget& widget) {
  if (widget.Enabled()) widget.SetFocus();
}

}  // namespace zenta::entry
