#include <gtest/gtest.h>

#include <memory>

#include "zenta/controls/simple/small_control.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"

namespace zenta {
namespace {

// A control with one vetoable event, as the invoice and payment controls have.
class VetoingControl : public SmallControl {
 public:
  class Events {
   public:
    virtual ~Events() = default;
    virtual void BeforeChange(std::int16_t /*Row*/, bool& /*Cancel*/) {}
  };

  VetoingControl(platform::ControlSurface& surface, platform::HostServices& host)
      : SmallControl(surface, host, 0, 100, 100),
        raise_(EventRaiser(1, "BeforeChange", listener_, &Events::BeforeChange)) {}

  void SetEventListener(Events* listener) { listener_ = listener; }
  bool AskBeforeChange(std::int16_t row) {
    bool cancel = false;
    raise_(row, cancel);
    return cancel;
  }

 private:
  Events* listener_ = nullptr;
  std::function<void(std::int16_t, bool&)> raise_;
};

struct Listener : VetoingControl::Events {
  bool seen = false;
  bool answer = false;
  void BeforeChange(std::int16_t, bool& Cancel) override {
    seen = Cancel;
    Cancel = answer;
  }
};

TEST(EventRaiser, InOutArgumentsCarryTheHostsAndThenTheListenersAnswer) {
  headless::Form form;
  headless::Surface& surface = form.AddSurface("control");
  headless::Host host(form);
  VetoingControl control(surface, host);
  Listener listener;
  control.SetEventListener(&listener);

  host.OnEvent([](platform::RaisedEvent& event) { event.args.at(1) = Variant(true); });
  listener.answer = true;
  EXPECT_TRUE(control.AskBeforeChange(3));
  EXPECT_TRUE(listener.seen);  // the host's Cancel reached the listener

  listener.answer = false;
  EXPECT_FALSE(control.AskBeforeChange(3));  // the listener overrules it, by reference

  host.OnEvent(nullptr);
  control.SetEventListener(nullptr);
  EXPECT_FALSE(control.AskBeforeChange(3));
}

TEST(EventRaiser, AHostClosingTheFormFromTheEventKeepsTheListenerOut) {
  headless::Form form;
  headless::Surface& surface = form.AddSurface("control");
  headless::Host host(form);
  auto control = std::make_unique<VetoingControl>(surface, host);
  Listener listener;
  control->SetEventListener(&listener);
  host.OnEvent([&control](platform::RaisedEvent& event) {
    event.args.at(1) = Variant(true);
    control.reset();
  });
  control->AskBeforeChange(3);
  EXPECT_EQ(control, nullptr);
  EXPECT_FALSE(listener.seen);  // the listener of a control that is gone hears nothing
}

}  // namespace
}  // namespace zenta
