#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "zenta/platform/array_2d.h"
#include "zenta/platform/grid_column.h"
#include "zenta/platform/grid_notifications.h"
#include "zenta/platform/grid_source.h"
#include "zenta/platform/keys.h"

namespace zenta::platform {

// What a toolkit's grid widget answers for the engine: a few hooks, nothing of the editing
// rules. The engine calls them after its state has changed; a view reads what it needs back
// from the engine.
class GridView {
 public:
  virtual ~GridView() = default;
  // Rows were added, removed or re-read: repaint everything.
  virtual void RowsChanged() = 0;
  // One row's cells changed (bookmark).
  virtual void RowChanged(int row) = 0;
  // Captions, widths, visibility, footers, colours or styles changed.
  virtual void ColumnsChanged() = 0;
  // The current cell moved (scroll it into view).
  virtual void CurrentCellChanged() = 0;
  // An edit opened in the current cell (show the in-cell editor with the engine's EditText and
  // selection), its text or selection changed, or it closed (hide the editor).
  virtual void EditorOpened() = 0;
  virtual void EditorChanged() = 0;
  virtual void EditorClosed() = 0;
  // How many rows the view shows whole: a page for PageUp and PageDown.
  virtual int VisibleRows() const = 0;
  // Whether the grid (or its in-cell editor) holds the keyboard focus.
  virtual bool HasFocus() const = 0;
  virtual void TakeFocus() = 0;
  // Runs `action` after the notification being handled has returned, in the order posted.
  virtual void Post(std::function<void()> action) = 0;
};

// The grid's editing state machine, written once for every toolkit and tested without a
// display. It owns the current cell, the open cell edit (its text, caret and selection), the
// row's stored-but-not-written cells, and raises every notification of GridHandlers.
//
// Rows are addressed by the source's bookmarks. With AllowAddNew the grid shows one more,
// empty row after the last (bookmark FirstRow() + RowCount()); storing it appends a row to the
// source.
//
// The steps, as a person meets them:
//  - Typing a character: key_down, then key_press (may discard it; it runs on locked and
//    button cells too). With no edit open the cell must then be editable (not locked, not a
//    button); new_row_request runs first in the add-new
//    row; before_col_edit may cancel; the edit opens with the cell's text all selected, and
//    the key replaces the selection. Then change.
//  - Ending a cell edit (Enter, Tab, arrows, another cell, focus leaving, CommitEdit):
//    before_col_update may cancel (the edit stays open and the key that ended it is consumed);
//    otherwise the text is kept as the row's pending cell, after_col_update runs.
//  - Leaving a row with pending cells (another row, CommitRow, focus leaving the grid):
//    before_update may cancel (the current row stays); otherwise the row is written to the
//    source and after_update runs.
//  - DeleteCurrentRow (also Ctrl+Delete): before_delete may cancel; the source deletes the
//    row; after_delete runs.
//  - Enter and Tab left intact by key_down move to the next cell with a tab stop (Enter stays
//    in the last cell, Tab leaves the grid from it); Up and Down change the row; Left and
//    Right move across cells while no edit is open; PageUp and PageDown move the current row by
//    a page less one row (storing the row left, as Up and Down do); F2 opens an edit with the caret at the
//    end; Escape abandons an open edit (with none open, the row's pending cells; with nothing
//    to abandon it is left to the window); Ctrl+Delete deletes when AllowDelete; Space or
//    Enter on a button cell clicks it.
//
// Re-entrancy: handlers may call back in. SetCellText on the edited cell inside
// before_col_update rewrites what is stored; SetCurrentColumn there is taken once the handler
// has returned (with cancel, the edit's text is then dropped); Rebind anywhere drops the open
// edit and pending cells; a commit or row store asked for from inside its own check is
// refused. A key whose commit moved the current cell (a handler chose it) is consumed without
// further navigation. A source that throws HostError is reported through `error`.
class GridEngine {
 public:
  GridEngine(GridView& view, int column_count);
  ~GridEngine();
  GridEngine(const GridEngine&) = delete;
  GridEngine& operator=(const GridEngine&) = delete;

  GridHandlers& Handlers() { return handlers_; }

  // Rows. Bind() takes an array (an ArrayGridSource over it); SetSource() any source, which
  // the caller keeps alive. Both drop an open edit and pending cells and make the first row
  // current.
  void Bind(std::shared_ptr<Array2D> array);
  void SetSource(GridSource* source);
  // The array of the last Bind(), nullptr after SetSource().
  std::shared_ptr<Array2D> BoundArray() const;
  GridSource* Source() const { return source_; }
  // Re-reads the source after it changed: pending cells and an open edit are dropped, the
  // current row is kept while it exists, else the first row becomes current.
  void Rebind();
  // Repaints from the source; an open edit and pending cells stay.
  void Refresh();
  int FirstRow() const;
  int RowCount() const;
  void SetAllowAddNew(bool allow);
  bool AllowAddNew() const { return allow_add_new_; }
  // Whether Ctrl+Delete deletes the current row; DeleteCurrentRow() is the program's own.
  void SetAllowDelete(bool allow) { allow_delete_ = allow; }
  bool AllowDelete() const { return allow_delete_; }
  // Rows the views show: every source row, and the add-new row when allowed.
  int DisplayRowCount() const;
  int BookmarkAt(int display_row) const { return FirstRow() + display_row; }
  bool IsAddNewRow(int row) const;
  // Whether the row's button cells have something to press: every stored row, and the row for a
  // new one once something is typed in it.
  bool HasButtonToPress(int row) const;

