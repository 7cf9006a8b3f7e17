#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "zenta/core/currency.h"
#include "zenta/core/variant.h"
#include "zenta/records/distribution_source.h"

namespace zenta {

// One G/L line of an invoice's distribution, as the distribution window hands it back.
struct InvoiceLine {
  Variant ID;
  std::string GLAccount;
  Currency Amount;  // Canadian dollars for a foreign-currency invoice
  // A foreign-currency invoice's line in the invoice's currency, as typed or converted.
  std::optional<Currency> Foreign;
};

// An invoice's lines as the store keeps them: never changed once set (new lines take a new
// block), so records handed to the host share them instead of copying.
class InvoiceLineBlock final : public DistributionSource {
 public:
  explicit InvoiceLineBlock(std::vector<InvoiceLine> lines) : lines_(std::move(lines)) {}

  const std::vector<InvoiceLine>& Lines() const { return lines_; }

  std::size_t LineCount() const override { return lines_.size(); }
  void CopyLines(std::span<clsDistribution> into) const override {
    for (std::size_t i = 0; i < lines_.size() && i < into.size(); ++i) {
      into[i].ID = lines_[i].ID;
      into[i].GLAccount = lines_[i].GLAccount;
      into[i].Amount = lines_[i].Amount;
    }
  }

 private:
  std::vector<InvoiceLine> lines_;
};

}  // namespace zenta
