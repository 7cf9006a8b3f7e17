#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "tests/qt/key_input.h"

#include "zenta/qt/toolkit/qt_date_edit.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_number_edit.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::Press;
using testing::Type;

// A window with a surface of two amount fields and a date, then a field of the host's own.
class ToolkitTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  QtSurface* surface_ = nullptr;
  QtNumberEdit* first_ = nullptr;
  QtNumberEdit* second_ = nullptr;
  QtDateEdit* date_ = nullptr;
  QLineEdit* outside_ = nullptr;


 private slots:
  void init() {
    window_ = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(window_.get());
    surface_ = new QtSurface;
    first_ = dynamic_cast<QtNumberEdit*>(&surface_->AddNumberEdit({"first", {0, 0, 1500, 300}}));
    second_ = dynamic_cast<QtNumberEdit*>(&surface_->AddNumberEdit({"second", {0, 400, 1500, 300}}));
    date_ = dynamic_cast<QtDateEdit*>(&surface_->AddDateEdit({"date", {0, 800, 1500, 300}}));
    surface_->setMinimumSize(200, 120);
    outside_ = new QLineEdit;
    layout->addWidget(surface_);
    layout->addWidget(outside_);
    window_->show();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    first_->SetFocus();
  }

  void cleanup() { window_.reset(); }

  void typingStopsAtTheEditFormat() {
    Type("12345678901");
    QCOMPARE(first_->Text(), std::string("123456789"));
    Type("..123");
    QCOMPARE(first_->Text(), std::string("123456789.12"));
    Press(Qt::Key_F2);
    QVERIFY(first_->IsNull());
  }

  void leavingShowsTheDisplayFormatAndNotifiesOnce() {
    int lost = 0;
    std::string active_when_lost;
    first_->OnFocusLost([&] {
      ++lost;
      active_when_lost = surface_->ActiveChildName();
    });
    Type("7.5");
    Press(Qt::Key_Tab);
    QCOMPARE(lost, 1);
    QCOMPARE(active_when_lost, std::string("second"));
    QCOMPARE(first_->text(), QString("7.50"));
    outside_->setFocus(Qt::TabFocusReason);
    QCOMPARE(surface_->ActiveChild(), nullptr);
    QCOMPARE(second_->text(), QString("0.00"));  // no value: the null section
  }

  void aMessageBoxIsNotTheUserLeaving() {
    int lost = 0;
    first_->OnFocusLost([&] { ++lost; });
    QtHost host(*surface_);
    QString seen;
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      QVERIFY(box);
      seen = box->windowTitle() + "|" + box->text();
      box->button(QMessageBox::No)->click();
    });
    auto answer = host.ShowMessage({"Are you sure you want to delete this invoice?", "Delete this invoice?",
                                    platform::MessageButtons::YesNo, platform::MessageIcon::Question});
    QCOMPARE(answer, platform::MessageResult::No);
    QCOMPARE(seen, QString("Delete this invoice?|Are you sure you want to delete this invoice?"));
    QCoreApplication::processEvents();
    QCOMPARE(lost, 0);
  }

  void thePreviewSeesKeysFirstAndInjectedTabComesAfter() {
    QtHost host(*surface_);
    QStringList log;
    surface_->OnKeyDown([&](platform::KeyDown& key) {
      if (key.key_code == '9') key.key_code = 0;
      if (key.key_code != platform::keys::kEnter || key.shift != platform::kNoShift) return;
      key.key_code = 0;
      host.InjectKeys("{TAB}");
      log << "handler, focus " + QApplication::focusWidget()->objectName();
    });
    first_->OnFocusLost([&] { log << "first lost"; });
    Type("192");
    QCOMPARE(first_->Text(), std::string("12"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    log << "returned";
    QCoreApplication::processEvents();
    QCOMPARE(log, QStringList({"handler, focus first", "returned", "first lost"}));
    QCOMPARE(QApplication::focusWidget(), second_);
    Press(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), second_);
  }

  void theDateFieldCanStayEmpty() {
    date_->SetFocus();
    Type("20261122");
    QCOMPARE(date_->Value()->ToText(), std::string("2026/11/22"));
    Press(Qt::Key_F2);
    QVERIFY(!date_->Value());
    QCOMPARE(date_->Text(), std::string("____/__/__"));
    Press(Qt::Key_Tab);
    QVERIFY(!date_->Value());
    date_->SetValue(*Date::Parse("2026/02/28"));
    QCOMPARE(date_->Editor().text(), QString("2026/02/28"));
  }

  void twipsFollowTheScreen() {
    QVERIFY(qAbs(surface_->ToTwips(surface_->ToPixels(1440)) - 1440) < 20);  // within a pixel
    QVERIFY(surface_->ToPixels(1440) >= surface_->logicalDpiX());
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::ToolkitTest)
#include "toolkit_test.moc"
