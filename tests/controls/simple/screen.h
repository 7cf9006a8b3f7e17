#pragma once

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/memory_property_bag.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/headless/user.h"

namespace zenta::testing {

// A host screen with one control of type C on it, loaded with default properties and shown,
// followed by a field of the host's own.
template <class C>
struct Screen {
  headless::Form form;
  headless::Surface& surface = form.AddSurface("control", 4800, 6000);
  headless::Host host{form};
  C control{surface, host};
  headless::TextBoxWidget& next_field = form.AddHostField("txtHostNext");
  headless::User user{form};

  Screen() {
    host.SetToday(*Date::Parse("2026/11/22"));
    control.ReadProperties(headless::MemoryPropertyBag());
    form.Show();
  }

  template <class T>
  T& Get(const char* name) {
    return surface.Get<T>(name);
  }
  platform::NumberEdit& Number(const char* name) { return Get<platform::NumberEdit>(name); }
  std::string FocusedName() const {
    auto* focused = form.Focused();
    return focused ? focused->Name() : std::string();
  }
};

}  // namespace zenta::testing
