#pragma once

#include <QTableView>
#include <functional>
#include <map>
#include <memory>

#include "zenta/platform/grid.h"
#include "zenta/qt/toolkit/qt_widget_base.h"

namespace zenta::qt {

class ArrayTableModel;
class GridEditorDelegate;
class QtNumberEdit;

// An array-bound grid on a QTableView, with a model straight on the array and fixed row heights
// so that long tables stay cheap. Typing into a cell edits it; a column may have a number edit
// as its in-cell editor, one persistent widget the view shows over the cell being edited. Enter
// and Tab end an edit, reach the control's key-down handler, and are then the grid's own
// navigation, as on every toolkit (see platform::Grid).
class QtArrayGrid : public QTableView, public QtWidgetBase<platform::Grid> {
 public:
  QtArrayGrid(QWidget* parent, const platform::WidgetSpec& definition, int column_count);
  ~QtArrayGrid() override;

  void Bind(std::shared_ptr<platform::Array2D> array) override;
  std::shared_ptr<platform::Array2D> BoundArray() const override;
  void Rebind() override;
  void Refresh() override;

  int ColumnCount() const override;
  std::string ColumnCaption(int column) const override;
  void SetColumnCaption(int column, const std::string& caption) override;
  void SetColumnEditor(int column, platform::NumberEdit* editor) override;

  std::optional<int> CurrentRow() const override;
  void SetCurrentRow(int row) override;
  int CurrentColumn() const override;
  void SetCurrentColumn(int column) override;
  bool IsEditing() const override { return editing_; }

  std::string CellText(int column) const override;
  void SetCellText(int column, const std::string& text) override;
  void CommitRow() override;
  std::string DisplayedText(int row, int column) const override;

  void OnKeyPress(std::function<void(platform::KeyPress&)> filter) override { filter_ = std::move(filter); }
  void OnKeyDown(std::function<void(platform::KeyDown&)> handler) override { on_key_down_ = std::move(handler); }
  void OnRowChange(platform::Callback callback) override { on_row_change_ = std::move(callback); }

  // Used by the in-cell editor.
  void FilterKey(platform::KeyPress& press);
  void EndEditFromEditor(QKeyEvent& event);
  void EditorGainingFocus(QtNumberEdit& editor);
  void EditorLosingFocus() { EndEdit(); }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QtNumberEdit* EditorOf(int column) const;
  // Opens the current cell's editor; `first_key` (if not 0) is typed into it.
  void StartEditor(QtNumberEdit& editor, char32_t first_key);
  void TypeIntoCell(char32_t key);
  // Writes an edit in progress into its cell, commits the row and puts the editor away; the
  // focus comes back to the grid if the editor had it.
  void EndEdit();
  // As EndEdit, but the edit is lost (the rows under it may be gone).
  void DropEdit();
  void ReleaseEditor(QtNumberEdit& editor);
  void Navigate(platform::KeyDown& key);
  void CurrentCellMoved();
  void SetCurrentCell(int row, int column);

  ArrayTableModel* model_;
  GridEditorDelegate* delegate_;
  std::map<int, std::string> pending_;
  std::optional<int> pending_row_;
  std::optional<int> last_row_;
  bool editing_ = false;
  int edit_column_ = 0;
  bool rebinding_ = false;
  std::function<void(platform::KeyPress&)> filter_;
  std::function<void(platform::KeyDown&)> on_key_down_;
  platform::Callback on_row_change_;
};

}  // namespace zenta::qt
