#include "zenta/controls/simple/small_control.h"

#include "zenta/entry/enter_key.h"
#include "zenta/entry/surface_rules.h"

namespace zenta {

SmallControl::SmallControl(platform::ControlSurface& surface, platform::HostServices& host,
                           OleColor default_title_color, int min_width_twips, int min_height_twips)
    : surface_(surface), host_(host), events_(host),
      properties_(surface, host, default_title_color,
                  {.apply_title_color = [this] { ApplyTitleColor(); },
                   .propagate_enabled =
                       [this] {
                         PropagateEnabled();
                         AnnounceFields();
                       },
                   .business_mode_changed = [this] { BusinessModeChanged(); }}),
      min_width_(min_width_twips), min_height_(min_height_twips) {
  surface_.OnKeyDown([this](platform::KeyDown& key) {
    if (EnterMovesOnFrom(surface_.ActiveChildName())) entry::EnterMovesOn(key, host_);
  });
  surface_.OnResize([this] { EnforceMinimumSize(); });
  surface_.OnShown([this] { Shown(); });
}

void SmallControl::ReadProperties(const platform::PropertyBag& bag) {
  properties_.Read(bag);
  PropertiesRead();
}

void SmallControl::PropagateEnabled() { entry::PropagateEnabled(surface_); }

void SmallControl::AnnounceFields() {
  for (const platform::FieldValue& value : Fields()) host_.ValueChanged(value.property);
}

void SmallControl::EnforceMinimumSize() { entry::EnforceMinimumSize(surface_, min_width_, min_height_); }

}  // namespace zenta
