#pragma once

#include <memory>

#include "zenta/platform/array_2d.h"
#include "zenta/platform/grid_source.h"

namespace zenta::platform {

// A grid source straight over an Array2D shared with the control: bookmarks are array rows,
// grid column c is array column LowerBound(2) + c. Nothing is copied; the array may be changed
// behind the grid's back, and the grid shows it after Rebind().
class ArrayGridSource : public GridSource {
 public:
  explicit ArrayGridSource(std::shared_ptr<Array2D> array) : array_(std::move(array)) {}

  const std::shared_ptr<Array2D>& Array() const { return array_; }

  int FirstRow() const override;
  int RowCount() const override;
  int ColumnCount() const override;
  Variant Cell(int row, int column) const override;
  void WriteRow(int row, const std::map<int, Variant>& cells) override;
  int AppendRow(const std::map<int, Variant>& cells) override;
  void DeleteRow(int row) override;

 private:
  bool Holds(int row, int column) const;
  std::shared_ptr<Array2D> array_;
};

}  // namespace zenta::platform
