#include "zenta/platform/array_2d.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "zenta/core/host_error.h"

namespace zenta::platform {

namespace {
constexpr const char* kSource = "Array2D";
// Far beyond any table a payment screen shows; refusing more keeps a bad bound from exhausting
// memory. Bounds are checked in 64 bits so that extreme ints cannot wrap.
constexpr std::int64_t kMaxCells = std::int64_t{1} << 22;

HostError OutOfMemory() { return HostError(7, kSource, "Out of memory"); }

std::int64_t Count(int lower, int upper) {
  std::int64_t count = std::int64_t{upper} - lower + 1;
  if (count < 0) throw HostError::SubscriptOutOfRange(kSource);
  return count;
}

void InsertEmptyRows(std::vector<std::vector<Variant>>& rows, std::int64_t at, int count, int row_lower, int columns) {
  if (count < 0) throw HostError::InvalidProcedureCall(kSource);
  // The upper bound must stay an int, and the table within its size limit.
  const std::int64_t total = static_cast<std::int64_t>(rows.size()) + count;
  if (row_lower + total - 1 > std::numeric_limits<int>::max() || total * std::max(columns, 1) > kMaxCells) {
    throw OutOfMemory();
  }
  rows.insert(rows.begin() + at, static_cast<std::size_t>(count), std::vector<Variant>(static_cast<std::size_t>(columns)));
}
}  // namespace

Array2D::Array2D(int row_lower, int row_upper, int column_lower, int column_upper) {
  ReDim(row_lower, row_upper, column_lower, column_upper);
}

void Array2D::ReDim(int row_lower, int row_upper, int column_lower, int column_upper) {
  const std::int64_t rows = Count(row_lower, row_upper);
  const std::int64_t columns = Count(column_lower, column_upper);
  if (rows * columns > kMaxCells || rows > kMaxCells || columns > kMaxCells) throw OutOfMemory();
  row_lower_ = row_lower;
  column_lower_ = column_lower;
  column_count_ = static_cast<int>(columns);
  rows_.assign(static_cast<std::size_t>(rows), std::vector<Variant>(static_cast<std::size_t>(column_count_)));
}

int Array2D::LowerBound(int dimension) const {
  if (dimension == 1) return row_lower_;
  if (dimension == 2) return column_lower_;
  throw HostError::SubscriptOutOfRange(kSource);
}

int Array2D::UpperBound(int dimension) const {
  // In 64 bits: lower + count can pass the largest int although the bound itself fits, and
  // an empty dimension starting at the smallest int has no upper bound an int can hold.
  std::int64_t upper = 0;
  if (dimension == 1) {
    upper = std::int64_t{row_lower_} + RowCount() - 1;
  } else if (dimension == 2) {
    upper = std::int64_t{column_lower_} + column_count_ - 1;
  } else {
    throw HostError::SubscriptOutOfRange(kSource);
  }
  if (upper < std::numeric_limits<int>::min()) throw HostError::SubscriptOutOfRange(kSource);
  return static_cast<int>(upper);
}

std::size_t Array2D::Index(int row, int column) const {
  const std::int64_t r = std::int64_t{row} - row_lower_;
  const std::int64_t c = std::int64_t{column} - column_lower_;
  if (r < 0 || r >= RowCount() || c < 0 || c >= column_count_) throw HostError::SubscriptOutOfRange(kSource);
  return static_cast<std::size_t>(r);
}

const Variant& Array2D::Get(int row, int column) const {
  return rows_[Index(row, column)][static_cast<std::size_t>(column - column_lower_)];
}

void Array2D::Set(int row, int column, Variant value) {
  rows_[Index(row, column)][static_cast<std::size_t>(column - column_lower_)] = std::move(value);
}

void Array2D::AppendRows(int count) { InsertEmptyRows(rows_, RowCount(), count, row_lower_, column_count_); }

void Array2D::InsertRows(int row, int count) {
  const std::int64_t at = std::int64_t{row} - row_lower_;
  if (count >= 0 && (at < 0 || at > RowCount())) throw HostError::SubscriptOutOfRange(kSource);
  InsertEmptyRows(rows_, at, count, row_lower_, column_count_);
}



void Array2D::DeleteRows(int row, int count) {
  if (count < 0) throw HostError::InvalidProcedureCall(kSource);
  const std::int64_t at = std::int64_t{row} - row_lower_;
  if (at < 0 || at + count > RowCount()) throw HostError::SubscriptOutOfRange(kSource);
  auto first = rows_.begin() + at;
  rows_.erase(first, first + count);
}

}  // namespace zenta::platform
