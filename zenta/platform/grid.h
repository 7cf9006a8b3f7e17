#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "zenta/platform/array_2d.h"
#include "zenta/platform/keys.h"
#include "zenta/platform/number_edit.h"
#include "zenta/platform/widget.h"

namespace zenta::platform {

// A grid bound to an Array2D: one grid row per array row, one grid column per array column.
// Rows are addressed by their array row index (the bookmark). Cell reads and writes address
// the current row; writes are pending until CommitRow() stores them in the array.
//
// Editing: a printable key typed while the grid has the focus first passes the key-press
// filter, then opens the current cell for editing. A column may have a number edit as its
// in-cell editor: the editor then takes the focus (its focus-gained notification runs) and
// the key. Enter or Tab while a cell is being edited ends the edit: the grid writes the
// editor's text into the cell and commits the row, takes the focus back (the editor's
// focus-lost notification runs with the grid as the active child), and then delivers the same
// key as a key-down to the grid. A key-down the handler leaves intact is the grid's own
// navigation (NextGridCell): Enter and Tab move to the next cell, and from the last column to
// the first column of the next row; from the last cell Enter stays and Tab leaves the grid.
//
// Later grids (unbound rows, update checks with Cancel, posted messages, button cells,
// footers, styles) extend this interface.
class Grid : public Widget {
 public:
  virtual void Bind(std::shared_ptr<Array2D> array) = 0;
  virtual std::shared_ptr<Array2D> BoundArray() const = 0;
  // Re-reads the bound array (rows may have been added or removed); the current row is kept
  // when it still exists, else the first row becomes current.
  virtual void Rebind() = 0;
  // Repaints from the array; pending edits stay.
  virtual void Refresh() = 0;

  virtual int ColumnCount() const = 0;
  virtual std::string ColumnCaption(int column) const = 0;
  virtual void SetColumnCaption(int column, const std::string& caption) = 0;
  virtual void SetColumnEditor(int column, NumberEdit* editor) = 0;

  virtual std::optional<int> CurrentRow() const = 0;
  virtual void SetCurrentRow(int row) = 0;
  virtual int CurrentColumn() const = 0;
  virtual void SetCurrentColumn(int column) = 0;
  virtual bool IsEditing() const = 0;

  // Text of a cell of the current row, an edit in progress included.
  virtual std::string CellText(int column) const = 0;
  virtual void SetCellText(int column, const std::string& text) = 0;
  virtual void CommitRow() = 0;

  // The text a person sees in a cell of any row (for tests and screenshots).
  virtual std::string DisplayedText(int row, int column) const = 0;

  virtual void OnKeyPress(std::function<void(KeyPress&)> filter) = 0;
  virtual void OnKeyDown(std::function<void(KeyDown&)> handler) = 0;
  // The current row changed (by the user or the program).
  virtual void OnRowChange(Callback callback) = 0;
};

}  // namespace zenta::platform
