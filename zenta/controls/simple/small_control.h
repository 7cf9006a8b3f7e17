#pragma once

#include <functional>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "zenta/core/ole_color.h"
#include "zenta/core/variant.h"
#include "zenta/entry/common_properties.h"
#include "zenta/platform/control_surface.h"
#include "zenta/platform/event_channel.h"
#include "zenta/platform/field_value.h"
#include "zenta/platform/host_services.h"
#include "zenta/platform/property_bag.h"

namespace zenta {

// What the single-payment and government controls share: the four persisted properties and
// their lifecycle, Enter as Tab, the minimum size, and raising numbered events to the host.
// Each control adds its own widgets and plugs its own steps into the virtual hooks.
class SmallControl {
 public:
  virtual ~SmallControl() = default;
  SmallControl(const SmallControl&) = delete;
  SmallControl& operator=(const SmallControl&) = delete;

  // First creation: no saved state.
  void InitProperties() { properties_.InitNew(); }
  void ReadProperties(const platform::PropertyBag& bag);
  void WriteProperties(platform::PropertyBag& bag) const { properties_.Write(bag); }

  OleColor BackColor() const { return properties_.BackColor(); }
  void SetBackColor(OleColor color) { properties_.SetBackColor(color); }
  bool BusinessMode() const { return properties_.BusinessMode(); }
  void SetBusinessMode(bool on) { properties_.SetBusinessMode(on); }
  OleColor BackColorTitle() const { return properties_.BackColorTitle(); }
  void SetBackColorTitle(OleColor color) { properties_.SetBackColorTitle(color); }
  bool Enabled() const { return properties_.Enabled(); }
  void SetEnabled(bool enabled) { properties_.SetEnabled(enabled); }

  int MinimumWidth() const { return min_width_; }
  int MinimumHeight() const { return min_height_; }

 protected:
  SmallControl(platform::ControlSurface& surface, platform::HostServices& host, OleColor default_title_color,
               int min_width_twips, int min_height_twips);

  // Hooks, run by the property rules; the defaults suit most controls.
  virtual void ApplyTitleColor() {}
  virtual void PropagateEnabled();
  virtual void BusinessModeChanged() {}
  virtual void PropertiesRead() {}
  virtual void Shown() {}
  // Whether Enter should move on from the field that has the focus.
  virtual bool EnterMovesOnFrom(const std::string& /*active_child*/) const { return true; }

  void EnforceMinimumSize();
  // The public properties the child widgets hold (the control's FieldValues()).
  virtual std::span<const platform::FieldValue> Fields() const { return {}; }
  // Tells the host that every value the child widgets hold may have changed: after fields were
  // enabled or disabled together.
  void AnnounceFields();
  // A notification that raises an event by number to the host, then to the typed listener
  // (read when the event fires, so it may be set later). An in/out argument (a non-const
  // reference such as `bool& Cancel`) takes the host's answer before the listener sees it, and
  // the listener's answer is the one the caller reads. When a handler destroys the control the
  // listener is not called and nothing of the control (this notification included) is read.
  template <class Listener, class... Args>
  std::function<void(Args...)> EventRaiser(int number, const char* name, Listener* const& listener,
                                           void (Listener::*typed)(Args...)) {
    return [this, number, name, &listener, typed](Args... args) {
      platform::RaisedEvent raised{number, name, {Variant(args)...}};
      events_.Raise(raised, [&] {
        std::size_t i = 0;
        (TakeAnswer<Args>(raised.args.at(i++), args), ...);
        if (listener) (listener->*typed)(static_cast<Args>(args)...);
      });
    };
  }

 private:
  template <class Arg, class T>
  static void TakeAnswer(const Variant& answer, T& arg) {
    if constexpr (std::is_lvalue_reference_v<Arg> && !std::is_const_v<std::remove_reference_t<Arg>>) {
      using V = std::remove_reference_t<Arg>;
      if constexpr (std::is_same_v<V, bool>) arg = answer.ToBool();
      else if constexpr (std::is_same_v<V, std::int16_t>) arg = answer.ToInteger();
      else if constexpr (std::is_same_v<V, std::int32_t>) arg = answer.ToLong();
      else if constexpr (std::is_same_v<V, float>) arg = answer.ToSingle();
      else if constexpr (std::is_same_v<V, Currency>) arg = answer.ToCurrency();
      else if constexpr (std::is_same_v<V, std::string>) arg = answer.ToString();
      else static_assert(sizeof(V) == 0, "no Variant reading for this in/out argument");
    }
  }

 protected:
  platform::ControlSurface& surface_;
  platform::HostServices& host_;

 private:
  platform::EventChannel events_;
  entry::CommonProperties properties_;
  int min_width_;
  int min_height_;
};

}  // namespace zenta
