#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "zenta/platform/array_2d.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/number_edit.h"

namespace zenta {

// The lettered line items of a government remittance: up to 26 rows, A-01 to Z-26, each an
// item label and an amount text, shown in a grid whose amount cells are edited through a
// number edit. Amounts typed as cents are divided by 100 when the editor is left.
class GovtItemsTable {
 public:
  static constexpr std::int16_t kMaxRows = 26;
  static constexpr std::int16_t kDefaultRows = 12;

  struct Notifications {
    std::function<void(std::int16_t row)> row_updated;
    // Enter or Tab in the last row: where the focus goes next.
    std::function<void()> leave_last_row;
  };

  GovtItemsTable(platform::Grid& grid, platform::NumberEdit& editor, Notifications notifications);

  // A new table of `rows` empty rows; earlier amounts are discarded.
  void Load(std::int16_t rows);
  bool Loaded() const { return array_ != nullptr; }
  std::int16_t RowCount() const { return rows_; }

  std::string AmountText(std::int16_t row);
  void SetAmountText(std::int16_t row, const std::string& text);

  static std::string ItemLabel(int row);

 private:
  void FilterKey(platform::KeyPress& press) const;
  void KeyDown(platform::KeyDown& key);
  void EditorGotFocus();
  void EditorLostFocus();
  // Runs `action` with `row` current, then makes the previous row current again.
  void WithRowCurrent(int row, const std::function<void()>& action);

  platform::Grid& grid_;
  platform::NumberEdit& editor_;
  Notifications notifications_;
  std::shared_ptr<platform::Array2D> array_;
  std::int16_t rows_ = 0;
  std::int16_t edit_row_ = 0;
  std::string last_amount_text_;
};

}  // namespace zenta
