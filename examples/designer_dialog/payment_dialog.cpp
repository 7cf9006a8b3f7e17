#include "payment_dialog.h"

#include <QMessageBox>
#include <QPushButton>

#include "ui_payment_dialog.h"

PaymentDialog::PaymentDialog(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::PaymentDialog>()) {
  ui_->setupUi(this);
  connect(ui_->invoice, &zenta::qt::PmtDetails::InvoiceAmountChanged, this, &PaymentDialog::UpdateOk);
  connect(ui_->invoice, &zenta::qt::ControlWidget::HostErrorRaised, this,
          [this](quint32 number, const QString& source, const QString& description) {
            QMessageBox::warning(this, source, QString("%1 (0x%2)").arg(description).arg(number, 8, 16, QChar('0')));
          });
  UpdateOk();
}

PaymentDialog::~PaymentDialog() = default;

void PaymentDialog::UpdateOk() {
  ui_->buttons->button(QDialogButtonBox::Ok)->setEnabled(ui_->invoice->InvoiceAmountCurrency() != zenta::Currency());
}

QString PaymentDialog::Summary() const {
  const zenta::qt::PmtDetails& invoice = *ui_->invoice;
  // An amount property reads as text with two decimals: "13.00", never "13".
  return QString("%1 %2 %3 GST/HST %4")
      .arg(invoice.InvoiceDate().toString("yyyy/MM/dd"), invoice.InvoiceNumber(),
           invoice.property("InvoiceAmountCurrency").toString(), invoice.property("GSTAmountCurrency").toString());
}
