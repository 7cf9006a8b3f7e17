#include <QCalendarWidget>
#include <limits>

#include "tests/qt/key_input.h"
#include "tests/qt/toolkit/test_window.h"
#include "zenta/core/host_error.h"
#include "zenta/qt/toolkit/qt_date_edit.h"
#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {

using testing::As;
using testing::Press;
using testing::Type;

class QtDateEditTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;
  QtDateEdit* date_ = nullptr;
  QtNumberEdit* next_ = nullptr;
  int lost_ = 0;

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    date_ = &As<QtDateEdit>(window_->Surface().AddDateEdit({"date", {0, 0, 1700, 300}}));
    next_ = &As<QtNumberEdit>(window_->Surface().AddNumberEdit({"next", {0, 400, 1500, 300}}));
    lost_ = 0;
    date_->OnFocusLost([this] { ++lost_; });
    QVERIFY(window_->Show());
    date_->SetFocus();
  }

  void cleanup() { window_.reset(); }

  void aDateOnlyOnceTheDigitsFormOne_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("eight digits") << "20261122" << "2026/11/22" << true;
    QTest::newRow("incomplete") << "202611" << "2026/11/__" << false;
    QTest::newRow("no such day") << "20260230" << "2026/02/30" << false;
  }

  void aDateOnlyOnceTheDigitsFormOne() {
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(bool, valid);
    Type(keys.toUtf8().constData());
    QCOMPARE(QString::fromStdString(date_->Text()), text);
    QCOMPARE(date_->Value().has_value(), valid);
    if (valid) QCOMPARE(QString::fromStdString(date_->Value()->ToText()), text);
  }

  void emptyStaysEmptyWhenTabbedThrough() {
    Press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), next_);
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    Press(Qt::Key_Tab);
    QVERIFY(!date_->Value());
    QCOMPARE(date_->Text(), std::string("____/__/__"));
    QCOMPARE(lost_, 2);
  }

  void leavingWithANonDatePutsBackTheLastDate_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<bool>("hadDate");
    QTest::newRow("impossible, had a date") << "20261399" << true;
    QTest::newRow("partial, had a date") << "2026" << true;
    QTest::newRow("impossible, was empty") << "20261399" << false;
    QTest::newRow("partial, was empty") << "2026" << false;
  }

  void leavingWithANonDatePutsBackTheLastDate() {
    QFETCH(QString, keys);
    QFETCH(bool, hadDate);
    if (hadDate) date_->SetValue(Date::Parse("2025/01/31"));
    date_->Editor().selectAll();
    Type(keys.toUtf8().constData());
    Press(Qt::Key_Tab);
    QCOMPARE(lost_, 1);
    QCOMPARE(QApplication::focusWidget(), next_);
    QCOMPARE(date_->Text(), std::string(hadDate ? "2025/01/31" : "____/__/__"));
    QCOMPARE(date_->Value().has_value(), hadDate);
    QVERIFY(date_->Refused());
    QVERIFY(date_->Editor().palette().color(QPalette::Base) != next_->palette().color(QPalette::Base));
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    Type("20260101");
    QVERIFY(!date_->Refused());
    QCOMPARE(date_->Editor().palette().color(QPalette::Base), next_->palette().color(QPalette::Base));
  }

  void aHostDateOutsideYears100To9999IsRefused_data() {
    QTest::addColumn<int>("day");
    QTest::newRow("smallest day number") << std::numeric_limits<int>::min();
    QTest::newRow("0099/12/31") << -657435;
    QTest::newRow("10000/01/01") << 2958466;
  }

  void aHostDateOutsideYears100To9999IsRefused() {
    QFETCH(int, day);
    date_->SetValue(Date::Parse("2025/01/31"));
    QVERIFY_THROWS_EXCEPTION(HostError, date_->SetValue(Date::FromDayNumber(day)));
    QCOMPARE(date_->Text(), std::string("2025/01/31"));
  }

  void typingAfterTabReplacesTheWholeDate() {
    date_->SetValue(Date::Parse("2026/11/22"));
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    Type("2027");
    QCOMPARE(date_->Text(), std::string("2027/__/__"));
  }

  void functionKeysClearAndPutToday() {
    Type("20261122");
    Press(Qt::Key_F2);
    QVERIFY(!date_->Value());
    QCOMPARE(date_->Text(), std::string("____/__/__"));
    Press(Qt::Key_F3);
    QCOMPARE(date_->Value(), FromQDate(QDate::currentDate()));
  }

  void theCalendarIsNotTheUserLeaving() {
    Type("20261122");
    Press(Qt::Key_F4);
    QVERIFY(date_->CalendarOpen());
    QCOMPARE(date_->Calendar().selectedDate(), QDate(2026, 11, 22));
    QCOMPARE(window_->Surface().ActiveChildName(), std::string("date"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(!date_->CalendarOpen());
    QCOMPARE(date_->Text(), std::string("2026/11/23"));
    QCOMPARE(lost_, 0);
    Press(Qt::Key_Tab);
    QCOMPARE(lost_, 1);
  }

  void escapeClosesTheCalendarUnchanged() {
    Press(Qt::Key_F4);
    QVERIFY(date_->CalendarOpen());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!date_->CalendarOpen());
    QVERIFY(!date_->Value());
    QCOMPARE(lost_, 0);
  }

  void theTitleBarTakesTheTitleColour_data() {
    QTest::addColumn<OleColor>("color");
    QTest::newRow("title yellow") << colors::kTitleYellow;
    QTest::newRow("title blue") << colors::kTitleBlue;
  }

  void theTitleBarTakesTheTitleColour() {
    QFETCH(OleColor, color);
    date_->SetCalendarTitleColor(color);
    QCOMPARE(date_->CalendarTitleColor(), color);
    Press(Qt::Key_F4);
    QWidget& bar = date_->CalendarTitleBar();
    QVERIFY(&bar != &date_->Calendar());
    const QImage shot = bar.grab().toImage();
    QCOMPARE(FromQColor(shot.pixelColor(2, shot.height() / 2)), color);
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtDateEditTest)
#include "qt_date_edit_test.moc"
