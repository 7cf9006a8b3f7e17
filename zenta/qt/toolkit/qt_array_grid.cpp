#include "zenta/qt/toolkit/qt_array_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "zenta/core/utf8.h"
#include "zenta/platform/grid_navigation.h"
#include "zenta/qt/toolkit/array_table_model.h"
#include "zenta/qt/toolkit/grid_editor_delegate.h"
#include "zenta/qt/toolkit/key_mapping.h"
#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {

namespace {
bool IsNavigationKey(int key_code) {
  return key_code == platform::keys::kEnter || key_code == platform::keys::kTab || key_code == platform::keys::kUp ||
         key_code == platform::keys::kDown;
}
}  // namespace

QtArrayGrid::QtArrayGrid(QWidget* parent, const platform::WidgetSpec& definition, int column_count)
    : QTableView(parent), QtWidgetBase(*this, definition),
      model_(new ArrayTableModel(this, std::max(column_count, 0))), delegate_(new GridEditorDelegate(this)) {
  model_->SetOverlay([this](int row, int column) -> std::optional<std::string> {
    if (pending_row_ != row) return std::nullopt;
    if (editing_ && column == edit_column_) {
      if (QtNumberEdit* editor = EditorOf(column)) return editor->Text();
    }
    auto found = pending_.find(column);
    if (found == pending_.end()) return std::nullopt;
    return found->second;
  });
  setModel(model_);
  setItemDelegate(delegate_);
  // Editors open when typing or a double click reaches a cell, never on the view's own triggers.
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectItems);
  setTabKeyNavigation(false);
  // Fixed row heights: nothing is measured per row, however many rows the array holds.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
  verticalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { CurrentCellMoved(); });
}

QtArrayGrid::~QtArrayGrid() {
  // The editors go with the viewport; detached first, nothing they do on the way out calls back
  // into a grid that is half destroyed.
  for (const auto& [column, editor] : delegate_->Editors()) editor->AttachToGrid(nullptr);
}

void QtArrayGrid::Bind(std::shared_ptr<platform::Array2D> array) {
  DropEdit();
  last_row_.reset();
  {
    QScopedValueRollback quiet(rebinding_, true);
    model_->SetArray(std::move(array));
    if (model_->rowCount() > 0) setCurrentIndex(model_->index(0, 0));
  }
  last_row_ = CurrentRow();
  pending_row_ = last_row_;
}

std::shared_ptr<platform::Array2D> QtArrayGrid::BoundArray() const { return model_->Array(); }

void QtArrayGrid::Rebind() {
  const std::optional<int> row = CurrentRow();
  const int column = CurrentColumn();
  DropEdit();
  {
    QScopedValueRollback quiet(rebinding_, true);
    model_->Reset();
    if (model_->rowCount() > 0) {
      int model_row = row ? model_->ModelRowOf(*row) : 0;
      if (model_row < 0 || model_row >= model_->rowCount()) model_row = 0;
      setCurrentIndex(model_->index(model_row, column));
    }
  }
  last_row_ = CurrentRow();
  pending_row_ = last_row_;
}

void QtArrayGrid::Refresh() { viewport()->update(); }

int QtArrayGrid::ColumnCount() const { return model_->columnCount(); }
std::string QtArrayGrid::ColumnCaption(int column) const { return FromQString(model_->Caption(column)); }
void QtArrayGrid::SetColumnCaption(int column, const std::string& caption) { model_->SetCaption(column, ToQString(caption)); }

void QtArrayGrid::SetColumnEditor(int column, platform::NumberEdit* editor) {
  if (QtNumberEdit* old = EditorOf(column)) {
    if (editing_ && edit_column_ == column) EndEdit();
    old->AttachToGrid(nullptr);
  }
  // Only this toolkit's number edits can live in its cells.
  auto* edit = dynamic_cast<QtNumberEdit*>(editor);
  delegate_->SetEditor(column, edit);
  if (!edit) return;
  edit->setParent(viewport());
  edit->hide();
  edit->AttachToGrid(this);
}

QtNumberEdit* QtArrayGrid::EditorOf(int column) const { return delegate_->EditorOf(column); }

std::optional<int> QtArrayGrid::CurrentRow() const {
  const QModelIndex index = currentIndex();
  if (!index.isValid()) return std::nullopt;
  return model_->BookmarkOf(index.row());
}

