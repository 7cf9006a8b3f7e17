#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <limits>

#include "tests/qt/host_window.h"
#include "tests/qt/key_input.h"
#include "zenta/controls/simple/std_payment.h"
#include "zenta/qt/std_payment.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::Press;
using testing::Type;

class StdPaymentTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  StdPayment* payment_ = nullptr;

  QLineEdit& Field(const char* name) { return *qobject_cast<QLineEdit*>(payment_->Surface().FindQWidget(name)); }

 private slots:
  void init() {
    payment_ = testing::ShowInHostWindow<StdPayment>(window_);
    QVERIFY(payment_);
  }

  void cleanup() {
    window_.reset();
    QLocale::setDefault(QLocale::c());
  }

  void refusedAmountsLeaveThePropertyAndSignalTheError_data() {
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("qtRefuses");
    QTest::newRow("3e38") << "PaymentAmount" << QVariant(3e38f) << false;
    QTest::newRow("NaN") << "PaymentAmount" << QVariant(std::numeric_limits<float>::quiet_NaN()) << false;
    QTest::newRow("infinity") << "PaymentAmount" << QVariant(std::numeric_limits<float>::infinity()) << false;
    QTest::newRow("abc as payment") << "PaymentAmount" << QVariant("abc") << true;
    QTest::newRow("abc as GST") << "GSTAmount" << QVariant("abc") << true;
  }

  void refusedAmountsLeaveThePropertyAndSignalTheError() {
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(bool, qtRefuses);
    payment_->SetPaymentAmount(12.5f);
    payment_->SetGSTAmount(Currency::FromText("1.25"));
    QSignalSpy errors(payment_, &ControlWidget::HostErrorRaised);
    QSignalSpy changed(payment_, &StdPayment::PaymentAmountChanged);
    const QVariant before = payment_->property(property.toUtf8());
    const bool written = payment_->setProperty(property.toUtf8(), value);
    QCOMPARE(payment_->property(property.toUtf8()), before);
    QCOMPARE(changed.count(), 0);
    if (qtRefuses) {
      QVERIFY(!written);
    } else {
      QCOMPARE(errors.count(), 1);
      QVERIFY(errors.at(0).at(0).value<quint32>() != 0);
      QVERIFY(!errors.at(0).at(2).toString().isEmpty());
    }
  }

  void qtSetEnabledAndTheEnabledPropertyAreOneState() {
    QSignalSpy changed(payment_, &ControlWidget::EnabledChanged);
    payment_->setEnabled(false);
    QVERIFY(!payment_->Enabled());
    QVERIFY(!payment_->Control().Enabled());
    QCOMPARE(changed.count(), 1);
    payment_->SetEnabled(true);
    QVERIFY(payment_->isEnabled());
    QVERIFY(payment_->Surface().FindQWidget("txtPaymentAmount")->isEnabled());
    QCOMPARE(changed.count(), 2);
    window_->setEnabled(false);  // the host's window, not the control's own state
    QVERIFY(payment_->Enabled());
  }

  void typingAndSettingEmitTheChangeSignal() {
    QSignalSpy changed(payment_, &StdPayment::PaymentAmountChanged);
    payment_->SetFocusPaymentAmount();
    Type("12");
    QCOMPARE(changed.count(), 2);
    Press(Qt::Key_Tab);  // the text becomes 0.12, which is what "12" has read all along
    QCOMPARE(changed.count(), 2);
    payment_->SetPaymentAmount(0.12f);
    QCOMPARE(changed.count(), 2);
    payment_->setProperty("PaymentAmount", 5.0f);
    QCOMPARE(changed.count(), 3);
  }

  // A host reading directly and from a timer between the payer's keys, as the demo does.
  void readingBetweenKeysNeverChangesWhatIsTyped() {
    payment_->SetFocusPaymentAmount();
    QLineEdit& field = Field("txtPaymentAmount");
    QList<Currency> polled;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
      polled.append(payment_->PaymentAmountCurrency());
      payment_->PaymentAmount();
    });
    poll.start(0);
    const QString keys = "2500";
    const char* reads[] = {"0.02", "0.25", "2.50", "25.00"};
    for (int i = 0; i < keys.size(); ++i) {
      QTest::keyClick(&field, keys[i].toLatin1());
      polled.clear();
      QTRY_VERIFY(!polled.isEmpty());
      QCOMPARE(polled.last(), Currency::FromText(reads[i]));
      QCOMPARE(payment_->PaymentAmountCurrency(), Currency::FromText(reads[i]));
      QCOMPARE(payment_->PaymentAmount(), Currency::FromText(reads[i]).ToSingle());
      QCOMPARE(field.text(), keys.left(i + 1));
      QCOMPARE(field.cursorPosition(), i + 1);
      QVERIFY(field.hasFocus());
    }
    poll.stop();
    Press(Qt::Key_Tab);
    QCOMPARE(field.text(), QString("25.00"));
    QCOMPARE(payment_->PaymentAmountCurrency(), Currency::FromText("25"));
  }

  void finishEditAppliesTheCentsRuleWithoutLeaving() {
    QSignalSpy field(payment_, &StdPayment::LostFocusPaymentAmount);
    payment_->SetFocusPaymentAmount();
    Type("1250");
    QCOMPARE(Field("txtPaymentAmount").text(), QString("1250"));
    payment_->FinishEdit();
    QCOMPARE(Field("txtPaymentAmount").text(), QString("12.50"));
    QCOMPARE(payment_->PaymentAmountCurrency(), Currency::FromText("12.5"));
    QCOMPARE(field.count(), 1);
    QVERIFY(Field("txtPaymentAmount").hasFocus());
  }

  void theExactReadingKeepsCentsTheFloatCannot() {
    payment_->SetFocusPaymentAmount();
    Type("1234567.89");
    Press(Qt::Key_Tab);
    QCOMPARE(payment_->PaymentAmountCurrency(), Currency::FromText("1234567.89"));
    QVERIFY(Currency::FromText("1234567.89") != Currency::FromDouble(static_cast<double>(payment_->PaymentAmount())));
  }

  void frenchCanadaShowsTheDecimalCommaAndReadsTheKeypadKey() {
    payment_->setLocale(QLocale(QLocale::French, QLocale::Canada));
    payment_->SetFocusPaymentAmount();
    Type("12");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Comma, Qt::KeypadModifier);
    Type("5");
    Press(Qt::Key_Tab);
    QCOMPARE(Field("txtPaymentAmount").text(), QString("12,50"));
    QCOMPARE(payment_->PaymentAmountCurrency(), Currency::FromText("12.5"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::StdPaymentTest)
#include "std_payment_test.moc"
