#include "tests/qt/key_input.h"
#include "tests/qt/toolkit/test_window.h"
#include "zenta/qt/toolkit/qt_array_grid.h"
#include "zenta/qt/toolkit/qt_number_edit.h"
#include "zenta/qt/toolkit/qt_text_box.h"

namespace zenta::qt {

using testing::As;
using testing::Press;
using testing::TypeEach;

// An items grid (label, amount) over rows 1 to 3, a number edit for the amounts, then comments.
class QtArrayGridTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<testing::TestWindow> window_;
  std::shared_ptr<platform::Array2D> array_;
  QtArrayGrid* grid_ = nullptr;
  QtNumberEdit* editor_ = nullptr;
  QtTextBox* comments_ = nullptr;
  QStringList log_;

  QString Stored(int row, int column) const { return QString::fromStdString(array_->Get(row, column).ToString()); }
  void Log(const QString& line) { log_ << line; }

 private slots:
  void init() {
    window_ = std::make_unique<testing::TestWindow>();
    QtSurface& surface = window_->Surface();
    grid_ = &As<QtArrayGrid>(surface.AddGrid({"grItems", {0, 0, 3000, 1800}}, 2));
    editor_ = &As<QtNumberEdit>(surface.AddGridEditor({"txtGridEntry", {}}, *grid_, 1));
    comments_ = &As<QtTextBox>(surface.AddTextBox({"txtComments", {0, 1900, 3000, 300}}));
    array_ = std::make_shared<platform::Array2D>(1, 3, 0, 1);
    for (int row = 1; row <= 3; ++row) array_->Set(row, 0, Variant("Item " + std::to_string(row)));
    grid_->Bind(array_);
    grid_->SetColumnCaption(1, "Amount");
    log_.clear();
    editor_->OnFocusGained([this] { Log("gained, active " + QString::fromStdString(window_->Surface().ActiveChildName())); });
    editor_->OnFocusLost([this] {
      Log("lost, active " + QString::fromStdString(window_->Surface().ActiveChildName()) + ", stored " + Stored(1, 1));
    });
    grid_->OnRowChange([this] { Log("row " + QString::number(grid_->CurrentRow().value_or(0))); });
    QVERIFY(window_->Show());
    grid_->SetFocus();
  }

  void cleanup() { window_.reset(); }

  void enterInTheCellEditorWritesBackThenNotifiesInOrder() {
    grid_->OnKeyDown([this](platform::KeyDown& key) {
      if (key.key_code == platform::keys::kEnter) Log("key-down Enter");
    });
    grid_->SetCurrentColumn(1);
    TypeEach("4550");
    QVERIFY(grid_->IsEditing());
    QCOMPARE(grid_->DisplayedText(1, 1), std::string("4550"));
    QCOMPARE(Stored(1, 1), QString());
    Press(Qt::Key_Return);
    QCOMPARE(log_, QStringList({"gained, active txtGridEntry", "lost, active grItems, stored 4550", "key-down Enter",
                                "row 2"}));
    QVERIFY(!grid_->IsEditing());
    QVERIFY(editor_->isHidden());
    QCOMPARE(QApplication::focusWidget(), grid_);
    QCOMPARE(grid_->CurrentColumn(), 0);
  }

  void aDiscardedKeyDownStaysInTheCell() {
    grid_->OnKeyDown([](platform::KeyDown& key) {
      if (key.key_code == platform::keys::kTab) key.key_code = 0;
    });
    grid_->SetCurrentColumn(1);
    TypeEach("12");
    Press(Qt::Key_Tab);
    QCOMPARE(Stored(1, 1), QString("12"));
    QCOMPARE(grid_->CurrentRow(), 1);
    QCOMPARE(grid_->CurrentColumn(), 1);
  }

  void tabFromTheLastCellLeavesTheGridAndEnterStays() {
    grid_->SetCurrentRow(3);
    grid_->SetCurrentColumn(1);
    TypeEach("9");
    Press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), grid_);
    TypeEach("12");
    Press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), comments_);
    QCOMPARE(Stored(3, 1), QString("12"));
  }

  void theKeyPressFilterSeesEveryTypedCharacter() {
    grid_->OnKeyPress([](platform::KeyPress& press) {
      if (press.key == U'x' || press.key == U'5') press.key = 0;
      if (press.key >= U'a' && press.key <= U'z') press.key -= U'a' - U'A';
    });
    TypeEach("axb");
    QCOMPARE(grid_->CellText(0), std::string("AB"));
    QCOMPARE(grid_->DisplayedText(1, 0), std::string("AB"));
    QCOMPARE(Stored(1, 0), QString("Item 1"));  // typed, not yet committed
    Press(Qt::Key_Backspace);
    QCOMPARE(grid_->CellText(0), std::string("A"));
    Press(Qt::Key_Tab);
    QCOMPARE(Stored(1, 0), QString("A"));
    TypeEach("1525");
    QCOMPARE(editor_->Text(), std::string("12"));
  }

  void writesWaitForCommitRow() {
    grid_->SetCellText(1, "9.99");
    QCOMPARE(grid_->CellText(1), std::string("9.99"));
    QCOMPARE(grid_->DisplayedText(1, 1), std::string("9.99"));
    grid_->Refresh();
    QCOMPARE(Stored(1, 1), QString());
    grid_->CommitRow();
    QCOMPARE(Stored(1, 1), QString("9.99"));
  }

  void rebindKeepsTheCurrentRowWhileItExistsAndDropsPendingWrites() {
    grid_->SetCurrentRow(3);
    grid_->SetCellText(1, "5");
    log_.clear();
    grid_->Rebind();
    QCOMPARE(grid_->CurrentRow(), 3);
    QCOMPARE(grid_->CellText(1), std::string());
    array_->DeleteRows(2, 2);
    grid_->Rebind();
    QCOMPARE(grid_->CurrentRow(), 1);
    QCOMPARE(grid_->DisplayedText(3, 0), std::string());
    QCOMPARE(log_, QStringList());  // rebinding is not the user moving
  }

  void clickingAnotherCellEndsTheEditInItsOwnRow() {
    grid_->SetCurrentColumn(1);
    TypeEach("77");
    const QRect target = grid_->visualRect(grid_->model()->index(1, 0));
    QTest::mouseClick(grid_->viewport(), Qt::LeftButton, Qt::NoModifier, target.center());
    QCOMPARE(Stored(1, 1), QString("77"));
    QCOMPARE(Stored(2, 1), QString());
    QCOMPARE(grid_->CurrentRow(), 2);
    QCOMPARE(log_, QStringList({"gained, active txtGridEntry", "lost, active grItems, stored 77", "row 2"}));
  }

  void aFocusGainedHandlerThatMovesOnCancelsTheEdit() {
    editor_->OnFocusGained([this] { comments_->SetFocus(); });
    grid_->SetCurrentColumn(1);
    TypeEach("5");
    QVERIFY(!grid_->IsEditing());
    QCOMPARE(QApplication::focusWidget(), comments_);
    QCOMPARE(comments_->Text(), std::string());
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtArrayGridTest)
#include "qt_array_grid_test.moc"
