#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

#include "tests/qt/host_window.h"
#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/qt/application_context.h"
#include "tests/qt/distribution_lines.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_surface.h"
#include "zenta/records/cls_distributions.h"

namespace zenta::qt {

using testing::ClickCell;
using testing::DialogScript;
using testing::PressKey;
using testing::TypeKeys;

// The distribution window on Qt, opened as hosts open it: through the payment control. Its rules
// are tested headless; these check the QDialog: modality, Escape, buttons, message boxes over
// it, the footer row, red refunds, and one window kept between uses.
class DistributionDialogTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  PaymentDetails* payment_ = nullptr;

  static Currency Money(const char* text) { return Currency::FromText(text); }
  void Keep(std::initializer_list<std::pair<const char*, const char*>> lines) {
    auto kept = std::make_shared<clsDistributions>();
    for (const auto& [account, amount] : lines) kept->Add(Variant(), account, Money(amount));
    payment_->Control().SetPayDistribution(kept);
  }
  QStringList Lines() const { return testing::LinesOf(*payment_); }

 private slots:
  void init() {
    payment_ = testing::ShowInHostWindow<PaymentDetails>(window_);
    QVERIFY(payment_);
    payment_->SetPaymentAmount(Money("150"));
  }

  void cleanup() { window_.reset(); }

  void unequalTotalsAreRefusedUntilTheLinesBalance() {
    Keep({{"5100", "100"}, {"5200", "70"}, {"5300", "-25"}});
    QString title;
    QString text;
    QColor refund;
    DialogScript split([&](QtDialogSurface& dialog) {
      auto* lines = qobject_cast<QTableView*>(dialog.FindQWidget("grTempDistribution"));
      QVERIFY(lines);
      testing::AnswerNextMessage(QMessageBox::Ok, [&](QMessageBox& box) {
        title = box.windowTitle();
        text = box.text();
      });
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
      QVERIFY(dialog.isVisible());
      QVERIFY(ClickCell(lines, 2, 2));
      TypeKeys("-2000");
      PressKey(Qt::Key_Tab);
      refund = lines->model()->index(2, 2).data(Qt::ForegroundRole).value<QColor>();
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
    });
    payment_->ShowDistribution();
    QVERIFY(split.Ran());
    QCOMPARE(title, QString("Cannot accept distibution."));
    QCOMPARE(text, QString("The total amounts you enter must be equal to the 'Amount to Distribute'."));
    QCOMPARE(refund, QColor(Qt::red));
    QCOMPARE(Lines(), (QStringList{"5100 100", "5200 70", "5300 -20"}));
  }

  // A payer at the keyboard, key by key: each split reaches Accept and books the exact total.
  void aSplitTypedByKeysReachesAccept_data() {
    QTest::addColumn<QStringList>("kept");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("booked");
    // "|" is Tab, ">" Right; the window opens on Accept, two Shift+Tabs reach the grid.
    QTest::newRow("60/40") << QStringList{"5100 150"} << ">9000|5200||" << QStringList{"5100 90", "5200 60"};
    QTest::newRow("50/30/20") << QStringList{"5100 150"} << ">5000|5200|3000|5300||"
                              << QStringList{"5100 50", "5200 30", "5300 70"};
    QTest::newRow("kept 100/50 to 110/40") << QStringList{"5100 100", "5200 50"} << ">11000||4000|"
                                           << QStringList{"5100 110", "5200 40"};
  }

  void aSplitTypedByKeysReachesAccept() {
    QFETCH(QStringList, kept);
    QFETCH(QString, keys);
    QFETCH(QStringList, booked);
    auto lines = std::make_shared<clsDistributions>();
    for (const QString& line : kept) {
      lines->Add(Variant(), line.section(' ', 0, 0).toStdString(), Money(line.section(' ', 1).toUtf8().constData()));
    }
    payment_->Control().SetPayDistribution(lines);
    QString focused_at_end;
    QString remaining;
    DialogScript type([&](QtDialogSurface& dialog) {
      QCOMPARE(QApplication::focusWidget(), dialog.FindQWidget("cmdGLAccept"));
      PressKey(Qt::Key_Backtab, Qt::ShiftModifier);
      PressKey(Qt::Key_Backtab, Qt::ShiftModifier);
      QCOMPARE(QApplication::focusWidget(), dialog.FindQWidget("grTempDistribution"));
      for (QChar key : keys) {
        if (key == '|') {
          PressKey(Qt::Key_Tab);
        } else if (key == '>') {
          PressKey(Qt::Key_Right);
        } else {
          TypeKeys(QString(key));
        }
      }
      focused_at_end = QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
      if (auto* label = qobject_cast<QLabel*>(dialog.FindQWidget("lblRemaining"))) remaining = label->text();
      PressKey(Qt::Key_Enter);
    });
    payment_->ShowDistribution();
    QVERIFY(type.Ran());
    QCOMPARE(focused_at_end, QString("cmdGLAccept"));
    QCOMPARE(remaining, QString("Remaining 0.00"));
    QCOMPARE(Lines(), booked);
  }

