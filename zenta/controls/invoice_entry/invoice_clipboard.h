#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "zenta/controls/invoice_entry/invoice_date_rule.h"
#include "zenta/controls/invoice_entry/invoice_store.h"
#include "zenta/entry/clipboard_table.h"

namespace zenta {

class InvoiceEntry;

// Rows of an invoice list to and from the clipboard's text. A paste reads each row through
// the list's own rules (date, number, amounts, the host's duplicate and limit vetoes), asks the
// date questions once for all rows, and adds the rows that passed as one step.
class InvoiceClipboard {
 public:
  explicit InvoiceClipboard(InvoiceEntry& control) : control_(control) {}

  void Paste(std::string_view text);
  void CopyCurrentRow();

 private:
  struct Candidate {
    int line = 0;  // from 1, in the pasted text
    InvoiceStore::Row row;
    InvoiceDateVerdict date_verdict = InvoiceDateVerdict::kAccepted;
  };
  struct Refusal {
    int line = 0;
    int column = 0;
    std::string reason;
  };

  // The columns a paste fills and a copy writes, left to right.
  std::vector<int> DataColumns() const;
  // The grid columns cells go to: by the header row when `first` is one, else from the current
  // column rightwards. Returns whether `first` was a header.
  bool MapColumns(const std::vector<std::string>& first, std::vector<int>& mapping) const;
  // The row `cells` stand for, or false with the first refusal.
  bool Read(const std::vector<std::string>& cells, const std::vector<int>& mapping, Candidate& candidate);
  // Asks once about the rows whose date `question` applies to; a Yes leaves them out.
  bool AskAboutDates(std::vector<Candidate>& candidates, InvoiceDateVerdict verdict, const char* question);
  // The host's duplicate and amount-limit vetoes, row by row; false when the control went away.
  bool RunVetoes(std::vector<Candidate>& candidates);
  void Add(std::vector<Candidate>& candidates);
  void ReportRefusals();

  InvoiceEntry& control_;
  std::vector<Refusal> refusals_;
};

}  // namespace zenta
