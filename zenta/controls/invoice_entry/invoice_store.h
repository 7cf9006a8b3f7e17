#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/rate.h"
#include "zenta/core/variant.h"
#include "zenta/controls/invoice_entry/invoice_line_block.h"
#include "zenta/platform/grid_source.h"

namespace zenta {

// The invoice list and its distribution lines, sized for the 16-bit row numbers of the public
// interface: at most kMaxRows rows. Every operation a host repeats over the list is constant or
// linear: appending finds the first blank row without scanning when there is none, lines are
// reached through the row identifier, and bulk deletion compacts in one pass. The sums and the
// count of numbered rows follow every change of a row, so reading them costs nothing per row;
// they are exact (a sum out of Currency's range raises Overflow when read, as adding would).
class InvoiceStore : public platform::GridSource {
 public:
  enum Column {
    kIdColumn = 0,
    kDateColumn = 1,
    kNumberColumn = 2,
    kAmountColumn = 3,
    kGSTColumn = 4,
    kExpenseColumn = 5,
    kViewDistColumn = 6,
    kPaymentForColumn = 7,
    kEmailColumn = 8,
  };
  static constexpr int kColumnCount = 9;
  static constexpr int kMaxRows = 32767;

  struct Row {
    std::int16_t id = 0;
    std::optional<Date> date;
    std::string number;
    // Amount cells are empty until written, which is not the same as 0 for the blank-row rule.
    std::optional<Currency> amount;
    std::optional<Currency> gst;
    // A foreign-currency row's rate, exact; column 4 shows it and gst holds it to four decimals
    // for the invoice record, whose field is a currency.
    std::optional<Rate> rate;
    std::optional<Currency> expense;
    std::string payment_for;
    std::string email;
  };

  int Count() const { return static_cast<int>(rows_.size()); }
  const Row& At(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  static bool IsBlank(const Row& row);

  // The first blank row, appending one when there is none. Raises Overflow (source `source`)
  // when the list is full and nothing is blank; the store is then unchanged.
  int TargetRowForAdd(const char* source);
  // Replaces a whole row (its lines stay with its identifier).
  void Put(int row, Row value);
  void SetEmail(int row, std::string email) { rows_[static_cast<std::size_t>(row)].email = std::move(email); }
  void SetPaymentFor(int row, std::string text) { rows_[static_cast<std::size_t>(row)].payment_for = std::move(text); }
  // Removes one row and its lines.
  void Remove(int row);
  // Removes every row `pred` selects, with their lines, in one pass; returns how many went.
  template <class Pred>
  int RemoveIf(Pred pred);
  void Clear();

  // The row's identifier, handing out the next free one when it has none yet; returns whether
  // it was new. Identifiers of live rows stay unique and non-zero.
  bool EnsureId(int row);
  const std::vector<InvoiceLine>* Lines(std::int16_t id) const;
  // The same lines as a shared block (null without lines), for a record that outlives a change.
  std::shared_ptr<const InvoiceLineBlock> LineBlock(std::int16_t id) const;
  void SetLines(std::int16_t id, std::vector<InvoiceLine> lines);
  // Gives back the row's identifier and drops its lines: the row has no split any more.
  void ReleaseId(int row);
  // The sum of the lines' amounts (0 without lines), exact.
  Currency LinesTotal(std::int16_t id) const;
  std::size_t LineCount() const { return line_count_; }

  // Sums over every row, exact.
  Currency TotalAmount() const { return Checked(amount_sum_); }
  Currency TotalGST() const { return Checked(gst_sum_); }
  Currency TotalExpense() const { return Checked(expense_sum_); }
  // Rows whose number holds more than blanks.
  int NumberedRows() const { return numbered_rows_; }
  static bool HasNumber(const Row& row) { return row.number.find_first_not_of(' ') != std::string::npos; }

  // Called after every change of the row count, a sum or the numbered rows, so that a host
  // can be told without polling.
  void OnSummaryChanged(std::function<void()> callback) { summary_changed_ = std::move(callback); }

  // GridSource: the grid reads and writes the rows above, bookmarks from 0.
  int FirstRow() const override { return 0; }
  int RowCount() const override { return Count(); }
  int ColumnCount() const override { return kColumnCount; }
  Variant Cell(int row, int column) const override;
  void WriteRow(int row, const std::map<int, Variant>& cells) override;
  int AppendRow(const std::map<int, Variant>& cells) override;
  void DeleteRow(int row) override { Remove(row); }

 private:
  // Wide enough that no order of changes overflows before a read.
  __extension__ typedef __int128 Sum;
  static Currency Checked(Sum sum);
  void ApplyCell(Row& row, int column, const Variant& value);
  void Forget(const Row& row);
  void NoteBlank(int row);
  // Adds (+1) or takes away (-1) a row's share of the sums and counts.
  void Tally(const Row& row, int sign);
  void Changed() const {
    if (summary_changed_) summary_changed_();
  }

  std::vector<Row> rows_;
  // Lines by row identifier (1 to kMaxRows), each invoice's with their exact sum.
  struct InvoiceLines {
    std::shared_ptr<const InvoiceLineBlock> block;  // null without lines
    Sum total = 0;
  };
  std::vector<InvoiceLines> lines_;
  std::unordered_set<std::int16_t> live_ids_;
  // Identifiers given back: a nearly full list finds a free one at once instead of passing
  // over every identifier in use.
  std::vector<std::int16_t> free_ids_;
  std::int16_t id_counter_ = 0;
  // No row below this index is blank; rows from it on may be.
  std::size_t blank_from_ = 0;
  Sum amount_sum_ = 0;
  Sum gst_sum_ = 0;
  Sum expense_sum_ = 0;
  int numbered_rows_ = 0;
  std::size_t line_count_ = 0;
  std::function<void()> summary_changed_;
};

template <class Pred>
int InvoiceStore::RemoveIf(Pred pred) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (pred(static_cast<const Row&>(rows_[i]))) {
      Tally(rows_[i], -1);
      Forget(rows_[i]);
      continue;
    }
    if (kept != i) rows_[kept] = std::move(rows_[i]);
    ++kept;
  }
  const int removed = static_cast<int>(rows_.size() - kept);
  rows_.resize(kept);
  blank_from_ = 0;
  if (removed > 0) Changed();
  return removed;
}

}  // namespace zenta
