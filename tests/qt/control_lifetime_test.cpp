#include <QAbstractItemView>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "tests/qt/host_window.h"
#include "zenta/qt/application_context.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::ClickCell;
using testing::DialogScript;
using testing::PressKey;
using testing::TypeKeys;

// A host that closes its form at the worst moments: while the control's distribution window is
// open, and from the control's own signals. Under the sanitizers any touch of the deleted
// control fails the run; here the window must also end up closed.
class ControlLifetimeTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;

  static Currency Money(const char* text) { return Currency::FromText(text); }
  static QWidget* GridOf(ControlWidget* control, const char* name) { return control->Surface().FindQWidget(name); }
  static bool WindowOpen() { return ApplicationContext().Distribution().Surface().IsShown(); }
  void CloseForm() { window_.reset(); }

  InvoiceEntry* ShowInvoices() {
    auto* invoices = testing::ShowInHostWindow<InvoiceEntry>(window_);
    if (invoices) invoices->SetDefaultGLAccount("5100");
    return invoices;
  }
  void TypeInvoice(InvoiceEntry* invoices) {
    QVERIFY(ClickCell(GridOf(invoices, "grInvoices"), 0, 1));
    TypeKeys(QDate::currentDate().toString("yyyyMMdd"));
    PressKey(Qt::Key_Tab);
    TypeKeys("INV-1");
    PressKey(Qt::Key_Tab);
    TypeKeys("1250");
    PressKey(Qt::Key_Tab);
  }
  void TypePayment(PaymentDetails* payment) {
    QVERIFY(ClickCell(GridOf(payment, "grdPaymentAmount"), 0, 0));
    TypeKeys("1250");
    PressKey(Qt::Key_Tab);
  }
  static DialogScript* Accepting() {
    return new DialogScript([](QtDialogSurface& dialog) { testing::Click(dialog.FindQWidget("cmdGLAccept")); });
  }

 private slots:
  void cleanup() {
    window_.reset();
    testing::Settle();
    QVERIFY(!WindowOpen());
  }

  void closingTheFormWhileThePaymentWindowIsOpenClosesItAsCancelled() {
    auto* payment = testing::ShowInHostWindow<PaymentDetails>(window_);
    QVERIFY(payment);
    payment->SetPaymentAmount(Money("100"));
    DialogScript close([this](QtDialogSurface&) { CloseForm(); });
    payment->ShowDistribution();
    testing::Settle();
    QVERIFY(close.Ran());
    QVERIFY(!WindowOpen());
    QVERIFY(!ApplicationContext().Distribution().Chosen());
  }

  void closingTheFormWhileTheInvoiceWindowIsOpenClosesItAsCancelled() {
    InvoiceEntry* invoices = ShowInvoices();
    QVERIFY(invoices);
    DialogScript close([this](QtDialogSurface&) { CloseForm(); });
    TypeInvoice(invoices);
    testing::Settle();
    QVERIFY(close.Ran());
    QVERIFY(!WindowOpen());
  }

  void thePaymentMayBeClosedFromEverySignal_data() {
    QTest::addColumn<int>("event");
    QTest::newRow("GetPayAmount") << 1;
    QTest::newRow("KeypressLockedField") << 2;
    QTest::newRow("GLBalanced") << 3;
    QTest::newRow("GLDistributionBeforeEdit") << 4;
    QTest::newRow("PayAmtBeforeUpdate") << 5;
  }
  void thePaymentMayBeClosedFromEverySignal() {
    QFETCH(int, event);
    QPointer<PaymentDetails> payment = testing::ShowInHostWindow<PaymentDetails>(window_);
    QVERIFY(payment);
    connect(payment, &ControlWidget::EventRaised, this, [this, event](int number, const QString&, QVariantList&) {
      if (number == event) CloseForm();
    });
    std::unique_ptr<DialogScript> accept(Accepting());
    if (event == 2) payment->SetLockFields(true);
    if (event == 4) {
      payment->SetPaymentAmount(Money("100"));
      // Press and release apart: the form goes on the press.
      auto* grid = qobject_cast<QAbstractItemView*>(GridOf(payment, "grdPaymentAmount"));
      const QPoint button = grid->visualRect(grid->model()->index(0, 3)).center();
      const QPointer<QWidget> viewport = grid->viewport();
      QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, button);
      if (viewport) QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, button);
    } else {
      TypePayment(payment);
    }
    testing::Settle();
    QVERIFY(!payment);
  }

  void theInvoiceListMayBeClosedFromEverySignal_data() {
    QTest::addColumn<int>("event");
    QTest::newRow("Recalculate") << 1;
    QTest::newRow("FirstDistributionEntered") << 2;
    QTest::newRow("CheckDuplicateInvoices") << 4;
    QTest::newRow("ValidateInvoiceAmountLimit") << 5;
  }
  void theInvoiceListMayBeClosedFromEverySignal() {
    QFETCH(int, event);
    QPointer<InvoiceEntry> invoices = ShowInvoices();
    QVERIFY(invoices);
    connect(invoices, &ControlWidget::EventRaised, this, [this, event](int number, const QString&, QVariantList&) {
      if (number == event) CloseForm();
    });
    std::unique_ptr<DialogScript> accept(Accepting());
    TypeInvoice(invoices);
    testing::Settle();
    QVERIFY(!invoices);
  }

  void theTypedSignalsMayCloseTheFormToo() {
    QPointer<InvoiceEntry> invoices = ShowInvoices();
    QVERIFY(invoices);
    connect(invoices, &InvoiceEntry::CheckDuplicateInvoices, this, [this](QString&, bool&) { CloseForm(); });
    TypeInvoice(invoices);
    QVERIFY(!invoices);
  }

  void aSecondOpeningIsReportedAndTheOpenSplitKept() {
    auto* payment = testing::ShowInHostWindow<PaymentDetails>(window_);
    QVERIFY(payment);
    auto* invoices = new InvoiceEntry(window_.get());
    invoices->AddInvoice(QDate::currentDate(), "A", Money("70"));
    invoices->SetCurrentRow(1);
    payment->SetPaymentAmount(Money("100"));
    quint32 refused = 0;
    connect(invoices, &ControlWidget::HostErrorRaised, this, [&refused](quint32 number) { refused = number; });
    DialogScript second([&](QtDialogSurface& dialog) {
      invoices->ShowDistribution();
      QCOMPARE(ApplicationContext().Distribution().AmountToDistribute(), Money("100"));
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
    });
    payment->ShowDistribution();
    QVERIFY(second.Ran());
    QCOMPARE(refused, 0x80040016u);
    QCOMPARE(payment->Distributions().size(), 1);
    QCOMPARE(invoices->InvoiceValues(1).Distributions.size(), 0);
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::ControlLifetimeTest)
#include "control_lifetime_test.moc"
