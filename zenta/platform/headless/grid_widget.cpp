#include "zenta/platform/headless/grid_widget.h"

#include "zenta/core/utf8.h"
#include "zenta/platform/grid_navigation.h"
#include "zenta/platform/headless/number_edit_widget.h"

namespace zenta::headless {

GridWidget::GridWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, int column_count)
    : WidgetBase(form, surface, definition), captions_(static_cast<std::size_t>(column_count)) {}

void GridWidget::Bind(std::shared_ptr<platform::Array2D> array) {
  array_ = std::move(array);
  current_row_.reset();
  Rebind();
}

void GridWidget::Rebind() {
  pending_.clear();
  editing_ = false;
  bool has_rows = array_ && array_->RowCount() > 0;
  bool row_still_there = has_rows && current_row_ && *current_row_ >= array_->LowerBound(1) &&
                         *current_row_ <= array_->UpperBound(1);
  if (!row_still_there) current_row_ = has_rows ? std::optional<int>(array_->LowerBound(1)) : std::nullopt;
}

std::string GridWidget::ColumnCaption(int column) const {
  return column >= 0 && column < ColumnCount() ? captions_[static_cast<std::size_t>(column)] : std::string();
}

void GridWidget::SetColumnCaption(int column, const std::string& caption) {
  if (column >= 0 && column < ColumnCount()) captions_[static_cast<std::size_t>(column)] = caption;
}

void GridWidget::SetColumnEditor(int column, platform::NumberEdit* editor) {
  auto* widget = dynamic_cast<NumberEditWidget*>(editor);
  if (!widget) return;
  editors_[column] = widget;
  widget->AttachToGrid(this);
}

NumberEditWidget* GridWidget::EditorOf(int column) const {
  auto found = editors_.find(column);
  return found == editors_.end() ? nullptr : found->second;
}

void GridWidget::SetCurrentRow(int row) {
  if (!array_ || row < array_->LowerBound(1) || row > array_->UpperBound(1)) return;
  if (current_row_ == row) return;
  if (!pending_.empty()) CommitRow();
  editing_ = false;
  current_row_ = row;
  if (on_row_change_) on_row_change_();
}

void GridWidget::SetCurrentColumn(int column) {
  if (column >= 0 && column < ColumnCount()) current_column_ = column;
}

std::string GridWidget::StoredText(int row, int column) const {
  if (!array_ || row < array_->LowerBound(1) || row > array_->UpperBound(1) || column < array_->LowerBound(2) ||
      column > array_->UpperBound(2)) {
    return {};
  }
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
  if (!current_row_ || !array_) return;
  for (const auto& [column, text] : pending_) {
    if (column >= array_->LowerBound(2) && column <= array_->UpperBound(2)) array_->Set(*current_row_, column, text);
  }
  pending_.clear();
}

std::string GridWidget::DisplayedText(int row, int column) const {
  if (current_row_ == row) {
    auto found = pending_.find(column);
    if (found != pending_.end()) return found->second;
  }
  return StoredText(row, column);
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
    if (form_.Focused() != editor) return;
    // The key has passed the grid's filter once already; the editor takes it as it is.
    editor->AttachToGrid(nullptr);
    editor->HandleCharacter(press.key);
    editor->AttachToGrid(this);
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

void GridWidget::EndEditFromEditor(platform::KeyDown& key) {
  EndEdit();
  form_.SetFocus(this);
  HandleKeyDown(key);
  key.key_code = 0;
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
