#include "zenta/platform/grid_navigation.h"

namespace zenta::platform {

std::optional<GridCell> NextGridCell(GridCell from, int first_row, int last_row, int columns, const KeyDown& key) {
  if (key.key_code == keys::kUp) return GridCell{from.row > first_row ? from.row - 1 : from.row, from.column};
  if (key.key_code == keys::kDown) return GridCell{from.row < last_row ? from.row + 1 : from.row, from.column};
  if (key.key_code != keys::kEnter && key.key_code != keys::kTab) return std::nullopt;
  const bool tab = key.key_code == keys::kTab;
  if ((key.shift & kShift) != 0) {
    if (from.column > 0) return GridCell{from.row, from.column - 1};
    if (from.row > first_row) return GridCell{from.row - 1, columns - 1};
    return tab ? std::nullopt : std::optional<GridCell>(from);
  }
  if (from.column + 1 < columns) return GridCell{from.row, from.column + 1};
  if (from.row < last_row) return GridCell{from.row + 1, 0};
  return tab ? std::nullopt : std::optional<GridCell>(from);  // Enter stays in the last cell
}

}  // namespace zenta::platform
