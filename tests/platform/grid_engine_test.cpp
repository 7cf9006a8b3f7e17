#include "zenta/platform/grid_engine.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "zenta/core/host_error.h"
#include "zenta/core/utf8.h"
#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/typed_key.h"

namespace zenta::platform {
namespace {

// A view that records nothing but focus and runs posted actions when told, as an event loop
// would after the notification returns.
class FakeView : public GridView {
 public:
  void RowsChanged() override {}
  void RowChanged(int) override {}
  void ColumnsChanged() override {}
  void CurrentCellChanged() override {}
  void EditorOpened() override { ++editor_opened; }
  void EditorChanged() override {}
  void EditorClosed() override { ++editor_closed; }
  int VisibleRows() const override { return visible_rows; }
  bool HasFocus() const override { return true; }
  void TakeFocus() override {}
  void Post(std::function<void()> action) override { posted.push_back(std::move(action)); }

  void RunPosted() {
    while (!posted.empty()) {
      auto action = std::move(posted.front());
      posted.pop_front();
      action();
    }
  }

  std::deque<std::function<void()>> posted;
  int editor_opened = 0;
  int editor_closed = 0;
  int visible_rows = 10;
};

// Three columns over rows 0..2 of an array: an account, an amount and a third text column.
class GridEngineTest : public ::testing::Test {
 protected:
  GridEngineTest() : array(std::make_shared<Array2D>(0, 2, 0, 2)), engine(view, 3) {
    for (int row = 0; row <= 2; ++row) {
      array->Set(row, 0, "ACCT" + std::to_string(row));
      array->Set(row, 1, std::to_string(row * 10));
    }
    engine.Bind(array);
  }

  void Key(int code, int shift = kNoShift) {
    KeyDown key{code, shift};
    engine.KeyDown(key);
    last_key_left = key.key_code;
  }
  void Type(std::string_view text) {
    for (char32_t c : utf8::Decode(text)) {
      KeyDown key = c == U'\t' ? KeyDown{keys::kTab, kNoShift} : KeyDownFor(c);
      engine.KeyDown(key);
      if (key.key_code != 0) engine.TypeCharacter(c);
    }
  }
  // Logs every notification by name.
  void LogAll() {
    auto& h = engine.Handlers();
    h.before_col_edit = [this](BeforeColEditArgs& a) { log.push_back("before_col_edit " + std::to_string(a.column)); };
    h.before_col_update = [this](BeforeColUpdateArgs& a) { log.push_back("before_col_update " + std::to_string(a.column)); };
    h.after_col_update = [this](int c) { log.push_back("after_col_update " + std::to_string(c)); };
    h.before_update = [this](CancelArgs&) { log.push_back("before_update"); };
    h.after_update = [this] { log.push_back("after_update"); };
    h.before_delete = [this](CancelArgs&) { log.push_back("before_delete"); };
    h.after_delete = [this] { log.push_back("after_delete"); };
    h.new_row_request = [this](int row) { log.push_back("new_row_request " + std::to_string(row)); };
    h.change = [this] { log.push_back("change"); };
    h.key_press = [this](CellKeyPressArgs& a) { log.push_back("key_press " + utf8::Encode(a.key)); };
    h.row_col_change = [this](std::optional<int> row, int column) {
      log.push_back("row_col_change " + std::to_string(row.value_or(-1)) + "," + std::to_string(column));
    };
  }

