#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "tests/qt/distribution_lines.h"
#include "tests/qt/host_window.h"
#include "zenta/qt/govt_details.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/std_payment.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {

using Visit = std::function<void(QAccessibleInterface*)>;

const QString kAccount = "General Ledger Account No., Payment Description/Sub Ledger";

// Every shown interface under `root`, root first.
void Walk(QAccessibleInterface* root, const Visit& visit) {
  if (!root || root->state().invisible) return;
  visit(root);
  for (int i = 0; i < root->childCount(); ++i) Walk(root->child(i), visit);
}

QAccessibleInterface* Find(QAccessibleInterface* root, QAccessible::Role role, const QString& name) {
  QAccessibleInterface* found = nullptr;
  Walk(root, [&](QAccessibleInterface* node) {
    if (!found && node->role() == role && node->text(QAccessible::Name) == name) found = node;
  });
  return found;
}

// What a person can act on: it must say what it is.
bool Interactive(QAccessibleInterface* node) {
  switch (node->role()) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::EditableText:
    case QAccessible::Table:
    case QAccessible::ColumnHeader:
      return true;
    default:
      return false;
  }
}

// A table's column, by its header.
int ColumnNamed(QAccessibleInterface* table, const QString& caption) {
  QAccessibleTableInterface* grid = table->tableInterface();
  for (int column = 0; column < grid->columnCount(); ++column) {
    if (grid->columnDescription(column) == caption) return column;
  }
  return -1;
}

QAccessibleInterface* CellOf(QAccessibleInterface* table, int row, const QString& caption) {
  const int column = ColumnNamed(table, caption);
  return column < 0 ? nullptr : table->tableInterface()->cellAt(row, column);
}

// Types into a cell the way a screen reader's user does: through the cell's editable text.
void Write(QAccessibleInterface* cell, const QString& text) {
  QVERIFY(cell);
  QAccessibleEditableTextInterface* editable = cell->editableTextInterface();
  QVERIFY(editable);
  editable->replaceText(0, cell->textInterface()->characterCount(), text);
  testing::Settle();
}

void Press(QAccessibleInterface* node) {
  QVERIFY(node);
  QVERIFY(node->actionInterface());
  QVERIFY(node->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
  node->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  // A push button pressed this way shows itself down for a moment before it clicks.
  QTest::qWait(150);
  testing::Settle();
}

// The application's shown dialog, found as a screen reader finds it: among the top-level
// windows of the application's accessible tree.
QAccessibleInterface* ShownDialog() {
  QAccessibleInterface* application = QAccessible::queryAccessibleInterface(qApp);
  for (int i = 0; application && i < application->childCount(); ++i) {
    QAccessibleInterface* window = application->child(i);
    if (window && window->role() == QAccessible::Dialog && !window->state().invisible) return window;
  }
  return nullptr;
}

// Runs `script` in the dialog once it shows, from inside the call that opens it.
void WhenDialogShows(std::function<void(QAccessibleInterface*)> script, bool& ran) {
  auto attempts = std::make_shared<int>(0);
  auto poll = std::make_shared<std::function<void()>>();
  *poll = [script, &ran, attempts, poll] {
    if (QAccessibleInterface* dialog = ShownDialog()) {
      ran = true;
      testing::Settle();
      script(dialog);
      // A script that failed half way leaves the window up: close it as a reader's user would.
      if (QTest::qWaitFor([] { return !ShownDialog(); }, 500)) {
        *poll = nullptr;
        return;
      }
      if (QAccessibleInterface* still = ShownDialog()) {
        if (QAccessibleInterface* cancel = Find(still, QAccessible::Button, "Cancel")) {
          cancel->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        }
      }
      *poll = nullptr;
      return;
    }
    if (++*attempts > 300) {
      *poll = nullptr;
      return;
    }
    QTimer::singleShot(10, *poll);
  };
  QTimer::singleShot(0, *poll);
}

}  // namespace

