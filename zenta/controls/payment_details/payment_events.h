#pragma once

#include <optional>
#include <string>

#include "zenta/platform/event_channel.h"
#include "zenta/platform/host_services.h"

namespace zenta {

// The six events of the payment control, raised to the host by number and then to an optional
// typed listener. In/out arguments go to the host first; the listener sees (and may change)
// the host's answer, and the value on return decides. A handler may destroy the control: each
// raise then answers false (or no flag), and the caller returns without touching the control.
class PaymentEvents {
 public:
  enum Number {
    kGetPayAmount = 1,
    kKeypressLockedField = 2,
    kGLBalanced = 3,
    kGLDistributionBeforeEdit = 4,
    kPayAmtBeforeUpdate = 5,
    kGSTAmtBeforeUpdate = 6,
  };

  // Typed events for C++ hosts.
  class Listener {
   public:
    virtual ~Listener() = default;
    virtual void GetPayAmount() {}
    virtual void KeypressLockedField(std::string& /*Field*/) {}
    virtual void GLBalanced() {}
    virtual void GLDistributionBeforeEdit(bool& /*Cancel*/) {}
    virtual void PayAmtBeforeUpdate(bool& /*Cancel*/) {}
    virtual void GSTAmtBeforeUpdate(bool& /*Cancel*/) {}
  };

  explicit PaymentEvents(platform::HostServices& host) : channel_(host) {}

  void SetListener(Listener* listener) { listener_ = listener; }

  // Each returns whether the control survived its handlers.
  bool GetPayAmount();
  bool KeypressLockedField(std::string& Field);
  bool GLBalanced();
  // Each returns the Cancel flag as the host and listener left it; none when they destroyed
  // the control.
  std::optional<bool> GLDistributionBeforeEdit();
  std::optional<bool> PayAmtBeforeUpdate();
  std::optional<bool> GSTAmtBeforeUpdate();

 private:
  std::optional<bool> RaiseCancel(Number number, const char* name, void (Listener::*typed)(bool&));

  platform::EventChannel channel_;
  Listener* listener_ = nullptr;
};

}  // namespace zenta
