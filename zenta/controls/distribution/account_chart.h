#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "zenta/platform/array_2d.h"
#include "zenta/records/chart_of_accounts.h"

namespace zenta {

// What the distribution window makes of the host's chart of accounts: the name shown beside an
// account, the mark on one the chart does not hold, and the strict check at Accept. Without a
// chart every account is free text and nothing is said about it.
class AccountChart {
 public:
  struct Note {
    std::string text;
    bool warning = false;
  };
  struct Refusal {
    int row = 0;  // in the line table
    std::string message;
  };

  static constexpr const char* kUnknownNote = "Not in the chart of accounts";

  const std::shared_ptr<const ChartOfAccounts>& Chart() const { return chart_; }
  void SetChart(std::shared_ptr<const ChartOfAccounts> chart) { chart_ = std::move(chart); }
  bool HasChart() const { return chart_ && !chart_->Empty(); }
  bool Strict() const { return strict_; }
  void SetStrict(bool strict) { strict_ = strict; }

  // "6200 TRAVEL" for a known account, a warning for an unknown or inactive one, nothing for
  // an empty cell or without a chart.
  Note NoteFor(std::string_view account) const;
  // In strict mode, the first line whose account the chart does not hold or holds inactive.
  std::optional<Refusal> StrictRefusal(const platform::Array2D& table, int account_column) const;

 private:
  std::shared_ptr<const ChartOfAccounts> chart_;
  bool strict_ = false;
};

}  // namespace zenta
