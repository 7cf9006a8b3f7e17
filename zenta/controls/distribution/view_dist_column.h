#pragma once

#include "zenta/platform/grid_column.h"

namespace zenta {

// The "View Dist" button column of the invoice and payment grids: each line's button opens the
// distribution window, and says so to the payer and to assistive tools.
platform::GridColumn ViewDistColumn(int width);

}  // namespace zenta
