#include <memory>

#include "tests/monkey/monkey.h"
#include "zenta/controls/simple/std_payment.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::monkey {

namespace {

class StdPaymentDriver : public Driver {
 public:
  std::string Name() const override { return "StdPayment"; }
  void Create(World& world) override {
    control_ = std::make_unique<StdPayment>(world.surface, world.host);
    payment_ = &world.surface.Get<platform::NumberEdit>("txtPaymentAmount");
    gst_ = &world.surface.Get<platform::NumberEdit>("txtGSTAmount");
    control_->ReadProperties(headless::MemoryPropertyBag());
  }
  void Destroy() override { control_.reset(); }
  std::string HostPut(Random& random) override {
    switch (random() % 5) {
      case 0: return Put([&] { control_->SetPaymentAmount(RandomSingle(random)); }, {kOverflow});
      case 1: return Put([&] { control_->SetGSTAmount(RandomAmount(random)); }, {kOverflow});
      case 2: return Put([&] { control_->SetBusinessMode(random() % 2 == 0); });
      case 3: return Put([&] { control_->SetPaymentAmountEnabled(random() % 3 != 0); });
      default: return Put([&] { control_->SetEnabled(random() % 4 != 0); });
    }
  }
  std::string Check() override {
    if (auto broken = AmountInRange("PaymentAmountCurrency", control_->PaymentAmountCurrency()); !broken.empty()) return broken;
    if (auto broken = AmountInRange("GSTAmount", control_->GSTAmount()); !broken.empty()) return broken;
    if (auto broken = FieldShows(*payment_, control_->PaymentAmountCurrency()); !broken.empty()) return broken;
    return FieldShows(*gst_, control_->GSTAmount());
  }

 private:
  std::unique_ptr<StdPayment> control_;
  platform::NumberEdit* payment_ = nullptr;
  platform::NumberEdit* gst_ = nullptr;
};

const bool kRegistered = RegisterDriver("StdPayment", [] { return std::make_unique<StdPaymentDriver>(); });

}  // namespace

}  // namespace zenta::monkey
