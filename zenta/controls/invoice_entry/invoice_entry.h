#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "zenta/controls/distribution/distribution_opener.h"
#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_events.h"
#include "zenta/controls/invoice_entry/invoice_lines_source.h"
#include "zenta/controls/invoice_entry/invoice_properties.h"
#include "zenta/controls/invoice_entry/invoice_store.h"
#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/ole_color.h"
#include "zenta/core/rate.h"
#include "zenta/core/variant.h"
#include "zenta/entry/gst_hst_cell.h"
#include "zenta/entry/undo_history.h"
#include "zenta/platform/control_surface.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/host_services.h"
#include "zenta/platform/property_bag.h"
#include "zenta/records/cls_invoice.h"

namespace zenta {

// One detail line of an invoice as PassInvoiceValues hands it on for printing: the first line
// of an invoice carries its date and amounts, continuation lines only their text.
struct InvoiceOutputLine {
  std::string Text;  // 27 characters, blank-padded
  bool First = false;
  Date InvoiceDate;
  Currency InvoiceAmount;
  Currency GSTAmount;
  Currency CompanyExpense;
};

// The list of invoices one payment settles: a grid (grInvoices) showing the control's own
// store in unbound mode, each row optionally split over G/L accounts in the shared
// distribution window. Rows are numbered from 1 at the public interface and hold at most
// 32,767 invoices. Totals are exact; foreign-currency invoices convert to Canadian dollars at
// the host's accounting rate.
class InvoiceEntry {
 public:
  using Events = InvoiceEvents::Listener;

  enum DeferredMessage {
    kRaiseFirstDistribution = 1,
    kRaiseDistribution = 2,
    kAfterRowEdit = 3,
    kOpenDistribution = 10,
    kForeignRangeMessage = 20,
  };

  static constexpr std::int32_t kMissingRow = 1000;
  static constexpr int kForeignGridWidth = 8280;
  // The list and the lines beside it at their drawn sizes, in twips.
  static constexpr int kMinimumWidth = 9060;
  static constexpr int kMinimumHeight = 2415;
  static constexpr const char* kForeignRangeText =
      "That amount would cause the foreign currency amount to be invalid (it must be between "
      "-9,999,999.99 and 9,999,999.99)";

  InvoiceEntry(platform::ControlSurface& surface, platform::HostServices& host, LibraryContext& context);
  ~InvoiceEntry();
  InvoiceEntry(const InvoiceEntry&) = delete;
  InvoiceEntry& operator=(const InvoiceEntry&) = delete;

  void SetEventListener(Events* listener) { events_.SetListener(listener); }

