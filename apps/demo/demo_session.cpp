#include "apps/demo/demo_session.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <memory>

#include "apps/demo/demo_window.h"
#include "apps/demo/money_text.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/qt/chart_of_accounts.h"
#include "zenta/qt/govt_details.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/records/cls_distributions.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/std_payment.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_dialog_surface.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::demo {

DemoSession::DemoSession(DemoWindow& window, QDir screenshots) : window_(window), screenshots_(std::move(screenshots)) {}

void DemoSession::Type(const QString& text) { qt::testing::TypeKeys(text); }

void DemoSession::Press(int key, Qt::KeyboardModifiers modifiers) {
  qt::testing::PressKey(static_cast<Qt::Key>(key), modifiers);
}

void DemoSession::ClickCell(QWidget* grid, int row, int column) {
  if (!qt::testing::ClickCell(grid, row, column)) complete_ = false;
}

void DemoSession::Click(QWidget* button) {
  if (!qt::testing::Click(button)) complete_ = false;
}

void DemoSession::Settle() { qt::testing::Settle(); }

void DemoSession::Refused(const QString& screenshot) {
  qt::testing::AnswerNextMessage(QMessageBox::Ok, [this, screenshot](QMessageBox& box) {
    notes_ << QString("Message \"%1\": %2").arg(box.windowTitle(), box.text());
    ShootWidget(box, screenshot);
  });
}

void DemoSession::CheckOpened(const qt::testing::DialogScript& script, const QString& step) {
  if (script.Ran()) return;
  complete_ = false;
  notes_ << QString("%1: the distribution window did not open.").arg(step);
}

void DemoSession::Shoot(const QString& name) {
  Settle();
  window_.RefreshValues();
  QString path = screenshots_.filePath(name);
  if (window_.grab().save(path)) written_ << path;
}

void DemoSession::ShootWidget(QWidget& widget, const QString& name) {
  QApplication::processEvents();
  QString path = screenshots_.filePath(name);
  if (widget.grab().save(path)) written_ << path;
}

void DemoSession::PlayPaymentSplit() {
  // A business payment of 113.00 with 13.00 GST/HST: Tab past the GST/HST opens the window
  // with the 100.00 net expense proposed on the default account.
  auto& details = window_.Details();
  QWidget* grid = details.Surface().FindQWidget("grdPaymentAmount");
  qt::testing::DialogScript split([this](qt::QtDialogSurface& dialog) {
    QWidget* lines = dialog.FindQWidget("grTempDistribution");
    // Typed by hand: 60.00 on the proposed line, and the rest, 40.00, waits on the next line
    // for its account; the window shows what is to be split and what remains.
    ClickCell(lines, 0, 2);
    Type("6000");
    Press(Qt::Key_Tab);
    Type("5200");
    Press(Qt::Key_Tab);
    ShootWidget(dialog, "06-payment-split.png");
    Press(Qt::Key_Tab);  // the 40.00 kept: the lines add up and Accept has the focus
    Press(Qt::Key_Enter);
  });
  ClickCell(grid, 0, 0);
  Type("11300");
  Press(Qt::Key_Tab);
  Type("1300");
  Press(Qt::Key_Tab);  // on to the "View Dist" button
  Press(Qt::Key_Tab);  // past the last cell: the window opens
  Settle();
  CheckOpened(split, "The business payment");
  QString reason;
  const bool valid = details.IsDataValid(reason);
  notes_ << QString("PaymentDetails1.IsDataValid = %1 (\"%2\")").arg(valid ? "True" : "False", reason);
  Shoot("07-payment-details.png");
}

void DemoSession::PlaySplitWithRefusal() {
  // The host reopens a payment of 150.00 whose split it kept: three lines, one of them a
  // refund, that fall 5.00 short. Accept is refused; the payer fixes the refund and accepts.
  auto& details = window_.Details();
  details.ClearPay();
  details.SetPaymentAmount(Currency::FromText("150"));
  details.SetGST(Currency());
  auto kept = std::make_shared<clsDistributions>();
  kept->Add(Variant(), "5100", Currency::FromText("100"));
  kept->Add(Variant(), "5200", Currency::FromText("70"));
  kept->Add(Variant(), "5300", Currency::FromText("-25"));
  details.Control().SetPayDistribution(kept);
  qt::testing::DialogScript split([this](qt::QtDialogSurface& dialog) {
    QWidget* lines = dialog.FindQWidget("grTempDistribution");
    Refused("08-split-refused.png");
    Click(dialog.FindQWidget("cmdGLAccept"));
    ClickCell(lines, 2, 2);
    Type("-2000");
    Press(Qt::Key_Tab);
    ClickCell(lines, 0, 1);  // off the refund line, to see it in red
    ShootWidget(dialog, "09-split-balanced.png");
    Click(dialog.FindQWidget("cmdGLAccept"));
  });
  details.ShowDistribution();
  Settle();
  CheckOpened(split, "The kept split");
  for (const QVariant& line : details.Distributions()) {
    const QVariantMap map = line.toMap();
    notes_ << QString("Accepted line: %1 %2").arg(map.value("GLAccount").toString(),
                                                 MoneyText(map.value("Amount").value<Currency>()));
  }
}