void QtArrayGrid::SetCurrentCell(int row, int column) {
  const int model_row = model_->ModelRowOf(row);
  if (model_row < 0 || model_row >= model_->rowCount() || column < 0 || column >= ColumnCount()) return;
  setCurrentIndex(model_->index(model_row, column));
}

void QtArrayGrid::SetCurrentRow(int row) {
  if (CurrentRow() == row) return;
  const int model_row = model_->ModelRowOf(row);
  if (model_row < 0 || model_row >= model_->rowCount()) return;
  EndEdit();
  SetCurrentCell(row, CurrentColumn());
}

int QtArrayGrid::CurrentColumn() const {
  const QModelIndex index = currentIndex();
  return index.isValid() ? index.column() : 0;
}

void QtArrayGrid::SetCurrentColumn(int column) {
  const std::optional<int> row = CurrentRow();
  if (!row || column == CurrentColumn() || column < 0 || column >= ColumnCount()) return;
  EndEdit();
  SetCurrentCell(*row, column);
}

void QtArrayGrid::CurrentCellMoved() {
  // Moving off a cell (a click, an arrow key) ends its edit, in the row it was made in.
  if (editing_) EndEdit();
  const std::optional<int> row = CurrentRow();
  if (row == last_row_) return;
  if (pending_row_ == last_row_) CommitRow();
  pending_.clear();
  pending_row_ = row;
  last_row_ = row;
  if (!rebinding_ && on_row_change_) on_row_change_();
}

std::string QtArrayGrid::CellText(int column) const {
  const std::optional<int> row = CurrentRow();
  if (!row) return {};
  if (editing_ && column == edit_column_) {
    if (QtNumberEdit* editor = EditorOf(column)) return editor->Text();
  }
  if (pending_row_ == row) {
    auto found = pending_.find(column);
    if (found != pending_.end()) return found->second;
  }
  return model_->StoredText(*row, column);
}

void QtArrayGrid::SetCellText(int column, const std::string& text) {
  const std::optional<int> row = CurrentRow();
  if (!row) return;
  if (pending_row_ != row) pending_.clear();
  pending_row_ = row;
  pending_[column] = text;
  model_->CellsChanged(model_->ModelRowOf(*row));
}

void QtArrayGrid::CommitRow() {
  const std::shared_ptr<platform::Array2D>& array = model_->Array();
  if (array && pending_row_) {
    const int row = *pending_row_;
    if (row >= array->LowerBound(1) && row <= array->UpperBound(1)) {
      for (const auto& [column, text] : pending_) {
        if (column >= array->LowerBound(2) && column <= array->UpperBound(2)) array->Set(row, column, Variant(text));
      }
    }
    model_->CellsChanged(model_->ModelRowOf(row));
  }
  pending_.clear();
}

std::string QtArrayGrid::DisplayedText(int row, int column) const {
  const QModelIndex index = model_->index(model_->ModelRowOf(row), column);
  return index.isValid() ? FromQString(model_->data(index, Qt::DisplayRole).toString()) : std::string();
}

void QtArrayGrid::FilterKey(platform::KeyPress& press) {
  if (filter_) filter_(press);
}

void QtArrayGrid::StartEditor(QtNumberEdit& editor, char32_t first_key) {
  const std::optional<int> row = CurrentRow();
  if (!row) return;
  const std::string current = CellText(CurrentColumn());
  if (pending_row_ != row) pending_.clear();
  pending_row_ = row;
  editing_ = true;
  edit_column_ = CurrentColumn();
  editor.SetText(current);
  edit(currentIndex());
  // A focus-gained handler may have sent the focus elsewhere; then there is no edit.
  if (!editor.hasFocus()) {
    DropEdit();
    return;
  }
  if (first_key != 0) editor.TypeCharacter(first_key);
}

void QtArrayGrid::TypeIntoCell(char32_t key) {
  std::string text = CellText(CurrentColumn());
  if (!editing_) text.clear();  // typing into a cell replaces it, as the editor's select-all does
  editing_ = true;
  edit_column_ = CurrentColumn();
  if (key == platform::keys::kBackspace) {
    std::u32string points = utf8::Decode(text);
    if (!points.empty()) points.pop_back();
    text = utf8::Encode(points);
  } else {
    text += utf8::Encode(key);
  }
  SetCellText(CurrentColumn(), text);
}

