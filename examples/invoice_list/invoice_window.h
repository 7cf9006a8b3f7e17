#pragma once

#include <QLabel>
#include <QStringList>
#include <QWidget>

#include "zenta/qt/invoice_entry.h"

// The host's screen for one payment: the invoice list, its running totals under it, and a
// Check button that asks the list whether it may be paid and shows the reason when not.
class InvoiceWindow : public QWidget {
  Q_OBJECT

 public:
  explicit InvoiceWindow(QWidget* parent = nullptr);

  zenta::qt::InvoiceEntry& Invoices() { return *invoices_; }
  // True when every invoice may be paid; otherwise the reason is on screen.
  bool Check();
  // Every invoice as the host reads it back, with its G/L lines.
  QStringList Report() const;
  QString TotalsText() const { return totals_->text(); }
  QString ReasonText() const { return reason_->text(); }

 private:
  void ShowTotals();

  zenta::qt::InvoiceEntry* invoices_;
  QLabel* totals_;
  QLabel* reason_;
};
