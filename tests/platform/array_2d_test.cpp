#include "zenta/platform/array_2d.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>

#include "tests/error_number.h"

namespace zenta::platform {
namespace {

using test_support::ErrorNumberOf;

constexpr int kInvalidProcedureCall = 5;
constexpr int kOutOfMemory = 7;
constexpr int kSubscriptOutOfRange = 9;

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
  EXPECT_TRUE(lines.Get(1, 3).IsEmpty());
}

TEST(Array2D, ReDimEmptiesEveryCellAndTakesNewBounds) {
  Array2D lines(0, 1, 0, 3);
  lines.Set(1, 2, Variant("12.50"));
  lines.ReDim(1, 26, 0, 1);
  EXPECT_EQ(lines.LowerBound(1), 1);
  EXPECT_EQ(lines.RowCount(), 26);
  EXPECT_EQ(lines.ColumnCount(), 2);
  EXPECT_TRUE(lines.Get(1, 1).IsEmpty());
  EXPECT_EQ(ErrorNumberOf([&] { lines.ReDim(5, 3, 0, 1); }), kSubscriptOutOfRange);
  EXPECT_EQ(lines.RowCount(), 26);  // a refused ReDim leaves the array as it was
}

TEST(Array2D, RowsMoveWhenInsertedOrDeleted) {
  Array2D lines(0, 2, 0, 1);
  for (int row = 0; row <= 2; ++row) lines.Set(row, 1, Variant(row));
  lines.InsertRows(1, 1);
  EXPECT_TRUE(lines.Get(1, 1).IsEmpty());
  EXPECT_EQ(lines.Get(2, 1), Variant(1));
  lines.InsertRows(4, 1);  // just past the last row appends
  EXPECT_EQ(lines.UpperBound(1), 4);
  lines.DeleteRows(0, 2);
  EXPECT_EQ(lines.RowCount(), 3);
  EXPECT_EQ(lines.Get(0, 1), Variant(1));
  lines.DeleteRows(0, 3);
  EXPECT_EQ(lines.UpperBound(1), -1);
}

TEST(Array2D, OutOfRangeAccessIsAnErrorNotACrash) {
  Array2D items(1, 3, 0, 1);
  for (auto cell : {std::pair{0, 0}, {4, 0}, {1, 2}, {1, -1}, {INT_MIN, 0}, {INT_MAX, INT_MAX}}) {
    const int row = cell.first;
    const int column = cell.second;
    EXPECT_EQ(ErrorNumberOf([&] { items.Get(row, column); }), kSubscriptOutOfRange) << row << "," << column;
    EXPECT_EQ(ErrorNumberOf([&] { items.Set(row, column, Variant(1)); }), kSubscriptOutOfRange);
  }
  EXPECT_EQ(ErrorNumberOf([&] { items.UpperBound(3); }), kSubscriptOutOfRange);
  EXPECT_EQ(items.RowCount(), 3);
}

struct RowChange {
  const char* what;
  std::function<void(Array2D&)> change;
  int error;
};

class RefusedRowChange : public ::testing::TestWithParam<RowChange> {};

// Rows 1 to 3: every refused change raises its error and leaves the three rows alone.
TEST_P(RefusedRowChange, RaisesAndLeavesTheRows) {
  Array2D items(1, 3, 0, 1);
  EXPECT_EQ(ErrorNumberOf([&] { GetParam().change(items); }), GetParam().error);
  EXPECT_EQ(items.RowCount(), 3);
}

INSTANTIATE_TEST_SUITE_P(
    Array2D, RefusedRowChange,
    ::testing::Values(RowChange{"delete past the end", [](Array2D& a) { a.DeleteRows(2, 5); }, kSubscriptOutOfRange},
                      RowChange{"delete before the start", [](Array2D& a) { a.DeleteRows(0, 1); }, kSubscriptOutOfRange},
                      RowChange{"delete a huge count", [](Array2D& a) { a.DeleteRows(1, INT_MAX); }, kSubscriptOutOfRange},
                      RowChange{"insert beyond the end", [](Array2D& a) { a.InsertRows(5, 1); }, kSubscriptOutOfRange},
                      RowChange{"insert a negative count", [](Array2D& a) { a.InsertRows(1, -1); }, kInvalidProcedureCall},
                      RowChange{"append a negative count", [](Array2D& a) { a.AppendRows(-2); }, kInvalidProcedureCall},
                      RowChange{"delete a negative count", [](Array2D& a) { a.DeleteRows(1, -1); }, kInvalidProcedureCall},
                      RowChange{"append beyond memory", [](Array2D& a) { a.AppendRows(INT_MAX); }, kOutOfMemory},
                      RowChange{"re-dimension beyond memory", [](Array2D& a) { a.ReDim(INT_MIN, INT_MAX, 0, 1); },
                                kOutOfMemory}),
    [](const auto& test) {
      std::string name = test.param.what;
      for (char& c : name) c = c == ' ' || c == '-' ? '_' : c;
      return name;
    });

TEST(Array2D, AnUpperBoundAtTheEndOfIntCannotGrowPastIt) {
  Array2D items(INT_MAX - 1, INT_MAX, 0, 0);
  EXPECT_EQ(items.UpperBound(1), INT_MAX);
  EXPECT_EQ(ErrorNumberOf([&] { items.AppendRows(1); }), kOutOfMemory);
  EXPECT_EQ(items.RowCount(), 2);
  Array2D wide(0, 0, INT_MAX - 1, INT_MAX);
  EXPECT_EQ(wide.UpperBound(2), INT_MAX);
}

TEST(Array2D, AnEmptiedArrayAtTheSmallestIntHasNoUpperBound) {
  Array2D items(INT_MIN, INT_MIN, 0, 0);
  items.DeleteRows(INT_MIN, 1);
  EXPECT_EQ(items.RowCount(), 0);
  EXPECT_EQ(ErrorNumberOf([&] { (void)items.UpperBound(1); }), kSubscriptOutOfRange);
}

}  // namespace
}  // namespace zenta::platform
