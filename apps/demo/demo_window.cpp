#include "apps/demo/demo_window.h"
#include "apps/demo/money_text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "zenta/qt/govt_details.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/std_payment.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::demo {

namespace {
QGroupBox* Framed(const QString& title, QWidget* control, const QString& hint) {
  auto* box = new QGroupBox(title);
  auto* layout = new QVBoxLayout(box);
  auto* help = new QLabel(hint);
  help->setWordWrap(true);
  help->setStyleSheet("color: #555;");
  layout->addWidget(help);
  layout->addWidget(control, 0, Qt::AlignLeft | Qt::AlignTop);
  layout->addStretch();
  return box;
}

QString AmountText(const QVariant& amount) { return amount.isValid() ? amount.toString() : "(empty)"; }
QString DateText(const QDate& date) { return date.isNull() ? "(no date)" : date.toString("yyyy/MM/dd"); }
}  // namespace

DemoWindow::DemoWindow()
    : payment_(new qt::StdPayment), invoice_(new qt::PmtDetails), remittance_(new qt::GovtDetails),
      details_(new qt::PaymentDetails), invoices_(new qt::InvoiceEntry), pages_(new QTabWidget),
      business_(new QCheckBox("Business payer: states GST/HST")), values_(new QPlainTextEdit),
      events_(new QListWidget) {
  setWindowTitle("Zenta Data Entry Controls — bill payment demo");
  payment_->setObjectName("StdPayment1");
  invoice_->setObjectName("PmtDetails1");
  remittance_->setObjectName("GovtDetails1");
  details_->setObjectName("PaymentDetails1");
  details_->SetDefaultGLAccount("5100");
  invoices_->setObjectName("InvoiceEntry1");
  invoices_->SetDefaultGLAccount("5100");

  auto* controls = new QGridLayout;
  controls->addWidget(Framed("Standard payment", payment_, "Type amounts as cents: 2500 is 25.00."), 0, 0);
  controls->addWidget(Framed("Payment of one invoice", invoice_, "Enter moves to the next field."), 0, 1);
  controls->addWidget(Framed("Government remittance", remittance_, "Up to 26 lettered items."), 1, 0);
  controls->addWidget(Framed("Payment with its G/L split", details_,
                             "Tab past the last amount, or View Dist, to split it over G/L accounts."),
                      1, 1);

  values_->setReadOnly(true);
  values_->setMinimumWidth(320);
  auto* side = new QVBoxLayout;
  side->addWidget(business_);
  side->addWidget(new QLabel("What the host reads"));
  side->addWidget(values_, 3);
  side->addWidget(new QLabel("Events the host received"));
  side->addWidget(events_, 2);

  auto* payment_page = new QWidget;
  payment_page->setLayout(controls);
  pages_->addTab(payment_page, "Payment");
  auto* invoice_page = new QWidget;
  auto* invoice_layout = new QVBoxLayout(invoice_page);
  invoice_layout->addWidget(Framed("Invoices this payment settles", invoices_,
                                   "One row an invoice; Tab past the last amount, or View Dist, to split it over "
                                   "G/L accounts. Ctrl+Delete deletes a row."));
  pages_->addTab(invoice_page, "Invoices");

  auto* central = new QWidget;
  auto* layout = new QHBoxLayout(central);
  layout->addWidget(pages_, 3);
  layout->addLayout(side, 2);
  setCentralWidget(central);

  connect(business_, &QCheckBox::toggled, this, [this](bool on) {
    payment_->SetBusinessMode(on);
    invoice_->SetBusinessMode(on);
    remittance_->SetBusinessMode(on);
    details_->SetBusinessMode(on);
    invoices_->SetBusinessMode(on);
    RefreshValues();
  });
  auto log = [this](const QString& control) {
    return [this, control](int number, const QString& name, QVariantList& args) { Log(control, number, name, args); };
  };
  connect(payment_, &qt::ControlWidget::EventRaised, this, log("StdPayment1"));
  connect(invoice_, &qt::ControlWidget::EventRaised, this, log("PmtDetails1"));
  connect(remittance_, &qt::ControlWidget::EventRaised, this, log("GovtDetails1"));
  connect(details_, &qt::ControlWidget::EventRaised, this, log("PaymentDetails1"));
  connect(invoices_, &qt::ControlWidget::EventRaised, this, log("InvoiceEntry1"));
  // Typing changes values without events; a host screen polls what it shows.
  auto* poll = new QTimer(this);
  connect(poll, &QTimer::timeout, this, [this] { RefreshValues(); });
  poll->start(250);
  RefreshValues();
}

void DemoWindow::Log(const QString& control, int number, const QString& name, const QVariantList& args) {
  QStringList shown;
  for (const QVariant& arg : args) shown << arg.toString();
  events_->addItem(QString("%1 event %2 %3(%4)").arg(control).arg(number).arg(name, shown.join(", ")));
  events_->scrollToBottom();
  // Read the values once the control has finished handling the event, as a host should.
  QMetaObject::invokeMethod(this, [this] { RefreshValues(); }, Qt::QueuedConnection);
}

