#include <memory>

#include "tests/monkey/monkey.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::monkey {

namespace {

class PaymentDetailsDriver : public Driver {
 public:
  std::string Name() const override { return "PaymentDetails"; }
  void Create(World& world) override {
    control_ = std::make_unique<PaymentDetails>(world.surface, world.host, world.context);
    control_->ReadProperties(headless::MemoryPropertyBag());
    control_->SetDefaultGLAccount("5100");
  }
  void Destroy() override { control_.reset(); }
  std::string HostPut(Random& random) override {
    switch (random() % 7) {
      case 0: return Put([&] { control_->SetPaymentAmount(RandomAmount(random)); }, {kOverflow});
      case 1: return Put([&] { control_->SetGST(RandomAmount(random)); }, {kOverflow});
      case 2: return Put([&] { control_->SetBusinessMode(random() % 2 == 0); });
      case 3: return Put([&] { control_->SetLockFields(random() % 2 == 0); });
      case 4: return Put([&] { control_->ShowDistribution(); }, {WindowOpenRefusal()});
      case 5: return Put([&] { control_->ClearPay(); });
      default:
        return Put([&] { control_->SetOtherCurrencyCode(Variant(std::string(random() % 2 ? "CAD" : "USD"))); });
    }
  }
  std::string Check() override {
    if (auto broken = AmountInRange("PaymentAmount", control_->PaymentAmount()); !broken.empty()) return broken;
    if (auto broken = AmountInRange("GST", control_->GST()); !broken.empty()) return broken;
    return AmountInRange("NetExpense", control_->NetExpense());
  }

 private:
  std::unique_ptr<PaymentDetails> control_;
};

const bool kRegistered = RegisterDriver("PaymentDetails", [] { return std::make_unique<PaymentDetailsDriver>(); });

}  // namespace

}  // namespace zenta::monkey
