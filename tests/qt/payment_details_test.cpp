#include <QAbstractItemView>
#include <QHeaderView>
#include <QTableView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "tests/qt/distribution_lines.h"
#include "zenta/qt/payment_details.h"
#include "tests/qt/host_window.h"
#include "tests/qt/notify_watch.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::ClickCell;
using testing::DialogScript;
using testing::PressKey;
using testing::TypeKeys;

// The payment control on Qt, driven by real keys and clicks: the rules are tested on the
// headless toolkit; these check what only Qt can break (Tab into the grid's engine, the modal
// window from a posted call, by-reference event arguments, property signals).
class PaymentDetailsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  PaymentDetails* payment_ = nullptr;

  QWidget* Grid() const { return payment_->Surface().FindQWidget("grdPaymentAmount"); }
  static Currency Money(const char* text) { return Currency::FromText(text); }
  QStringList Lines() const { return testing::LinesOf(*payment_); }

 private slots:
  void init() {
    payment_ = testing::ShowInHostWindow<PaymentDetails>(window_);
    QVERIFY(payment_);
  }

  void cleanup() { window_.reset(); }

  void everyValueChangeIsSignalledOnce() {
    QVERIFY(testing::WritingEveryPropertySignalsItsChanges(payment_));
    QVERIFY(testing::SignalsMatchChanges(payment_, "gst", [&] { payment_->SetGST(Money("1.50")); }));
    QVERIFY(testing::SignalsMatchChanges(payment_, "disabled", [&] { payment_->setEnabled(false); }));
  }

  void aBusinessPaymentTabsIntoTheWindowAndSplitsTheNetExpense() {
    payment_->SetBusinessMode(true);
    payment_->SetDefaultGLAccount("5100");
    QSignalSpy balanced(payment_, &PaymentDetails::GLBalanced);
    QSignalSpy amount(payment_, &PaymentDetails::PaymentAmountChanged);
    DialogScript split(testing::SplitSixtyForty);
    QVERIFY(ClickCell(Grid(), 0, 0));
    TypeKeys("11300");
    PressKey(Qt::Key_Tab);
    TypeKeys("1300");
    PressKey(Qt::Key_Tab);
    PressKey(Qt::Key_Tab);
    QVERIFY(split.Ran());
    QCOMPARE(payment_->PaymentAmount(), Money("113"));
    QCOMPARE(payment_->GST(), Money("13"));
    QCOMPARE(payment_->NetExpense(), Money("100"));
    QVERIFY(amount.count() > 0);
    QCOMPARE(Lines(), (QStringList{"5100 60", "5200 40"}));
    QCOMPARE(balanced.count(), 2);
    QString reason = "unchanged";
    QVERIFY(payment_->IsDataValid(reason));
    QCOMPARE(reason, QString());
  }

  void aHostVetoThroughTheTypedSignalEmptiesTheAmount() {
    connect(payment_, &PaymentDetails::PayAmtBeforeUpdate, this, [](bool& Cancel) { Cancel = true; });
    QSignalSpy asked(payment_, &PaymentDetails::GetPayAmount);
    QVERIFY(ClickCell(Grid(), 0, 0));
    TypeKeys("11300");
    PressKey(Qt::Key_Tab);
    QCOMPARE(payment_->PaymentAmount(), Currency());
    QVERIFY(asked.count() >= 1);
  }

  void aLateBoundHostVetoesThroughEventRaised() {
    connect(payment_, &ControlWidget::EventRaised, this, [](int number, const QString&, QVariantList& args) {
      if (number == 6 && !args.isEmpty()) args[0] = true;  // GSTAmtBeforeUpdate
    });
    payment_->SetBusinessMode(true);
    QVERIFY(ClickCell(Grid(), 0, 0));
    TypeKeys("11300");
    PressKey(Qt::Key_Tab);
    TypeKeys("1300");
    PressKey(Qt::Key_Tab);
    QCOMPARE(payment_->GST(), Currency());
    QCOMPARE(payment_->NetExpense(), Money("113"));
  }

  void aKeyInALockedAmountNamesItsColumn() {
    payment_->SetPaymentAmount(Money("50"));
    payment_->SetLockFields(true);
    QString named;
    connect(payment_, &PaymentDetails::KeypressLockedField, this, [&named](QString& Field) { named = Field; });
    QVERIFY(ClickCell(Grid(), 0, 0));
    TypeKeys("7");
    QCOMPARE(named, QString("Payment Amount"));
    QCOMPARE(payment_->PaymentAmount(), Money("50"));
  }

  void frenchCanadaShowsGridAmountsWithTheDecimalCommaAndGroupedThousands() {
    payment_->setLocale(QLocale(QLocale::French, QLocale::Canada));
    payment_->SetPaymentAmount(Money("1150.5"));
    auto* view = qobject_cast<QAbstractItemView*>(Grid());
    QVERIFY(view);
    QCOMPARE(view->model()->index(0, 0).data().toString(), QString("1\u00a0150,50"));
    QCOMPARE(payment_->PaymentAmount(), Money("1150.5"));
  }

  void everyGridCaptionIsWholeAtTheControlsOwnSize() {
    for (bool business : {false, true}) {
      payment_->SetBusinessMode(business);
      payment_->resize(payment_->sizeHint());
      QCoreApplication::processEvents();
      auto* view = qobject_cast<QTableView*>(Grid());
      QVERIFY(view);
      for (int column = 0; column < view->model()->columnCount(); ++column) {
        if (view->isColumnHidden(column)) continue;
        QVERIFY2(view->columnWidth(column) >= view->horizontalHeader()->sectionSizeHint(column),
                 qPrintable(view->model()->headerData(column, Qt::Horizontal).toString()));
      }
    }
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::PaymentDetailsTest)
#include "payment_details_test.moc"
