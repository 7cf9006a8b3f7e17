#pragma once

#include <functional>

#include "zenta/core/ole_color.h"
#include "zenta/platform/control_surface.h"
#include "zenta/platform/host_services.h"
#include "zenta/platform/lifetime.h"
#include "zenta/platform/property_bag.h"

namespace zenta::entry {

// The four properties every small control persists — "BackColor", "Enabled",
// "BackColorTitle", "BusinessMode" — and the rules around them: defaults on first creation,
// the order of loading and saving, and that only BackColor marks itself changed at run time.
// Each control plugs its own steps in through Hooks.
class CommonProperties {
 public:
  struct Hooks {
    std::function<void()> apply_title_color;   // after BackColorTitle changes
    std::function<void()> propagate_enabled;   // after Enabled is set or loaded
    std::function<void()> business_mode_changed;  // after BusinessMode is set or loaded
  };

  CommonProperties(platform::ControlSurface& surface, platform::HostServices& host,
                   OleColor default_title_color, Hooks hooks);

  // First creation: button-face background, enabled, the default title colour applied.
  // BusinessMode stays false and its hook does not run.
  void InitNew();
  void Read(const platform::PropertyBag& bag);
  void Write(platform::PropertyBag& bag) const;

  OleColor BackColor() const;
  void SetBackColor(OleColor color);  // marks "BackColor" changed
  bool Enabled() const;
  void SetEnabled(bool enabled);
  OleColor BackColorTitle() const { return title_color_; }
  void SetBackColorTitle(OleColor color);
  bool BusinessMode() const { return business_mode_; }
  void SetBusinessMode(bool on);

 private:
  platform::ControlSurface& surface_;
  platform::HostServices& host_;
  OleColor default_title_color_;
  Hooks hooks_;
  OleColor title_color_;
  bool business_mode_ = false;
  platform::Lifetime lifetime_;
};

}  // namespace zenta::entry
