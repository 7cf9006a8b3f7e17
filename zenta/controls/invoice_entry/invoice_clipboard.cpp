#include "zenta/controls/invoice_entry/invoice_clipboard.h"

#include <algorithm>
#include <cctype>

#include "zenta/controls/distribution/validation_texts.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/controls/invoice_entry/invoice_limits.h"
#include "zenta/controls/invoice_entry/invoice_texts.h"
#include "zenta/core/host_error.h"
#include "zenta/core/message_template.h"
#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/message_templates.h"
#include "zenta/entry/pasted_amount.h"
#include "zenta/entry/pasted_date.h"
#include "zenta/entry/text_filters.h"
#include "zenta/platform/grid_engine.h"

namespace zenta {
namespace {

using Col = InvoiceStore::Column;

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

std::string Folded(std::string_view text) {
  std::string out = Trimmed(text);
  std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return out;
}

bool BlankRow(const std::vector<std::string>& cells) {
  return std::all_of(cells.begin(), cells.end(), [](const std::string& cell) { return Trimmed(cell).empty(); });
}

// What typing lets into the number column: printable ASCII less the quote and "~".
std::string TypableNumber(const std::string& text) {
  // Longer than any number could be once filtered: refused by length without filtering it all.
  if (text.size() > entry::kMaxFilteredLength) return text;
  return entry::StripInvalidChars(text);
}

}  // namespace

std::vector<int> InvoiceClipboard::DataColumns() const {
  std::vector<int> columns{Col::kDateColumn, Col::kNumberColumn, Col::kAmountColumn};
  if (control_.BusinessMode() && !control_.ForeignMode()) columns.push_back(Col::kGSTColumn);
  return columns;
}

bool InvoiceClipboard::MapColumns(const std::vector<std::string>& first, std::vector<int>& mapping) const {
  const platform::GridEngine& engine = control_.grid_.Engine();
  const std::vector<int> data = DataColumns();
  // A header names visible columns only; the derived ones among them take nothing.
  std::vector<int> by_header;
  bool any = false;
  for (const std::string& cell : first) {
    const std::string caption = Folded(cell);
    int found = -1;
    if (!caption.empty()) {
      for (int column = 0; column < engine.ColumnCount(); ++column) {
        if (engine.Column(column).visible && Folded(engine.Column(column).caption) == caption) found = column;
      }
      if (found < 0) break;
    }
    if (std::find(data.begin(), data.end(), found) == data.end()) found = -1;
    any = any || found >= 0;
    by_header.push_back(found);
  }
  if (any && by_header.size() == first.size()) {
    mapping = std::move(by_header);
    return true;
  }
  const auto current = std::find(data.begin(), data.end(), engine.CurrentColumn());
  mapping.assign(current == data.end() ? data.begin() : current, data.end());
  return false;
}

bool InvoiceClipboard::Read(const std::vector<std::string>& cells, const std::vector<int>& mapping,
                            Candidate& candidate) {
  platform::HostServices& host = control_.host_;
  InvoiceStore::Row& row = candidate.row;
  auto refuse = [&](int column, std::string reason) {
    refusals_.push_back({candidate.line, column, std::move(reason)});
    return false;
  };
  for (std::size_t i = 0; i < cells.size() && i < mapping.size(); ++i) {
    const int column = mapping[i];
    const std::string text = Trimmed(cells[i]);
    if (column < 0 || text.empty()) continue;
    switch (column) {
      case Col::kDateColumn: {
        const auto date = entry::ParsePastedDate(text, host.ShortDatePattern());
        if (!date) return refuse(column, texts::kNotADate);
        candidate.date_verdict = JudgeInvoiceDate(*date, host.Today());
        if (candidate.date_verdict == InvoiceDateVerdict::kTooFarAhead) return refuse(column, texts::kTooFarAhead);
        row.date = date;
        break;
      }
      case Col::kNumberColumn:
        row.number = TypableNumber(cells[i]);
        if (utf8::Length(row.number) > invoice_limits::kMaxNumberLength) return refuse(column, texts::kNumberTooLong);
        break;
      default: {
        const auto amount = entry::ParsePastedAmount(text, invoice_limits::kAmountDigits);
        if (!amount) return refuse(column, texts::kNotAnAmount);
        (column == Col::kGSTColumn ? row.gst : row.amount) = amount;
        break;
      }
    }
  }
  if (!row.date) return refuse(Col::kDateColumn, texts::kDateRequired);
  if (!InvoiceStore::HasNumber(row)) return refuse(Col::kNumberColumn, texts::kNumberRequired);
  if (!row.amount) return refuse(Col::kAmountColumn, texts::kAmountRequired);
  if (control_.ForeignMode()) {
    try {
      if (control_.Converted(row, Col::kAmountColumn) == InvoiceEntry::Conversion::kOutOfRange) {
        return refuse(Col::kAmountColumn, InvoiceEntry::kForeignRangeText);
      }
    } catch (const HostError& error) {
      return refuse(Col::kAmountColumn, error.Description());
    }
  } else if (control_.BusinessMode()) {
    if (!row.gst) return refuse(Col::kGSTColumn, texts::kGSTRequired);
    row.expense = *row.amount - *row.gst;  // within range: both have at most eight digits
  }
  return true;
}

bool InvoiceClipboard::AskAboutDates(std::vector<Candidate>& candidates, InvoiceDateVerdict verdict,
                                     const char* question) {
  std::string lines;
  for (const Candidate& candidate : candidates) {
    if (candidate.date_verdict != verdict) continue;
    lines += (lines.empty() ? "" : ", ") + std::to_string(candidate.line);
  }
  if (lines.empty()) return true;
  const platform::Lifetime::Watch alive = control_.lifetime_.Watched();
  const std::string text = std::string(question) + "\n" + FillTemplate(texts::kQuestionRows, {lines});
  const bool change = control_.Ask(text.c_str(), texts::kDateTitle);
  if (!alive.Alive()) return false;
  if (!change) return true;
  std::erase_if(candidates, [&](const Candidate& candidate) {
    if (candidate.date_verdict != verdict) return false;
    refusals_.push_back({candidate.line, Col::kDateColumn, texts::kDateToChange});
    return true;
  });
  return true;
}

bool InvoiceClipboard::RunVetoes(std::vector<Candidate>& candidates) {
  const platform::Lifetime::Watch alive = control_.lifetime_.Watched();
  InvoiceEvents& events = control_.events_;
  Currency pasted;
  std::vector<Candidate> kept;
  kept.reserve(candidates.size());
  for (Candidate& candidate : candidates) {
    std::string number = candidate.row.number;
    const std::optional<bool> duplicate = events.CheckDuplicateInvoices(number);
    if (!duplicate || !alive.Alive()) return false;
    if (*duplicate) {
      refusals_.push_back({candidate.line, Col::kNumberColumn, texts::kDuplicateRefused});
      continue;
    }
    // The list's total once this row is in, as typing asks it.
    Currency total;
    try {
      total = control_.TotalAmount() + pasted + *candidate.row.amount;
    } catch (const HostError& error) {
      refusals_.push_back({candidate.line, Col::kAmountColumn, error.Description()});
      continue;
    }
    const std::optional<bool> over = events.ValidateInvoiceAmountLimit(total);
    if (!over || !alive.Alive()) return false;
    if (*over) {
      refusals_.push_back({candidate.line, Col::kAmountColumn, texts::kLimitRefused});
      continue;
    }
    pasted += *candidate.row.amount;
    kept.push_back(std::move(candidate));
  }
  candidates = std::move(kept);
  return true;
}

void InvoiceClipboard::Add(std::vector<Candidate>& candidates) {
  InvoiceStore& store = control_.store_;
  InvoiceStore before = store;
  int first = -1;
  for (Candidate& candidate : candidates) {
    const int index = store.TargetRowForAdd("PasteText");
    if (first < 0) first = index;
    // A blank row being filled keeps what the host attached to it.
    candidate.row.payment_for = store.At(index).payment_for;
    candidate.row.email = store.At(index).email;
    store.Put(index, std::move(candidate.row));
  }
  control_.RecordStep(std::move(before));
  control_.Rebind();
  control_.grid_.Engine().SetCurrentRow(first);
}

void InvoiceClipboard::ReportRefusals() {
  if (refusals_.empty()) return;
  std::sort(refusals_.begin(), refusals_.end(), [](const Refusal& a, const Refusal& b) { return a.line < b.line; });
  const platform::GridEngine& engine = control_.grid_.Engine();
  std::string text = texts::kPasteRefused;
  for (const Refusal& refusal : refusals_) {
    text += "\n" + FillTemplate(texts::kRefusedRow,
                                 {std::to_string(refusal.line), engine.Column(refusal.column).caption, refusal.reason});
  }
  control_.host_.ShowMessage({text, texts::kPasteTitle, platform::MessageButtons::Ok, platform::MessageIcon::Information});
}

void InvoiceClipboard::Paste(std::string_view text) {
  const entry::TableRows table = entry::ParseClipboardTable(text);
  if (std::all_of(table.begin(), table.end(), BlankRow)) return;  // the row being typed stays as it is
  platform::GridEngine& engine = control_.grid_.Engine();
  const platform::Lifetime::Watch alive = control_.lifetime_.Watched();
  // What the payer was typing is stored first, through its own checks.
  const int column = engine.CurrentColumn();
  const bool committed = engine.CommitRow();
  if (!alive.Alive()) return;
  if (!committed) {
    control_.host_.Beep();
    return;
  }
  engine.SetCurrentColumn(column);

  std::vector<int> mapping;
  const bool header = MapColumns(table.front(), mapping);
  std::vector<Candidate> candidates;
  for (std::size_t i = header ? 1 : 0; i < table.size(); ++i) {
    if (BlankRow(table[i])) continue;
    Candidate candidate;
    candidate.line = static_cast<int>(i) + 1;
    if (Read(table[i], mapping, candidate)) candidates.push_back(std::move(candidate));
  }
  if (!AskAboutDates(candidates, InvoiceDateVerdict::kFuture, texts::kFutureDate)) return;
  if (!AskAboutDates(candidates, InvoiceDateVerdict::kLongAgo, texts::kLongAgo)) return;
  if (!RunVetoes(candidates)) return;

  InvoiceStore& store = control_.store_;
  if (store.Count() + static_cast<int>(candidates.size()) > InvoiceStore::kMaxRows) {
    control_.host_.ShowMessage(
        {texts::kPasteTooMany, texts::kPasteTitle, platform::MessageButtons::Ok, platform::MessageIcon::Information});
    return;
  }
  if (!candidates.empty()) {
    Add(candidates);
    if (!control_.events_.Recalculate() || !alive.Alive()) return;
  }
  ReportRefusals();
}

void InvoiceClipboard::CopyCurrentRow() {
  const platform::GridEngine& engine = control_.grid_.Engine();
  const auto current = engine.CurrentRow();
  const InvoiceStore& store = control_.store_;
  if (!current || *current >= store.Count()) return;
  const InvoiceStore::Row& row = store.At(*current);
  std::vector<std::string> cells;
  auto amount = [](const std::optional<Currency>& value) {
    return value ? FormatNumber(*value, formats::kAmount) : std::string();
  };
  for (int column : DataColumns()) {
    switch (column) {
      case Col::kDateColumn: cells.push_back(row.date ? row.date->ToText() : std::string()); break;
      case Col::kNumberColumn: cells.push_back(row.number); break;
      case Col::kAmountColumn: cells.push_back(amount(row.amount)); break;
      default: cells.push_back(amount(row.gst)); break;
    }
  }
  control_.host_.SetClipboardText(entry::FormatClipboardTable({cells}));
}

}  // namespace zenta
