#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zenta/controls/distribution/account_chart.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/keys.h"

namespace zenta {

// Completion in an account cell: while the payer types, the chart's accounts matching the text
// (by number prefix or by words of the name) are offered under the cell. Down and Up move the
// mark, Enter or Tab take the marked offer and then move on as they always do, Escape closes
// the offers. Nothing is marked until the payer presses Down, so typing an account and
// pressing Tab stores what was typed, as it would without a chart.
class AccountCompletion {
 public:
  AccountCompletion(platform::Grid& grid, const AccountChart& chart) : grid_(grid), chart_(chart) {}

  // The account cell's text changed while typing.
  void Update(const std::string& typed);
  void Hide();
  bool Showing() const { return !offers_.empty(); }
  // Sees a key-down in the grid first. Returns the account number to put in the cell when the
  // key takes an offer; a key that only moves the mark or closes the offers is consumed.
  std::optional<std::string> HandleKey(platform::KeyDown& key);
  // The account number of offer `offer`, the offers then closed.
  std::optional<std::string> Take(int offer);

 private:
  void Show();

  platform::Grid& grid_;
  const AccountChart& chart_;
  std::vector<const GLAccount*> offers_;
  int current_ = -1;
};

}  // namespace zenta
