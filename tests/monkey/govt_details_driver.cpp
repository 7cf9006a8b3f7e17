#include <memory>

#include "tests/monkey/monkey.h"
#include "zenta/controls/simple/govt_details.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::monkey {

namespace {

class GovtDetailsDriver : public Driver {
 public:
  std::string Name() const override { return "GovtDetails"; }
  void Create(World& world) override {
    control_ = std::make_unique<GovtDetails>(world.surface, world.host);
    control_->ReadProperties(headless::MemoryPropertyBag());
  }
  void Destroy() override { control_.reset(); }
  std::string HostPut(Random& random) override {
    switch (random() % 8) {
      case 0: return Put([&] { control_->SetPeriodFrom(RandomDate(random)); }, {DateRefusal()});
      case 1: return Put([&] { control_->SetDueDate(RandomDate(random)); }, {DateRefusal()});
      case 2: return Put([&] { control_->SetStatementOnly(Variant(static_cast<std::int32_t>(random() % 5) - 1)); }, {kOverflow});
      case 3: return Put([&] { control_->SetComments(RandomText(random, 60)); });
      case 4: return Put([&] { control_->SetAmount(Variant(RandomAmount(random))); }, {kOverflow});
      case 5: return Put([&] { control_->SetRows(static_cast<std::int16_t>(random() % 30)); }, {RowsRefusal()});
      case 6: return Put([&] { control_->SetEnabled(random() % 4 != 0); });
      default:
        return Put([&] { control_->SetGridValues(static_cast<std::int16_t>(random() % 28), RandomText(random, 10)); },
                   {RowsRefusal()});
    }
  }
  std::string Check() override {
    const std::int16_t rows = control_->GridNumberofRows();
    if (rows < 1 || rows > 26) return "GridNumberofRows reads " + std::to_string(rows);
    const Variant state = control_->StatementOnly();
    if (state.ToInteger() < 0 || state.ToInteger() > 2) return "StatementOnly reads " + state.ToString();
    return {};
  }

 private:
  std::unique_ptr<GovtDetails> control_;
};

const bool kRegistered = RegisterDriver("GovtDetails", [] { return std::make_unique<GovtDetailsDriver>(); });

}  // namespace

}  // namespace zenta::monkey
