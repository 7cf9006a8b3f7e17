#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "zenta/controls/distribution/distribution_model.h"
#include "zenta/platform/host_services.h"

namespace zenta {

// G/L lines pasted into the distribution window's table: account and amount cells from the
// current column rightwards, each through the cell rules a typed one meets, amounts read as
// values (never cents) and converted as typed ones are. Refused lines are left out whole.
class DistributionPaste {
 public:
  struct Outcome {
    int added = 0;
    std::optional<int> last_row;  // the last line added
    std::string refused;          // one message listing refused lines, empty when none
  };

  static Outcome Paste(DistributionModel& model, const platform::HostServices& host, std::string_view text,
                       int current_column);
};

}  // namespace zenta
