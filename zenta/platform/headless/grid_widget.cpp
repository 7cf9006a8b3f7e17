#include "zenta/platform/headless/grid_widget.h"

#include <algorithm>

#include "zenta/core/utf8.h"
#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/headless/number_edit_widget.h"

namespace zenta::headless {

GridWidget::GridWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, int column_count)
    : WidgetBase(form, surface, definition), captions_(static_cast<std::size_t>(std::max(column_count, 0))) {}

void GridWidget::Bind(std::shared_ptr<platform::Array2D> array) {
  array_ = std::move(array);
  current_row_.reset();
  Rebind();
}

void GridWidget::Rebind() {
  // The rows under an edit may be gone: the edit is dropped, and the grid takes the focus back
  // from its editor.
  NumberEditWidget* editor = editing_ ? EditorOf(current_column_) : nullptr;
  pending_.clear();
  editing_ = false;
  if (editor && editor->HasFocus()) form_.SetFocus(this);
  if (current_row_ && HasRow(*current_row_)) return;
  current_row_.reset();
  if (array_ && array_->RowCount() > 0) current_row_ = array_->LowerBound(1);
}

std::string GridWidget::ColumnCaption(int column) const {
  return column >= 0 && column < ColumnCount() ? captions_[static_cast<std::size_t>(column)] : std::string();
}

void GridWidget::SetColumnCaption(int column, const std::string& caption) {
  if (column >= 0 && column < ColumnCount()) captions_[static_cast<std::size_t>(column)] = caption;
}

void GridWidget::SetColumnEditor(int column, platform::NumberEdit* editor) {
  if (NumberEditWidget* old = EditorOf(column)) old->AttachToGrid(nullptr);
  editors_.erase(column);
  // Only this toolkit's number edits can live in its cells.
  if (auto* widget = dynamic_cast<NumberEditWidget*>(editor)) {
    editors_[column] = widget;
    widget->AttachToGrid(this);
  }
}

NumberEditWidget* GridWidget::EditorOf(int column) const {
  auto found = editors_.find(column);
  return found == editors_.end() ? nullptr : found->second;
}

void GridWidget::SetCurrentRow(int row) {
  if (!HasRow(row) || current_row_ == row) return;
  FinishEdit();
  CommitRow();
  current_row_ = row;
  if (on_row_change_) on_row_change_();
}

void GridWidget::SetCurrentColumn(int column) {
  if (column < 0 || column >= ColumnCount() || column == current_column_) return;
  FinishEdit();
  current_column_ = column;
}

bool GridWidget::HasRow(int row) const {
  return array_ && array_->RowCount() > 0 && row >= array_->LowerBound(1) && row <= array_->UpperBound(1);
}

bool GridWidget::HasColumn(int column) const {
  return array_ && column >= array_->LowerBound(2) && column <= array_->UpperBound(2);
}

std::string GridWidget::StoredText(int row, int column) const {
  if (!HasRow(row) || !HasColumn(column)) return {};
  const Variant& cell = array_->Get(row, column);
  return cell.IsNull() ? std::string() : cell.ToString();
}

std::string GridWidget::CellText(int column) const {
  if (editing_ && column == current_column_) {
    if (auto* editor = EditorOf(column)) return editor->Text();
  }
  auto found = pending_.find(column);
  if (found != pending_.end()) return found->second;
  return current_row_ ? StoredText(*current_row_, column) : std::string();
}

void GridWidget::SetCellText(int column, const std::string& text) {
  if (current_row_) pending_[column] = text;
}

void GridWidget::CommitRow() {
  if (current_row_ && HasRow(*current_row_)) {
    for (const auto& [column, text] : pending_) {
      if (HasColumn(column)) array_->Set(*current_row_, column, Variant(text));
    }
  }
  pending_.clear();
}

std::string GridWidget::DisplayedText(int row, int column) const {
  return current_row_ == row ? CellText(column) : StoredText(row, column);
}

void GridWidget::FilterKey(platform::KeyPress& press) {
  if (filter_) filter_(press);
}

void GridWidget::HandleCharacter(char32_t character) {
  if (!current_row_) return;
  platform::KeyPress press{character};
  FilterKey(press);
  if (press.key == 0 || (press.key < 32 && press.key != platform::keys::kBackspace)) return;
  if (auto* editor = EditorOf(current_column_)) {
    std::string current = CellText(current_column_);
    editing_ = true;
    editor->SetText(current);
    form_.SetFocus(editor);
    // A focus-gained handler may have sent the focus elsewhere; then there is no edit.
    if (!editor->HasFocus()) {
      editing_ = false;
      return;
    }
    editor->TypeCharacter(press.key);
    return;
  }
  std::string text = CellText(current_column_);
  if (!editing_) text.clear();  // typing into a cell replaces it, as the editor's select-all does
  editing_ = true;
  if (press.key == platform::keys::kBackspace) {
    std::u32string points = utf8::Decode(text);
    if (!points.empty()) points.pop_back();
    text = utf8::Encode(points);
  } else {
    text += utf8::Encode(press.key);
  }
  pending_[current_column_] = text;
}

void GridWidget::EndEdit() {
  if (!editing_) return;
  if (auto* editor = EditorOf(current_column_)) pending_[current_column_] = editor->Text();
  editing_ = false;
  CommitRow();
}

void GridWidget::FinishEdit() {
  NumberEditWidget* editor = editing_ ? EditorOf(current_column_) : nullptr;
  EndEdit();
  if (editor && editor->HasFocus()) form_.SetFocus(this);
}

void GridWidget::EditorGainingFocus(NumberEditWidget& editor) {
  if (editing_ || !current_row_) return;
  // Focused by the program rather than by typing: it edits its own column's cell all the same,
  // so that Enter or Tab writes it back.
  for (const auto& [column, cell_editor] : editors_) {
    if (cell_editor != &editor) continue;
    current_column_ = column;
    editor.SetText(CellText(column));
    editing_ = true;
    return;
  }
}

void GridWidget::EndEditFromEditor(platform::KeyDown& key) {
  EndEdit();
  form_.SetFocus(this);
  // A key the grid leaves alone (Tab from the last cell) goes on to the form from the grid.
  HandleKeyDown(key);
}

void GridWidget::HandleKeyDown(platform::KeyDown& key) {
  bool enter_or_tab = key.key_code == platform::keys::kEnter || key.key_code == platform::keys::kTab;
  if (enter_or_tab || key.key_code == platform::keys::kUp || key.key_code == platform::keys::kDown) EndEdit();
  if (on_key_down_) on_key_down_(key);
  if (key.key_code != 0) Navigate(key);
}

void GridWidget::Navigate(platform::KeyDown& key) {
  if (!current_row_ || !array_) return;
  auto next = platform::NextGridCell({*current_row_, current_column_}, array_->LowerBound(1), array_->UpperBound(1),
                                     ColumnCount(), key);
  if (!next) return;
  current_column_ = next->column;
  SetCurrentRow(next->row);
  key.key_code = 0;
}

}  // namespace zenta::headless
