#include "zenta/controls/distribution/distribution_handover.h"

#include <gtest/gtest.h>

#include "zenta/core/host_error.h"

namespace zenta {
namespace {

using platform::ContainerMetrics;

struct PlacementCase {
  const char* name;
  ContainerMetrics where;
  int left;
  int top;
};

class Placement : public ::testing::TestWithParam<PlacementCase> {};

TEST_P(Placement, PutsTheWindowJustBelowThePaymentRow) {
  const PlacementCase& c = GetParam();
  const DialogPlacement place = PlaceBelowRow(c.where, 285, 255);
  EXPECT_EQ(place.left, c.left);
  EXPECT_EQ(place.top, c.top);
}

// A form at (1000, 2000), 9000 x 7000 outside and 8880 x 6600 inside: its whole frame (120
// across, 400 down) is added.
constexpr platform::WindowMetrics kForm{1000, 2000, 9000, 7000, 8880, 6600};

INSTANTIATE_TEST_SUITE_P(
    Table, Placement,
    ::testing::Values(
        PlacementCase{"OnTheForm", {300, 500, kForm, true, {}}, 1000 + 300 + 120, 2000 + 500 + 400 + 285 + 255 - 20},
        // On a frame at (200, 150) of that form: the frame's own size counts for nothing.
        PlacementCase{"InAFrame",
                      {300, 500, {200, 150, 5000, 3000, 4950, 2900}, false, kForm},
                      200 + 300 + 1000 + 120,
                      150 + 500 + 2000 + 400 + 285 + 255 - 20}),
    [](const auto& param_info) { return std::string(param_info.param.name); });

TEST(PlacementOverControl, StaysOnTheControlUnlessThatLeavesTheFormsInnerArea) {
  // The form's inner area runs from (1120, 2400) to (10000, 9000).
  ContainerMetrics where{300, 500, kForm, true, {}};
  DialogPlacement place = PlaceOverControl(where, 5000, 3000);
  EXPECT_EQ(place.left, 1000 + 120 + 300);
  EXPECT_EQ(place.top, 2000 + 400 + 500);
  where.control_left = 6000;
  where.control_top = 5000;
  place = PlaceOverControl(where, 5000, 3000);
  EXPECT_EQ(place.left, 10000 - 5000);
  EXPECT_EQ(place.top, 9000 - 3000);
  // Larger than the area: its top-left corner.
  place = PlaceOverControl(where, 20000, 20000);
  EXPECT_EQ(place.left, 1120);
  EXPECT_EQ(place.top, 2400);
  // In a frame, the form's area still bounds it.
  where = {300, 500, {200, 150, 5000, 3000, 4950, 2900}, false, kForm};
  place = PlaceOverControl(where, 9000, 1000);
  EXPECT_EQ(place.left, 1120);
  EXPECT_EQ(place.top, 150 + 500 + 2000 + 400);
}

TEST(PlacementLimits, OverflowRaisesRatherThanWrapping) {
  ContainerMetrics where;
  where.container = {2'147'483'000, 0, 1000, 0, 0, 0};
  where.control_left = 1000;
  EXPECT_THROW(PlaceBelowRow(where, 0, 0), HostError);
  EXPECT_THROW(PlaceOverControl(where, 0, 0), HostError);
}

TEST(LinesForDialog, ZeroAmountLinesKeepTheirRowEmptyAndFiveRowsAtLeast) {
  clsDistributions lines;
  lines.Add(Variant(), "5100", Currency::FromText("60"));
  lines.Add(Variant(), "5150", Currency());
  lines.Add(Variant(), "5200", Currency::FromText("40"));
  const auto table = LinesForDialog(lines);
  ASSERT_EQ(table->RowCount(), 5);
  EXPECT_EQ(table->Get(0, 1), Variant("5100"));
  EXPECT_TRUE(table->Get(1, 1).IsEmpty());
  EXPECT_TRUE(table->Get(1, 2).IsEmpty());
  EXPECT_EQ(table->Get(2, 2).ToCurrency(), Currency::FromText("40"));

  for (int i = 0; i < 6; ++i) lines.Add(Variant(), "6000", Currency::FromText("1"));
  EXPECT_EQ(LinesForDialog(lines)->RowCount(), 9);
}

TEST(CopyLinesBack, ReplacesEveryLineWithTheRowsThatHoldAnAmount) {
  clsDistributions lines;
  lines.Add(Variant(), "OLD", Currency::FromText("1"), "kept-key");
  platform::Array2D table(0, 3, 0, 3);
  table.Set(0, 1, Variant("5100"));
  table.Set(0, 2, Variant("60.00"));
  table.Set(1, 1, Variant("NO AMOUNT"));
  table.Set(2, 2, Variant(Currency::FromText("40")));  // an amount without an account still counts
  table.Set(3, 2, Variant(""));
  CopyLinesBack(table, lines);
  ASSERT_EQ(lines.Count(), 2);
  EXPECT_EQ(lines.Item(Variant(1))->GLAccount, "5100");
  EXPECT_EQ(lines.Item(Variant(1))->Amount, Currency::FromText("60"));
  EXPECT_EQ(lines.Item(Variant(2))->GLAccount, "");
  EXPECT_EQ(SumOfLines(lines), Currency::FromText("100"));
}

}  // namespace
}  // namespace zenta