  // The public interface, in its declared order.
  void Clear();
  int MinimumWidth() const { return kMinimumWidth; }
  int MinimumHeight() const { return kMinimumHeight; }
  OleColor BackColor() const { return properties_.back_color; }
  void SetBackColor(OleColor color);
  bool BusinessMode() const { return properties_.business_mode; }
  // Changing the mode empties the list and lays the grid out again.
  void SetBusinessMode(bool on);
  OleColor BackColorGridHeader() const { return properties_.back_color_grid_header; }
  void SetBackColorGridHeader(OleColor color);
  OleColor BackColorGridFooter() const { return properties_.back_color_grid_footer; }
  void SetBackColorGridFooter(OleColor color);
  OleColor ForeColorGridHeader() const { return properties_.fore_color_grid_header; }
  void SetForeColorGridHeader(OleColor color);
  OleColor ForeColorGridFooter() const { return properties_.fore_color_grid_footer; }
  void SetForeColorGridFooter(OleColor color);
  OleColor RowColorEven() const { return properties_.row_color_even; }
  void SetRowColorEven(OleColor color);
  OleColor RowColorOdd() const { return properties_.row_color_odd; }
  void SetRowColorOdd(OleColor color);
  OleColor BackColorTitle() const { return properties_.back_color_title; }
  void SetBackColorTitle(OleColor color);
  // Opens the distribution window for the grid's current row. Raises 0x80040016 while the
  // window is open for any control.
  void ShowDistribution();
  const std::string& DefaultGLAccount() const { return properties_.default_gl_account; }
  void SetDefaultGLAccount(std::string account);
  bool Enabled() const { return properties_.enabled; }
  void SetEnabled(bool enabled);
  // Never raises: every problem becomes the False result and its reason.
  bool IsDataValid(std::string& InvalidReason, bool& Incomplete);
  bool DataEntryComplete() const;
  // A new record of row TheRow (from 1) with its lines; a row outside the list raises
  // 0x800403E8 "The row n does not exist" (source "InvoiceValues").
  std::shared_ptr<clsInvoice> InvoiceValues(std::int16_t TheRow) const;
  std::int16_t RowCount() const { return static_cast<std::int16_t>(store_.Count()); }
  Currency TotalAmount() const;
  void DeleteCurrentRow();
  // Accepts a clsInvoice and discards it; anything else raises TypeMismatch. Never writes.
  void SetInvoiceValues(std::int16_t TheRow, const Variant& value);
  // Fills the first blank row or appends one. Returns False on every call, also when the
  // invoice was stored; a full list (32,767 rows, none blank) raises Overflow and is unchanged.
  bool AddInvoice(Date InvoiceDate, const std::string& InvoiceNo, Currency InvoiceAmount,
                  const Variant& GST = Variant(), const Variant& bShowDistribution = Variant());
  Currency TotalGST() const;
  Currency TotalExpense() const;
  void SetEmailFilename(std::int16_t TheRow, const std::string& TheEmailAddress);
  std::int16_t InvoiceCount_DetailLines() const;
  std::int16_t InvoiceCount() const;
  // 0 when the grid has no current row, and on the add-new row of a full list.
  std::int16_t CurrentRow() const;
  void SetCurrentRow(std::int16_t row);
  void DeleteByEmailFilename(const std::string& strFilename);
  // Kept as the shortest decimal that reads back as `rate`. A rate no amount can be converted
  // at (NaN, infinite, past the currency range) raises Overflow and the rate stays as it was.
  void SetCurrencyRate(float rate);
  void SetIPCurrency(const std::string& code);
  // The library's shared currency code, shown in the foreign amount's caption.
  void SetOtherCurrencyCode(const Variant& code);
  // Keeps the detail lines of sInvoiceNo for PassInvoiceValues.
  void ParseInvoiceNo(const std::string& sInvoiceNo);
  // The detail lines of row TheRow (from 1) for printing: its number cut as ParseInvoiceNo
  // cuts it (the kept lines are replaced), the first line carrying the row's date and amounts.
  // bMultiple is set to whether more than one line is needed. A missing row raises as
  // InvoiceValues does.
  std::vector<InvoiceOutputLine> PassInvoiceValues(std::int16_t TheRow, bool& bMultiple);
  // Lays the grid out for the invoice currency (and back for "CAD").
  void SetupIPGrid();
  Currency TotalForeignAmount() const;

  // Foreign-currency mode: any invoice currency other than "CAD".
  bool ForeignMode() const;
  const std::vector<std::string>& ParsedLines() const { return parsed_lines_; }

  // Bulk entry (Ctrl+V or Shift+Insert, Ctrl+C, Ctrl+Z, Ctrl+Y or Ctrl+Shift+Z on the list).
  // Pasted rows of tab-separated or comma-separated text meet the checks and host vetoes of
  // typed ones; refused rows are left out and listed in one message, the others added as one
  // step. Copy puts the current row on the clipboard. A stored row edit, a deleted row, a paste
  // and an accepted split are one step each; Clear, a mode switch and the host's own changes
  // to the list forget them.
  void PasteText(const std::string& text);
  void CopyCurrentRow();
  bool Undo();
  bool Redo();
  bool CanUndo() const { return history_.CanUndo(); }
  bool CanRedo() const { return history_.CanRedo(); }
  // Runs whenever CanUndo or CanRedo may have changed.
  void OnUndoStateChanged(std::function<void()> listener) { history_.OnChanged(std::move(listener)); }

  // Persistence: defaults, or the eleven stored keys, applied in load order.
  void InitProperties();
  void ReadProperties(const platform::PropertyBag& bag);
  void WriteProperties(platform::PropertyBag& bag) const { properties_.Write(bag); }

  // The lines of the current invoice, beside the list.
  platform::Grid& grDistribution() { return distribution_grid_; }
  platform::Grid& grInvoices() { return grid_; }
  const platform::Grid& grInvoices() const { return grid_; }
  const InvoiceStore& Store() const { return store_; }
  // Bulk loading for tools (benchmarks, fixtures): bypasses the grid, which a later Clear or
  // rebinding catches up with.
  InvoiceStore& Store() { return store_; }

