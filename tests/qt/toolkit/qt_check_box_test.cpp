#include "tests/qt/key_input.h"
#include "tests/qt/toolkit/test_window.h"
#include "zenta/qt/toolkit/qt_check_box.h"

namespace zenta::qt {

using testing::As;

class QtCheckBoxTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;
  QtCheckBox* box_ = nullptr;
  QList<int> clicks_;

  // On the indicator: the rest of a wide check box is not clickable.
  void Click() { QTest::mouseClick(box_, Qt::LeftButton, Qt::NoModifier, QPoint(6, box_->height() / 2)); }

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    box_ = &As<QtCheckBox>(window_->Surface().AddCheckBox({"chkStatementOnly", {0, 0, 3000, 300}}, "Statement only"));
    clicks_.clear();
    box_->OnClick([this] { clicks_ << box_->State(); });
    QVERIFY(window_->Show());
  }

  void cleanup() { window_.reset(); }

  void userClicksAndProgramChangesBothNotify() {
    Click();
    box_->SetFocus();
    testing::Press(Qt::Key_Space);
    box_->SetState(1);
    box_->SetState(1);  // no change, no click
    box_->SetState(0);
    QCOMPARE(clicks_, QList<int>({1, 0, 1, 0}));
  }

  void onlyTheProgramGraysIt() {
    box_->SetState(2);
    Click();
    Click();
    QCOMPARE(clicks_, QList<int>({2, 1, 0}));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtCheckBoxTest)
#include "qt_check_box_test.moc"