void QtArrayGrid::ReleaseEditor(QtNumberEdit& editor) {
  // Closing takes the focus back to the grid first, so the editor's focus-lost handler runs
  // with the grid as the active child.
  closeEditor(&editor, QAbstractItemDelegate::NoHint);
  // The view connects to the editor each time it opens it; one connection per edit would pile up.
  disconnect(&editor, SIGNAL(destroyed(QObject*)), this, SLOT(editorDestroyed(QObject*)));
}

void QtArrayGrid::EndEdit() {
  if (!editing_) return;
  editing_ = false;
  QtNumberEdit* editor = EditorOf(edit_column_);
  if (editor) pending_[edit_column_] = editor->Text();
  CommitRow();
  if (editor) ReleaseEditor(*editor);
}

void QtArrayGrid::DropEdit() {
  const bool was_editing = editing_;
  editing_ = false;
  pending_.clear();
  if (QtNumberEdit* editor = was_editing ? EditorOf(edit_column_) : nullptr) ReleaseEditor(*editor);
}

void QtArrayGrid::EditorGainingFocus(QtNumberEdit& editor) {
  if (editing_ || !CurrentRow()) return;
  // Focused by the program or a click rather than by typing: it edits its own column's cell all
  // the same, so that Enter or Tab writes it back.
  const int column = delegate_->ColumnOf(editor);
  if (column < 0) return;
  SetCurrentColumn(column);
  editing_ = true;
  edit_column_ = column;
  pending_row_ = CurrentRow();
  editor.SetText(CellText(column));
}

void QtArrayGrid::EndEditFromEditor(QKeyEvent& event) {
  EndEdit();
  keyPressEvent(&event);
}

void QtArrayGrid::Navigate(platform::KeyDown& key) {
  const std::shared_ptr<platform::Array2D>& array = model_->Array();
  const std::optional<int> row = CurrentRow();
  if (!row || !array) return;
  auto next = platform::NextGridCell({*row, CurrentColumn()}, array->LowerBound(1), array->UpperBound(1),
                                     ColumnCount(), key);
  if (!next) return;
  SetCurrentCell(next->row, next->column);
  key.key_code = 0;
}

bool QtArrayGrid::event(QEvent* event) {
  // Tab is the grid's key (it moves between cells) before it is the focus chain's.
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
      keyPressEvent(key);
      return true;
    }
  }
  return QTableView::event(event);
}

void QtArrayGrid::keyPressEvent(QKeyEvent* event) {
  event->accept();
  platform::KeyDown key = ToKeyDown(*event);
  if (IsNavigationKey(key.key_code)) EndEdit();
  if (on_key_down_) on_key_down_(key);
  if (key.key_code == 0) return;
  if (IsNavigationKey(key.key_code)) {
    Navigate(key);
    // Tab from the last cell (Shift+Tab from the first) is not the grid's: it leaves the grid.
    if (key.key_code == platform::keys::kTab) focusNextPrevChild((key.shift & platform::kShift) == 0);
    return;
  }
  const QList<uint> typed = event->text().toUcs4();
  const bool backspace = event->key() == Qt::Key_Backspace;
  if (!CurrentRow() || (!backspace && (typed.size() != 1 || !QChar::isPrint(typed[0])))) {
    QTableView::keyPressEvent(event);
    return;
  }
  platform::KeyPress press{backspace ? char32_t{platform::keys::kBackspace} : static_cast<char32_t>(typed[0])};
  FilterKey(press);
  if (press.key == 0 || (press.key < 32 && press.key != platform::keys::kBackspace)) return;
  if (QtNumberEdit* open = editing_ ? EditorOf(edit_column_) : nullptr) {
    open->TypeCharacter(press.key);  // a key sent to the grid while its editor is open
    return;
  }
  QtNumberEdit* editor = EditorOf(CurrentColumn());
  if (!editor) {
    TypeIntoCell(press.key);
  } else if (press.key != platform::keys::kBackspace) {
    StartEditor(*editor, press.key);
  }
}

void QtArrayGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  if (QtNumberEdit* editor = EditorOf(CurrentColumn()); editor && !editing_) StartEditor(*editor, 0);
}

}  // namespace zenta::qt
