#pragma once

#include <functional>

#include "zenta/platform/host_services.h"
#include "zenta/platform/lifetime.h"
#include "zenta/platform/raised_event.h"

namespace zenta::platform {

// How every control raises its events: to the host by number, then to its typed listener. A
// channel lives and dies with its control, so it can tell when a handler destroyed the control
// (a host closing its form from Recalculate or a veto): Raise then returns false, the listener
// is not called, and the caller must return at once without touching anything of its own.
class EventChannel {
 public:
  explicit EventChannel(HostServices& host) : host_(host) {}

  // `listener` runs after the host's handler, only while the control lives.
  bool Raise(RaisedEvent& event, const std::function<void()>& listener = {}) {
    const Lifetime::Watch control = lifetime_.Watched();
    host_.RaiseEvent(event);
    if (!control.Alive()) return false;
    if (listener) listener();
    return control.Alive();
  }

  Lifetime::Watch Watched() const { return lifetime_.Watched(); }

 private:
  HostServices& host_;
  Lifetime lifetime_;
};

}  // namespace zenta::platform
