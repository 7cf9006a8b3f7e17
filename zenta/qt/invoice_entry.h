#pragma once

/// @file
/// InvoiceEntry, the list of invoices one payment settles.

#include <QColor>
#include <QDate>
#include <QString>
#include <QVariant>
#include <memory>

#include "zenta/core/currency.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/invoice_record.h"
#include "zenta/qt/metatypes.h"

/// @cond internal
namespace zenta {
class InvoiceEntry;
}
/// @endcond

class QAction;

namespace zenta::qt {

/// The list of invoices one payment settles, each split over G/L accounts.
///
/// A row holds an invoice's date, number or description and amount; in business mode also its
/// GST/HST and net expense; in foreign-currency mode (SetIPCurrency() other than "CAD", then
/// SetupIPGrid()) the invoice currency's amount, the rate and the Canadian amount. Tab past
/// the last amount or "View Dist" opens the application's one distribution window for the row
/// (see ApplicationContext()); the lines of the current invoice stand beside the list.
///
/// **Units.** Rows are numbered from 1, at most 32,767 (a 16-bit count). Amounts are in
/// dollars, exact zenta::Currency values (in a QVariant their QString form is "113.00"). A
/// foreign row's Canadian amount is the foreign amount times the rate, rounded once, half to
/// even, to the cent. Lengths count characters: an invoice number holds at most 255.
///
/// **Errors.** A row that does not exist raises 0x800403E8 "The row n does not exist" (source
/// "InvoiceValues"); a full list, a total or a conversion past the currency range raise
/// Overflow (6). A call that raises leaves the list as it was.
///
/// **Vetoes.** The in/out arguments of the events are references: a connected slot's answer
/// decides. @direct
class InvoiceEntry : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QColor BackColorGridHeader READ BackColorGridHeader WRITE SetBackColorGridHeader NOTIFY
                 BackColorGridHeaderChanged)
  Q_PROPERTY(QColor BackColorGridFooter READ BackColorGridFooter WRITE SetBackColorGridFooter NOTIFY
                 BackColorGridFooterChanged)
  Q_PROPERTY(QColor ForeColorGridHeader READ ForeColorGridHeader WRITE SetForeColorGridHeader NOTIFY
                 ForeColorGridHeaderChanged)
  Q_PROPERTY(QColor ForeColorGridFooter READ ForeColorGridFooter WRITE SetForeColorGridFooter NOTIFY
                 ForeColorGridFooterChanged)
  Q_PROPERTY(QColor RowColorEven READ RowColorEven WRITE SetRowColorEven NOTIFY RowColorEvenChanged)
  Q_PROPERTY(QColor RowColorOdd READ RowColorOdd WRITE SetRowColorOdd NOTIFY RowColorOddChanged)
  Q_PROPERTY(QString DefaultGLAccount READ DefaultGLAccount WRITE SetDefaultGLAccount NOTIFY DefaultGLAccountChanged)
  Q_PROPERTY(short CurrentRow READ CurrentRow WRITE SetCurrentRow NOTIFY CurrentRowChanged STORED false
                 DESIGNABLE false)
  Q_PROPERTY(short RowCount READ RowCount NOTIFY RowCountChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency TotalAmount READ TotalAmount NOTIFY TotalsChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency TotalGST READ TotalGST NOTIFY TotalsChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency TotalExpense READ TotalExpense NOTIFY TotalsChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency TotalForeignAmount READ TotalForeignAmount NOTIFY TotalsChanged STORED false
                 DESIGNABLE false)

 public:
  /// An empty list with default properties, a child of `parent`.
  explicit InvoiceEntry(QWidget* parent = nullptr);
  ~InvoiceEntry() override;

  /// Empties the list and every split; a window open for the list closes as cancelled.
  Q_INVOKABLE void Clear();
  /// Opens the distribution window for the current row. While the window is open for any
  /// control it raises 0x80040016 "The distribution window is already open" (source
  /// "frmDistribution") and changes nothing.
  Q_INVOKABLE void ShowDistribution();
  /// Whether every invoice may be accepted; `InvalidReason` gets the first problem found (in
  /// the installed translation's language), and `Incomplete` whether it is a missing value
  /// rather than a wrong one. Never raises. Call it before saving.
  bool IsDataValid(QString& InvalidReason, bool& Incomplete);
  /// IsDataValid() for late-bound hosts: the reason, empty when the list is valid.
  Q_INVOKABLE QString InvalidReason();
  /// Whether no row is being typed or left changed.
  Q_INVOKABLE bool DataEntryComplete() const;
  /// Row `TheRow` (from 1) as an InvoiceRecord: its date, number, amounts, "payment for"
  /// text, e-mail file name and lines (made into maps only when read, so a loop that skips
  /// them does not pay for them). toMap() gives it as a QVariantMap keyed by the same names.
  /// A row that does not exist raises 0x800403E8 and returns a null record.
  Q_INVOKABLE zenta::qt::InvoiceRecord InvoiceValues(short TheRow) const;
  /// Takes a zenta::ObjectRef to a zenta::clsInvoice and discards it: the list cannot be
  /// changed this way. Anything else raises Type mismatch (13).
  Q_INVOKABLE void SetInvoiceValues(short TheRow, const QVariant& value);
  /// Deletes the current row and its split, without asking.
  Q_INVOKABLE void DeleteCurrentRow();
  /// Adds an invoice: fills the first blank row or appends one. `InvoiceAmount` is in dollars
  /// (in the invoice currency in foreign mode, converted at the rate); `GST` is an invalid
  /// QVariant (none) or a zenta::Currency; `bShowDistribution` opens the split for the row.
  /// Returns false on every call, also when the invoice was stored: read RowCount or
  /// InvoiceCount(), never the result. A full list (32,767 rows, none blank) or an amount past
  /// the currency range raises Overflow (6) and changes nothing.
  Q_INVOKABLE bool AddInvoice(const QDate& InvoiceDate, const QString& InvoiceNo, zenta::Currency InvoiceAmount,
                              const QVariant& GST = QVariant(), bool bShowDistribution = false);
  /// Files row `TheRow` (from 1) under an e-mail file name, for DeleteByEmailFilename();
  /// a missing row raises 0x800403E8.
  Q_INVOKABLE void SetEmailFilename(short TheRow, const QString& TheEmailAddress);
  /// How many printed detail lines the whole list takes (see PassInvoiceValues()); past
  /// 32,767 it raises Overflow (6).
  Q_INVOKABLE short InvoiceCount_DetailLines() const;
  /// How many rows hold an invoice number.
  Q_INVOKABLE short InvoiceCount() const;
  /// Deletes every row filed under `strFilename` (ignoring case and surrounding blanks),
  /// after storing or dropping the row being typed.
  Q_INVOKABLE void DeleteByEmailFilename(const QString& strFilename);
  /// The rate of the invoice currency: Canadian dollars for one unit of it, kept as the
  /// shortest decimal that reads back as the float given (1.35f is 1.35). NaN, infinity or a
  /// rate past the currency range raise Overflow (6) and the rate stays. Write-only.
  Q_INVOKABLE void SetCurrencyRate(float rate);
  /// The invoices' currency code; any code other than "CAD" turns foreign-currency mode on.
  /// Set it before the invoices are entered, then call SetupIPGrid(). Write-only.
  Q_INVOKABLE void SetIPCurrency(const QString& code);
  /// Sets the library-wide currency code shown in the foreign amount's caption (every
  /// InvoiceEntry and PaymentDetails shares it; a new control resets it to "CAD").
  Q_INVOKABLE void SetOtherCurrencyCode(const QVariant& code);
  /// Cuts `sInvoiceNo` into 27-character lines for printing and keeps them.
  Q_INVOKABLE void ParseInvoiceNo(const QString& sInvoiceNo);
  /// The printed detail lines of row `TheRow` (from 1): its number cut into 27-character
  /// lines, each a map with "Text" and "First", the first line also carrying "InvoiceDate",
  /// "InvoiceAmount", "GSTAmount" and "CompanyExpense". `bMultiple` is set to whether more
  /// than one line is needed. A missing row raises 0x800403E8.
  QVariantList PassInvoiceValues(short TheRow, bool& bMultiple);
  /// PassInvoiceValues() for late-bound hosts, without the flag.
  Q_INVOKABLE QVariantList PassInvoiceValues(short TheRow);
  /// Lays the grid out for the invoice currency set by SetIPCurrency() (and back for "CAD").
  Q_INVOKABLE void SetupIPGrid();
  /// The width the visible columns and the lines beside them need in the host's font.
  QSize sizeHint() const override;
  /// The control's minimum size in pixels.
  QSize minimumSizeHint() const override;
  /// @{

  /// Property BackColorGridHeader: the column headers' background (persisted, designable).
  /// Left at its default it is drawn in the host's palette.
  QColor BackColorGridHeader() const;
  void SetBackColorGridHeader(const QColor& color);
  void setBackColorGridHeader(const QColor& color) { SetBackColorGridHeader(color); }
  /// @}
  /// @{
  /// Property BackColorGridFooter: the totals row's background (persisted, designable).
  QColor BackColorGridFooter() const;
  void SetBackColorGridFooter(const QColor& color);
  void setBackColorGridFooter(const QColor& color) { SetBackColorGridFooter(color); }
  /// @}
  /// @{
  /// Property ForeColorGridHeader: the column headers' text (persisted, designable). Left at
  /// its default, text on a colour the host set is black or white, whichever reads better.
  QColor ForeColorGridHeader() const;
  void SetForeColorGridHeader(const QColor& color);
  void setForeColorGridHeader(const QColor& color) { SetForeColorGridHeader(color); }
  /// @}
  /// @{
  /// Property ForeColorGridFooter: the totals row's text (persisted, designable).
  QColor ForeColorGridFooter() const;
  void SetForeColorGridFooter(const QColor& color);
  void setForeColorGridFooter(const QColor& color) { SetForeColorGridFooter(color); }
  /// @}
  /// @{
  /// Property RowColorEven: the background of even rows (persisted, designable).
  QColor RowColorEven() const;
  void SetRowColorEven(const QColor& color);
  void setRowColorEven(const QColor& color) { SetRowColorEven(color); }
  /// @}
  /// @{
  /// Property RowColorOdd: the background of odd rows (persisted, designable).
  QColor RowColorOdd() const;
  void SetRowColorOdd(const QColor& color);
  void setRowColorOdd(const QColor& color) { SetRowColorOdd(color); }
  /// @}
  /// @{
  /// Property DefaultGLAccount: the G/L account the distribution window proposes for a new
  /// line (persisted, designable).
  QString DefaultGLAccount() const;
  void SetDefaultGLAccount(const QString& account);
  void setDefaultGLAccount(const QString& account) { SetDefaultGLAccount(account); }
  /// @}
  /// @{
  /// Property CurrentRow: the row the payer is on, from 1; 0 with none, and on the add-new
  /// row of a full list. It never wraps.
  short CurrentRow() const;
  void SetCurrentRow(short row);
  /// @}
  /// Property RowCount (read-only): the rows in the list, blank ones included.
  short RowCount() const;
  /// Property TotalAmount (read-only): the sum of the amounts in dollars (the Canadian
  /// amounts in foreign mode). Re-read it on Recalculate().
  Currency TotalAmount() const;
  /// Property TotalGST (read-only): the sum of the GST/HST amounts; 0 in foreign mode.
  Currency TotalGST() const;
  /// Property TotalExpense (read-only): the sum of the net expenses; TotalAmount in foreign
  /// mode.
  Currency TotalExpense() const;
  /// Property TotalForeignAmount (read-only): the sum of the invoice-currency amounts.
  Currency TotalForeignAmount() const;

  /// Pastes `text` as Ctrl+V pastes the clipboard: rows of tab-separated text (or CSV) from a
  /// spreadsheet, mapped from the current column rightwards or by a header row. Each cell is
  /// checked as a typed one (the vetoes included); refused rows are left out and listed in one
  /// message, the rest are added as one step that one undo takes back.
  Q_INVOKABLE void PasteText(const QString& text);
  /// Undo (Ctrl+Z) for the host's Edit menu: enabled only while there is a step to undo.
  QAction* undoAction() const { return undo_action_; }
  /// Redo (Ctrl+Y, Ctrl+Shift+Z): enabled only while there is a step to redo.
  QAction* redoAction() const { return redo_action_; }

  /// The control logic, for C++ hosts that want its errors thrown as zenta::HostError rather
  /// than signalled and for tools that load its store in bulk: include
  /// "zenta/controls/invoice_entry/invoice_entry.h" to use it.
  zenta::InvoiceEntry& Control() { return *control_; }
  /// Shows rows loaded into Control().Store() directly.
  void Rebind();

 signals:
  /// The totals changed: re-read TotalAmount, TotalGST and TotalExpense. Emitted once after
  /// the call or keystroke that changed the list.
  void Recalculate();
  /// The first split of row `TheRow` (from 1) was accepted. @direct
  void FirstDistributionEntered(short& TheRow);
  /// A changed split of row `TheRow` (from 1) was accepted. @direct
  void DistributionEntered(short& TheRow);
  /// The payer typed invoice number `strInvoiceNo` and is leaving the cell; set `bolCancel`
  /// to refuse it as a duplicate (the payer stays in the cell). @direct
  void CheckDuplicateInvoices(QString& strInvoiceNo, bool& bolCancel);
  /// The payer typed an amount and is leaving the cell; `curInvoiceAmount` is the list's total
  /// in dollars with the typed amount in it. Set `bolCancel` to refuse the amount: the row is
  /// left without amounts. @direct
  void ValidateInvoiceAmountLimit(zenta::Currency& curInvoiceAmount, bool& bolCancel);
  void BackColorGridHeaderChanged();  ///< NOTIFY of BackColorGridHeader.
  void BackColorGridFooterChanged();  ///< NOTIFY of BackColorGridFooter.
  void ForeColorGridHeaderChanged();  ///< NOTIFY of ForeColorGridHeader.
  void ForeColorGridFooterChanged();  ///< NOTIFY of ForeColorGridFooter.
  void RowColorEvenChanged();         ///< NOTIFY of RowColorEven.
  void RowColorOddChanged();          ///< NOTIFY of RowColorOdd.
  void DefaultGLAccountChanged();     ///< NOTIFY of DefaultGLAccount.
  void CurrentRowChanged();           ///< NOTIFY of CurrentRow.
  void RowCountChanged();             ///< NOTIFY of RowCount.
  void TotalsChanged();  ///< NOTIFY of TotalAmount, TotalGST, TotalExpense and TotalForeignAmount.

  /// @cond internal
 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  // Twips the invoice list's visible columns need, and the control with the lines beside it.
  int ColumnsWidth() const;
  int NeededWidth() const;
  void FitGrid();
  void CreateUndoActions();

  std::unique_ptr<zenta::InvoiceEntry> control_;
  QAction* undo_action_ = nullptr;
  QAction* redo_action_ = nullptr;
  /// @endcond
};

}  // namespace zenta::qt
