#include "zenta/platform/array_grid_source.h"

#include "zenta/core/host_error.h"

namespace zenta::platform {

int ArrayGridSource::FirstRow() const { return array_ ? array_->LowerBound(1) : 0; }
int ArrayGridSource::RowCount() const { return array_ ? array_->RowCount() : 0; }
int ArrayGridSource::ColumnCount() const { return array_ ? array_->ColumnCount() : 0; }

bool ArrayGridSource::Holds(int row, int column) const {
  return array_ && row >= FirstRow() && row < FirstRow() + RowCount() && column >= 0 && column < ColumnCount();
}

Variant ArrayGridSource::Cell(int row, int column) const {
  return Holds(row, column) ? array_->Get(row, array_->LowerBound(2) + column) : Variant();
}

void ArrayGridSource::WriteRow(int row, const std::map<int, Variant>& cells) {
  for (const auto& [column, value] : cells) {
    if (Holds(row, column)) array_->Set(row, array_->LowerBound(2) + column, value);
  }
}

int ArrayGridSource::AppendRow(const std::map<int, Variant>& cells) {
  if (!array_) throw HostError::InvalidProcedureCall("Grid");
  array_->AppendRows(1);
  const int row = array_->UpperBound(1);
  WriteRow(row, cells);
  return row;
}

void ArrayGridSource::DeleteRow(int row) {
  if (array_ && row >= FirstRow() && row < FirstRow() + RowCount()) array_->DeleteRows(row, 1);
}

}  // namespace zenta::platform
