#include <memory>
#include <stdexcept>
#include <string>

#include "tests/monkey/monkey.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/core/host_error.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::monkey {

namespace {

class InvoiceEntryDriver : public Driver {
 public:
  std::string Name() const override { return "InvoiceEntry"; }
  void Create(World& world) override {
    control_ = std::make_unique<InvoiceEntry>(world.surface, world.host, world.context);
    control_->ReadProperties(headless::MemoryPropertyBag());
    control_->SetDefaultGLAccount("5100");
  }
  void Destroy() override { control_.reset(); }
  std::string HostPut(Random& random) override {
    const int missing_row = HostError::Object(InvoiceEntry::kMissingRow, "", "").Number();
    const auto row = static_cast<std::int16_t>(static_cast<int>(random() % 8) - 1);
    switch (random() % 11) {
      case 0:
      case 1:
        return Put(
            [&] {
              const Variant gst = random() % 2 ? Variant(RandomAmount(random)) : Variant();
              control_->AddInvoice(RandomDate(random), RandomText(random, 40), RandomAmount(random), gst);
            },
            {kOverflow});
      case 2: return Put([&] { control_->SetBusinessMode(random() % 2 == 0); });
      case 3: return Put([&] { control_->ShowDistribution(); }, {WindowOpenRefusal()});
      case 4: return Put([&] { control_->DeleteCurrentRow(); });
      case 5: return Put([&] { control_->SetCurrentRow(row); });
      case 6:
        // A payment's currency is chosen before its invoices: the columns mean other things.
        return Put([&] {
          control_->Clear();
          control_->SetIPCurrency(random() % 2 ? "CAD" : "USD");
          control_->SetCurrencyRate(random() % 3 ? 1.35f : 0.0f);
          control_->SetupIPGrid();
        });
      case 7: return Put([&] { control_->SetEmailFilename(row, "a.pdf"); }, {missing_row});
      case 8: return Put([&] { control_->DeleteByEmailFilename(random() % 2 ? "A.PDF" : " "); });
      case 9: return Put([&] { control_->InvoiceValues(row); }, {missing_row});
      default:
        return Put([&] {
          std::string reason;
          bool incomplete = false;
          control_->IsDataValid(reason, incomplete);
        });
    }
  }
  std::string Check() override {
    const int rows = control_->RowCount();
    if (rows < 0 || rows > InvoiceStore::kMaxRows) return "RowCount out of range: " + std::to_string(rows);
    std::string broken = Put([&] {
      // Business totals are one exact subtraction apart: the net expense is never typed.
      if (control_->BusinessMode() && !control_->ForeignMode() &&
          control_->TotalExpense() != control_->TotalAmount() - control_->TotalGST()) {
        throw std::logic_error("TotalExpense " + control_->TotalExpense().ToString() + " is not TotalAmount " +
                               control_->TotalAmount().ToString() + " less TotalGST " + control_->TotalGST().ToString());
      }
      control_->InvoiceCount_DetailLines();
    }, {kOverflow});
    return broken;
  }

 private:
  std::unique_ptr<InvoiceEntry> control_;
};

const bool kRegistered = RegisterDriver("InvoiceEntry", [] { return std::make_unique<InvoiceEntryDriver>(); });

}  // namespace

}  // namespace zenta::monkey