  // What the grid holds, in words ("Invoices"): toolkits name the grid with it for assistive
  // tools; nothing shows it.
  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  // Columns.
  int ColumnCount() const { return static_cast<int>(columns_.size()); }
  const GridColumn& Column(int column) const;
  void SetColumn(int column, GridColumn description);
  void SetColumnCaption(int column, const std::string& caption);
  void SetColumnVisible(int column, bool visible);
  void SetColumnWidth(int column, int twips);
  void SetColumnLocked(int column, bool locked);
  void SetColumnKind(int column, ColumnKind kind);
  void SetColumnTabStop(int column, bool tab_stop);
  void SetFooterText(int column, const std::string& text);
  void SetColumnColors(int column, std::optional<OleColor> back, std::optional<OleColor> fore);
  void AddColumnStyle(int column, CellStyleRule rule);
  const GridColors& Colors() const { return colors_; }
  void SetColors(const GridColors& colors);

  // The current cell. CurrentRow() is a bookmark (the add-new row included), nullopt when the
  // grid shows no row. Moving the row ends an open edit and stores the row first; a refused
  // step leaves the current cell where it was (the result says whether it moved).
  std::optional<int> CurrentRow() const { return current_row_; }
  bool SetCurrentRow(int row);
  int CurrentColumn() const { return current_column_; }
  bool SetCurrentColumn(int column);

  // Cells of the current row, an open edit and pending cells included.
  std::string CellText(int column) const;
  Variant CellValue(int column) const;
  // Writes a cell of the current row: into the open edit when it is that cell's (caret to the
  // end), else as a pending cell stored with the row.
  void SetCellText(int column, const std::string& text);
  void SetCellValue(int column, const Variant& value);
  // A cell of any row as the source holds it (pending cells of the current row included).
  Variant StoredValue(int row, int column) const;
  // The text a person sees in a cell (open edit, then format_text applied), and its colours.
  CellAppearance Appearance(int row, int column) const;
  std::string DisplayedText(int row, int column) const { return Appearance(row, column).text; }
  // The cell's note from cell_hint (empty when there is none).
  CellHintArgs Hint(int row, int column) const;
  // The button the current cell offers from cell_action (key 0: none).
  CellActionArgs CurrentCellAction() const;

  // Editing.
  bool IsEditing() const { return editing_; }
  // Rows whose cells were stored but not yet written (the pencil of the row selector).
  bool RowChanged() const { return !pending_.empty(); }
  const std::string& EditText() const { return edit_text_; }
  int SelectionStart() const { return selection_start_; }
  int SelectionLength() const { return selection_length_; }
  // The view reports a caret or selection the user made with the mouse.
  void SetSelection(int start, int length);
  // Opens an edit of the current cell without typing (F2, a double click, the program);
  // returns false when the cell cannot be edited or before_col_edit cancelled.
  bool StartEdit();
  // Ends an open edit through before/after_col_update; false when it was refused.
  bool CommitEdit();
  // Ends the edit and stores the row; false when a step was refused.
  bool CommitRow();
  // Closes an open edit and forgets the row's pending cells.
  void CancelEdit();
  bool DeleteCurrentRow();

  // Posts a message to the grid: `posted` receives it after the current notification.
  void PostMessage(int message);

  // Input, from the view.
  void KeyDown(KeyDown& key);
  void TypeCharacter(char32_t character);
  void ClickCell(int row, int column);
  void ClickButton(int row, int column);
  void FocusGained();
  // The focus left the grid and its editor for another widget: the edit ends and the row is
  // stored, as when the user clicks elsewhere.
  void FocusLost();

 private:
  bool CellEditable(int column) const;
  bool StopsAt(int column) const;
  std::string ValueText(const Variant& value) const;
  // Moves the current cell: ends an open edit, stores the row when it changes, raises
  // row_col_change once.
  bool MoveTo(int row, int column);
  bool OpenEdit(char32_t key);
  void CloseEdit();
  void InsertIntoEdit(char32_t key);
  // Date columns: digits fill the mask's prompts, Backspace clears the last one.
  void TypeIntoDate(char32_t key);
  // What a committed edit stores in `column`.
  Variant EditedValue(int column) const;
  void Navigate(platform::KeyDown& key);
  void PageBy(int pages);
  void MoveAcross(platform::KeyDown& key, int step);
  void ReportError(const std::exception& error, int number);
  // Whether the engine is still alive after a handler ran (a handler may destroy the grid).
  bool Survived(const std::weak_ptr<bool>& token) const { return !token.expired(); }

  GridView& view_;
  GridHandlers handlers_;
  std::string caption_;
  std::vector<GridColumn> columns_;
  GridColors colors_;
  std::shared_ptr<Array2D> bound_array_;
  std::unique_ptr<GridSource> owned_source_;
  GridSource* source_ = nullptr;
  bool allow_add_new_ = false;
  bool allow_delete_ = false;
  std::optional<int> current_row_;
  int current_column_ = 0;
  std::map<int, Variant> pending_;
  bool editing_ = false;
  std::string edit_text_;
  int selection_start_ = 0;
  int selection_length_ = 0;
  // Re-entrancy: a commit in progress, a column asked for from inside before_col_update, and a
  // count of current-cell moves so a key can tell that a handler already moved the cell.
  bool in_col_update_ = false;
  bool in_row_update_ = false;
  std::optional<int> requested_column_;
  unsigned moves_ = 0;
  std::shared_ptr<bool> alive_;
};

}  // namespace zenta::platform