void DemoSession::PlayLockedFields() {
  auto& details = window_.Details();
  details.SetLockFields(true);
  ClickCell(details.Surface().FindQWidget("grdPaymentAmount"), 0, 0);
  Type("5");
  Shoot("10-locked-fields.png");
  details.SetLockFields(false);
}

void DemoSession::PlayInvoiceList() {
  // A business payer lists three invoices: the first typed and split over two accounts, the
  // others added by the host as from a scanned statement, not yet split.
  window_.ShowInvoicePage();
  Settle();
  auto& invoices = window_.Invoices();
  QWidget* grid = invoices.Surface().FindQWidget("grInvoices");
  const QDate day = QDate::currentDate().addDays(-3);  // recent: no date question
  ClickCell(grid, 0, 1);
  Type(day.toString("yyyy/MM/dd"));
  Press(Qt::Key_Tab);
  Type("Hydro, October");
  Press(Qt::Key_Tab);
  Type("11300");
  Press(Qt::Key_Tab);
  Type("1300");
  // The payer moves on out of the list (the row is stored and its net expense worked out),
  // then comes back to split it with View Dist.
  window_.BusinessSwitch().setFocus(Qt::TabFocusReason);
  Settle();
  qt::testing::DialogScript split([this](qt::QtDialogSurface& dialog) {
    QWidget* lines = dialog.FindQWidget("grTempDistribution");
    ClickCell(lines, 0, 2);
    Type("6000");
    Press(Qt::Key_Tab);
    Type("5200");
    Press(Qt::Key_Tab);
    ShootWidget(dialog, "11-invoice-split.png");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Enter);
  });
  ClickCell(grid, 0, 6);  // View Dist
  Settle();
  CheckOpened(split, "The typed invoice");
  invoices.AddInvoice(day.addDays(1), "Office supplies", Currency::FromText("45.20"),
                      QVariant::fromValue(Currency::FromText("5.20")));
  invoices.AddInvoice(day.addDays(2), "Courier", Currency::FromText("18.75"));
  Settle();
  Shoot("12-invoice-list.png");

  notes_ << QString("InvoiceEntry1.InvoiceCount = %1, TotalAmount = %2, TotalGST = %3, TotalExpense = %4")
                .arg(invoices.InvoiceCount())
                .arg(MoneyText(invoices.TotalAmount()), MoneyText(invoices.TotalGST()),
                     MoneyText(invoices.TotalExpense()));
  for (const QVariant& line : invoices.InvoiceValues(1).Distributions.ToList()) {
    const QVariantMap map = line.toMap();
    notes_ << QString("InvoiceEntry1.InvoiceValues(1) line: %1 %2")
                  .arg(map.value("GLAccount").toString(), MoneyText(map.value("Amount").value<Currency>()));
  }
  QString reason;
  bool incomplete = false;
  const bool valid = invoices.IsDataValid(reason, incomplete);
  notes_ << QString("InvoiceEntry1.IsDataValid = %1 (\"%2\", Incomplete = %3)")
                .arg(valid ? "True" : "False", reason, incomplete ? "True" : "False");
}

void DemoSession::PlayInvoicePaste() {
  // Three more invoices copied from the payer's spreadsheet; one is deleted by mistake and
  // Ctrl+Z brings it back.
  auto& invoices = window_.Invoices();
  QWidget* grid = invoices.Surface().FindQWidget("grInvoices");
  const QString day = QDate::currentDate().addDays(-2).toString("yyyy/MM/dd");
  QGuiApplication::clipboard()->setText(day + "\tGas, October\t\"1,130.00\"\t130.00\r\n" +  //
                                        day + "\tWater\t$56.50\t6.50\r\n" +                 //
                                        day + "\tInternet\t(22.60)\t-2.60\r\n");
  const short before = invoices.RowCount();
  ClickCell(grid, before, 1);
  Press(Qt::Key_V, Qt::ControlModifier);
  Shoot("13-invoices-pasted.png");
  notes_ << QString("Pasted: InvoiceEntry1.RowCount %1 -> %2, TotalAmount = %3")
                .arg(before)
                .arg(invoices.RowCount())
                .arg(MoneyText(invoices.TotalAmount()));
  ClickCell(grid, before + 1, 2);
  qt::testing::AnswerNextMessage(QMessageBox::Yes);
  Press(Qt::Key_Delete, Qt::ControlModifier);
  Shoot("14-pasted-invoice-deleted.png");
  const short deleted = invoices.RowCount();
  Press(Qt::Key_Z, Qt::ControlModifier);
  Shoot("15-deletion-undone.png");
  notes_ << QString("Ctrl+Z after deleting: RowCount %1 -> %2, InvoiceValues(%3).InvoiceNo = \"%4\"")
                .arg(deleted)
                .arg(invoices.RowCount())
                .arg(before + 2)
                .arg(invoices.InvoiceValues(static_cast<short>(before + 2)).InvoiceNo);
  if (invoices.RowCount() != before + 3) complete_ = false;
}