QStringList DemoWindow::HostValues() const {
  QStringList lines;
  lines << QString("StdPayment1.BusinessMode = %1").arg(payment_->BusinessMode() ? "True" : "False")
        << QString("StdPayment1.PaymentAmount = %1").arg(payment_->PaymentAmount(), 0, 'f', 2)
        << QString("StdPayment1.PaymentAmountCurrency = %1").arg(MoneyText(payment_->PaymentAmountCurrency()))
        << QString("StdPayment1.GSTAmount = %1").arg(QString::fromStdString(payment_->GSTAmount().ToString()))
        << QString("PmtDetails1.InvoiceDate = %1").arg(DateText(invoice_->InvoiceDate()))
        << QString("PmtDetails1.InvoiceNumber = \"%1\"").arg(invoice_->InvoiceNumber())
        << QString("PmtDetails1.InvoiceAmount = %1").arg(invoice_->InvoiceAmount(), 0, 'f', 2)
        << QString("PmtDetails1.InvoiceAmountCurrency = %1").arg(MoneyText(invoice_->InvoiceAmountCurrency()))
        << QString("PmtDetails1.GSTAmount = %1").arg(invoice_->GSTAmount(), 0, 'f', 2)
        << QString("PmtDetails1.GSTAmountCurrency = %1").arg(MoneyText(invoice_->GSTAmountCurrency()))
        << QString("GovtDetails1.StatementOnly = %1").arg(remittance_->StatementOnly().toInt())
        << QString("GovtDetails1.PeriodFrom = %1").arg(DateText(remittance_->PeriodFrom()))
        << QString("GovtDetails1.PeriodTo = %1").arg(DateText(remittance_->PeriodTo()))
        << QString("GovtDetails1.DueDate = %1").arg(DateText(remittance_->DueDate()))
        << QString("GovtDetails1.Amount = %1").arg(AmountText(remittance_->Amount()))
        << QString("GovtDetails1.OtherAmount = %1").arg(AmountText(remittance_->OtherAmount()))
        << QString("GovtDetails1.Comments = \"%1\"").arg(remittance_->Comments())
        << QString("GovtDetails1.GridNumberofRows = %1").arg(remittance_->GridNumberofRows());
  lines << QString("PaymentDetails1.PaymentAmount = %1").arg(MoneyText(details_->PaymentAmount()))
        << QString("PaymentDetails1.GST = %1").arg(MoneyText(details_->GST()))
        << QString("PaymentDetails1.NetExpense = %1").arg(MoneyText(details_->NetExpense()))
        << QString("PaymentDetails1.PaymentFor = \"%1\"").arg(details_->PaymentFor())
        << QString("PaymentDetails1.LockFields = %1").arg(details_->LockFields() ? "True" : "False");
  lines << QString("InvoiceEntry1.RowCount = %1").arg(invoices_->RowCount())
        << QString("InvoiceEntry1.InvoiceCount = %1").arg(invoices_->InvoiceCount())
        << QString("InvoiceEntry1.TotalAmount = %1").arg(MoneyText(invoices_->TotalAmount()))
        << QString("InvoiceEntry1.TotalGST = %1").arg(MoneyText(invoices_->TotalGST()))
        << QString("InvoiceEntry1.TotalExpense = %1").arg(MoneyText(invoices_->TotalExpense()));
  int position = 0;
  for (const QVariant& line : details_->Distributions()) {
    const QVariantMap map = line.toMap();
    lines << QString("PaymentDetails1.PayDistribution(%1) = %2 %3")
                 .arg(++position)
                 .arg(map.value("GLAccount").toString(), MoneyText(map.value("Amount").value<Currency>()));
  }
  // Reading an item makes its row current: leave the grid alone while the payer is in it.
  std::string active = remittance_->Surface().ActiveChildName();
  if (active == "grItems" || active == "grItems") return lines;
  for (short row = 1; row <= remittance_->GridNumberofRows(); ++row) {
    QString amount = remittance_->GridValues(row);
    if (!amount.isEmpty()) lines << QString("GovtDetails1.GridValues(%1) = \"%2\"").arg(row).arg(amount);
  }
  return lines;
}

void DemoWindow::ShowInvoicePage() { pages_->setCurrentIndex(1); }

QStringList DemoWindow::EventLog() const {
  QStringList lines;
  for (int i = 0; i < events_->count(); ++i) lines << events_->item(i)->text();
  return lines;
}

void DemoWindow::RefreshValues() {
  QString text = HostValues().join("\n");
  if (values_->toPlainText() != text) values_->setPlainText(text);
}

}  // namespace zenta::demo
