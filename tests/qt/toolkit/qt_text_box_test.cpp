#include "tests/qt/key_input.h"
#include "tests/qt/toolkit/test_window.h"
#include "zenta/qt/toolkit/qt_text_box.h"

namespace zenta::qt {

using testing::As;
using testing::Press;
using testing::Type;

class QtTextBoxTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;
  QtTextBox* box_ = nullptr;
  std::u32string seen_;

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    box_ = &As<QtTextBox>(window_->Surface().AddTextBox({"txtComments", {0, 0, 3000, 300}}));
    seen_.clear();
    // Upper-cases letters, turns "_" into a blank, refuses digits and Enter.
    box_->OnKeyPress([this](platform::KeyPress& press) {
      seen_ += press.key;
      if (press.key >= U'a' && press.key <= U'z') press.key -= U'a' - U'A';
      if (press.key == U'_') press.key = U' ';
      if ((press.key >= U'0' && press.key <= U'9') || press.key == platform::keys::kEnter) press.key = 0;
    });
    QVERIFY(window_->Show());
    box_->SetFocus();
  }

  void cleanup() { window_.reset(); }

  void theFilterReplacesOrDiscardsEachCharacter() {
    Type("ab_c1d");
    QCOMPARE(box_->Text(), std::string("AB CD"));
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Return);
    QCOMPARE(box_->Text(), std::string("AB C"));
    QCOMPARE(seen_, std::u32string(U"ab_c1d\b\r"));
  }

  void charactersBeyondTheBasicPlaneReachTheFilterWhole() {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(U"\U0001F600", 1));
    QApplication::sendEvent(box_, &press);
    QCOMPARE(seen_, std::u32string(U"\U0001F600"));
    QCOMPARE(box_->Text(), std::string("\xF0\x9F\x98\x80"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtTextBoxTest)
#include "qt_text_box_test.moc"
