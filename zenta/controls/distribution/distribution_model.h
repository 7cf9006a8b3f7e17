#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/currency.h"
#include "zenta/core/rate.h"
#include "zenta/core/variant.h"
#include "zenta/entry/account_number.h"
#include "zenta/platform/array_2d.h"
#include "zenta/platform/grid_notifications.h"
#include "zenta/platform/host_services.h"

namespace zenta {

// The state and rules of the G/L distribution dialog, with no widget in sight: the line table
// shared with the caller (rows from its lower bound, columns 0 delete marker, 1 account,
// 2 amount in the payment's currency, 3 amount in Canadian dollars), the amount the lines must
// add up to, the foreign-currency settings, the totals and footers, and every check and filter
// the dialog's grid applies. FrmDistribution only carries widget notifications here and shows
// what comes back.
//
// Decisions of our own:
//  - The remainder line is the first line with an amount and no account. After every stored or
//    deleted line it holds exactly what the other lines leave of AmountToDistribute, so the
//    lines always add up; a remainder of zero empties it. With no such line, the remainder goes
//    on the first empty line after the one just stored (a new line when there is none), where
//    the payer types next. Giving the remainder line an account makes it one of the payer's.
//  - "The lines add up" (where Tab and Enter go to Accept) counts the payer's lines only, not a
//    remainder line that has no account yet: a proposal does not end the payer's typing.
//  - Filled and converted amounts are stored as currency values rounded half to even to the
//    cent; the grid shows them through its "########0.00" formatting.
//  - A missing table reads as a table without rows.
class DistributionModel {
 public:
  static constexpr int kDeleteColumn = 0;
  static constexpr int kAccountColumn = 1;
  static constexpr int kPaymentColumn = 2;
  static constexpr int kHomeColumn = 3;
  static constexpr std::size_t kMaxAccountLength = entry::kMaxAccountLength;

  struct Totals {
    Currency payment;  // column 2
    Currency home;     // column 3, kept only with VisibleInvoice
  };

  enum class CellVerdict { Accept, AccountTooLong, AmountRequired };

  struct Conversion {
    int column = 0;
    Currency value;
  };

  const std::shared_ptr<platform::Array2D>& Table() const { return table_; }
  void SetTable(std::shared_ptr<platform::Array2D> table) { table_ = std::move(table); }

  bool Chosen() const { return chosen_; }
  void SetChosen(bool chosen) { chosen_ = chosen; }

  Currency AmountToDistribute() const { return amount_to_distribute_; }
  // Also records the table's upper row bound as the initial last row; a bound beyond 32,767
  // raises HostError::Overflow and changes nothing.
  void SetAmountToDistribute(Currency amount);
  std::int16_t InitialLastRow() const { return initial_last_row_; }

  bool IsFXPayment() const { return is_fx_payment_; }
  // Also chooses the amount column: 3 for a foreign payment, 2 otherwise.
  void SetIsFXPayment(bool fx);
  int AmountColumn() const { return amount_column_; }

  const std::string& FXCurrencyCode() const { return fx_currency_code_; }
  void SetFXCurrencyCode(std::string code) { fx_currency_code_ = std::move(code); }
  // Column 2's caption: "Expense (USD)" for a foreign currency code, "Expense" in plain mode.
  std::string PaymentColumnCaption() const;
  static std::string PlainPaymentColumnCaption() { return "Expense"; }

  const Rate& CurrencyRate() const { return currency_rate_; }
  void SetCurrencyRate(const Rate& rate) { currency_rate_ = rate; }
  bool VisibleInvoice() const { return visible_invoice_; }
  void SetVisibleInvoice(bool visible) { visible_invoice_ = visible; }

  Currency DistributedTotal() const { return distributed_total_; }
  bool TotalsMatch() const { return amount_to_distribute_ == distributed_total_; }
  bool EditRejected() const { return edit_rejected_; }

  // Recomputes both column totals and footers, and the distributed total (column 3's in FX
  // mode, else column 2's), which it returns. A cell that does not read as a number or a sum
  // out of range ends it at once with nullopt, leaving what was set before.
  std::optional<Currency> CalculateDistAmounts();
  // The footers alone, after a row change; the distributed total stays.
  void RefreshFooters();
  // The footer text of column 2 or 3 ("" before the first total).
  const std::string& FooterText(int column) const;
  // One more than the last row with an amount, 0 with none.
  std::int16_t DistributionCount() const;

  // The first line with an amount and no account, which holds what is left.
  std::optional<int> RemainderRow() const;
  // What AmountToDistribute leaves after the payer's lines (every line but the remainder
  // line); nullopt when a cell does not read as a number or the sum is out of range.
  std::optional<Currency> Remaining() const;
  bool LinesAddUp() const;
  // Puts what is left on the remainder line after a line changed (see the class comment);
  // `changed_row` is the line just stored, or the one before a deleted line. Returns true when
  // the table changed.
  bool FillRemainingAmount(std::optional<int> changed_row);

  // Before accepting: the first row with an account and no amount, or a rejected cell edit
  // (consumed here), refuses. `missing_amount_row` names the row to show.
  struct AmountsCheck {
    bool may_accept = true;
    std::optional<int> missing_amount_row;
  };
  AmountsCheck CheckAmountsEntered();
  // A refused commit has already been reported; its rejection must not refuse once more.
  void ForgetRejectedEdit() { edit_rejected_ = false; }

  // A cell's edited text on its way into the row: amounts are normalised in `text` (implied
  // cents, "-" and "." alone are 0); an account past 30 characters, or an account row left
  // without an amount, is refused. `account` and `amount_cell` are the row's current cells.
  CellVerdict ValidateCell(int column, std::string& text, std::string_view account, const Variant& amount_cell);
  // The other amount of a row after column 2 or 3 was stored with `value`, when the dialog
  // converts (VisibleInvoice) and the value reads as an amount.
  std::optional<Conversion> ConvertAmount(int column, const Variant& value) const;

  // Typing filters: the character a cell keeps (0 discards it), and the text a cell keeps
  // while being edited.
  char32_t FilterCellKey(const platform::CellKeyPressArgs& key) const;
  std::string CleanCellText(int column, std::string_view text, const platform::HostServices& host) const;
  static bool IsAmountColumn(int column) { return column == kPaymentColumn || column == kHomeColumn; }

  // The payment-for text: upper case, printable ASCII without the double quote.
  static std::string PaymentForText(std::string_view text);
  static char32_t FilterPaymentForKey(char32_t key);

  // "" and unset cells are empty; null only where the rule says so.
  static bool IsEmptyCell(const Variant& value);
  static bool IsEmptyOrNull(const Variant& value) { return value.IsNull() || IsEmptyCell(value); }

 private:
  std::optional<Totals> Sum() const;
  void SetFooters(const Totals& totals);
  Variant Cell(int row, int column) const;
  int LowerRow() const;
  int UpperRow() const;
  void PutAmount(int row, Currency amount);
  void ClearAmount(int row);
  bool IsEmptyLine(int row) const;

  std::shared_ptr<platform::Array2D> table_;
  bool chosen_ = false;
  Currency amount_to_distribute_;
  std::int16_t initial_last_row_ = 0;
  bool is_fx_payment_ = false;
  std::string fx_currency_code_;
  Currency distributed_total_;
  Rate currency_rate_;
  bool visible_invoice_ = false;
  int amount_column_ = kPaymentColumn;
  bool edit_rejected_ = false;
  std::string payment_footer_;
  std::string home_footer_;
};

}  // namespace zenta
