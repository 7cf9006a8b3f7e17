#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "zenta/platform/grid.h"
#include "zenta/platform/headless/widget_base.h"

namespace zenta::headless {

class NumberEditWidget;

// An array-bound grid in memory, with the editing and navigation rules documented on
// platform::Grid. Up and Down arrows change the current row.
class GridWidget : public WidgetBase<platform::Grid> {
 public:
  GridWidget(Form& form, Surface* surface, const platform::WidgetSpec& definition, int column_count);

  void Bind(std::shared_ptr<platform::Array2D> array) override;
  std::shared_ptr<platform::Array2D> BoundArray() const override { return array_; }
  void Rebind() override;
  void Refresh() override {}

  int ColumnCount() const override { return static_cast<int>(captions_.size()); }
  std::string ColumnCaption(int column) const override;
  void SetColumnCaption(int column, const std::string& caption) override;
  void SetColumnEditor(int column, platform::NumberEdit* editor) override;

  std::optional<int> CurrentRow() const override { return current_row_; }
  void SetCurrentRow(int row) override;
  int CurrentColumn() const override { return current_column_; }
  void SetCurrentColumn(int column) override;
  bool IsEditing() const override { return editing_; }

  std::string CellText(int column) const override;
  void SetCellText(int column, const std::string& text) override;
  void CommitRow() override;
  std::string DisplayedText(int row, int column) const override;

  void OnKeyPress(std::function<void(platform::KeyPress&)> filter) override { filter_ = std::move(filter); }
  void OnKeyDown(std::function<void(platform::KeyDown&)> handler) override { on_key_down_ = std::move(handler); }
  void OnRowChange(platform::Callback callback) override { on_row_change_ = std::move(callback); }

  void HandleKeyDown(platform::KeyDown& key) override;
  void HandleCharacter(char32_t character) override;

  // Used by the in-cell editor.
  void FilterKey(platform::KeyPress& press);
  void EndEditFromEditor(platform::KeyDown& key);
  void EditorGainingFocus(NumberEditWidget& editor);
  void EditorLosingFocus() { EndEdit(); }

 private:
  NumberEditWidget* EditorOf(int column) const;
  bool HasRow(int row) const;
  bool HasColumn(int column) const;
  std::string StoredText(int row, int column) const;
  void Navigate(platform::KeyDown& key);
  // Writes an edit in progress into the cell and commits the row.
  void EndEdit();
  // As EndEdit, and the grid takes the focus back from its editor.
  void FinishEdit();

  std::shared_ptr<platform::Array2D> array_;
  std::vector<std::string> captions_;
  std::map<int, NumberEditWidget*> editors_;
  std::map<int, std::string> pending_;
  std::optional<int> current_row_;
  int current_column_ = 0;
  bool editing_ = false;
  std::function<void(platform::KeyPress&)> filter_;
  std::function<void(platform::KeyDown&)> on_key_down_;
  platform::Callback on_row_change_;
};

}  // namespace zenta::headless
