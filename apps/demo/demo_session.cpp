#include "apps/demo/demo_session.h"

#include <QApplication>
#include <QCheckBox>
#include <QTest>

#include "apps/demo/demo_window.h"
#include "zenta/qt/govt_details.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/std_payment.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::demo {

DemoSession::DemoSession(DemoWindow& window, QDir screenshots) : window_(window), screenshots_(std::move(screenshots)) {}

void DemoSession::Settle() {
  // Injected keystrokes and deferred refreshes run on the event loop.
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

void DemoSession::Type(const QString& text) {
  for (QChar c : text) {
    QWidget* target = QApplication::focusWidget();
    if (!target) return;
    QTest::keyClick(target, c.toLatin1());
    Settle();
  }
}

void DemoSession::Press(int key, Qt::KeyboardModifiers modifiers) {
  QWidget* target = QApplication::focusWidget();
  if (!target) return;
  QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
  Settle();
}

void DemoSession::Shoot(const QString& name) {
  Settle();
  window_.RefreshValues();
  QString path = screenshots_.filePath(name);
  if (window_.grab().save(path)) written_ << path;
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
  return written_;
}

}  // namespace zenta::demo
