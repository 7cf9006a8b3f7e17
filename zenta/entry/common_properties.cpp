#include "zenta/entry/common_properties.h"

#include "zenta/entry/persisted_values.h"

namespace zenta::entry {

namespace {
constexpr const char* kBackColor = "BackColor";
constexpr const char* kEnabled = "Enabled";
constexpr const char* kBackColorTitle = "BackColorTitle";
constexpr const char* kBusinessMode = "BusinessMode";

void Run(const std::function<void()>& hook) {
  if (hook) hook();
}

void AnnounceAll(platform::HostServices& host) {
  for (const char* name : {kBackColor, kEnabled, kBackColorTitle, kBusinessMode}) host.ValueChanged(name);
}
}  // namespace

CommonProperties::CommonProperties(platform::ControlSurface& surface, platform::HostServices& host,
                                   OleColor default_title_color, Hooks hooks)
    : surface_(surface), host_(host), default_title_color_(default_title_color), hooks_(std::move(hooks)),
      title_color_(default_title_color) {}

void CommonProperties::InitNew() {
  surface_.SetBackColor(colors::kButtonFace);
  surface_.SetEnabled(true);
  title_color_ = default_title_color_;
  Run(hooks_.apply_title_color);
  AnnounceAll(host_);
}

void CommonProperties::Read(const platform::PropertyBag& bag) {
  surface_.SetBackColor(ReadColor(bag, kBackColor, colors::kButtonFace));
  surface_.SetEnabled(ReadFlag(bag, kEnabled, true));
  Run(hooks_.propagate_enabled);
  title_color_ = ReadColor(bag, kBackColorTitle, default_title_color_);
  Run(hooks_.apply_title_color);
  business_mode_ = ReadFlag(bag, kBusinessMode, false);
  Run(hooks_.business_mode_changed);
  AnnounceAll(host_);
}

void CommonProperties::Write(platform::PropertyBag& bag) const {
  bag.Write(kBackColor, ColorVariant(surface_.BackColor()), ColorVariant(colors::kButtonFace));
  bag.Write(kEnabled, Variant(surface_.Enabled()), Variant(true));
  bag.Write(kBackColorTitle, ColorVariant(title_color_), ColorVariant(default_title_color_));
  bag.Write(kBusinessMode, Variant(business_mode_), Variant(false));
}

OleColor CommonProperties::BackColor() const { return surface_.BackColor(); }

void CommonProperties::SetBackColor(OleColor color) {
  surface_.SetBackColor(color);
  host_.MarkPropertyChanged(kBackColor);
  host_.ValueChanged(kBackColor);
}

bool CommonProperties::Enabled() const { return surface_.Enabled(); }

void CommonProperties::SetEnabled(bool enabled) {
  const platform::Lifetime::Watch control = lifetime_.Watched();
  // Disabling moves the focus, and the host may close the form from the event that raises.
  surface_.SetEnabled(enabled);
  if (control.Alive()) Run(hooks_.propagate_enabled);
  if (control.Alive()) host_.ValueChanged(kEnabled);
}

void CommonProperties::SetBackColorTitle(OleColor color) {
  title_color_ = color;
  Run(hooks_.apply_title_color);
  host_.ValueChanged(kBackColorTitle);
}

void CommonProperties::SetBusinessMode(bool on) {
  business_mode_ = on;
  Run(hooks_.business_mode_changed);
  host_.ValueChanged(kBusinessMode);
}

}  // namespace zenta::entry
