#include "zenta/platform/grid_navigation.h"

namespace zenta::platform {

namespace {
std::optional<int> NextStop(const std::vector<bool>& stops, int after) {
  for (int c = after + 1; c < static_cast<int>(stops.size()); ++c) {
    if (stops[static_cast<std::size_t>(c)]) return c;
  }
  return std::nullopt;
}

std::optional<int> PreviousStop(const std::vector<bool>& stops, int before) {
  for (int c = before - 1; c >= 0; --c) {
    if (stops[static_cast<std::size_t>(c)]) return c;
  }
  return std::nullopt;
}
}  // namespace

std::optional<GridCell> NextGridCell(GridCell from, int first_row, int last_row, int columns, const KeyDown& key) {
  return NextGridCell(from, first_row, last_row, std::vector<bool>(static_cast<std::size_t>(columns > 0 ? columns : 0), true),
                      key);
}

std::optional<GridCell> NextGridCell(GridCell from, int first_row, int last_row, const std::vector<bool>& stops,
                                     const KeyDown& key) {
  if (key.key_code == keys::kUp) return GridCell{from.row > first_row ? from.row - 1 : from.row, from.column};
  if (key.key_code == keys::kDown) return GridCell{from.row < last_row ? from.row + 1 : from.row, from.column};
  if (key.key_code != keys::kEnter && key.key_code != keys::kTab) return std::nullopt;
  const bool tab = key.key_code == keys::kTab;
  // Ctrl+Tab and Ctrl+Shift+Tab leave the grid from any cell: the way out of a widget that
  // keeps Tab for itself.
  if (tab && (key.shift & kCtrl) != 0) return std::nullopt;
  const int width = static_cast<int>(stops.size());
  if ((key.shift & kShift) != 0) {
    if (auto column = PreviousStop(stops, from.column)) return GridCell{from.row, *column};
    if (from.row > first_row) {
      if (auto column = PreviousStop(stops, width)) return GridCell{from.row - 1, *column};
    }
  } else {
    if (auto column = NextStop(stops, from.column)) return GridCell{from.row, *column};
    if (from.row < last_row) {
      if (auto column = NextStop(stops, -1)) return GridCell{from.row + 1, *column};
    }
  }
  return tab ? std::nullopt : std::optional<GridCell>(from);  // Enter stays in the last cell
}

}  // namespace zenta::platform
