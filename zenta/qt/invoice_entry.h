#pragma once

#include <QColor>
#include <QDate>
#include <QString>
#include <QVariant>
#include <memory>

#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/toolkit/qt_conversions.h"

class QAction;

namespace zenta::qt {

// The list of invoices one payment settles, as a Qt widget: date, number or description and
// amount per row (GST/HST and net expense in business mode, the invoice currency and its
// Canadian amount in foreign-currency mode), each row split over G/L accounts in the shared
// distribution window. Rows are numbered from 1; amounts are exact zenta::Currency values and an
// invoice reads back as a QVariantMap with the record's field names. The in/out arguments of the
// events are references: a connected slot's answer decides, from C++ (direct connection) or
// late-bound through EventRaised. A row that does not exist is reported by HostErrorRaised.
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
  explicit InvoiceEntry(QWidget* parent = nullptr);
  ~InvoiceEntry() override;

  Q_INVOKABLE void Clear();
  Q_INVOKABLE void ShowDistribution();
  // Whether every invoice may be accepted; InvalidReason gets the first problem found (in the
  // installed translation's language), and Incomplete whether it is a missing value rather
  // than a wrong one.
  bool IsDataValid(QString& InvalidReason, bool& Incomplete);
  // The same check for late-bound hosts: the reason, empty when the list is valid.
  Q_INVOKABLE QString InvalidReason();
  Q_INVOKABLE bool DataEntryComplete() const;
  // Row TheRow (from 1) as InvoiceDate, InvoiceNo, InvoiceAmount, GSTAmount, CompanyExpense,
  // PaymentFor, EmailFilename and Distributions (GLAccount, Amount maps in line order); an empty
  // map for a row that does not exist.
  Q_INVOKABLE QVariantMap InvoiceValues(short TheRow) const;
  // Takes a zenta::ObjectRef to a clsInvoice and discards it: the list cannot be changed this
  // way. Anything else is reported as a type mismatch.
  Q_INVOKABLE void SetInvoiceValues(short TheRow, const QVariant& value);
  Q_INVOKABLE void DeleteCurrentRow();
  // Always false, also when the invoice was stored: hosts must not read it as a failure. GST is
  // an invalid QVariant or a zenta::Currency.
  Q_INVOKABLE bool AddInvoice(const QDate& InvoiceDate, const QString& InvoiceNo, zenta::Currency InvoiceAmount,
                              const QVariant& GST = QVariant(), bool bShowDistribution = false);
  Q_INVOKABLE void SetEmailFilename(short TheRow, const QString& TheEmailAddress);
  Q_INVOKABLE short InvoiceCount_DetailLines() const;
  Q_INVOKABLE short InvoiceCount() const;
  Q_INVOKABLE void DeleteByEmailFilename(const QString& strFilename);
  // Write-only settings of foreign-currency mode; SetupIPGrid lays the grid out for them.
  Q_INVOKABLE void SetCurrencyRate(float rate);
  Q_INVOKABLE void SetIPCurrency(const QString& code);
  Q_INVOKABLE void SetOtherCurrencyCode(const QVariant& code);
  Q_INVOKABLE void ParseInvoiceNo(const QString& sInvoiceNo);
  // The printed detail lines of row TheRow: Text, First and, on the first line, InvoiceDate,
  // InvoiceAmount, GSTAmount and CompanyExpense. bMultiple tells whether there is more than one.
  QVariantList PassInvoiceValues(short TheRow, bool& bMultiple);
  Q_INVOKABLE QVariantList PassInvoiceValues(short TheRow);
  Q_INVOKABLE void SetupIPGrid();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  QColor BackColorGridHeader() const;
  void SetBackColorGridHeader(const QColor& color);
  QColor BackColorGridFooter() const;
  void SetBackColorGridFooter(const QColor& color);
  QColor ForeColorGridHeader() const;
  void SetForeColorGridHeader(const QColor& color);
  QColor ForeColorGridFooter() const;
  void SetForeColorGridFooter(const QColor& color);
  QColor RowColorEven() const;
  void SetRowColorEven(const QColor& color);
  QColor RowColorOdd() const;
  void SetRowColorOdd(const QColor& color);
  QString DefaultGLAccount() const;
  void SetDefaultGLAccount(const QString& account);
  short CurrentRow() const;
  void SetCurrentRow(short row);
  short RowCount() const;
  Currency TotalAmount() const;
  Currency TotalGST() const;
  Currency TotalExpense() const;
  Currency TotalForeignAmount() const;

  // Bulk entry: text pasted as Ctrl+V pastes the clipboard's (rows from a spreadsheet; refused
  // rows are listed in one message), and undo and redo as actions for the host's Edit menu,
  // enabled only while there is a step to undo or redo.
  Q_INVOKABLE void PasteText(const QString& text);
  QAction* undoAction() const { return undo_action_; }
  QAction* redoAction() const { return redo_action_; }

  // The control logic, for C++ hosts that want its errors thrown rather than signalled and for
  // tools that load the store in bulk.
  zenta::InvoiceEntry& Control() { return *control_; }
  // Shows rows loaded into Control().Store() directly.
  void Rebind();

 signals:
  void Recalculate();
  void FirstDistributionEntered(short& TheRow);
  void DistributionEntered(short& TheRow);
  void CheckDuplicateInvoices(QString& strInvoiceNo, bool& bolCancel);
  void ValidateInvoiceAmountLimit(zenta::Currency& curInvoiceAmount, bool& bolCancel);
  void BackColorGridHeaderChanged();
  void BackColorGridFooterChanged();
  void ForeColorGridHeaderChanged();
  void ForeColorGridFooterChanged();
  void RowColorEvenChanged();
  void RowColorOddChanged();
  void DefaultGLAccountChanged();
  void CurrentRowChanged();
  void RowCountChanged();
  void TotalsChanged();

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
};

}  // namespace zenta::qt
