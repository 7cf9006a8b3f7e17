#include "zenta/controls/invoice_entry/invoice_store.h"

#include <algorithm>
#include <limits>

#include "zenta/core/host_error.h"

namespace zenta {
namespace {

bool BlankText(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c == ' '; });
}

// A cell the grid hands back: empty or blank text means no value.
bool Unset(const Variant& value) {
  if (value.IsEmpty() || value.IsNull()) return true;
  return value.GetType() == Variant::Type::String && BlankText(value.ToString());
}

std::optional<Currency> AmountOf(const Variant& value) {
  if (Unset(value)) return std::nullopt;
  return value.ToCurrency();
}

Variant Optional(const std::optional<Currency>& amount) { return amount ? Variant(*amount) : Variant(); }

}  // namespace

bool InvoiceStore::IsBlank(const Row& row) { return !row.date && BlankText(row.number) && !row.amount; }

int InvoiceStore::TargetRowForAdd(const char* source) {
  for (; blank_from_ < rows_.size(); ++blank_from_) {
    if (IsBlank(rows_[blank_from_])) return static_cast<int>(blank_from_);
  }
  if (Count() >= kMaxRows) throw HostError::Overflow(source);
  rows_.emplace_back();
  Changed();
  return Count() - 1;
}

void InvoiceStore::Put(int row, Row value) {
  Row& target = rows_[static_cast<std::size_t>(row)];
  Tally(target, -1);
  target = std::move(value);
  Tally(target, +1);
  NoteBlank(row);
  Changed();
}

void InvoiceStore::Tally(const Row& row, int sign) {
  if (row.amount) amount_sum_ += sign * static_cast<Sum>(row.amount->Units());
  if (row.gst) gst_sum_ += sign * static_cast<Sum>(row.gst->Units());
  if (row.expense) expense_sum_ += sign * static_cast<Sum>(row.expense->Units());
  if (HasNumber(row)) numbered_rows_ += sign;
}

Currency InvoiceStore::Checked(Sum sum) {
  if (sum > std::numeric_limits<std::int64_t>::max() || sum < std::numeric_limits<std::int64_t>::min()) {
    throw HostError::Overflow("Currency");
  }
  return Currency::FromUnits(static_cast<std::int64_t>(sum));
}

void InvoiceStore::NoteBlank(int row) {
  if (IsBlank(rows_[static_cast<std::size_t>(row)])) blank_from_ = std::min(blank_from_, static_cast<std::size_t>(row));
}

void InvoiceStore::Forget(const Row& row) {
  if (row.id == 0) return;
  SetLines(row.id, {});
  if (live_ids_.erase(row.id) != 0) free_ids_.push_back(row.id);
}

void InvoiceStore::ReleaseId(int row) {
  Row& target = rows_[static_cast<std::size_t>(row)];
  Forget(target);
  target.id = 0;
}

void InvoiceStore::Remove(int row) {
  const auto at = rows_.begin() + row;
  Tally(*at, -1);
  Forget(*at);
  rows_.erase(at);
  blank_from_ = std::min(blank_from_, static_cast<std::size_t>(row));
  Changed();
}

void InvoiceStore::Clear() {
  rows_.clear();
  lines_.clear();
  live_ids_.clear();
  blank_from_ = 0;
  amount_sum_ = gst_sum_ = expense_sum_ = 0;
  numbered_rows_ = 0;
  line_count_ = 0;
  Changed();
}

bool InvoiceStore::EnsureId(int row) {
  Row& target = rows_[static_cast<std::size_t>(row)];
  if (target.id != 0) return false;
  // A given-back identifier first; otherwise the counter wraps within 1..kMaxRows and passes
  // over identifiers still in use; with at most kMaxRows rows one is always free.
  while (!free_ids_.empty()) {
    const std::int16_t id = free_ids_.back();
    free_ids_.pop_back();
    if (live_ids_.contains(id)) continue;
    target.id = id;
    live_ids_.insert(id);
    return true;
  }
  do {
    id_counter_ = static_cast<std::int16_t>(id_counter_ >= kMaxRows ? 1 : id_counter_ + 1);
  } while (live_ids_.contains(id_counter_));
  target.id = id_counter_;
  live_ids_.insert(id_counter_);
  return true;
}