void DemoSession::PlayChartAndTax() {
  // The host shares a small chart of accounts and sets the payer's province. A fourth invoice
  // of 226.00 gets its GST/HST from the rate with F8; in the window that opens, "off" offers
  // the office accounts and Down, Tab takes the first.
  auto* accounts = new QStandardItemModel(&window_);
  const char* const kChart[][2] = {{"5100", "OFFICE SUPPLIES"}, {"5110", "OFFICE EQUIPMENT"}, {"5200", "COURIER"},
                                   {"6200", "TRAVEL"},          {"6300", "UTILITIES"}};
  for (const auto& [number, name] : kChart) accounts->appendRow({new QStandardItem(number), new QStandardItem(name)});
  qt::SetChartOfAccounts(accounts);
  qt::SetGstHstProvince("ON");
  auto& invoices = window_.Invoices();
  QWidget* grid = invoices.Surface().FindQWidget("grInvoices");
  ClickCell(grid, invoices.RowCount(), 1);
  Type(QDate::currentDate().addDays(-1).toString("yyyy/MM/dd"));
  Press(Qt::Key_Tab);
  Type("Stationery");
  Press(Qt::Key_Tab);
  Type("22600");
  Press(Qt::Key_Tab);
  Press(Qt::Key_F8);  // the GST/HST included at Ontario's 13 %
  Shoot("16-gst-hst-filled.png");
  qt::testing::DialogScript split([this](qt::QtDialogSurface& dialog) {
    ClickCell(dialog.FindQWidget("grTempDistribution"), 0, 1);
    Type("off");
    ShootWidget(dialog, "17-account-completion.png");
    Press(Qt::Key_Down);
    Press(Qt::Key_Tab);  // takes 5100: with the whole 200.00 on it, Accept is next
    Press(Qt::Key_Enter);
  });
  window_.BusinessSwitch().setFocus(Qt::TabFocusReason);  // the row is stored
  Settle();
  ClickCell(grid, invoices.RowCount() - 1, 6);  // View Dist
  Settle();
  CheckOpened(split, "The invoice split from the chart");
  const qt::InvoiceRecord invoice = invoices.InvoiceValues(invoices.RowCount());
  notes_ << QString("GST/HST filled with F8 at 13 %: %1 of %2")
                .arg(MoneyText(invoice.GSTAmount), MoneyText(invoice.InvoiceAmount));
  for (const QVariant& line : invoice.Distributions.ToList()) {
    const QVariantMap map = line.toMap();
    notes_ << QString("Line taken from the chart: %1 %2")
                  .arg(map.value("GLAccount").toString(), MoneyText(map.value("Amount").value<Currency>()));
  }
}

QStringList DemoSession::Play() {
  Settle();
  Shoot("01-empty-screen.png");

  window_.BusinessSwitch().setChecked(true);
  window_.Payment().SetFocusPaymentAmount();
  Settle();
  Type("2500");         // cents: 25.00
  Press(Qt::Key_Tab);   // on to GST/HST
  Type("325");
  Press(Qt::Key_Return);  // Enter moves on like Tab: out of the control
  Shoot("02-standard-payment.png");

  window_.Invoice().SetFocusInvoiceDate();
  Settle();
  Type("20261105");
  Press(Qt::Key_Return);
  Type("inv-2041");
  Press(Qt::Key_Return);
  Type("11300");
  Press(Qt::Key_Return, Qt::ShiftModifier);  // Shift+Enter stays put
  Press(Qt::Key_Return);
  Type("1300");
  Press(Qt::Key_Tab);
  Shoot("03-single-invoice.png");

  auto& remittance = window_.Remittance();
  remittance.SetPeriodFrom(QDate(2026, 10, 1));
  remittance.SetPeriodTo(QDate(2026, 10, 31));
  remittance.SetDueDate(QDate(2026, 11, 30));
  remittance.SetFocusGrid();  // lands on the first amount: item labels take no keys
  Settle();
  Type("4550");
  Press(Qt::Key_Return);
  remittance.SetFocusComment();
  Settle();
  Type("Remittance for October");
  Press(Qt::Key_Tab);
  Type("125000");
  Press(Qt::Key_Tab);
  Shoot("04-government-remittance.png");

  remittance.SetStatementOnly(1);
  Settle();
  Shoot("05-statement-only.png");

  PlayPaymentSplit();
  PlaySplitWithRefusal();
  PlayLockedFields();
  PlayInvoiceList();
  PlayInvoicePaste();
  PlayChartAndTax();
  return written_;
}

}  // namespace zenta::demo
