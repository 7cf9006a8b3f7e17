#include <QCheckBox>
#include <QFont>
#include <QFontMetrics>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <limits>

#include "tests/qt/host_window.h"
#include "zenta/qt/govt_details.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

class GovtDetailsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  GovtDetails* remittance_ = nullptr;

 private slots:
  void init() {
    remittance_ = testing::ShowInHostWindow<GovtDetails>(window_);
    QVERIFY(remittance_);
  }

  void cleanup() { window_.reset(); }

  void refusedValuesLeaveThePropertyAndSignalTheError_data() {
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("statement only 70000") << "StatementOnly" << QVariant(70000);
    QTest::newRow("amount abc") << "Amount" << QVariant("abc");
    QTest::newRow("other amount abc") << "OtherAmount" << QVariant("abc");
    QTest::newRow("amount NaN") << "Amount" << QVariant(std::numeric_limits<double>::quiet_NaN());
    QTest::newRow("amount infinity") << "Amount" << QVariant(std::numeric_limits<double>::infinity());
    QTest::newRow("amount 3e38") << "Amount" << QVariant(3e38);
    QTest::newRow("period from year 10000") << "PeriodFrom" << QVariant(QDate(10000, 1, 1));
    QTest::newRow("due date year 99") << "DueDate" << QVariant(QDate(99, 12, 31));
  }

  void refusedValuesLeaveThePropertyAndSignalTheError() {
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    remittance_->SetAmount(QVariant::fromValue(Currency::FromText("12.5")));
    remittance_->SetOtherAmount(QVariant::fromValue(Currency::FromText("3")));
    remittance_->SetPeriodFrom(QDate(2026, 1, 1));
    remittance_->SetDueDate(QDate(2026, 2, 1));
    QSignalSpy errors(remittance_, &ControlWidget::HostErrorRaised);
    const QVariant before = remittance_->property(property.toUtf8());
    remittance_->setProperty(property.toUtf8(), value);
    QCOMPARE(remittance_->property(property.toUtf8()), before);
    QCOMPARE(errors.count(), 1);
    QVERIFY(!errors.at(0).at(2).toString().isEmpty());
  }

  void aDateOutsideTheYearsNamesItsFieldAndNumber() {
    QSignalSpy errors(remittance_, &ControlWidget::HostErrorRaised);
    remittance_->SetPeriodTo(QDate(-587, 7, 11));
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors.at(0).at(0).value<quint32>(), 0x80040015u);
    QCOMPARE(errors.at(0).at(1).toString(), QString("dtPeriodTo"));
    QCOMPARE(errors.at(0).at(2).toString(), QString("Dates must range from 0100/01/01 to 9999/12/31"));
    QVERIFY(remittance_->PeriodTo().isNull());
  }

  void theStatementOnlyCaptionFitsAtAnyFontSize_data() {
    QTest::addColumn<int>("points");
    QTest::newRow("8 pt") << 8;
    QTest::newRow("12 pt") << 12;
    QTest::newRow("16 pt") << 16;
  }

  void theStatementOnlyCaptionFitsAtAnyFontSize() {
    QFETCH(int, points);
    QFont font = window_->font();
    font.setPointSize(points);
    window_->setFont(font);
    QCoreApplication::processEvents();
    auto* box = qobject_cast<QCheckBox*>(remittance_->Surface().FindQWidget("chkStatementOnly"));
    QVERIFY(box);
    QCOMPARE(box->font().pointSize(), points);
    QVERIFY2(box->width() >= box->sizeHint().width(), qPrintable(QString::number(box->width())));
    // and the control, at its smallest, is wide enough to show it
    window_->resize(1, 1);
    QCoreApplication::processEvents();
    QCOMPARE(remittance_->width(), remittance_->minimumWidth());
    QVERIFY(box->width() >= box->sizeHint().width());
    QVERIFY(remittance_->Surface().width() > box->geometry().right());
  }

  void aTrueStatementOnlyChecksTheBox() {
    QVERIFY(remittance_->setProperty("StatementOnly", true));
    auto* box = qobject_cast<QCheckBox*>(remittance_->Surface().FindQWidget("chkStatementOnly"));
    QVERIFY(box);
    QCOMPARE(box->checkState(), Qt::Checked);
    QCOMPARE(remittance_->StatementOnly().toInt(), 1);
    QVERIFY(!remittance_->CommentsEnabled());
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::GovtDetailsTest)
#include "govt_details_test.moc"
