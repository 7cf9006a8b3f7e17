#include "invoice_window.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "zenta/core/number_format.h"

namespace {

// Amounts as the payer reads them: two decimals, 113.00 and never 113.
QString Amount(zenta::Currency value) {
  return QString::fromStdString(zenta::FormatNumber(value, zenta::formats::kAmount));
}
QString Amount(const QVariant& value) { return Amount(value.value<zenta::Currency>()); }

}  // namespace

InvoiceWindow::InvoiceWindow(QWidget* parent)
    : QWidget(parent), invoices_(new zenta::qt::InvoiceEntry(this)), totals_(new QLabel(this)),
      reason_(new QLabel(this)) {
  setWindowTitle("Invoices to pay");
  auto* check = new QPushButton("&Check", this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(invoices_, 1);
  layout->addWidget(totals_);
  layout->addWidget(reason_);
  layout->addWidget(check, 0, Qt::AlignRight);
  // The totals follow the list: the control says when they changed.
  connect(invoices_, &zenta::qt::InvoiceEntry::TotalsChanged, this, &InvoiceWindow::ShowTotals);
  connect(check, &QPushButton::clicked, this, &InvoiceWindow::Check);
  // A duplicate number is the host's to refuse (the control asks; direct connection).
  connect(invoices_, &zenta::qt::InvoiceEntry::CheckDuplicateInvoices, this,
          [this](QString& number, bool& cancel) {
            for (short row = 1; row <= invoices_->RowCount(); ++row) {
              if (invoices_->CurrentRow() != row && invoices_->InvoiceValues(row).InvoiceNo == number) cancel = true;
            }
          });
  ShowTotals();
}

void InvoiceWindow::ShowTotals() {
  totals_->setText(QString("Total %1   GST/HST %2   Expense %3   (%4 invoices)")
                       .arg(Amount(invoices_->TotalAmount()), Amount(invoices_->TotalGST()),
                            Amount(invoices_->TotalExpense()))
                       .arg(invoices_->InvoiceCount()));
}

bool InvoiceWindow::Check() {
  QString reason;
  bool incomplete = false;
  const bool valid = invoices_->IsDataValid(reason, incomplete);
  reason_->setText(valid ? QString("Ready to pay.") : (incomplete ? "Missing: " : "Wrong: ") + reason);
  return valid;
}

QStringList InvoiceWindow::Report() const {
  QStringList lines;
  for (short row = 1; row <= invoices_->RowCount(); ++row) {
    const zenta::qt::InvoiceRecord invoice = invoices_->InvoiceValues(row);
    if (invoice.InvoiceNo.trimmed().isEmpty()) continue;
    lines << QString("%1 %2 %3 GST/HST %4")
                 .arg(invoice.InvoiceDate.toString("yyyy/MM/dd"), invoice.InvoiceNo,
                      Amount(invoice.InvoiceAmount), Amount(invoice.GSTAmount));
    for (const QVariant& line : invoice.Distributions.ToList()) {
      const QVariantMap map = line.toMap();
      lines << QString("    %1 %2").arg(map.value("GLAccount").toString(), Amount(map.value("Amount")));
    }
  }
  return lines;
}