 private:
  void BuildColumns();
  // Tells the host which values may have changed: the row count and the totals follow the
  // store, the rest the setters and the grid's cursor.
  void AnnounceSummary();
  void AnnounceStoredProperties();
  void BuildLineColumns();
  // Shows the current invoice's lines in grDistribution (again when they changed).
  void ShowCurrentLines(bool lines_changed = false);
  // The totals under the amount columns, worked out once after the current call: a host
  // adding thousands of invoices in a row pays for one pass, not one a row.
  void ScheduleTotals();
  void ShowTotals();
  void ShowTotalsOrRaise();
  void WireGrid();
  void ApplyColors();
  void ApplyEnabled();
  void Rebind();
  void RepositionAfterBulk();
  int LastAmountColumn() const;
  int CheckedRow(std::int16_t TheRow) const;
  Currency Distributable(const InvoiceStore::Row& row) const;
  Currency LinesTotal(const InvoiceStore::Row& row) const;
  enum class Conversion { kDone, kNone, kOutOfRange };
  void Convert(int row, int changed_column);
  // The row's rate and the amount its changed column derives; raises Overflow past the range.
  Conversion Converted(InvoiceStore::Row& row, int changed_column) const;
  void ConvertOrRaise(int row, int changed_column);
  // Yes to a Yes/No question.
  bool Ask(const char* question, const char* title);
  void OnPosted(int message);
  void OpenPosted();
  void OnBeforeColUpdate(platform::BeforeColUpdateArgs& args);
  void ClearRefusedAmount(platform::BeforeColUpdateArgs& args);
  // Whether the row's amount less its GST/HST, as typed, is within the currency range.
  bool NetExpenseFits() const;
  // The GST/HST fill key and quiet hint, in business mode in Canadian dollars.
  static entry::GstHstCell TaxCell();
  bool TaxCellApplies() const;
  Date TaxDay(std::optional<int> row) const;
  void OnKeyDown(platform::KeyDown& key);
  // Net expense (business) or the conversion (foreign) of store row `index`.
  void DeriveColumns(int index);
  void AfterRowEdit();
  bool CheckCurrentRow(std::string& reason, bool& incomplete, int& column);
  bool Fail(std::string& InvalidReason, const std::string& reason, int column);

  friend class InvoiceClipboard;
  // `before` is the whole list as it was before the payer's step that just ended (a deletion
  // or a paste, which cost as much as the copy already).
  void RecordStep(InvoiceStore before);
  // A stored row edit keeps only that row: leaving an edited row costs the same whatever the
  // list's length. A new row is kept as appended.
  struct RowEdit {
    bool appended = false;
    InvoiceStore::Row before;
  };
  void RecordRowEdit(int index, RowEdit edit);
  // An accepted split keeps the row's lines and payment-for text as they were.
  void RecordSplit(int index, std::vector<InvoiceLine> lines, std::string payment_for);
  void AnnounceRestored();
  void ShowRestoredList();
  bool RunEditCommand(platform::KeyDown& key);

  platform::ControlSurface& surface_;
  platform::HostServices& host_;
  LibraryContext& context_;
  InvoiceEvents events_;
  platform::Grid& grid_;
  platform::Grid& distribution_grid_;
  InvoiceProperties properties_;
  InvoiceStore store_;
  InvoiceLinesSource lines_source_{store_};
  Rate currency_rate_;
  std::string ip_currency_{LibraryContext::kHomeCurrency};
  int last_edited_column_ = InvoiceStore::kAmountColumn;
  int pending_row_ = 0;
  bool deleting_ = false;
  bool totals_pending_ = false;
  bool number_refused_ = false;
  bool amount_refused_ = false;
  std::vector<std::string> parsed_lines_;
  entry::UndoHistory history_;
  // The row (from 1) whose split an undo or redo just put back: the host hears DistributionEntered.
  std::optional<std::int16_t> restored_split_row_;
  std::optional<InvoiceStore> step_before_;
  std::optional<RowEdit> row_edit_;
  // Last, so an open window closes before anything else of the control goes.
  DistributionOpener opener_{context_};
  platform::Lifetime lifetime_;
};

}  // namespace zenta
