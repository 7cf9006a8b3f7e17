#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "zenta/platform/array_2d.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/lifetime.h"

namespace zenta {

// The lettered line items of a government remittance: up to 26 rows, A-01 to Z-26, each an
// item label and an amount text. The labels are locked and passed over by Tab and Enter, so
// the keyboard walks the amounts only; amounts typed as cents are divided by 100 when the cell
// is left.
class GovtItemsTable {
 public:
  static constexpr std::int16_t kMaxRows = 26;
  static constexpr std::int16_t kDefaultRows = 12;

  struct Notifications {
    std::function<void(std::int16_t row)> row_updated;
    // Enter or Tab in the last row: where the focus goes next.
    std::function<void()> leave_last_row;
  };

  GovtItemsTable(platform::Grid& grid, Notifications notifications);

  // A new table of `rows` empty rows; earlier amounts are discarded.
  void Load(std::int16_t rows);
  bool Loaded() const { return array_ != nullptr; }
  std::int16_t RowCount() const { return rows_; }

  std::string AmountText(std::int16_t row) const;
  void SetAmountText(std::int16_t row, const std::string& text);

  static std::string ItemLabel(int row);

 private:
  void FilterKey(platform::CellKeyPressArgs& press) const;
  void KeyDown(platform::KeyDown& key);
  void BeforeAmountStored(platform::BeforeColUpdateArgs& update);

  platform::GridEngine& engine_;
  Notifications notifications_;
  std::shared_ptr<platform::Array2D> array_;
  std::int16_t rows_ = 0;
  platform::Lifetime lifetime_;
};

}  // namespace zenta
