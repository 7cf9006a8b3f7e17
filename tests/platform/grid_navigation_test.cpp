#include "zenta/platform/grid_navigation.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "zenta/platform/key_script.h"

namespace zenta::platform {
namespace {

struct NavigationCase {
  GridCell from;
  KeyDown key;
  std::optional<GridCell> to;
};

class GridNavigation : public ::testing::TestWithParam<NavigationCase> {};

// A grid of rows 1 to 3 and two columns, as the remittance items are laid out.
TEST_P(GridNavigation, MovesLikeEveryToolkitsGrid) {
  const auto& c = GetParam();
  EXPECT_EQ(NextGridCell(c.from, 1, 3, 2, c.key), c.to);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, GridNavigation,
    ::testing::Values(NavigationCase{{1, 0}, {keys::kTab, kNoShift}, GridCell{1, 1}},
                      NavigationCase{{1, 1}, {keys::kEnter, kNoShift}, GridCell{2, 0}},
                      NavigationCase{{3, 1}, {keys::kEnter, kNoShift}, GridCell{3, 1}},
                      NavigationCase{{3, 1}, {keys::kTab, kNoShift}, std::nullopt},
                      NavigationCase{{2, 0}, {keys::kTab, kShift}, GridCell{1, 1}},
                      NavigationCase{{1, 0}, {keys::kTab, kShift}, std::nullopt},
                      NavigationCase{{1, 1}, {keys::kUp, kNoShift}, GridCell{1, 1}},
                      NavigationCase{{1, 1}, {keys::kDown, kNoShift}, GridCell{2, 1}},
                      NavigationCase{{2, 1}, {'A', kNoShift}, std::nullopt}));

TEST(KeyScript, ReadsTheKeystrokesControlsInject) {
  auto keys = ParseKeyScript("{TAB}+{TAB}{ENTER}");
  ASSERT_EQ(keys.size(), 3u);
  EXPECT_EQ(keys[0].key_code, keys::kTab);
  EXPECT_EQ(keys[1].shift, kShift);
  EXPECT_EQ(keys[2].key_code, keys::kEnter);
  for (const char* bad : {"TAB", "{TAB", "{F9}", "+"}) EXPECT_THROW(ParseKeyScript(bad), std::invalid_argument) << bad;
}

}  // namespace
}  // namespace zenta::platform
