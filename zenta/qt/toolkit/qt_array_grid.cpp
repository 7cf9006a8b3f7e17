#include "zenta/qt/toolkit/qt_array_grid.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "zenta/core/utf8.h"
#include "zenta/platform/grid_navigation.h"
#include "zenta/qt/toolkit/array_table_model.h"
#include "zenta/qt/toolkit/key_mapping.h"
#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {

QtArrayGrid::QtArrayGrid(QWidget* parent, const platform::WidgetSpec& definition, int column_count)
    : QTableView(parent), QtWidgetBase(*this, definition), model_(new ArrayTableModel(this, column_count)) {
  model_->SetOverlay([this](int row, int column) -> std::optional<std::string> {
    if (pending_row_ != row) return std::nullopt;
    if (editing_ && column == CurrentColumn()) {
      if (auto* editor = EditorOf(column)) return editor->Text();
    }
    auto found = pending_.find(column);
    if (found == pending_.end()) return std::nullopt;
    return found->second;
  });
  setModel(model_);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectItems);
  setTabKeyNavigation(false);
  // Fixed row heights: no per-row measuring, whatever the number of rows.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
  verticalHeader()->hide();
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current, const QModelIndex& previous) {
            if (current.row() != previous.row()) CurrentRowMoved(previous.isValid() ? model_->BookmarkOf(previous.row()) : -1);
          });
}

QtArrayGrid::~QtArrayGrid() = default;

void QtArrayGrid::Bind(std::shared_ptr<platform::Array2D> array) {
  pending_.clear();
  pending_row_.reset();
  editing_ = false;
  model_->SetArray(std::move(array));
  if (model_->rowCount() > 0) setCurrentIndex(model_->index(0, 0));
}

std::shared_ptr<platform::Array2D> QtArrayGrid::BoundArray() const { return model_->Array(); }

void QtArrayGrid::Rebind() {
  std::optional<int> row = CurrentRow();
  int column = CurrentColumn();
  pending_.clear();
  pending_row_.reset();
  editing_ = false;
  model_->Reset();
  if (model_->rowCount() == 0) return;
  int model_row = row ? model_->ModelRowOf(*row) : 0;
  if (model_row < 0 || model_row >= model_->rowCount()) model_row = 0;
  setCurrentIndex(model_->index(model_row, column));
}

void QtArrayGrid::Refresh() { viewport()->update(); }

int QtArrayGrid::ColumnCount() const { return model_->columnCount(); }
std::string QtArrayGrid::ColumnCaption(int column) const { return FromQString(model_->Caption(column)); }
void QtArrayGrid::SetColumnCaption(int column, const std::string& caption) { model_->SetCaption(column, ToQString(caption)); }

void QtArrayGrid::SetColumnEditor(int column, platform::NumberEdit* editor) {
  auto* edit = dynamic_cast<QtNumberEdit*>(editor);
  if (!edit) return;
  editors_[column] = edit;
  edit->setParent(viewport());
  edit->hide();
  edit->AttachToGrid(this);
}

QtNumberEdit* QtArrayGrid::EditorOf(int column) const {
  auto found = editors_.find(column);
  return found == editors_.end() ? nullptr : found->second;
}

std::optional<int> QtArrayGrid::CurrentRow() const {
  QModelIndex index = currentIndex();
  if (!index.isValid()) return std::nullopt;
  return model_->BookmarkOf(index.row());
}

void QtArrayGrid::SetCurrentRow(int row) {
  int model_row = model_->ModelRowOf(row);
  if (model_row < 0 || model_row >= model_->rowCount()) return;
  setCurrentIndex(model_->index(model_row, std::max(0, CurrentColumn())));
}

int QtArrayGrid::CurrentColumn() const {
  QModelIndex index = currentIndex();
  return index.isValid() ? index.column() : 0;
}

void QtArrayGrid::SetCurrentColumn(int column) {
  if (column < 0 || column >= ColumnCount() || !currentIndex().isValid()) return;
  setCurrentIndex(model_->index(currentIndex().row(), column));
}

void QtArrayGrid::CurrentRowMoved(int old_bookmark) {
  if (!pending_.empty() && pending_row_ == old_bookmark) CommitRow();
  editing_ = false;
  pending_.clear();
  pending_row_ = CurrentRow();
  if (on_row_change_) on_row_change_();
}

std::string QtArrayGrid::CellText(int column) const {
  auto row = CurrentRow();
  if (!row) return {};
  if (editing_ && column == CurrentColumn()) {
    if (auto* editor = EditorOf(column)) return editor->Text();
  }
  auto found = pending_.find(column);
  if (pending_row_ == row && found != pending_.end()) return found->second;
  return model_->StoredText(*row, column);
}

