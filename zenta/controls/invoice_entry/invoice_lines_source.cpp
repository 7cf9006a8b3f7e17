#include "zenta/controls/invoice_entry/invoice_lines_source.h"

#include <utility>
#include "zenta/core/host_error.h"
#include <vector>

namespace zenta {

Currency InvoiceLinesSource::Total() const {
  Currency total;
  if (const auto* lines = store_.Lines(id_)) {
    for (const InvoiceLine& line : *lines) total += line.Amount;
  }
  return total;
}

int InvoiceLinesSource::RowCount() const {
  const auto* lines = store_.Lines(id_);
  return lines ? static_cast<int>(lines->size()) : 0;
}

Variant InvoiceLinesSource::Cell(int row, int column) const {
  const auto* lines = store_.Lines(id_);
  if (!lines || row < 0 || row >= static_cast<int>(lines->size())) return {};
  const InvoiceLine& line = (*lines)[static_cast<std::size_t>(row)];
  switch (column) {
    case kIdColumn: return line.ID;
    case kAccountColumn: return Variant(line.GLAccount);
    case kAmountColumn: return Variant(line.Amount);
    default: return {};
  }
}

void InvoiceLinesSource::Apply(InvoiceLine& line, const std::map<int, Variant>& cells) {
  for (const auto& [column, value] : cells) {
    if (column == kAccountColumn) line.GLAccount = value.IsEmpty() ? std::string() : value.ToString();
    if (column == kAmountColumn) line.Amount = value.IsEmpty() ? Currency() : value.ToCurrency();
  }
}

void InvoiceLinesSource::WriteRow(int row, const std::map<int, Variant>& cells) {
  const auto* current = store_.Lines(id_);
  if (!current || row < 0 || row >= static_cast<int>(current->size())) return;
  std::vector<InvoiceLine> lines = *current;
  Apply(lines[static_cast<std::size_t>(row)], cells);
  store_.SetLines(id_, std::move(lines));
}

int InvoiceLinesSource::AppendRow(const std::map<int, Variant>& cells) {
  if (id_ == 0) throw HostError::InvalidProcedureCall("grDistribution");
  const auto* current = store_.Lines(id_);
  std::vector<InvoiceLine> lines = current ? *current : std::vector<InvoiceLine>{};
  InvoiceLine line;
  Apply(line, cells);
  lines.push_back(std::move(line));
  store_.SetLines(id_, std::move(lines));
  return RowCount() - 1;
}

void InvoiceLinesSource::DeleteRow(int row) {
  const auto* current = store_.Lines(id_);
  if (!current || row < 0 || row >= static_cast<int>(current->size())) return;
  std::vector<InvoiceLine> lines = *current;
  lines.erase(lines.begin() + row);
  store_.SetLines(id_, std::move(lines));
}

}  // namespace zenta
