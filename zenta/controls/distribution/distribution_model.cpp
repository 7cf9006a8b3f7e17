#include "zenta/controls/distribution/distribution_model.h"

#include <algorithm>
#include <limits>

#include "zenta/controls/distribution/rate_conversion.h"
#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/amount_entry.h"
#include "zenta/entry/amount_key_filter.h"
#include "zenta/entry/text_filters.h"

namespace zenta {

namespace {

constexpr const char* kSource = "frmDistribution";
constexpr char32_t kBackspace = 8;
constexpr char32_t kEnter = 13;
constexpr char32_t kDoubleQuote = 34;

// Rows are counted in 16 bits, as the table's callers count them.
std::int16_t RowNumber(int row) {
  if (row > std::numeric_limits<std::int16_t>::max() || row < std::numeric_limits<std::int16_t>::min()) {
    throw HostError::Overflow(kSource);
  }
  return static_cast<std::int16_t>(row);
}

char32_t UpperAscii(char32_t key) { return key >= U'a' && key <= U'z' ? key - U'a' + U'A' : key; }

}  // namespace

bool DistributionModel::IsEmptyCell(const Variant& value) {
  if (value.IsEmpty()) return true;
  return value.GetType() == Variant::Type::String && value.ToString().empty();
}

int DistributionModel::LowerRow() const { return table_ ? table_->LowerBound(1) : 0; }
int DistributionModel::UpperRow() const { return table_ ? table_->UpperBound(1) : -1; }

Variant DistributionModel::Cell(int row, int column) const { return table_ ? table_->Get(row, column) : Variant(); }

void DistributionModel::SetAmountToDistribute(Currency amount) {
  const std::int16_t last = RowNumber(UpperRow());
  amount_to_distribute_ = amount;
  initial_last_row_ = last;
}

void DistributionModel::SetIsFXPayment(bool fx) {
  is_fx_payment_ = fx;
  amount_column_ = fx ? kHomeColumn : kPaymentColumn;
}

std::string DistributionModel::PaymentColumnCaption() const { return "Expense (" + fx_currency_code_ + ")"; }

std::optional<DistributionModel::Totals> DistributionModel::Sum() const {
  try {
    Totals totals;
    RowNumber(UpperRow());
    for (int row = LowerRow(); row <= UpperRow(); ++row) {
      const Variant payment = Cell(row, kPaymentColumn);
      if (!IsEmptyCell(payment)) totals.payment += payment.ToCurrency();
      if (!visible_invoice_) continue;
      const Variant home = Cell(row, kHomeColumn);
      if (!IsEmptyCell(home)) totals.home += home.ToCurrency();
    }
    return totals;
  } catch (const HostError&) {
    return std::nullopt;
  }
}

void DistributionModel::SetFooters(const Totals& totals) {
  payment_footer_ = FormatNumber(totals.payment, formats::kAmount);
  home_footer_ = FormatNumber(totals.home, formats::kAmount);
}

std::optional<Currency> DistributionModel::CalculateDistAmounts() {
  const std::optional<Totals> totals = Sum();
  if (!totals) return std::nullopt;
  SetFooters(*totals);
  distributed_total_ = is_fx_payment_ ? totals->home : totals->payment;
  return distributed_total_;
}

void DistributionModel::RefreshFooters() {
  if (const std::optional<Totals> totals = Sum()) SetFooters(*totals);
}

const std::string& DistributionModel::FooterText(int column) const {
  if (column == kPaymentColumn) return payment_footer_;
  if (column == kHomeColumn) return home_footer_;
  throw HostError::SubscriptOutOfRange(kSource);
}

std::int16_t DistributionModel::DistributionCount() const {
  for (int row = UpperRow(); row >= LowerRow(); --row) {
    if (!IsEmptyCell(Cell(row, amount_column_))) return RowNumber(row + 1);
  }
  return 0;
}

void DistributionModel::PutAmount(int row, Currency amount) {
  table_->Set(row, amount_column_, Variant(amount));
  if (!is_fx_payment_) return;
  try {
    table_->Set(row, kPaymentColumn, Variant(FromHomeAmount(amount, currency_rate_)));
  } catch (const HostError&) {
    // Without a rate there is no foreign amount to show; the Canadian amount stands alone.
  }
}

void DistributionModel::ClearAmount(int row) {
  table_->Set(row, amount_column_, Variant());
  if (is_fx_payment_) table_->Set(row, kPaymentColumn, Variant());
}

bool DistributionModel::IsEmptyLine(int row) const {
  return IsEmptyCell(Cell(row, kAccountColumn)) && IsEmptyCell(Cell(row, kPaymentColumn)) &&
         IsEmptyCell(Cell(row, kHomeColumn));
}

std::optional<int> DistributionModel::RemainderRow() const {
  for (int row = LowerRow(); row <= UpperRow(); ++row) {
    if (IsEmptyCell(Cell(row, kAccountColumn)) && !IsEmptyCell(Cell(row, amount_column_))) return row;
  }
  return std::nullopt;
}

std::optional<Currency> DistributionModel::Remaining() const {
  const std::optional<int> remainder_row = RemainderRow();
  try {
    Currency lines;
    for (int row = LowerRow(); row <= UpperRow(); ++row) {
      const Variant amount = Cell(row, amount_column_);
      if (row != remainder_row && !IsEmptyCell(amount)) lines += amount.ToCurrency();
    }
    return amount_to_distribute_ - lines;
  } catch (const HostError&) {
    return std::nullopt;
  }
}

bool DistributionModel::LinesAddUp() const {
  const std::optional<Currency> remaining = Remaining();
  return remaining && remaining->IsZero();
}

bool DistributionModel::FillRemainingAmount(std::optional<int> changed_row) {
  if (!table_) return false;
  const std::optional<Currency> remaining = Remaining();
  if (!remaining) return false;
  try {
    if (const std::optional<int> row = RemainderRow()) {
      if (remaining->IsZero()) {
        ClearAmount(*row);
        return true;
      }
      if (Cell(*row, amount_column_).ToCurrency() == *remaining) return false;
      PutAmount(*row, *remaining);
      return true;
    }
    if (remaining->IsZero()) return false;
    int row = std::max(LowerRow(), changed_row.value_or(LowerRow() - 1) + 1);
    while (row <= UpperRow() && !IsEmptyLine(row)) ++row;
    if (row > UpperRow()) {
      table_->AppendRows(1);
      row = UpperRow();
    }
    PutAmount(row, *remaining);
    return true;
  } catch (const HostError&) {
    return false;
  }
}

DistributionModel::AmountsCheck DistributionModel::CheckAmountsEntered() {
  for (int row = LowerRow(); row <= UpperRow(); ++row) {
    if (!IsEmptyCell(Cell(row, kAccountColumn)) && IsEmptyOrNull(Cell(row, amount_column_))) {
      return {false, row};
    }
    if (edit_rejected_) {
      edit_rejected_ = false;
      return {false, std::nullopt};
    }
  }
  return {};
}

DistributionModel::CellVerdict DistributionModel::ValidateCell(int column, std::string& text, std::string_view account,
                                                              const Variant& amount_cell) {
  if (column == kAccountColumn) {
    edit_rejected_ = false;
    if (utf8::Length(text) <= kMaxAccountLength) return CellVerdict::Accept;
    edit_rejected_ = true;
    return CellVerdict::AccountTooLong;
  }
  if (!IsAmountColumn(column)) return CellVerdict::Accept;
  if (!text.empty()) {
    if (text == "-") text = "0";
    if (text.find('.') == std::string::npos) {
      if (auto cents = entry::ImpliedDecimalText(text)) text = *cents;
    } else if (utf8::Length(text) == 1) {
      text = "0";
    }
  }
  bool amount_empty = false;
  if (column == amount_column_) {
    amount_empty = text.empty();
  } else {
    // The other amount column: a conversion is about to fill the amount column.
    amount_empty = IsEmptyOrNull(amount_cell) && !(visible_invoice_ && !text.empty());
  }
  if (!account.empty() && amount_empty) return CellVerdict::AmountRequired;
  return CellVerdict::Accept;
}

std::optional<DistributionModel::Conversion> DistributionModel::ConvertAmount(int column, const Variant& value) const {
  if (!visible_invoice_ || !IsAmountColumn(column) || IsEmptyCell(value)) return std::nullopt;
  try {
    const Currency amount = value.ToCurrency();
    if (column == kHomeColumn) return Conversion{kPaymentColumn, FromHomeAmount(amount, currency_rate_)};
    return Conversion{kHomeColumn, ToHomeAmount(amount, currency_rate_)};
  } catch (const HostError&) {
    return std::nullopt;
  }
}

char32_t DistributionModel::FilterCellKey(const platform::CellKeyPressArgs& key) const {
  if (key.column == kAccountColumn) {
    if (utf8::Length(key.text) >= kMaxAccountLength) {
      // The four keys pass on purpose: the length check on leaving the cell catches the excess.
      const bool passes = key.key == kBackspace || key.key == kEnter || key.key == U'-' || key.key == U'.';
      return passes ? key.key : 0;
    }
    return key.key == kDoubleQuote ? 0 : UpperAscii(key.key);
  }
  if (IsAmountColumn(key.column)) {
    return entry::FilterAmountKey(key.text, key.selection_start, key.selection_length, key.key);
  }
  return key.key;
}

std::string DistributionModel::CleanCellText(int column, std::string_view text,
                                             const platform::HostServices& host) const {
  if (column == kAccountColumn) return entry::AccountNumberText(text);
  if (IsAmountColumn(column)) return utf8::ToUpperAscii(entry::NumericCharsOnly(text, host));
  return std::string(text);
}

std::string DistributionModel::PaymentForText(std::string_view text) {
  return entry::StripInvalidChars(utf8::ToUpperAscii(text));
}

char32_t DistributionModel::FilterPaymentForKey(char32_t key) {
  if (key < 32) return key;
  return PaymentForText(utf8::Encode(key)).empty() ? 0 : UpperAscii(key);
}

}  // namespace zenta