  void theCursorAndFocusAreWhereTheyAreDrawn() {
    Keep({{"5100", "150"}});
    int current_column = -1;
    bool grid_focused = true;
    QString button_tip;
    QString button_text;
    QString after_ctrl_tab;
    DialogScript look([&](QtDialogSurface& dialog) {
      auto* lines = qobject_cast<QTableView*>(dialog.FindQWidget("grTempDistribution"));
      QVERIFY(lines);
      current_column = lines->currentIndex().column();
      grid_focused = lines->hasFocus();
      button_text = lines->model()->index(0, 0).data(Qt::DisplayRole).toString();
      button_tip = lines->model()->index(0, 0).data(Qt::ToolTipRole).toString();
      QVERIFY(ClickCell(lines, 0, 1));
      PressKey(Qt::Key_Tab, Qt::ControlModifier);
      after_ctrl_tab = QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
      testing::Click(dialog.FindQWidget("cmdGLCancel"));
    });
    payment_->ShowDistribution();
    QVERIFY(look.Ran());
    QCOMPARE(current_column, 1);
    QVERIFY(!grid_focused);
    QCOMPARE(button_text, QString("X"));
    QCOMPARE(button_tip, QString("Delete this line"));
    QCOMPARE(after_ctrl_tab, QString("txtPaymentFor"));
  }

  void escapeCancelsAndKeepsTheCallersLines() {
    Keep({{"5100", "150"}});
    DialogScript cancel([](QtDialogSurface& dialog) {
      QVERIFY(ClickCell(dialog.FindQWidget("grTempDistribution"), 0, 2));
      TypeKeys("9900");
      PressKey(Qt::Key_Escape);  // abandons the cell edit
      PressKey(Qt::Key_Escape);  // clicks Cancel
      QVERIFY(!dialog.isVisible());
    });
    payment_->ShowDistribution();
    QVERIFY(cancel.Ran());
    QCOMPARE(Lines(), (QStringList{"5100 150"}));
  }

  void aLineIsDeletedFromItsButtonAfterTheQuestion() {
    Keep({{"5100", "100"}, {"5200", "50"}, {"5300", "25"}});
    QString question;
    DialogScript remove([&](QtDialogSurface& dialog) {
      QWidget* lines = dialog.FindQWidget("grTempDistribution");
      testing::AnswerNextMessage(QMessageBox::Yes, [&](QMessageBox& box) { question = box.text(); });
      ClickCell(lines, 2, 0);
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
    });
    payment_->ShowDistribution();
    QVERIFY(remove.Ran());
    QCOMPARE(question, QString("Are you sure you want to delete this distribution?"));
    QCOMPARE(Lines(), (QStringList{"5100 100", "5200 50"}));
  }

  void oneWindowServesEveryCallerAndShowsItsFooter() {
    Keep({{"5100", "150"}});
    QtDialogSurface* first = nullptr;
    QString footer_caption;
    DialogScript look([&](QtDialogSurface& dialog) {
      first = &dialog;
      auto* lines = qobject_cast<QTableView*>(dialog.FindQWidget("grTempDistribution"));
      QVERIFY(lines);
      // The footer row sits under the rows, inside the grid.
      QWidget* footer = nullptr;
      for (QWidget* child : lines->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && child->geometry().top() > lines->viewport()->geometry().bottom()) footer = child;
      }
      QVERIFY(footer);
      QCOMPARE(lines->model()->headerData(0, Qt::Horizontal).toString(), QString("Del"));
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
    });
    payment_->ShowDistribution();
    QVERIFY(look.Ran());
    QtDialogSurface* second = nullptr;
    DialogScript again([&](QtDialogSurface& dialog) {
      second = &dialog;
      testing::Click(dialog.FindQWidget("cmdGLCancel"));
    });
    payment_->ShowDistribution();
    QVERIFY(again.Ran());
    QCOMPARE(second, first);
    QVERIFY(ApplicationContext().HasDistribution());
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::DistributionDialogTest)
#include "distribution_dialog_test.moc"
