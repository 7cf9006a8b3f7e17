#pragma once

#include <optional>
#include <vector>

#include "zenta/platform/keys.h"

namespace zenta::platform {

// Where a grid's own Enter/Tab/arrow navigation goes from a cell, shared by every toolkit so
// grids move alike everywhere. Rows are bookmarks (first_row..last_row), columns 0..columns-1.
// nullopt means the key is not the grid's: Tab from the last cell (or Shift+Tab from the first)
// leaves the grid, and other keys are not navigation.
struct GridCell {
  int row = 0;
  int column = 0;
  friend bool operator==(const GridCell&, const GridCell&) = default;
};

namespace keys {
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kDelete = 46;
}  // namespace keys

std::optional<GridCell> NextGridCell(GridCell from, int first_row, int last_row, int columns, const KeyDown& key);

// As above, over columns where stops[c] says whether Enter and Tab may land on column c
// (hidden columns and those without a tab stop are passed over). With no stop at all, Enter
// stays and Tab leaves.
std::optional<GridCell> NextGridCell(GridCell from, int first_row, int last_row, const std::vector<bool>& stops,
                                     const KeyDown& key);

}  // namespace zenta::platform
