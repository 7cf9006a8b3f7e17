#include "zenta/platform/headless/grid_widget.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

using ::testing::ElementsAre;

// The editing rules are the engine's and tested there; these check that the form's keys,
// focus and posted queue reach it as a person's would. Rows 1 to 3, two columns.
class GridWidgetTest : public ::testing::Test {
 protected:
  Form form;
  Surface& surface = form.AddSurface("control");
  platform::TextBox& before = surface.AddTextBox({"before"});
  platform::Grid& grid = surface.AddGrid({"grid", {100, 200, 3000, 1500}}, 2);
  platform::TextBox& after = surface.AddTextBox({"after"});
  platform::GridEngine& engine = grid.Engine();
  User user{form};
  std::shared_ptr<platform::Array2D> array = std::make_shared<platform::Array2D>(1, 3, 0, 1);

  void SetUp() override { engine.Bind(array); }
};

TEST_F(GridWidgetTest, TypedKeysEditTheCellAndTabWalksTheCellsThenLeaves) {
  user.Click(grid);
  user.Type("12\t34\r");
  EXPECT_EQ(engine.CurrentRow(), 2);
  EXPECT_EQ(array->Get(1, 0), Variant("12"));
  EXPECT_EQ(array->Get(1, 1), Variant("34"));
  user.Click(before);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &grid);
  for (int i = 0; i < 3; ++i) user.PressTab();
  EXPECT_EQ(form.Focused(), &grid);
  EXPECT_EQ(engine.CurrentRow(), 3);
  EXPECT_EQ(engine.CurrentColumn(), 1);
  user.Type("9\t");  // the last cell: Tab leaves, and leaving stores the row
  EXPECT_EQ(form.Focused(), &after);
  EXPECT_EQ(array->Get(3, 1), Variant("9"));
}

TEST_F(GridWidgetTest, TabIntoTheGridPassesOverAColumnWithoutATabStop) {
  engine.SetColumnTabStop(0, false);
  engine.SetColumnLocked(0, true);
  user.Click(before);
  user.PressTab();
  EXPECT_EQ(engine.CurrentColumn(), 1);
  user.Type("5");
  EXPECT_EQ(engine.CellText(1), "5");
}

TEST_F(GridWidgetTest, PostedMessagesRunAfterTheUsersActionAndAfterInjectedKeys) {
  std::vector<std::string> log;
  engine.Handlers().after_col_update = [&](int) {
    engine.PostMessage(10);
    log.push_back("stored");
  };
  engine.Handlers().posted = [&](int message) { log.push_back("posted " + std::to_string(message)); };
  user.Click(grid);
  user.Type("1");
  EXPECT_TRUE(log.empty());
  user.PressEnter();
  EXPECT_THAT(log, ElementsAre("stored", "posted 10"));
  engine.PostMessage(11);
  form.RunPosted();
  EXPECT_THAT(log, ElementsAre("stored", "posted 10", "posted 11"));
}

TEST_F(GridWidgetTest, PostsThatKeepPostingAreStopped) {
  engine.Handlers().posted = [&](int message) { engine.PostMessage(message); };
  engine.PostMessage(1);
  EXPECT_THROW(form.RunPosted(), std::logic_error);
}

TEST_F(GridWidgetTest, ClickingAButtonCellClicksIt) {
  engine.SetColumnKind(1, platform::ColumnKind::Button);
  std::vector<int> rows;
  engine.Handlers().button_click = [&](int) { rows.push_back(*engine.CurrentRow()); };
  user.ClickCell(grid, 2, 1);
  user.Type(" ");
  EXPECT_THAT(rows, ElementsAre(2, 2));
  EXPECT_EQ(form.Focused(), &grid);
}

}  // namespace
}  // namespace zenta::headless