  FakeView view;
  std::shared_ptr<Array2D> array;
  GridEngine engine;
  std::vector<std::string> log;
  int last_key_left = 0;
};

TEST_F(GridEngineTest, TypingReplacesTheCellAndTabStoresItInTheRowOnly) {
  LogAll();
  Type("7");
  EXPECT_TRUE(engine.IsEditing());
  EXPECT_EQ(engine.CellText(0), "7");
  Key(keys::kTab);
  EXPECT_FALSE(engine.IsEditing());
  EXPECT_TRUE(engine.RowChanged());
  EXPECT_EQ(array->Get(0, 0).ToString(), "ACCT0");  // not written until the row is left
  Key(keys::kDown);
  EXPECT_EQ(array->Get(0, 0).ToString(), "7");
  EXPECT_EQ(engine.CurrentRow(), 1);
  EXPECT_EQ(engine.CurrentColumn(), 1);
  const std::vector<std::string> expected{"key_press 7",          "before_col_edit 0", "change",
                                          "before_col_update 0",  "after_col_update 0", "row_col_change 0,0",
                                          "before_update",        "after_update",       "row_col_change 0,1"};
  EXPECT_EQ(log, expected);
}

struct VetoCase {
  const char* name;
  bool cancel;
  bool revert;        // also change old_value
  const char* rewrite;  // SetCellText from inside the handler, or nullptr
  bool editing_after;
  const char* cell_after;
  int column_after;
};

class ColumnUpdateVeto : public GridEngineTest, public ::testing::WithParamInterface<VetoCase> {};

TEST_P(ColumnUpdateVeto, DecidesWhatTheCellKeeps) {
  const VetoCase& c = GetParam();
  engine.SetCurrentColumn(1);
  engine.Handlers().before_col_update = [&](BeforeColUpdateArgs& a) {
    if (c.rewrite) engine.SetCellText(a.column, c.rewrite);
    a.cancel = c.cancel;
    if (c.revert) a.old_value = Variant("REVERTED");
  };
  Type("150");
  Key(keys::kTab);
  EXPECT_EQ(engine.IsEditing(), c.editing_after) << c.name;
  EXPECT_EQ(engine.CellText(1), c.cell_after) << c.name;
  EXPECT_EQ(engine.CurrentColumn(), c.column_after) << c.name;
  EXPECT_EQ(last_key_left, 0) << c.name;  // the grid's key either way
}

INSTANTIATE_TEST_SUITE_P(Cases, ColumnUpdateVeto,
                         ::testing::Values(VetoCase{"accepted", false, false, nullptr, false, "150", 2},
                                           VetoCase{"cancelled", true, false, nullptr, true, "150", 1},
                                           VetoCase{"reverted", true, true, nullptr, false, "REVERTED", 1},
                                           VetoCase{"rewritten", false, false, "1.50", false, "1.50", 2}));

TEST_F(GridEngineTest, AColumnChosenInsideTheUpdateCheckIsTakenAfterIt) {
  engine.SetCurrentColumn(0);
  engine.Handlers().before_col_update = [&](BeforeColUpdateArgs& a) {
    a.cancel = true;
    EXPECT_TRUE(engine.SetCurrentColumn(1));
    EXPECT_EQ(engine.CurrentColumn(), 0);  // not while the check runs
  };
  Type("X");
  Key(keys::kEnter);
  EXPECT_EQ(engine.CurrentColumn(), 1);
  EXPECT_FALSE(engine.IsEditing());
  EXPECT_EQ(engine.CellText(0), "ACCT0");
}

TEST_F(GridEngineTest, RowVetoKeepsTheRowAndEscapeAbandonsIt) {
  engine.Handlers().before_update = [](CancelArgs& a) { a.cancel = true; };
  Type("Z");
  Key(keys::kDown);
  EXPECT_EQ(engine.CurrentRow(), 0);
  EXPECT_TRUE(engine.RowChanged());
  Key(keys::kEscape);
  EXPECT_EQ(last_key_left, 0);
  EXPECT_FALSE(engine.RowChanged());
  EXPECT_EQ(engine.CellText(0), "ACCT0");
  Key(keys::kEscape);
  EXPECT_EQ(last_key_left, keys::kEscape);  // nothing left to abandon: not the grid's key
}

TEST_F(GridEngineTest, EscapeClosesTheEditButKeepsCellsStoredEarlierInTheRow) {
  Type("A\t");
  Type("99");
  Key(keys::kEscape);
  EXPECT_FALSE(engine.IsEditing());
  EXPECT_EQ(engine.CellText(0), "A");
  EXPECT_EQ(engine.CellText(1), "0");
}

TEST_F(GridEngineTest, KeyPressSeesCaretAndSelectionBeforeTheKey) {
  std::vector<CellKeyPressArgs> seen;
  engine.Handlers().key_press = [&](CellKeyPressArgs& a) { seen.push_back(a); };
  engine.SetCurrentColumn(1);
  Type("12");
  Key(keys::kLeft);
  Type(".");
  ASSERT_EQ(seen.size(), 3u);
  EXPECT_EQ(seen[0].text, "0");
  EXPECT_EQ(seen[0].selection_start, 0);
  EXPECT_EQ(seen[0].selection_length, 1);  // the untouched cell, all selected
  EXPECT_EQ(seen[1].text, "1");
  EXPECT_EQ(seen[1].selection_start, 1);
  EXPECT_EQ(seen[2].selection_start, 1);
  EXPECT_EQ(seen[2].selection_length, 0);
  EXPECT_EQ(engine.EditText(), "1.2");
}

TEST_F(GridEngineTest, KeyPressMayDiscardOrReplaceAndChangeMayRewrite) {
  engine.Handlers().key_press = [](CellKeyPressArgs& a) {
    if (a.key == U'"') a.key = 0;
    if (a.key >= U'a' && a.key <= U'z') a.key -= 32;
  };
  engine.Handlers().change = [&] { engine.SetCellText(0, engine.CellText(0) + ""); };
  Type("a\"b");
  EXPECT_EQ(engine.EditText(), "AB");
  EXPECT_EQ(engine.SelectionStart(), 2);
}

TEST_F(GridEngineTest, F2EditsWithTheCaretAtTheEndAndBackspaceErasesBeforeIt) {
  Key(keys::kF2);
  ASSERT_TRUE(engine.IsEditing());
  EXPECT_EQ(engine.SelectionStart(), 5);
  engine.TypeCharacter(keys::kBackspace);
  EXPECT_EQ(engine.EditText(), "ACCT");
  engine.SetSelection(1, 99);
  engine.TypeCharacter(U'é');
  EXPECT_EQ(engine.EditText(), "Aé");
}

TEST_F(GridEngineTest, ADateCellTypesThroughItsMaskAndStoresADateOrNothing) {
  engine.SetColumnKind(2, ColumnKind::Date);
  array->Set(0, 2, Variant(*Date::FromYmd(2026, 2, 1)));
  engine.SetCurrentColumn(2);
  Type("2");  // the first digit replaces the whole date
  EXPECT_EQ(engine.EditText(), "2___/__/__");
  Type("025/0");  // the slashes are the mask's own
  EXPECT_EQ(engine.EditText(), "2025/0_/__");
  EXPECT_EQ(engine.SelectionStart(), 6);
  Key(keys::kBackspace);
  engine.TypeCharacter(keys::kBackspace);
  Type("1231");
  EXPECT_EQ(engine.EditText(), "2025/12/31");
  Type("9");  // full
  EXPECT_EQ(engine.EditText(), "2025/12/31");
  Key(keys::kDown);
  EXPECT_EQ(array->Get(0, 2), Variant(*Date::FromYmd(2025, 12, 31)));

  engine.SetCurrentRow(0);
  engine.SetCurrentColumn(2);
  Key(keys::kF2);
  EXPECT_EQ(engine.EditText(), "2025/12/31");
  for (int i = 0; i < 8; ++i) engine.TypeCharacter(keys::kBackspace);
  EXPECT_EQ(engine.EditText(), "____/__/__");
  Key(keys::kDown);
  EXPECT_TRUE(array->Get(0, 2).IsEmpty());
}

TEST_F(GridEngineTest, PageKeysTurnAPageLessOneRowAndStopAtTheEnds) {
  auto rows = std::make_shared<Array2D>(0, 29, 0, 2);
  engine.Bind(rows);
  view.visible_rows = 10;
  Key(keys::kPageDown);
  EXPECT_EQ(engine.CurrentRow(), 9);
  EXPECT_EQ(last_key_left, 0);
  Key(keys::kPageDown);
  Key(keys::kPageDown);
  Key(keys::kPageDown);
  EXPECT_EQ(engine.CurrentRow(), 29);
  Key(keys::kPageUp);
  EXPECT_EQ(engine.CurrentRow(), 20);
  view.visible_rows = 0;  // a grid too short to show a row still moves one
  Key(keys::kPageUp);
  EXPECT_EQ(engine.CurrentRow(), 19);
}

TEST_F(GridEngineTest, LockedAndButtonCellsTakeNoTypingAndButtonsClick) {
  engine.SetColumnLocked(0, true);
  engine.SetColumnKind(2, ColumnKind::Button);
  std::vector<int> clicks;
  engine.Handlers().button_click = [&](int column) { clicks.push_back(column); };
  Type("Q");
  EXPECT_FALSE(engine.IsEditing());
  EXPECT_EQ(engine.CellText(0), "ACCT0");
  engine.SetCurrentColumn(2);
  Type("Q");
  EXPECT_FALSE(engine.IsEditing());
  Key(keys::kSpace);
  Key(keys::kEnter);
  engine.ClickButton(1, 2);
  EXPECT_EQ(clicks, (std::vector<int>{2, 2, 2}));
  EXPECT_EQ(engine.CurrentRow(), 1);
}

TEST_F(GridEngineTest, EnterAndTabPassOverHiddenColumnsAndThoseWithoutATabStop) {
  engine.SetColumnTabStop(0, false);
  engine.SetColumnVisible(2, false);
  engine.FocusGained();
  EXPECT_EQ(engine.CurrentColumn(), 1);
  Key(keys::kTab);
  EXPECT_EQ(engine.CurrentRow(), 1);
  EXPECT_EQ(engine.CurrentColumn(), 1);
  Key(keys::kEnter);
  Key(keys::kTab);
  EXPECT_EQ(last_key_left, keys::kTab);  // from the last cell the form moves the focus on
  EXPECT_EQ(engine.CurrentRow(), 2);
  Key(keys::kLeft);
  EXPECT_EQ(engine.CurrentColumn(), 1);
  engine.ClickCell(2, 0);  // a click may still stand on it
  EXPECT_EQ(engine.CurrentColumn(), 0);
}

TEST_F(GridEngineTest, TheAddNewRowAppendsWhenStored) {
  LogAll();
  engine.SetAllowAddNew(true);
  EXPECT_EQ(engine.DisplayRowCount(), 4);
  engine.SetCurrentRow(3);
  log.clear();
  Type("NEW");
  EXPECT_EQ(log.at(1), "new_row_request 3");
  EXPECT_EQ(engine.RowCount(), 3);
  Key(keys::kUp);
  EXPECT_EQ(engine.RowCount(), 4);
  EXPECT_EQ(array->Get(3, 0).ToString(), "NEW");
  EXPECT_EQ(engine.CurrentRow(), 2);
  EXPECT_EQ(engine.DisplayedText(4, 0), "");  // a new add-new row below
}

TEST_F(GridEngineTest, ANewRowRequestThatAppendsAndRebindsKeepsTheEdit) {
  engine.SetAllowAddNew(true);
  engine.SetCurrentRow(3);
  engine.Handlers().new_row_request = [&](int) {
    array->AppendRows(1);
    array->Set(3, 1, "5");
    engine.Rebind();
  };
  Type("X");
  EXPECT_TRUE(engine.IsEditing());
  EXPECT_FALSE(engine.IsAddNewRow(*engine.CurrentRow()));
  engine.CommitRow();
  EXPECT_EQ(array->RowCount(), 4);
  EXPECT_EQ(array->Get(3, 0).ToString(), "X");
  EXPECT_EQ(array->Get(3, 1).ToString(), "5");
}

TEST_F(GridEngineTest, AHandlerRebindingAfterTheRowIsStoredSeesTheNewRows) {
  engine.Handlers().after_update = [&] {
    array->AppendRows(1);
    engine.Rebind();
  };
  Type("K");
  Key(keys::kDown);
  EXPECT_EQ(engine.RowCount(), 4);
  EXPECT_EQ(engine.CurrentRow(), 1);
  EXPECT_FALSE(engine.RowChanged());
}

struct DeleteCase {
  bool allow;
  bool veto;
  int rows_after;
};

class Deleting : public GridEngineTest, public ::testing::WithParamInterface<DeleteCase> {};

TEST_P(Deleting, CtrlDeleteAsksFirst) {
  const DeleteCase& c = GetParam();
  int after = 0;
  engine.SetAllowDelete(c.allow);
  engine.Handlers().before_delete = [&](CancelArgs& a) { a.cancel = c.veto; };
  engine.Handlers().after_delete = [&] { ++after; };
  engine.SetCurrentRow(2);
  Key(keys::kDelete, kCtrl);
  EXPECT_EQ(array->RowCount(), c.rows_after);
  EXPECT_EQ(after, 3 - c.rows_after);
  EXPECT_EQ(engine.CurrentRow(), c.rows_after == 2 ? 1 : 2);
}

INSTANTIATE_TEST_SUITE_P(Cases, Deleting,
                         ::testing::Values(DeleteCase{true, false, 2}, DeleteCase{true, true, 3},
                                           DeleteCase{false, false, 3}));

TEST_F(GridEngineTest, PostedMessagesRunAfterTheHandlerAndNeverAfterTheGridIsGone) {
  std::vector<std::string> order;
  engine.Handlers().after_col_update = [&](int) {
    engine.PostMessage(10);
    order.push_back("after_col_update");
  };
  engine.Handlers().posted = [&](int message) { order.push_back("posted " + std::to_string(message)); };
  Type("1\t");
  EXPECT_EQ(order, std::vector<std::string>{"after_col_update"});
  view.RunPosted();
  EXPECT_EQ(order, (std::vector<std::string>{"after_col_update", "posted 10"}));

  FakeView other;
  auto doomed = std::make_unique<GridEngine>(other, 1);
  bool ran = false;
  doomed->Handlers().posted = [&](int) { ran = true; };
  doomed->PostMessage(1);
  doomed.reset();
  other.RunPosted();
  EXPECT_FALSE(ran);
}

// A source whose writes the host refuses.
class RefusingSource : public GridSource {
 public:
  int FirstRow() const override { return 1; }
  int RowCount() const override { return 1; }
  int ColumnCount() const override { return 1; }
  Variant Cell(int, int) const override { return Variant("x"); }
  void WriteRow(int, const std::map<int, Variant>&) override { throw HostError::Overflow("Source"); }
  int AppendRow(const std::map<int, Variant>&) override { throw HostError::Overflow("Source"); }
  void DeleteRow(int) override {}
};

TEST_F(GridEngineTest, ASourceThatThrowsReportsAnErrorInsteadOfEscapingTheUserAction) {
  RefusingSource source;
  GridEngine grid(view, 1);
  grid.SetSource(&source);
  std::vector<int> errors;
  grid.Handlers().error = [&](GridErrorArgs& a) { errors.push_back(a.error); };
  KeyDown key{'Y', kNoShift};
  grid.KeyDown(key);
  grid.TypeCharacter(U'y');
  EXPECT_NO_THROW(grid.FocusLost());
  EXPECT_EQ(errors, std::vector<int>{6});
  EXPECT_TRUE(grid.RowChanged());  // the text is kept for another try
}

TEST_F(GridEngineTest, FormatTextAndStylesDecideWhatACellShows) {
  constexpr OleColor kRed = 0x0000FFu;
  engine.AddColumnStyle(1, {"-*", kRed, std::nullopt});
  engine.Handlers().format_text = [](FormatTextArgs& a) {
    if (a.column == 1) a.text = a.text + ".00";
  };
  array->Set(1, 1, "-5");
  EXPECT_EQ(engine.DisplayedText(1, 1), "-5.00");
  EXPECT_EQ(engine.Appearance(1, 1).fore_color, kRed);
  EXPECT_EQ(engine.Appearance(2, 1).fore_color, std::nullopt);
  engine.SetCurrentColumn(1);
  Type("4");
  EXPECT_EQ(engine.DisplayedText(0, 1), "4");  // the open edit shows as typed
}

struct PatternCase {
  const char* pattern;
  const char* text;
  bool matches;
};

class StylePatterns : public GridEngineTest, public ::testing::WithParamInterface<PatternCase> {};

TEST_P(StylePatterns, MatchStarAndQuestionMark) {
  const PatternCase& c = GetParam();
  engine.AddColumnStyle(2, {c.pattern, 1u, std::nullopt});
  array->Set(0, 2, c.text);
  EXPECT_EQ(engine.Appearance(0, 2).fore_color.has_value(), c.matches) << c.pattern << " " << c.text;
}

INSTANTIATE_TEST_SUITE_P(Cases, StylePatterns,
                         ::testing::Values(PatternCase{"-*", "-1.00", true}, PatternCase{"-*", "1.00", false},
                                           PatternCase{"*", "", true}, PatternCase{"?", "é", true},
                                           PatternCase{"a?c*", "abcdef", true}, PatternCase{"*.5?", "12.5", false},
                                           PatternCase{"*x*y", "axbxy", true}));

TEST_F(GridEngineTest, FocusLostStoresTheRow) {
  Type("G");
  engine.FocusLost();
  EXPECT_EQ(array->Get(0, 0).ToString(), "G");
  EXPECT_FALSE(engine.IsEditing());
}

struct NavigationWithStopsCase {
  GridCell from;
  KeyDown key;
  std::optional<GridCell> to;
};

class NavigationWithStops : public ::testing::TestWithParam<NavigationWithStopsCase> {};

// Rows 1 to 3; columns 0 and 2 are passed over.
TEST_P(NavigationWithStops, LandsOnlyOnStops) {
  const auto& c = GetParam();
  EXPECT_EQ(NextGridCell(c.from, 1, 3, std::vector<bool>{false, true, false, true}, c.key), c.to);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, NavigationWithStops,
    ::testing::Values(NavigationWithStopsCase{{1, 1}, {keys::kTab, kNoShift}, GridCell{1, 3}},
                      NavigationWithStopsCase{{1, 3}, {keys::kEnter, kNoShift}, GridCell{2, 1}},
                      NavigationWithStopsCase{{1, 0}, {keys::kTab, kNoShift}, GridCell{1, 1}},
                      NavigationWithStopsCase{{2, 1}, {keys::kTab, kShift}, GridCell{1, 3}},
                      NavigationWithStopsCase{{1, 1}, {keys::kTab, kShift}, std::nullopt},
                      NavigationWithStopsCase{{3, 3}, {keys::kTab, kNoShift}, std::nullopt},
                      NavigationWithStopsCase{{3, 3}, {keys::kEnter, kNoShift}, GridCell{3, 3}}));

}  // namespace
}  // namespace zenta::platform
