#include "zenta/platform/array_2d.h"

#include "zenta/core/host_error.h"

namespace zenta::platform {

namespace {
constexpr const char* kSource = "Array2D";
}

Array2D::Array2D(int row_lower, int row_upper, int column_lower, int column_upper) {
  ReDim(row_lower, row_upper, column_lower, column_upper);
}

void Array2D::ReDim(int row_lower, int row_upper, int column_lower, int column_upper) {
  if (row_upper < row_lower - 1 || column_upper < column_lower - 1) throw HostError::SubscriptOutOfRange(kSource);
  row_lower_ = row_lower;
  column_lower_ = column_lower;
  column_count_ = column_upper - column_lower + 1;
  rows_.assign(static_cast<std::size_t>(row_upper - row_lower + 1),
               std::vector<Variant>(static_cast<std::size_t>(column_count_)));
}

int Array2D::LowerBound(int dimension) const {
  if (dimension == 1) return row_lower_;
  if (dimension == 2) return column_lower_;
  throw HostError::SubscriptOutOfRange(kSource);
}

int Array2D::UpperBound(int dimension) const {
  if (dimension == 1) return row_lower_ + RowCount() - 1;
  if (dimension == 2) return column_lower_ + column_count_ - 1;
  throw HostError::SubscriptOutOfRange(kSource);
}

std::size_t Array2D::Index(int row, int column) const {
  if (row < row_lower_ || row >= row_lower_ + RowCount() || column < column_lower_ ||
      column >= column_lower_ + column_count_) {
    throw HostError::SubscriptOutOfRange(kSource);
  }
  return static_cast<std::size_t>(row - row_lower_);
}

const Variant& Array2D::Get(int row, int column) const {
  return rows_[Index(row, column)][static_cast<std::size_t>(column - column_lower_)];
}

void Array2D::Set(int row, int column, Variant value) {
  rows_[Index(row, column)][static_cast<std::size_t>(column - column_lower_)] = std::move(value);
}

void Array2D::AppendRows(int count) {
  if (count < 0) throw HostError::InvalidProcedureCall(kSource);
  rows_.resize(rows_.size() + static_cast<std::size_t>(count), std::vector<Variant>(static_cast<std::size_t>(column_count_)));
}

void Array2D::InsertRows(int row, int count) {
  if (count < 0 || row < row_lower_ || row > row_lower_ + RowCount()) throw HostError::SubscriptOutOfRange(kSource);
  rows_.insert(rows_.begin() + (row - row_lower_), static_cast<std::size_t>(count),
               std::vector<Variant>(static_cast<std::size_t>(column_count_)));
}

void Array2D::DeleteRows(int row, int count) {
  if (count < 0 || row < row_lower_ || row - row_lower_ + count > RowCount()) throw HostError::SubscriptOutOfRange(kSource);
  auto first = rows_.begin() + (row - row_lower_);
  rows_.erase(first, first + count);
}

}  // namespace zenta::platform