const std::vector<InvoiceLine>* InvoiceStore::Lines(std::int16_t id) const {
  if (id <= 0 || static_cast<std::size_t>(id) >= lines_.size()) return nullptr;
  const InvoiceLines& entry = lines_[static_cast<std::size_t>(id)];
  return entry.block ? &entry.block->Lines() : nullptr;
}

std::shared_ptr<const InvoiceLineBlock> InvoiceStore::LineBlock(std::int16_t id) const {
  if (id <= 0 || static_cast<std::size_t>(id) >= lines_.size()) return nullptr;
  return lines_[static_cast<std::size_t>(id)].block;
}

Currency InvoiceStore::LinesTotal(std::int16_t id) const {
  if (id <= 0 || static_cast<std::size_t>(id) >= lines_.size()) return Currency();
  return Checked(lines_[static_cast<std::size_t>(id)].total);
}

void InvoiceStore::SetLines(std::int16_t id, std::vector<InvoiceLine> lines) {
  if (id <= 0) return;
  const auto at = static_cast<std::size_t>(id);
  if (at >= lines_.size()) {
    if (lines.empty()) return;
    lines_.resize(at + 1);
  }
  InvoiceLines& entry = lines_[at];
  Sum total = 0;
  for (const InvoiceLine& line : lines) total += line.Amount.Units();
  auto block = lines.empty() ? nullptr : std::make_shared<const InvoiceLineBlock>(std::move(lines));
  line_count_ -= entry.block ? entry.block->LineCount() : 0;
  line_count_ += block ? block->LineCount() : 0;
  entry.total = total;
  entry.block = std::move(block);
}

Variant InvoiceStore::Cell(int row, int column) const {
  const Row& r = At(row);
  switch (column) {
    case kIdColumn: return Variant(r.id);
    case kDateColumn: return r.date ? Variant(*r.date) : Variant();
    case kNumberColumn: return Variant(r.number);
    case kAmountColumn: return Optional(r.amount);
    // The rate as text: a currency cell would cut it to four decimals.
    case kGSTColumn: return r.rate ? Variant(r.rate->ToString()) : Optional(r.gst);
    case kExpenseColumn: return Optional(r.expense);
    case kPaymentForColumn: return Variant(r.payment_for);
    case kEmailColumn: return Variant(r.email);
    default: return {};
  }
}

void InvoiceStore::ApplyCell(Row& row, int column, const Variant& value) {
  switch (column) {
    case kDateColumn: row.date = Unset(value) ? std::nullopt : std::optional<Date>(value.ToDate()); break;
    case kNumberColumn: row.number = Unset(value) ? std::string() : value.ToString(); break;
    case kAmountColumn: row.amount = AmountOf(value); break;
    case kGSTColumn:
      // The rate's own text coming back unchanged keeps the exact rate.
      if (row.rate && value.GetType() == Variant::Type::String && Rate::Parse(value.ToString()) == row.rate) break;
      row.gst = AmountOf(value);
      row.rate.reset();
      break;
    case kExpenseColumn: row.expense = AmountOf(value); break;
    case kPaymentForColumn: row.payment_for = Unset(value) ? std::string() : value.ToString(); break;
    case kEmailColumn: row.email = Unset(value) ? std::string() : value.ToString(); break;
    default: break;  // the identifier belongs to the store; the button column holds nothing
  }
}

void InvoiceStore::WriteRow(int row, const std::map<int, Variant>& cells) {
  Row& target = rows_[static_cast<std::size_t>(row)];
  Row written = target;
  for (const auto& [column, value] : cells) ApplyCell(written, column, value);
  Tally(target, -1);
  target = std::move(written);
  Tally(target, +1);
  NoteBlank(row);
  Changed();
}

int InvoiceStore::AppendRow(const std::map<int, Variant>& cells) {
  if (Count() >= kMaxRows) throw HostError::Overflow("grInvoices");
  Row row;
  for (const auto& [column, value] : cells) ApplyCell(row, column, value);
  Tally(row, +1);
  rows_.push_back(std::move(row));
  NoteBlank(Count() - 1);
  Changed();
  return Count() - 1;
}

}  // namespace zenta
