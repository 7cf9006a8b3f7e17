#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

using ::testing::ElementsAre;

class GridWidgetTest : public ::testing::Test {
 protected:
  Form form;
  Surface& surface = form.AddSurface("control");
  platform::Grid& grid = surface.AddGrid({"grid"}, 2);
  platform::NumberEdit& editor = surface.AddGridEditor({"editor"}, grid, 1);
  platform::TextBox& after = surface.AddTextBox({"after"});
  User user{form};
  std::shared_ptr<platform::Array2D> array = std::make_shared<platform::Array2D>(1, 3, 0, 1);
  std::vector<std::string> log;

  void SetUp() override {
    grid.Bind(array);
    user.Click(grid);
    grid.SetCurrentColumn(1);
  }
};

TEST_F(GridWidgetTest, TheEditorTakesTheKeysAndEnterWritesTheCellBack) {
  editor.OnFocusGained([&] { log.push_back("editor gained on row " + std::to_string(*grid.CurrentRow())); });
  editor.OnFocusLost([&] { log.push_back("editor lost, cell " + grid.CellText(1) + ", active " + surface.ActiveChildName()); });
  grid.OnKeyDown([&](platform::KeyDown& key) {
    if (key.key_code == platform::keys::kEnter) log.push_back("grid key 13");
  });
  user.Type("12");
  EXPECT_EQ(form.Focused(), &editor);
  EXPECT_TRUE(grid.IsEditing());
  EXPECT_EQ(grid.CellText(1), "12");
  user.PressEnter();
  EXPECT_THAT(log, ElementsAre("editor gained on row 1", "editor lost, cell 12, active grid", "grid key 13"));
  EXPECT_EQ(array->Get(1, 1), Variant("12"));
  EXPECT_EQ(*grid.CurrentRow(), 2);  // the grid's own navigation: next row, first column
  EXPECT_EQ(grid.CurrentColumn(), 0);
}

TEST_F(GridWidgetTest, TheKeyFilterSeesEveryKeyTypedIntoTheEditor) {
  grid.OnKeyPress([](platform::KeyPress& press) {
    if (press.key == U'9') press.key = 0;
  });
  user.Type("19293");
  EXPECT_EQ(editor.Text(), "123");
}

TEST_F(GridWidgetTest, CellWritesArePendingUntilCommitted) {
  grid.SetCellText(0, "A-01");
  EXPECT_EQ(grid.CellText(0), "A-01");
  EXPECT_TRUE(array->Get(1, 0).IsEmpty());
  grid.CommitRow();
  EXPECT_EQ(array->Get(1, 0), Variant("A-01"));
}

TEST_F(GridWidgetTest, RowChangesNotifyAndARebindKeepsTheRow) {
  int changes = 0;
  grid.OnRowChange([&] { ++changes; });
  grid.SetCurrentRow(3);
  grid.SetCurrentRow(3);
  grid.SetCurrentRow(9);  // no such row
  EXPECT_EQ(changes, 1);
  grid.Rebind();
  EXPECT_EQ(*grid.CurrentRow(), 3);
  array->DeleteRows(2, 2);
  grid.Rebind();
  EXPECT_EQ(*grid.CurrentRow(), 1);
}

TEST_F(GridWidgetTest, TabFromTheLastCellLeavesTheGrid) {
  grid.SetCurrentRow(3);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &after);
}

}  // namespace
}  // namespace zenta::headless
