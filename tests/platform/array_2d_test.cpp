#include "zenta/platform/array_2d.h"

#include <gtest/gtest.h>

#include "zenta/core/host_error.h"

namespace zenta::platform {
namespace {

TEST(Array2D, KeepsItsOwnBoundsPerDimension) {
  Array2D items(1, 12, 0, 1);
  EXPECT_EQ(items.LowerBound(1), 1);
  EXPECT_EQ(items.UpperBound(1), 12);
  EXPECT_EQ(items.UpperBound(2), 1);
  EXPECT_TRUE(items.Get(12, 1).IsEmpty());
  items.Set(12, 1, Variant("45.5"));
  EXPECT_EQ(items.Get(12, 1), Variant("45.5"));
}

TEST(Array2D, AnEmptyArrayHasAnUpperBoundBelowItsLowerBound) {
  Array2D empty;
  EXPECT_EQ(empty.UpperBound(1), -1);
  Array2D lines(0, -1, 0, 3);
  EXPECT_EQ(lines.RowCount(), 0);
  lines.AppendRows(2);
  EXPECT_EQ(lines.UpperBound(1), 1);
}

TEST(Array2D, RowsMoveWhenInsertedOrDeleted) {
  Array2D lines(0, 2, 0, 1);
  for (int row = 0; row <= 2; ++row) lines.Set(row, 1, Variant(row));
  lines.InsertRows(1, 1);
  EXPECT_TRUE(lines.Get(1, 1).IsEmpty());
  EXPECT_EQ(lines.Get(2, 1), Variant(1));
  lines.DeleteRows(0, 2);
  EXPECT_EQ(lines.RowCount(), 2);
  EXPECT_EQ(lines.Get(0, 1), Variant(1));
}

TEST(Array2D, OutOfRangeAccessIsAnErrorNotACrash) {
  Array2D items(1, 3, 0, 1);
  for (auto [row, column] : {std::pair{0, 0}, {4, 0}, {1, 2}, {1, -1}}) {
    EXPECT_THROW(items.Get(row, column), HostError) << row << "," << column;
    EXPECT_THROW(items.Set(row, column, Variant(1)), HostError);
  }
  EXPECT_THROW(items.DeleteRows(2, 5), HostError);
  EXPECT_THROW(items.UpperBound(3), HostError);
  EXPECT_EQ(items.RowCount(), 3);
}

}  // namespace
}  // namespace zenta::platform
