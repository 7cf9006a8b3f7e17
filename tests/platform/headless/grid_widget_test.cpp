#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::headless {
namespace {

using ::testing::ElementsAre;

// Rows 1 to 3, a text column 0 typed into the cell, an amount column 1 with an in-cell editor.
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
  EXPECT_EQ(surface.ActiveChild(), &editor);
  EXPECT_TRUE(grid.IsEditing());
  EXPECT_EQ(grid.CellText(1), "12");
  EXPECT_EQ(grid.DisplayedText(1, 1), "12");
  EXPECT_TRUE(array->Get(1, 1).IsEmpty());  // nothing stored while the edit is open
  user.PressEnter();
  EXPECT_THAT(log, ElementsAre("editor gained on row 1", "editor lost, cell 12, active grid", "grid key 13"));
  EXPECT_EQ(array->Get(1, 1), Variant("12"));
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(*grid.CurrentRow(), 2);  // the grid's own navigation: next row, first column
  EXPECT_EQ(grid.CurrentColumn(), 0);
}

TEST_F(GridWidgetTest, AKeyDownHandlerMayStopTheGridsNavigationAndMoveTheFocus) {
  grid.OnKeyDown([&](platform::KeyDown& key) {
    if (key.key_code != platform::keys::kTab) return;
    key.key_code = 0;
    after.SetFocus();
  });
  user.Type("5\t");
  EXPECT_EQ(array->Get(1, 1), Variant("5"));
  EXPECT_EQ(*grid.CurrentRow(), 1);
  EXPECT_EQ(form.Focused(), &after);
}

TEST_F(GridWidgetTest, TheEditorsFocusLostHandlerMayWriteTheCellItself) {
  // As a control that reads typed cents does: its own value replaces what the grid wrote back.
  editor.OnFocusLost([&] {
    grid.SetCellText(1, "0.45");
    grid.CommitRow();
  });
  user.Type("45\r");
  EXPECT_EQ(array->Get(1, 1), Variant("0.45"));
}

TEST_F(GridWidgetTest, AnEditorFocusedByTheProgramEditsItsCellToo) {
  grid.SetCurrentColumn(0);
  array->Set(1, 1, Variant("3"));
  editor.SetFocus();
  EXPECT_TRUE(grid.IsEditing());
  EXPECT_EQ(grid.CurrentColumn(), 1);
  EXPECT_EQ(editor.Text(), "3");
  user.Type("42\r");
  EXPECT_EQ(array->Get(1, 1), Variant("42"));
}

TEST_F(GridWidgetTest, TheKeyFilterSeesEveryKeyTypedIntoTheEditor) {
  std::vector<char32_t> seen;
  grid.OnKeyPress([&](platform::KeyPress& press) {
    seen.push_back(press.key);
    if (press.key == U'9') press.key = 0;
    if (press.key == U',') press.key = U'.';
  });
  user.Type("19,23");
  EXPECT_EQ(editor.Text(), "1.23");
  EXPECT_EQ(seen, (std::vector<char32_t>{U'1', U'9', U',', U'2', U'3'}));  // each key filtered once
}

TEST_F(GridWidgetTest, TabFromTheLastCellLeavesTheGridWhetherOrNotEditing) {
  grid.SetCurrentRow(3);
  user.PressTab();
  EXPECT_EQ(form.Focused(), &after);
  user.Click(grid);
  user.Type("8\t");
  EXPECT_EQ(array->Get(3, 1), Variant("8"));
  EXPECT_EQ(form.Focused(), &after);
}

TEST_F(GridWidgetTest, ACellWithoutAnEditorIsTypedIntoDirectly) {
  grid.SetCurrentColumn(0);
  array->Set(1, 0, Variant("old"));
  user.Type("A-1");
  EXPECT_EQ(form.Focused(), &grid);
  EXPECT_EQ(grid.CellText(0), "A-1");  // typing replaced the cell
  user.PressBackspace();
  user.PressEnter();
  EXPECT_EQ(array->Get(1, 0), Variant("A-"));
  EXPECT_EQ(grid.CurrentColumn(), 1);
}

TEST_F(GridWidgetTest, UpAndDownChangeTheRowAndTypedParenthesesDoNot) {
  grid.SetCurrentColumn(0);
  user.PressKey(platform::keys::kDown);
  EXPECT_EQ(*grid.CurrentRow(), 2);
  user.Type("(&");
  EXPECT_EQ(*grid.CurrentRow(), 2);
  EXPECT_EQ(grid.CellText(0), "(&");
  user.PressKey(platform::keys::kUp);
  EXPECT_EQ(*grid.CurrentRow(), 1);
  EXPECT_EQ(array->Get(2, 0), Variant("(&"));
}

TEST_F(GridWidgetTest, CellWritesArePendingUntilCommitted) {
  grid.SetCellText(0, "A-01");
  EXPECT_EQ(grid.CellText(0), "A-01");
  EXPECT_EQ(grid.DisplayedText(1, 0), "A-01");
  EXPECT_TRUE(array->Get(1, 0).IsEmpty());
  grid.CommitRow();
  EXPECT_EQ(array->Get(1, 0), Variant("A-01"));
  grid.SetCellText(0, "B-02");
  grid.SetCurrentRow(2);  // leaving the row commits it
  EXPECT_EQ(array->Get(1, 0), Variant("B-02"));
}

TEST_F(GridWidgetTest, MovingTheRowInTheProgramEndsAnOpenEdit) {
  user.Type("7");
  grid.SetCurrentRow(2);
  EXPECT_EQ(array->Get(1, 1), Variant("7"));
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(form.Focused(), &grid);
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
  array->DeleteRows(1, 1);
  grid.Rebind();
  EXPECT_FALSE(grid.CurrentRow().has_value());
  user.Type("5");  // nothing to edit, nothing breaks
  EXPECT_FALSE(grid.IsEditing());
}

TEST_F(GridWidgetTest, ARebindDuringAnEditDropsItWithoutWritingAVanishedRow) {
  grid.SetCurrentRow(3);
  user.Type("9");
  array->DeleteRows(3, 1);
  grid.Rebind();
  EXPECT_FALSE(grid.IsEditing());
  EXPECT_EQ(form.Focused(), &grid);
  EXPECT_EQ(*grid.CurrentRow(), 1);
  EXPECT_TRUE(array->Get(1, 1).IsEmpty());
}

}  // namespace
}  // namespace zenta::headless
