#include <QAbstractButton>
#include <QClipboard>
#include <QMessageBox>
#include <QTimer>

#include "tests/qt/key_input.h"
#include "tests/qt/toolkit/test_window.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {

using testing::As;
using testing::Press;
using testing::Type;

class QtNumberEditTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;
  QtNumberEdit* first_ = nullptr;
  QtNumberEdit* second_ = nullptr;

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    first_ = &As<QtNumberEdit>(window_->Surface().AddNumberEdit({"first", {0, 0, 1500, 300}}));
    second_ = &As<QtNumberEdit>(window_->Surface().AddNumberEdit({"second", {0, 400, 1500, 300}}));
    QVERIFY(window_->Show());
    first_->SetFocus();
  }

  void cleanup() { window_.reset(); }

  void typingFollowsTheEditFormat_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("nine integer digits") << "12345678901" << "123456789";
    QTest::newRow("two decimals") << "12.345" << "12.34";
    QTest::newRow("one point") << "1.2.3" << "1.23";
    QTest::newRow("leading minus only") << "-1-2" << "-12";
    QTest::newRow("letters refused") << "a7b" << "7";
    QTest::newRow("grouping comma dropped") << "1,5" << "15";
  }

  void typingFollowsTheEditFormat() {
    QFETCH(QString, keys);
    QFETCH(QString, text);
    Type(keys.toUtf8().constData());
    QCOMPARE(QString::fromStdString(first_->Text()), text);
  }

  void theLocaleDecimalKeyTypesAPoint() {
    first_->setLocale(QLocale(QLocale::French, QLocale::Canada));
    Type("12,5");
    QCOMPARE(first_->Text(), std::string("12.5"));
    QCOMPARE(first_->Value(), Currency::FromUnits(125000));
  }

  void pastedTextIsCleanedOrRefused_data() {
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("text");
    QTest::newRow("currency and grouping") << "$1,234.56" << "1234.56";
    QTest::newRow("ten digits") << "1234567890" << "7";
    QTest::newRow("words") << "12 dollars" << "7";
  }

  void pastedTextIsCleanedOrRefused() {
    QFETCH(QString, clipboard);
    QFETCH(QString, text);
    Type("7");
    first_->selectAll();
    QApplication::clipboard()->setText(clipboard);
    first_->paste();
    QCOMPARE(QString::fromStdString(first_->Text()), text);
  }

  void leavingShowsTheDisplayFormat_data() {
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("shown");
    QTest::newRow("decimals filled") << "7.5" << "7.50";
    QTest::newRow("negative") << "-3" << "-3.00";
    QTest::newRow("no value shows the null section") << "" << "0.00";
    QTest::newRow("zero") << "0" << "0.00";
  }

  void leavingShowsTheDisplayFormat() {
    QFETCH(QString, keys);
    QFETCH(QString, shown);
    Type(keys.toUtf8().constData());
    Press(Qt::Key_Tab);
    QCOMPARE(first_->text(), shown);
    QCOMPARE(QString::fromStdString(first_->Text()), keys);
    first_->SetFocus();
    QCOMPARE(first_->text(), keys);
  }

  void enteringSelectsAllSoTypingReplaces() {
    first_->SetValue(Currency::FromInteger(12));
    second_->SetFocus();
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    Type("3");
    QCOMPARE(first_->Text(), std::string("3"));
  }

  void aLongerProgramValueCanStillBeShortened() {
    first_->SetValue(Currency::FromUnits(123456));  // 12.3456: more decimals than can be typed
    Press(Qt::Key_End);
    Press(Qt::Key_Backspace);
    QCOMPARE(first_->Text(), std::string("12.345"));
    Type("9");
    QCOMPARE(first_->Text(), std::string("12.345"));
  }

  void functionKeys() {
    Type("42");
    Press(Qt::Key_F4);
    QCOMPARE(first_->Text(), std::string("42"));
    Press(Qt::Key_F2);
    QVERIFY(first_->IsNull());
    QCOMPARE(first_->Text(), std::string());
  }

  void focusLostRunsOnceWithTheNextFieldActive() {
    QStringList log;
    first_->OnFocusLost([&] { log << "lost, active " + QString::fromStdString(window_->Surface().ActiveChildName()); });
    second_->OnFocusGained([&] { log << "second gained"; });
    Press(Qt::Key_Tab);
    QCOMPARE(log, QStringList({"lost, active second", "second gained"}));
    log.clear();
    second_->OnFocusLost([&] { log << "second lost, active " + testing::FocusName(); });
    window_->Outside().setFocus(Qt::TabFocusReason);
    QCOMPARE(log, QStringList({"second lost, active outside"}));
    QCOMPARE(window_->Surface().ActiveChild(), nullptr);
  }

  void aMessageBoxIsNotTheUserLeaving() {
    int lost = 0;
    int gained = 0;
    first_->OnFocusLost([&] { ++lost; });
    first_->OnFocusGained([&] { ++gained; });
    Type("12");
    QtHost host(window_->Surface());
    QTimer::singleShot(0, [] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->button(QMessageBox::Ok)->click();
    });
    host.ShowMessage({"Amount too large", "Amount", platform::MessageButtons::Ok, platform::MessageIcon::Exclamation});
    // The offscreen platform has no window manager to hand the activation back: do it here.
    window_->Window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window_->Window()));
    QCOMPARE(lost, 0);
    QCOMPARE(gained, 0);
    QCOMPARE(QApplication::focusWidget(), first_);
    QCOMPARE(first_->text(), QString("12"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtNumberEditTest)
#include "qt_number_edit_test.moc"
