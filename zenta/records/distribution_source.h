#pragma once

#include <cstddef>
#include <span>

#include "zenta/records/cls_distribution.h"

namespace zenta {

// Lines kept by their owner and never changed once shared: a collection made over them copies
// them in only when one is first reached, so handing out a record costs nothing per line.
class DistributionSource {
 public:
  virtual ~DistributionSource() = default;
  virtual std::size_t LineCount() const = 0;
  // Fills `into` (LineCount() elements) with the lines in order.
  virtual void CopyLines(std::span<clsDistribution> into) const = 0;
};

}  // namespace zenta
