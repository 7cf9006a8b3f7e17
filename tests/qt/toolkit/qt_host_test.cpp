#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>

#include "tests/qt/toolkit/test_window.h"
#include "zenta/qt/toolkit/qt_host.h"

Q_DECLARE_METATYPE(zenta::platform::MessageButtons)
Q_DECLARE_METATYPE(zenta::platform::MessageIcon)
Q_DECLARE_METATYPE(zenta::platform::MessageResult)

namespace zenta::qt {

class QtHostTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    QVERIFY(window_->Show());
  }

  void cleanup() {
    window_.reset();
    QLocale::setDefault(QLocale::c());
  }

  void messageBoxesShowExactlyWhatTheControlAsked_data() {
    QTest::addColumn<platform::MessageButtons>("buttons");
    QTest::addColumn<platform::MessageIcon>("icon");
    QTest::addColumn<int>("click");
    QTest::addColumn<QList<int>>("shown");
    QTest::addColumn<int>("qt_icon");
    QTest::addColumn<platform::MessageResult>("answer");
    using B = QMessageBox;
    QTest::newRow("ok") << platform::MessageButtons::Ok << platform::MessageIcon::None << int(B::Ok) << QList<int>{B::Ok}
                        << int(B::NoIcon) << platform::MessageResult::Ok;
    QTest::newRow("ok/cancel") << platform::MessageButtons::OkCancel << platform::MessageIcon::Exclamation << int(B::Cancel)
                               << QList<int>{B::Ok, B::Cancel} << int(B::Warning) << platform::MessageResult::Cancel;
    QTest::newRow("yes/no") << platform::MessageButtons::YesNo << platform::MessageIcon::Question << int(B::No)
                            << QList<int>{B::Yes, B::No} << int(B::Question) << platform::MessageResult::No;
    QTest::newRow("yes/no/cancel") << platform::MessageButtons::YesNoCancel << platform::MessageIcon::Critical << int(B::Yes)
                                   << QList<int>{B::Yes, B::No, B::Cancel} << int(B::Critical) << platform::MessageResult::Yes;
  }

  void messageBoxesShowExactlyWhatTheControlAsked() {
    QFETCH(platform::MessageButtons, buttons);
    QFETCH(platform::MessageIcon, icon);
    QFETCH(int, click);
    QFETCH(QList<int>, shown);
    QFETCH(int, qt_icon);
    QFETCH(platform::MessageResult, answer);
    QtHost host(window_->Surface());
    QString title, text;
    QList<int> offered;
    int icon_shown = -1;
    Qt::TextFormat format = Qt::AutoText;
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      title = box->windowTitle();
      text = box->text();
      format = box->textFormat();
      icon_shown = box->icon();
      for (QAbstractButton* button : box->buttons()) offered << box->standardButton(button);
      box->button(QMessageBox::StandardButton(click))->click();
    });
    // Markup-like text must reach the user as typed.
    const auto result = host.ShowMessage({"The total <b>1.00</b> & GST do not match", "Totals", buttons, icon});
    QCOMPARE(result, answer);
    QCOMPARE(title, QString("Totals"));
    QCOMPARE(text, QString("The total <b>1.00</b> & GST do not match"));
    QCOMPARE(format, Qt::PlainText);
    std::sort(offered.begin(), offered.end());
    std::sort(shown.begin(), shown.end());
    QCOMPARE(offered, shown);
    QCOMPARE(icon_shown, qt_icon);
  }

  void theDecimalSeparatorIsAskedAfreshEachTime() {
    QtHost host(window_->Surface());
    QLocale::setDefault(QLocale(QLocale::English, QLocale::Canada));
    QCOMPARE(host.DecimalSeparator(), U'.');
    QLocale::setDefault(QLocale(QLocale::French, QLocale::Canada));
    QCOMPARE(host.DecimalSeparator(), U',');
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtHostTest)
#include "qt_host_test.moc"
