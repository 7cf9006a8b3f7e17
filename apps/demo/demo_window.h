#pragma once

#include <QMainWindow>

class QCheckBox;
class QListWidget;
class QPlainTextEdit;
class QTabWidget;

namespace zenta::qt {
class GovtDetails;
class InvoiceEntry;
class PaymentDetails;
class PmtDetails;
class StdPayment;
}  // namespace zenta::qt

namespace zenta::demo {

// A bill-payment screen as a host would build it: the four payment controls on one page, the
// invoice list on another, a business-payer switch, the values the host reads, and a live log of
// the events it receives.
class DemoWindow : public QMainWindow {
 public:
  DemoWindow();

  qt::StdPayment& Payment() { return *payment_; }
  qt::PmtDetails& Invoice() { return *invoice_; }
  qt::GovtDetails& Remittance() { return *remittance_; }
  qt::PaymentDetails& Details() { return *details_; }
  qt::InvoiceEntry& Invoices() { return *invoices_; }
  // Brings the invoice list's page to the front.
  void ShowInvoicePage();
  QCheckBox& BusinessSwitch() { return *business_; }

  // What a host reads from the controls, one value a line.
  QStringList HostValues() const;
  QStringList EventLog() const;
  void RefreshValues();

 private:
  void Log(const QString& control, int number, const QString& name, const QVariantList& args);

  qt::StdPayment* payment_;
  qt::PmtDetails* invoice_;
  qt::GovtDetails* remittance_;
  qt::PaymentDetails* details_;
  qt::InvoiceEntry* invoices_;
  QTabWidget* pages_;
  QCheckBox* business_;
  QPlainTextEdit* values_;
  QListWidget* events_;
};

}  // namespace zenta::demo
