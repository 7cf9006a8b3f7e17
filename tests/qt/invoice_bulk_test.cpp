#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include "tests/qt/distribution_lines.h"
#include "tests/qt/host_window.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_dialog_surface.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::ClickCell;
using testing::PressKey;

// Paste, copy, undo and redo on Qt: real keys to the grid and the real clipboard. The rules are
// tested headless; these check what only Qt can break.
class InvoiceBulkTest : public QObject {
  Q_OBJECT

 private:
  enum Column { kDate = 1, kAmount = 3 };

  std::unique_ptr<QWidget> window_;
  InvoiceEntry* invoices_ = nullptr;

  QTableView* Grid() const { return qobject_cast<QTableView*>(invoices_->Surface().FindQWidget("grInvoices")); }
  static Currency Money(const char* text) { return Currency::FromText(text); }
  static QString Day(int back) { return QDate::currentDate().addDays(-back).toString("yyyy/MM/dd"); }
  static void SetClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }

 private slots:
  void init() {
    invoices_ = testing::ShowInHostWindow<InvoiceEntry>(window_);
    QVERIFY(invoices_);
  }

  void cleanup() { window_.reset(); }

  void ctrlVPastesASpreadsheetsClipboardAndCtrlZTakesItBack() {
    QSignalSpy recalculate(invoices_, &InvoiceEntry::Recalculate);
    QSignalSpy rows(invoices_, &InvoiceEntry::RowCountChanged);
    SetClipboard(Day(1) + "\tINV-1\t1250\r\n" + Day(2) + "\t\"Hydro\tMarch\"\t\"1,234.56\"\r\n" + Day(3) +
                 "\tRefund\t(12.50)\r\n");
    QVERIFY(ClickCell(Grid(), 0, kDate));
    QVERIFY(!invoices_->undoAction()->isEnabled());
    PressKey(Qt::Key_V, Qt::ControlModifier);
    testing::Settle();
    QCOMPARE(invoices_->RowCount(), short{3});
    QCOMPARE(invoices_->InvoiceValues(1).InvoiceAmount, Money("1250"));
    // The tab inside the quoted cell is a character typing would refuse.
    QCOMPARE(invoices_->InvoiceValues(2).InvoiceNo, QString("HydroMarch"));
    QCOMPARE(invoices_->TotalAmount(), Money("2472.06"));
    QCOMPARE(recalculate.count(), 1);
    QVERIFY(rows.count() >= 1);
    QVERIFY(invoices_->undoAction()->isEnabled());
    QVERIFY(!invoices_->redoAction()->isEnabled());

    PressKey(Qt::Key_Z, Qt::ControlModifier);
    testing::Settle();
    QCOMPARE(invoices_->RowCount(), short{0});
    QVERIFY(!invoices_->undoAction()->isEnabled());
    QVERIFY(invoices_->redoAction()->isEnabled());
    invoices_->redoAction()->trigger();
    QCOMPARE(invoices_->RowCount(), short{3});
    QCOMPARE(recalculate.count(), 3);
  }

  void theDistributionWindowTakesPastedLinesAndUndoesThem() {
    invoices_->AddInvoice(QDate::currentDate(), "A", Money("100"));
    SetClipboard("5100\t60.00\r\n5200\t40\r\n");
    bool undone = false;
    testing::DialogScript paste([&](QtDialogSurface& dialog) {
      auto* lines = qobject_cast<QTableView*>(dialog.FindQWidget("grTempDistribution"));
      QVERIFY(ClickCell(lines, 0, 1));
      const int before = lines->model()->rowCount();
      PressKey(Qt::Key_V, Qt::ControlModifier);
      const int pasted = lines->model()->rowCount();
      PressKey(Qt::Key_Z, Qt::ControlModifier);
      undone = pasted == before + 2 && lines->model()->rowCount() == before;
      PressKey(Qt::Key_Y, Qt::ControlModifier);
      QVERIFY(testing::Click(dialog.FindQWidget("cmdGLAccept")));
    });
    invoices_->ShowDistribution();
    testing::Settle();
    QVERIFY(paste.Ran());
    QVERIFY(undone);
    const QStringList lines = testing::LinesOf(invoices_->InvoiceValues(1).Distributions.ToList());
    QVERIFY2(lines.contains("5100 60") && lines.contains("5200 40"), qPrintable(lines.join(", ")));
    // The accepted split is a step of the list.
    QVERIFY(invoices_->undoAction()->isEnabled());
  }

  void ctrlCCopiesTheRowForAPasteBack() {
    invoices_->AddInvoice(QDate(2026, 3, 1), "A", Money("1234.5"));
    QVERIFY(!invoices_->undoAction()->isEnabled());
    QVERIFY(ClickCell(Grid(), 0, kAmount));
    PressKey(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("2026/03/01\tA\t1234.50\r\n"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::InvoiceBulkTest)
#include "invoice_bulk_test.moc"
