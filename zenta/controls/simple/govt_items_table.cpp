#include "zenta/controls/simple/govt_items_table.h"

#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/amount_entry.h"
#include "zenta/entry/amount_key_filter.h"

namespace zenta {

namespace {
constexpr int kItemColumn = 0;
constexpr int kAmountColumn = 1;
constexpr std::size_t kCellLimit = 18;

bool IsItemKey(char32_t key) {
  return (key >= U'A' && key <= U'Z') || (key >= U'a' && key <= U'z') || (key >= U'0' && key <= U'9') ||
         key == 13 || key == U'.' || key == 8 || key == U'-' || key == U',';
}
}  // namespace

GovtItemsTable::GovtItemsTable(platform::Grid& grid, Notifications notifications)
    : engine_(grid.Engine()), notifications_(std::move(notifications)) {
  platform::GridColumn item;
  item.caption = "Item";
  item.locked = true;
  item.tab_stop = false;
  // Both columns fit the grid's width, so scrolling to an amount never hides the labels.
  item.width = 600;
  engine_.SetColumn(kItemColumn, item);
  platform::GridColumn amount;
  amount.caption = "Amount";
  amount.kind = platform::ColumnKind::Number;
  amount.width = 870;
  amount.editor_tooltip = "Enter the amount of the payment";
  engine_.SetColumn(kAmountColumn, amount);

  auto& handlers = engine_.Handlers();
  handlers.key_press = [this](platform::CellKeyPressArgs& press) { FilterKey(press); };
  handlers.key_down = [this](platform::KeyDown& key) { KeyDown(key); };
  handlers.before_col_update = [this](platform::BeforeColUpdateArgs& update) { BeforeAmountStored(update); };
  handlers.after_col_update = [this](int column) {
    if (column != kAmountColumn || !engine_.CurrentRow()) return;
    const auto row = static_cast<std::int16_t>(*engine_.CurrentRow());
    engine_.CommitRow();
    if (notifications_.row_updated) notifications_.row_updated(row);
  };
}

std::string GovtItemsTable::ItemLabel(int row) {
  return std::string(1, static_cast<char>(64 + row)) + "-" + FormatNumber(Currency::FromInteger(row), "00");
}

void GovtItemsTable::Load(std::int16_t rows) {
  rows_ = rows;
  array_ = std::make_shared<platform::Array2D>(1, rows, kItemColumn, kAmountColumn);
  for (int row = 1; row <= rows; ++row) {
    array_->Set(row, kItemColumn, ItemLabel(row));
    array_->Set(row, kAmountColumn, std::string());
  }
  engine_.Bind(array_);
  engine_.SetColumnCaption(kItemColumn, "Item");
  engine_.SetColumnCaption(kAmountColumn, "Amount");
  engine_.Refresh();
}

std::string GovtItemsTable::AmountText(std::int16_t row) const {
  const Variant value = engine_.StoredValue(row, kAmountColumn);
  if (engine_.IsEditing() && engine_.CurrentRow() == row && engine_.CurrentColumn() == kAmountColumn) {
    return engine_.EditText();
  }
  return value.IsEmpty() || value.IsNull() ? std::string() : value.ToString();
}

void GovtItemsTable::SetAmountText(std::int16_t row, const std::string& text) {
  const std::optional<int> remembered = engine_.CurrentRow();
  // A row the grid refuses (outside the table) must not overwrite the current one.
  if (!engine_.SetCurrentRow(row) || engine_.CurrentRow() != row) return;
  // A cell the user is typing in is stored first; the host's text then replaces it as given.
  if (!engine_.CommitEdit()) engine_.CancelEdit();
  engine_.SetCellText(kAmountColumn, text);
  engine_.CommitRow();
  engine_.Refresh();
  if (remembered) engine_.SetCurrentRow(*remembered);
}

void GovtItemsTable::FilterKey(platform::CellKeyPressArgs& press) const {
  if (!IsItemKey(press.key)) {
    press.key = 0;
    return;
  }
  if (press.key >= U'a' && press.key <= U'z') press.key = press.key - U'a' + U'A';
  // Exactly 18, not 18 or more: a longer text written by the host still takes keys.
  const bool full = utf8::Length(press.text) == kCellLimit;
  if (full && press.key != 8 && press.key != 13) {
    press.key = 0;
    return;
  }
  // Enter moves on through key-down; as a character it is never part of an amount.
  if (press.column == kAmountColumn &&
      (press.key == 13 ||
       entry::FilterAmountKey(press.text, press.selection_start, press.selection_length, press.key) == 0)) {
    press.key = 0;
  }
}

void GovtItemsTable::KeyDown(platform::KeyDown& key) {
  const bool enter_or_tab = key.key_code == platform::keys::kEnter || key.key_code == platform::keys::kTab;
  if (!enter_or_tab || key.shift != platform::kNoShift) return;
  if (!engine_.CurrentRow() || *engine_.CurrentRow() != rows_) return;
  key.key_code = 0;
  const platform::Lifetime::Watch table = lifetime_.Watched();
  const bool committed = engine_.CommitRow();  // raises GridRowUpdated: the host may close the form
  if (!table.Alive() || !committed) return;
  if (notifications_.leave_last_row) notifications_.leave_last_row();
}

void GovtItemsTable::BeforeAmountStored(platform::BeforeColUpdateArgs& update) {
  if (update.column != kAmountColumn) return;
  // Stored as the amount's own text ("45.5"), as a value written into the cell reads back.
  if (auto cents = entry::ImpliedDecimalValue(engine_.CellText(kAmountColumn))) {
    engine_.SetCellText(kAmountColumn, cents->ToString());
  }
}

}  // namespace zenta