// The controls as assistive tools meet them, through QAccessible only.
class AccessibilityTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;

  template <class Control>
  QAccessibleInterface* Show() {
    Control* control = testing::ShowInHostWindow<Control>(window_);
    return control ? QAccessible::queryAccessibleInterface(control) : nullptr;
  }

  // Whatever can be acted on has a name; grids show no hidden column, in cells or headers.
  static void CheckTree(QAccessibleInterface* root, const QStringList& hidden_captions) {
    QStringList unnamed;
    Walk(root, [&](QAccessibleInterface* node) {
      QVERIFY(node->role() != QAccessible::NoRole);
      if (Interactive(node) && node->text(QAccessible::Name).trimmed().isEmpty()) {
        unnamed << QString("%1 under %2").arg(node->role()).arg(node->parent() ? node->parent()->text(QAccessible::Name) : "");
      }
      if (node->role() == QAccessible::ColumnHeader) {
        QVERIFY2(!hidden_captions.contains(node->text(QAccessible::Name)), qPrintable(node->text(QAccessible::Name)));
      }
      if (QAccessibleTableInterface* table = node->tableInterface()) {
        QVERIFY(!node->text(QAccessible::Description).isEmpty());
        for (int column = 0; column < table->columnCount(); ++column) {
          QVERIFY2(!hidden_captions.contains(table->columnDescription(column)), qPrintable(table->columnDescription(column)));
        }
        const int footer = node->childCount() - table->columnCount() * (table->rowCount() + 1);
        QVERIFY(footer == 0 || footer == table->columnCount());
        for (int i = 0; i < node->childCount(); ++i) QCOMPARE(node->indexOfChild(node->child(i)), i);
      }
    });
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(", ")));
  }

 private slots:
  void cleanup() { window_.reset(); }

  void everyControlNamesWhatCanBeActedOn_data() {
    // The captions of the columns each control keeps out of sight.
    QTest::addColumn<int>("control");
    QTest::addColumn<QStringList>("hidden");
    QTest::newRow("InvoiceEntry") << 0 << QStringList{"ID", "Payment For", "Email", "Refundable GST/HST", "Net Expense"};
    QTest::newRow("PaymentDetails") << 1 << QStringList{};
    QTest::newRow("StdPayment") << 2 << QStringList{};
    QTest::newRow("PmtDetails") << 3 << QStringList{};
    QTest::newRow("GovtDetails") << 4 << QStringList{};
  }
  void everyControlNamesWhatCanBeActedOn() {
    QFETCH(int, control);
    QFETCH(QStringList, hidden);
    QAccessibleInterface* root = nullptr;
    switch (control) {
      case 0: root = Show<InvoiceEntry>(); break;
      case 1: root = Show<PaymentDetails>(); break;
      case 2: root = Show<StdPayment>(); break;
      case 3: root = Show<PmtDetails>(); break;
      default: root = Show<GovtDetails>(); break;
    }
    QVERIFY(root);
    CheckTree(root, hidden);
  }

  void theInvoiceGridIsATableOfItsShownColumns() {
    auto* invoices = testing::ShowInHostWindow<InvoiceEntry>(window_);
    QVERIFY(invoices);
    invoices->AddInvoice(QDate::currentDate(), "INV-9", Currency::FromText("1234.5"));
    QAccessibleInterface* table = Find(QAccessible::queryAccessibleInterface(invoices), QAccessible::Table, "Invoices");
    QVERIFY(table);
    QCOMPARE(table->text(QAccessible::Description), QString("Invoice Date, Invoice Number / Description, Invoice Amount, View Dist"));
    QAccessibleTableInterface* grid = table->tableInterface();
    QCOMPARE(grid->columnCount(), 4);
    QCOMPARE(grid->rowCount(), 2);  // the invoice and the row for a new one
    QCOMPARE(table->child(0)->role(), QAccessible::ColumnHeader);
    QCOMPARE(table->child(0)->text(QAccessible::Name), QString("Invoice Date"));

    QAccessibleInterface* amount = CellOf(table, 0, "Invoice Amount");
    QVERIFY(amount);
    QCOMPARE(amount->role(), QAccessible::Cell);
    QCOMPARE(amount->text(QAccessible::Value), QString("1234.50"));
    QCOMPARE(amount->valueInterface()->currentValue().toDouble(), 1234.5);
    QCOMPARE(amount->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name), QString("Invoice Amount"));
    QCOMPARE(table->indexOfChild(amount), 4 + 2);
    QCOMPARE(CellOf(table, 0, "Invoice Date")->text(QAccessible::Value), QDate::currentDate().toString("yyyy/MM/dd"));

    QAccessibleInterface* view = CellOf(table, 0, "View Dist");
    QCOMPARE(view->role(), QAccessible::Button);
    QCOMPARE(view->text(QAccessible::Name), QString("View the G/L distribution"));
    QVERIFY(!view->editableTextInterface());
    // The row for a new invoice has nothing to view yet: a blank cell, no button.
    QCOMPARE(CellOf(table, 1, "View Dist")->role(), QAccessible::Cell);
    QVERIFY(!CellOf(table, 1, "View Dist")->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));

    // A cell held by a reader stays valid as rows are added after it.
    invoices->AddInvoice(QDate::currentDate(), "INV-10", Currency::FromText("3"));
    QVERIFY(amount->isValid());
    QCOMPARE(amount->text(QAccessible::Value), QString("1234.50"));
    QCOMPARE(grid->rowCount(), 3);
    invoices->Clear();
    QCOMPARE(grid->rowCount(), 1);
  }

  void dateFieldsReadAsDatesAndNeverAsTheirSlashes() {
    QLineEdit* next = nullptr;
    auto* details = testing::ShowInHostWindow<PmtDetails>(window_, &next);
    QVERIFY(details);
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(details);
    auto focus = [](QAccessibleInterface* node) {
      node->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
      testing::Settle();
    };
    QAccessibleInterface* date = Find(root, QAccessible::EditableText, "Invoice Date");
    QVERIFY(date);
    QCOMPARE(date->text(QAccessible::Value), QString());
    QCOMPARE(date->textInterface()->characterCount(), 0);
    QVERIFY(Find(root, QAccessible::Button, "Calendar (F4)"));

    focus(date);
    date->editableTextInterface()->replaceText(0, 0, "2026/11");
    QCOMPARE(date->text(QAccessible::Value), QString("2026/11/__"));
    date->editableTextInterface()->replaceText(0, date->textInterface()->characterCount(), "2026/11/20");
    QCOMPARE(date->text(QAccessible::Value), QString("2026/11/20"));
    QCOMPARE(date->textInterface()->text(5, 7), QString("11"));
    focus(QAccessible::queryAccessibleInterface(next));
    QCOMPARE(details->InvoiceDate(), QDate(2026, 11, 20));

    // Away from the focus the field is left at once: a partial date is refused, and said so.
    date->editableTextInterface()->replaceText(0, date->textInterface()->characterCount(), "2026/1");
    QCOMPARE(date->text(QAccessible::Value), QString("2026/11/20"));
    QCOMPARE(date->text(QAccessible::Description), QString("Not a date: the previous date was kept."));
  }

  // A reader's edit of an amount field is typing: cents without a ".", the field's limits.
  void amountFieldsTakeWhatAReaderTypes() {
    QLineEdit* next = nullptr;
    auto* payment = testing::ShowInHostWindow<StdPayment>(window_, &next);
    QVERIFY(payment);
    QAccessibleInterface* amount =
        Find(QAccessible::queryAccessibleInterface(payment), QAccessible::EditableText, "Payment Amount");
    QVERIFY(amount);
    QVERIFY(amount->editableTextInterface());
    // With the focus it is typing in progress; the rule runs on leaving.
    amount->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    amount->editableTextInterface()->replaceText(0, amount->textInterface()->characterCount(), "1250");
    QCOMPARE(amount->textInterface()->text(0, 4), QString("1250"));
    QAccessible::queryAccessibleInterface(next)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    testing::Settle();
    QCOMPARE(payment->PaymentAmountCurrency(), Currency::FromText("12.50"));
    QCOMPARE(amount->text(QAccessible::Value), QString("12.50"));
    // Away from the focus the field is left at once.
    amount->editableTextInterface()->replaceText(0, amount->textInterface()->characterCount(), "990");
    QCOMPARE(amount->text(QAccessible::Value), QString("9.90"));
    amount->valueInterface()->setCurrentValue(3.5);
    QCOMPARE(payment->PaymentAmountCurrency(), Currency::FromText("3.50"));
    amount->editableTextInterface()->replaceText(0, 4, "1234567890");  // ten digits: refused
    QCOMPARE(payment->PaymentAmountCurrency(), Currency::FromText("3.50"));
  }

  // The whole invoice-and-split flow, done and read back through QAccessible only.
  void anInvoiceAndItsSplitAreEnteredWithAScreenReader() {
    auto* invoices = testing::ShowInHostWindow<InvoiceEntry>(window_);
    QVERIFY(invoices);
    QAccessibleInterface* host = QAccessible::queryAccessibleInterface(window_.get());
    QAccessibleInterface* table = Find(host, QAccessible::Table, "Invoices");
    QVERIFY(table);

    const QString today = QDate::currentDate().toString("yyyy/MM/dd");
    Write(CellOf(table, 0, "Invoice Date"), today);
    Write(CellOf(table, 0, "Invoice Number / Description"), "INV-7");
    Write(CellOf(table, 0, "Invoice Amount"), "1250");  // cents, as typed
    QCOMPARE(CellOf(table, 0, "Invoice Amount")->text(QAccessible::Value), QString("12.50"));
    QCOMPARE(CellOf(table, 0, "Invoice Date")->text(QAccessible::Value), today);
    QCOMPARE(CellOf(table, 0, "Invoice Number / Description")->text(QAccessible::Value), QString("INV-7"));

    bool ran = false;
    QString to_distribute;
    WhenDialogShows(
        [&](QAccessibleInterface* dialog) {
          QAccessibleInterface* lines = Find(dialog, QAccessible::Table, "G/L Distribution");
          QVERIFY(lines);
          CheckTree(dialog, {});
          QCOMPARE(CellOf(lines, 0, "Del")->role(), QAccessible::Button);
          QCOMPARE(CellOf(lines, 0, "Del")->text(QAccessible::Name), QString("Delete this line"));
          to_distribute = CellOf(lines, 0, "Expense")->text(QAccessible::Value);
          Write(CellOf(lines, 0, kAccount), "5100");
          Write(CellOf(lines, 0, "Expense"), "7.50");
          // Moving on to the next line stores this one; what is left waits there.
          Write(CellOf(lines, 1, kAccount), "5200");
          QCOMPARE(CellOf(lines, 1, "Expense")->text(QAccessible::Value), QString("5.00"));
          Press(Find(dialog, QAccessible::Button, "Accept"));
        },
        ran);
    Press(CellOf(table, 0, "View Dist"));
    QTRY_VERIFY(ran);
    QTRY_VERIFY(!ShownDialog());
    QCOMPARE(to_distribute, QString("12.50"));

    const InvoiceRecord invoice = invoices->InvoiceValues(1);
    QCOMPARE(invoice.InvoiceNo, QString("INV-7"));
    QCOMPARE(invoice.InvoiceAmount, Currency::FromText("12.50"));
    QCOMPARE(testing::LinesOf(invoice.Distributions.ToList()), (QStringList{"5100 7.5", "5200 5"}));
    QVERIFY(invoices->DataEntryComplete());
  }

  // Under fr_CA amounts read as the payer writes them, grouped; what is typed and handed to the
  // host keeps ".". en_CA is left as the controls write it.
  void frenchCanadaGroupsDisplayedAmountsOnly() {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::French, QLocale::Canada));
    auto* invoices = testing::ShowInHostWindow<InvoiceEntry>(window_);
    QVERIFY(invoices);
    invoices->AddInvoice(QDate::currentDate(), "INV-1", Currency::FromText("1234567.5"));
    QAccessibleInterface* table = Find(QAccessible::queryAccessibleInterface(invoices), QAccessible::Table, "Invoices");
    QVERIFY(table);
    QAccessibleInterface* amount = CellOf(table, 0, "Invoice Amount");
    const QString shown = amount->text(QAccessible::Value);
    Write(CellOf(table, 1, "Invoice Date"), QDate::currentDate().toString("yyyy/MM/dd"));
    Write(CellOf(table, 1, "Invoice Amount"), "2000.25");
    const QString typed = CellOf(table, 1, "Invoice Amount")->text(QAccessible::Value);
    const double typed_value = CellOf(table, 1, "Invoice Amount")->valueInterface()->currentValue().toDouble();
    const double value = amount->valueInterface()->currentValue().toDouble();
    // Going back to the first invoice stores the new one.
    amount->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    testing::Settle();
    const Currency total = invoices->TotalAmount();
    window_.reset();
    QLocale::setDefault(before);
    QCOMPARE(shown, QString("1\u00a0234\u00a0567,50"));
    QCOMPARE(typed, QString("2\u00a0000,25"));
    QCOMPARE(value, 1234567.5);
    QCOMPARE(typed_value, 2000.25);
    QCOMPARE(total, Currency::FromText("1236567.75"));

    QLocale::setDefault(QLocale(QLocale::English, QLocale::Canada));
    auto* english = testing::ShowInHostWindow<InvoiceEntry>(window_);
    english->AddInvoice(QDate::currentDate(), "INV-1", Currency::FromText("1234567.5"));
    QAccessibleInterface* english_table = Find(QAccessible::queryAccessibleInterface(english), QAccessible::Table, "Invoices");
    const QString english_shown = CellOf(english_table, 0, "Invoice Amount")->text(QAccessible::Value);
    window_.reset();
    QLocale::setDefault(before);
    QCOMPARE(english_shown, QString("1234567.50"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::AccessibilityTest)
#include "accessibility_test.moc"