void QtArrayGrid::SetCellText(int column, const std::string& text) {
  auto row = CurrentRow();
  if (!row) return;
  if (pending_row_ != row) pending_.clear();
  pending_row_ = row;
  pending_[column] = text;
  model_->CellsChanged(model_->ModelRowOf(*row));
}

void QtArrayGrid::CommitRow() {
  auto array = model_->Array();
  if (!array || !pending_row_) return;
  int row = *pending_row_;
  for (const auto& [column, text] : pending_) {
    if (row >= array->LowerBound(1) && row <= array->UpperBound(1) && column >= array->LowerBound(2) &&
        column <= array->UpperBound(2)) {
      array->Set(row, column, Variant(text));
    }
  }
  pending_.clear();
  model_->CellsChanged(model_->ModelRowOf(row));
}

std::string QtArrayGrid::DisplayedText(int row, int column) const {
  QModelIndex index = model_->index(model_->ModelRowOf(row), column);
  return index.isValid() ? FromQString(model_->data(index, Qt::DisplayRole).toString()) : std::string();
}

void QtArrayGrid::FilterKey(platform::KeyPress& press) {
  if (filter_) filter_(press);
}

void QtArrayGrid::StartEditor(QtNumberEdit& editor, char32_t first_key) {
  std::string current = CellText(CurrentColumn());
  editing_ = true;
  pending_row_ = CurrentRow();
  editor.SetText(current);
  editor.setGeometry(visualRect(currentIndex()));
  editor.show();
  editor.raise();
  editor.setFocus(Qt::OtherFocusReason);
  if (editor.hasFocus()) editor.TypeCharacter(first_key);
}

void QtArrayGrid::EndEdit() {
  if (!editing_) return;
  QtNumberEdit* editor = EditorOf(CurrentColumn());
  if (editor) pending_[CurrentColumn()] = editor->Text();
  editing_ = false;
  CommitRow();
  if (editor && !editor->hasFocus()) editor->hide();
}

void QtArrayGrid::EndEditFromEditor(QKeyEvent* event) {
  QtNumberEdit* editor = EditorOf(CurrentColumn());
  EndEdit();
  setFocus(Qt::OtherFocusReason);  // the editor's focus-lost runs now, with the grid active
  if (editor) editor->hide();
  keyPressEvent(event);
}

bool QtArrayGrid::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
      keyPressEvent(key);
      if (!key->isAccepted()) focusNextPrevChild(key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier));
      return true;
    }
  }
  return QTableView::event(event);
}

void QtArrayGrid::keyPressEvent(QKeyEvent* event) {
  platform::KeyDown key = ToKeyDown(*event);
  const bool navigation = key.key_code == platform::keys::kEnter || key.key_code == platform::keys::kTab ||
                          key.key_code == platform::keys::kUp || key.key_code == platform::keys::kDown;
  if (navigation) {
    EndEdit();
    if (on_key_down_) on_key_down_(key);
    event->accept();
    if (key.key_code == 0 || !CurrentRow()) return;
    auto array = model_->Array();
    auto next = platform::NextGridCell({*CurrentRow(), CurrentColumn()}, array->LowerBound(1), array->UpperBound(1),
                                       ColumnCount(), key);
    if (!next) {
      event->ignore();  // Tab out of the last cell: the focus chain takes it
      return;
    }
    setCurrentIndex(model_->index(model_->ModelRowOf(next->row), next->column));
    return;
  }
  QString typed = event->text();
  const bool backspace = event->key() == Qt::Key_Backspace;
  if (!CurrentRow() || (!backspace && (typed.size() != 1 || !typed[0].isPrint()))) {
    QTableView::keyPressEvent(event);
    return;
  }
  platform::KeyPress press{backspace ? char32_t{8} : char32_t{typed[0].unicode()}};
  FilterKey(press);
  if (press.key == 0) return;
  if (QtNumberEdit* editor = EditorOf(CurrentColumn())) {
    if (!backspace) StartEditor(*editor, press.key);
    return;
  }
  std::string text = editing_ ? CellText(CurrentColumn()) : std::string();
  editing_ = true;
  if (press.key == 8) {
    std::u32string points = utf8::Decode(text);
    if (!points.empty()) points.pop_back();
    text = utf8::Encode(points);
  } else {
    text += utf8::Encode(press.key);
  }
  SetCellText(CurrentColumn(), text);
}

}  // namespace zenta::qt
