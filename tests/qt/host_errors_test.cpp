#include <QSignalSpy>
#include <QTest>
#include <limits>

#include "tests/qt/host_window.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::ClickCell;
using testing::PressKey;
using testing::TypeKeys;

// Refusals that reach Qt with no host call to return to (a posted refresh, a keystroke): they
// must arrive as HostErrorRaised, never as an exception thrown into Qt's event loop.
class HostErrorsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  InvoiceEntry* invoices_ = nullptr;
  static constexpr quint32 kOverflow = 6;

  static Currency NearTheMaximum() { return Currency::FromUnits(std::numeric_limits<std::int64_t>::max() - 50000); }
  QWidget* Grid() const { return invoices_->Surface().FindQWidget("grInvoices"); }
  static QList<quint32> Numbers(const QSignalSpy& spy) {
    QList<quint32> numbers;
    for (const QList<QVariant>& raised : spy) numbers << raised.at(0).value<quint32>();
    return numbers;
  }

 private slots:
  void init() {
    invoices_ = testing::ShowInHostWindow<InvoiceEntry>(window_);
    QVERIFY(invoices_);
  }
  void cleanup() { window_.reset(); }

  void totalsPastTheRangeAreReportedByThePostedRefresh() {
    QSignalSpy errors(invoices_, &ControlWidget::HostErrorRaised);
    invoices_->AddInvoice(QDate::currentDate(), "A", NearTheMaximum());
    invoices_->AddInvoice(QDate::currentDate(), "B", NearTheMaximum());
    testing::Settle();
    QVERIFY(Numbers(errors).contains(kOverflow));
    QCOMPARE(invoices_->RowCount(), short{2});
  }

  void aGSTThatTakesTheExpensePastTheRangeIsRefusedWithABeep() {
    invoices_->SetBusinessMode(true);
    invoices_->AddInvoice(QDate::currentDate(), "A", NearTheMaximum(), QVariant::fromValue(Currency()));
    QSignalSpy errors(invoices_, &ControlWidget::HostErrorRaised);
    QVERIFY(ClickCell(Grid(), 0, 4));
    TypeKeys("-10000");
    PressKey(Qt::Key_Tab);
    QCOMPARE(Numbers(errors), QList<quint32>{kOverflow});
    const InvoiceRecord invoice = invoices_->InvoiceValues(1);
    QCOMPARE(invoice.GSTAmount, Currency());
    QCOMPARE(invoice.CompanyExpense, NearTheMaximum());
  }

  // Which rates are refused is the control's rule; here, that the refusal reaches the host as a signal.
  void aRateNoAmountConvertsAtIsRefusedAndTheLastOneKept() {
    const float rate = std::numeric_limits<float>::infinity();
    invoices_->SetIPCurrency("USD");
    invoices_->SetCurrencyRate(1.5f);
    invoices_->SetupIPGrid();
    QSignalSpy errors(invoices_, &ControlWidget::HostErrorRaised);
    invoices_->SetCurrencyRate(rate);
    QCOMPARE(Numbers(errors), QList<quint32>{kOverflow});
    QVERIFY(ClickCell(Grid(), 0, 1));
    TypeKeys(QDate::currentDate().toString("yyyyMMdd"));
    PressKey(Qt::Key_Tab);
    TypeKeys("INV-1");
    PressKey(Qt::Key_Tab);
    TypeKeys("1000");
    PressKey(Qt::Key_Tab);
    testing::Settle();
    // Typed at the rate kept: nothing more to report.
    QCOMPARE(Numbers(errors), QList<quint32>{kOverflow});
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::HostErrorsTest)
#include "host_errors_test.moc"
