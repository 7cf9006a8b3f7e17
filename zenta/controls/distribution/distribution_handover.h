#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "zenta/controls/distribution/frm_distribution.h"
#include "zenta/core/currency.h"
#include "zenta/platform/array_2d.h"
#include "zenta/platform/container_metrics.h"
#include "zenta/records/cls_distributions.h"

namespace zenta {

// Where the distribution window goes, in the host's twips: just below the payment row.
struct DialogPlacement {
  int left = 0;
  int top = 0;
};

// The whole outer-minus-scale difference of the form counts as its frame, and the window
// overlaps the row's lower edge by 20 twips. Raises Overflow rather than wrapping.
DialogPlacement PlaceBelowRow(const platform::ContainerMetrics& where, int first_row_top, int row_height);

// Over the control, its top-left on the control's, moved left and up as far as needed to keep
// a window of `width` x `height` inside the inner area of the form (the container, or the form
// holding it); a window larger than that area starts at its top-left. Raises Overflow rather
// than wrapping.
DialogPlacement PlaceOverControl(const platform::ContainerMetrics& where, int width, int height);

// The dialog's line table for a payment's lines: row i-1 holds line i (account in column 1,
// amount in column 2); a line of amount 0 leaves its row empty but still takes it. At least
// five rows.
std::shared_ptr<platform::Array2D> LinesForDialog(const clsDistributions& lines);

// The accepted table back into `lines`: cleared, then one line per row whose amount is not
// empty, in row order, with no key.
void CopyLinesBack(const platform::Array2D& table, clsDistributions& lines, int amount_column = 2);

Currency SumOfLines(const clsDistributions& lines);

// The window's line grid as the grid controls show it: account and amount on pale green, rows
// on light grey and white.
void StyleDialogLines(platform::GridEngine& lines);

// In the window's foreign-currency layout: each row's amount moves to the Canadian column (3)
// and column 2 takes the foreign amount of `foreign` (by row), or the amount converted at the
// window's rate when none is known. Nothing changes outside that layout.
void ToForeignLayout(const FrmDistribution& dialog, platform::Array2D& table, const std::vector<std::optional<Currency>>& foreign);

// The foreign amounts (column 2) of the rows CopyLinesBack keeps, in the same order; empty
// outside the foreign-currency layout.
std::vector<std::optional<Currency>> ForeignAmountsBack(const FrmDistribution& dialog, const platform::Array2D& table);

// A distribution opened for the first time proposes the whole amount on the default account.
void ProposeWholeAmount(FrmDistribution& dialog, platform::Array2D& table, const std::string& account, Currency amount);

}  // namespace zenta
