#pragma once

#include <cstdint>
#include <map>

#include "zenta/controls/invoice_entry/invoice_store.h"
#include "zenta/platform/grid_source.h"

namespace zenta {

// The G/L lines of one invoice as the grid beside the invoice list shows them: column 1 the
// account, column 2 the amount (column 0, the line's ID, is not shown). The lines are the
// store's own; deleting a row here deletes that line of the invoice.
class InvoiceLinesSource : public platform::GridSource {
 public:
  enum Column { kIdColumn = 0, kAccountColumn = 1, kAmountColumn = 2, kColumnCount = 3 };

  explicit InvoiceLinesSource(InvoiceStore& store) : store_(store) {}

  // The invoice whose lines are shown (its row identifier; 0 shows none).
  void ShowInvoice(std::int16_t id) { id_ = id; }
  std::int16_t Invoice() const { return id_; }
  Currency Total() const;

  int FirstRow() const override { return 0; }
  int RowCount() const override;
  int ColumnCount() const override { return kColumnCount; }
  Variant Cell(int row, int column) const override;
  void WriteRow(int row, const std::map<int, Variant>& cells) override;
  int AppendRow(const std::map<int, Variant>& cells) override;
  void DeleteRow(int row) override;

 private:
  static void Apply(InvoiceLine& line, const std::map<int, Variant>& cells);

  InvoiceStore& store_;
  std::int16_t id_ = 0;
};

}  // namespace zenta
