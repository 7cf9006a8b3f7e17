#include "zenta/controls/simple/govt_items_table.h"

#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/amount_entry.h"

namespace zenta {

namespace {
constexpr int kItemColumn = 0;
constexpr int kAmountColumn = 1;
constexpr std::size_t kCellLimit = 18;

bool IsItemKey(char32_t key) {
  return (key >= U'A' && key <= U'Z') || (key >= U'a' && key <= U'z') || (key >= U'0' && key <= U'9') ||
         key == 13 || key == U'.' || key == 8 || key == U'-' || key == U',';
}

// The number at the start of a text, as a loose reading of a cell does ("" and "abc" are 0).
Currency LeadingNumber(const std::string& text) {
  std::string number;
  for (char c : utf8::Trim(text)) {
    if ((c >= '0' && c <= '9') || c == '.' || (c == '-' && number.empty())) {
      number += c;
    } else {
      break;
    }
  }
  try {
    return Currency::Parse(number).value_or(Currency());
  } catch (const HostError&) {
    return Currency();
  }
}
}  // namespace

GovtItemsTable::GovtItemsTable(platform::Grid& grid, platform::NumberEdit& editor, Notifications notifications)
    : grid_(grid), editor_(editor), notifications_(std::move(notifications)) {
  entry::ApplyAmountSettings(editor_);
  grid_.OnKeyPress([this](platform::KeyPress& press) { FilterKey(press); });
  grid_.OnKeyDown([this](platform::KeyDown& key) { KeyDown(key); });
  grid_.OnRowChange([this] {
    if (!array_ || !grid_.CurrentRow()) return;
    if (!array_->Get(*grid_.CurrentRow(), kAmountColumn).IsNull()) last_amount_text_ = grid_.CellText(kAmountColumn);
  });
  editor_.OnFocusGained([this] { EditorGotFocus(); });
  editor_.OnFocusLost([this] { EditorLostFocus(); });
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
  grid_.Bind(array_);
  grid_.SetColumnCaption(kItemColumn, "Item");
  grid_.SetColumnCaption(kAmountColumn, "Amount");
  grid_.Refresh();
}

void GovtItemsTable::WithRowCurrent(int row, const std::function<void()>& action) {
  std::optional<int> remembered = grid_.CurrentRow();
  grid_.SetCurrentRow(row);
  // A row the grid refuses (outside the table) must not read or overwrite the current one.
  if (grid_.CurrentRow() == row) action();
  if (remembered) grid_.SetCurrentRow(*remembered);
}

std::string GovtItemsTable::AmountText(std::int16_t row) {
  std::string text;
  WithRowCurrent(row, [&] { text = grid_.CellText(kAmountColumn); });
  return text;
}

void GovtItemsTable::SetAmountText(std::int16_t row, const std::string& text) {
  WithRowCurrent(row, [&] {
    grid_.SetCellText(kAmountColumn, text);
    grid_.CommitRow();
    grid_.Refresh();
  });
}

void GovtItemsTable::FilterKey(platform::KeyPress& press) const {
  if (!IsItemKey(press.key)) {
    press.key = 0;
    return;
  }
  if (press.key >= U'a' && press.key <= U'z') press.key = press.key - U'a' + U'A';
  // Exactly 18, not 18 or more: a longer text written by the host still takes keys.
  bool full = utf8::Length(grid_.CellText(grid_.CurrentColumn())) == kCellLimit;
  if (full && press.key != 8 && press.key != 13) press.key = 0;
}

void GovtItemsTable::KeyDown(platform::KeyDown& key) {
  bool enter_or_tab = key.key_code == platform::keys::kEnter || key.key_code == platform::keys::kTab;
  if (!enter_or_tab || key.shift != platform::kNoShift) return;
  if (grid_.CurrentRow() && *grid_.CurrentRow() == rows_) {
    key.key_code = 0;
    if (notifications_.leave_last_row) notifications_.leave_last_row();
  }
}

void GovtItemsTable::EditorGotFocus() {
  edit_row_ = static_cast<std::int16_t>(grid_.CurrentRow().value_or(0));
  std::optional<Currency> value = editor_.Value();
  if (value && *value == LeadingNumber(last_amount_text_)) {
    editor_.SetText(FormatNumber(LeadingNumber(grid_.CellText(kAmountColumn)), formats::kAmount));
  }
}

void GovtItemsTable::EditorLostFocus() {
  std::optional<Currency> value = editor_.Value();
  if (editor_.Text().find('.') == std::string::npos && value) {
    std::string cents = value->DividedBy(100).ToString();
    WithRowCurrent(edit_row_, [&] {
      grid_.SetCellText(kAmountColumn, cents);
      grid_.CommitRow();
    });
  }
  if (notifications_.row_updated) notifications_.row_updated(edit_row_);
  grid_.SetFocus();
}

}  // namespace zenta
