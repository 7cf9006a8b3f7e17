#pragma once

#include <map>

#include "zenta/core/variant.h"

namespace zenta::platform {

// Where a grid's rows come from. Rows are addressed by bookmark: FirstRow() .. FirstRow() +
// RowCount() - 1. A bound grid uses ArrayGridSource; a control that keeps its own store
// (unbound mode) implements this interface over it. Writes reach the source only when the
// grid stores a row, never while a cell is being typed.
class GridSource {
 public:
  virtual ~GridSource() = default;

  virtual int FirstRow() const = 0;
  virtual int RowCount() const = 0;
  virtual int ColumnCount() const = 0;
  // An unset cell reads as an empty Variant.
  virtual Variant Cell(int row, int column) const = 0;

  // Stores the changed cells of an existing row.
  virtual void WriteRow(int row, const std::map<int, Variant>& cells) = 0;
  // Adds a row after the last one, holding `cells`; returns its bookmark.
  virtual int AppendRow(const std::map<int, Variant>& cells) = 0;
  virtual void DeleteRow(int row) = 0;
};

}  // namespace zenta::platform
