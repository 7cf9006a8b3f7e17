#pragma once

#include <vector>

#include "zenta/core/variant.h"

namespace zenta::platform {

// The two-dimensional table that grids display directly and that controls share by reference:
// dimension 1 is rows, dimension 2 columns, each with its own lower and upper bound. A new
// array has no rows (UpperBound(1) == LowerBound(1) - 1). Cells are Variants, empty at first.
// Out-of-range access raises HostError::SubscriptOutOfRange.
class Array2D {
 public:
  Array2D() = default;
  Array2D(int row_lower, int row_upper, int column_lower, int column_upper);

  // Re-dimensions and empties every cell.
  void ReDim(int row_lower, int row_upper, int column_lower, int column_upper);
  int LowerBound(int dimension) const;
  int UpperBound(int dimension) const;
  int RowCount() const { return static_cast<int>(rows_.size()); }
  int ColumnCount() const { return column_count_; }

  const Variant& Get(int row, int column) const;
  void Set(int row, int column, Variant value);

  // New empty rows at the end, or before `row`; later rows move down.
  void AppendRows(int count);
  void InsertRows(int row, int count);
  void DeleteRows(int row, int count);

 private:
  std::size_t Index(int row, int column) const;
  int row_lower_ = 0;
  int column_lower_ = 0;
  int column_count_ = 0;
  std::vector<std::vector<Variant>> rows_;
};

}  // namespace zenta::platform
