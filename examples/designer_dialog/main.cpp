#include <QApplication>
#include <QTextStream>

#include "payment_dialog.h"
#include "ui_payment_dialog.h"

// With --check the dialog is filled as a host would and what it books is printed; otherwise it
// is shown to the user.
int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  PaymentDialog dialog;
  if (app.arguments().contains("--check")) {
    zenta::qt::PmtDetails& invoice = *dialog.Form().invoice;
    invoice.SetInvoiceDate(QDate(2026, 3, 15));
    invoice.SetInvoiceNumber("INV-42");
    invoice.SetInvoiceAmount(112.99f);
    invoice.SetGSTAmount(13.0f);
    const QString summary = dialog.Summary();
    QTextStream(stdout) << summary << '\n';
    const bool booked = invoice.InvoiceAmountCurrency() == zenta::Currency::FromText("112.99");
    return booked && summary == "2026/03/15 INV-42 112.99 GST/HST 13.00" ? 0 : 1;
  }
  return dialog.exec() == QDialog::Accepted ? 0 : 1;
}
