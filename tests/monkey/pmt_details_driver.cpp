#include <memory>

#include "tests/monkey/monkey.h"
#include "zenta/controls/simple/pmt_details.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::monkey {

namespace {

class PmtDetailsDriver : public Driver {
 public:
  std::string Name() const override { return "PmtDetails"; }
  void Create(World& world) override {
    control_ = std::make_unique<PmtDetails>(world.surface, world.host);
    control_->ReadProperties(headless::MemoryPropertyBag());
  }
  void Destroy() override { control_.reset(); }
  std::string HostPut(Random& random) override {
    switch (random() % 6) {
      case 0: return Put([&] { control_->SetInvoiceDate(RandomDate(random)); }, {DateRefusal()});
      case 1: return Put([&] { control_->SetInvoiceNumber(RandomText(random, 40)); });
      case 2: return Put([&] { control_->SetInvoiceAmount(RandomSingle(random)); }, {kOverflow});
      case 3: return Put([&] { control_->SetGSTAmount(RandomSingle(random)); }, {kOverflow});
      case 4: return Put([&] { control_->SetBusinessMode(random() % 2 == 0); });
      default: return Put([&] { control_->SetInvoiceDateEnabled(random() % 3 != 0); });
    }
  }
  std::string Check() override {
    const Date date = control_->InvoiceDate();
    if (!date.IsZero() && !date.InRange()) return "InvoiceDate reads a day outside the years 100 to 9999";
    if (auto broken = AmountInRange("InvoiceAmountCurrency", control_->InvoiceAmountCurrency()); !broken.empty()) return broken;
    return AmountInRange("GSTAmountCurrency", control_->GSTAmountCurrency());
  }

 private:
  std::unique_ptr<PmtDetails> control_;
};

const bool kRegistered = RegisterDriver("PmtDetails", [] { return std::make_unique<PmtDetailsDriver>(); });

}  // namespace

}  // namespace zenta::monkey
