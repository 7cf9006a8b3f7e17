#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include "tests/qt/host_window.h"
#include "tests/qt/key_input.h"
#include "tests/qt/notify_watch.h"

#include "zenta/qt/govt_details.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/std_payment.h"
#include "zenta/qt/toolkit/qt_number_edit.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::Press;
using testing::Type;

// The controls as real widgets, driven with real key events: they must give the values and
// events the headless toolkit gives.
class ControlsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  QLineEdit* after_ = nullptr;

  template <class C>
  C* Place() {
    return testing::ShowInHostWindow<C>(window_, &after_);
  }
  static QString Shown(ControlWidget& control, const char* name) {
    return qobject_cast<QLineEdit*>(control.Surface().FindQWidget(name))->text();
  }

 private slots:
  void cleanup() { window_.reset(); }

  void typingCentsThenTabShowsTwoDecimalsAndRaisesTheFieldEventOnly() {
    auto* payment = Place<StdPayment>();
    QVERIFY(payment);
    payment->SetBusinessMode(true);
    QSignalSpy field(payment, &StdPayment::LostFocusPaymentAmount);
    QSignalSpy left(payment, &StdPayment::LostFocusAmount);
    QSignalSpy numbered(payment, &ControlWidget::EventRaised);
    payment->SetFocusPaymentAmount();
    Type("2500");
    Press(Qt::Key_Tab);
    QCOMPARE(Shown(*payment, "txtPaymentAmount"), QString("25.00"));
    QCOMPARE(payment->PaymentAmount(), 25.0f);
    QCOMPARE(field.count(), 1);
    QCOMPARE(left.count(), 0);
    QCOMPARE(numbered.count(), 1);
    QCOMPARE(numbered.at(0).at(0).toInt(), 1);
  }

  void businessModeFillsAnEmptyGstWithZeroOnLeaving() {
    auto* payment = Place<StdPayment>();
    QVERIFY(payment);
    payment->SetBusinessMode(true);
    QSignalSpy left(payment, &StdPayment::LostFocusAmount);
    payment->SetFocusGSTAmount();
    Press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after_);
    QCOMPARE(left.count(), 1);
    QCOMPARE(payment->property("GSTAmount").toString(), QString("0.00"));
    QCOMPARE(Shown(*payment, "txtGSTAmount"), QString("0.00"));
  }

  // A host printing an amount property gets the cents, never "113" for 113.00, and nothing is
  // rounded away; text converts back to the exact amount.
  void amountsReadAsTextWithTwoDecimals() {
    auto* payment = Place<StdPayment>();
    QVERIFY(payment);
    const auto text = [](const char* amount) {
      return QVariant::fromValue(Currency::FromText(amount)).toString();
    };
    QCOMPARE(text("113"), QString("113.00"));
    QCOMPARE(text("-0.05"), QString("-0.05"));
    QCOMPARE(text("0.0125"), QString("0.0125"));
    QCOMPARE(text("922337203685477.5807"), QString("922337203685477.5807"));
    payment->SetGSTAmount(Currency::FromText("13"));
    QCOMPARE(payment->property("GSTAmount").toString(), QString("13.00"));
    QVERIFY(payment->setProperty("GSTAmount", QString("12.50")));
    QCOMPARE(payment->GSTAmount(), Currency::FromText("12.5"));
  }

  void enterMovesOnButShiftEnterDoesNot() {
    auto* payment = Place<StdPayment>();
    QVERIFY(payment);
    payment->SetBusinessMode(true);
    payment->SetFocusPaymentAmount();
    QWidget* amount = QApplication::focusWidget();
    Press(Qt::Key_Return, Qt::ShiftModifier);
    Press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), amount);
    Press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("txtGSTAmount"));
  }

  void theInvoiceDateTakesTypedDatesAndTheEmptyState() {
    auto* invoice = Place<PmtDetails>();
    QVERIFY(invoice);
    invoice->SetFocusInvoiceDate();
    Type("20261122");
    QCOMPARE(invoice->InvoiceDate(), QDate(2026, 11, 22));
    Press(Qt::Key_Return);
    Type("abc-12");
    QCOMPARE(invoice->InvoiceNumber(), QString("ABC-12"));
    invoice->Clear();
    QVERIFY(invoice->InvoiceDate().isNull());
    Press(Qt::Key_Tab);
    QVERIFY(invoice->InvoiceDate().isNull());
  }

  void statementOnlyGreysTheFieldsAndRestoresThem() {
    auto* remittance = Place<GovtDetails>();
    QVERIFY(remittance);
    remittance->SetComments("CALL BACK");
    QWidget* comments = remittance->Surface().FindQWidget("txtComments");
    QColor normal = comments->palette().color(QPalette::Base);
    remittance->SetStatementOnly(1);
    QVERIFY(!comments->isEnabled());
    QVERIFY(!remittance->Surface().FindQWidget("grItems")->isEnabled());
    QVERIFY(remittance->Surface().FindQWidget("txtPaymentAmount")->isEnabled());
    QVERIFY(comments->palette().color(QPalette::Base) != normal);
    remittance->setProperty("StatementOnly", 0);
    QVERIFY(comments->isEnabled());
    QCOMPARE(remittance->Comments(), QString("CALL BACK"));
  }

  void aGridAmountTypedAsCentsIsStoredAndReported() {
    auto* remittance = Place<GovtDetails>();
    QVERIFY(remittance);
    QSignalSpy updated(remittance, &GovtDetails::GridRowUpdated);
    remittance->SetFocusGrid();  // lands on the amount: item labels take no keys
    Type("4550");
    Press(Qt::Key_Return);
    QCOMPARE(remittance->GridValues(1), QString("45.5"));
    QCOMPARE(updated.count(), 1);
    QCOMPARE(updated.at(0).at(0).toInt(), 1);
  }

  void itemLabelsAreShownInTheGrid() {
    auto* remittance = Place<GovtDetails>();
    QVERIFY(remittance);
    auto* grid = remittance->findChild<QTableView*>("grItems");
    QVERIFY(grid);
    QCOMPARE(grid->model()->data(grid->model()->index(0, 0)).toString(), QString("A-01"));
    QCOMPARE(grid->model()->headerData(0, Qt::Horizontal).toString(), QString("Item"));
    QVERIFY(!grid->isColumnHidden(0));
    QVERIFY(grid->columnWidth(0) > 0);
    QVERIFY(grid->verticalHeader()->isHidden());
    // Both columns fit the grid's width: showing the current amount never scrolls the labels away.
    QVERIFY(grid->columnWidth(0) + grid->columnWidth(1) <= grid->viewport()->width());
  }

  void fieldsAreNamedByTheirCaptionsForAssistiveTechnology() {
    auto* invoice = Place<PmtDetails>();
    QVERIFY(invoice);
    QCOMPARE(invoice->Surface().FindQWidget("txtInvoiceAmount")->accessibleName(), QString("Invoice Amount"));
    QCOMPARE(invoice->Surface().FindQWidget("txtGSTAmount")->accessibleName(), QString("GST/HST"));
    QCOMPARE(invoice->Surface().FindQWidget("dtInvoiceDate")->accessibleName(), QString("Invoice Date"));
    auto* caption = qobject_cast<QLabel*>(invoice->Surface().FindQWidget("lblInvoiceAmount"));
    QVERIFY(caption);
    QCOMPARE(caption->buddy(), invoice->Surface().FindQWidget("txtInvoiceAmount"));
    auto* remittance = Place<GovtDetails>();
    auto* grid = remittance->findChild<QTableView*>("grItems");
    QVERIFY(grid);
    QCOMPARE(grid->model()->data(grid->model()->index(0, 0), Qt::AccessibleTextRole).toString(), QString("Item: A-01"));
  }

  void amountsAreReadAsNumbersWithTheirTextStillReadable() {
    auto* invoice = Place<PmtDetails>();
    QVERIFY(invoice);
    invoice->SetInvoiceAmount(1250.5f);
    QAccessibleInterface* field = QAccessible::queryAccessibleInterface(invoice->Surface().FindQWidget("txtInvoiceAmount"));
    QVERIFY(field);
    QCOMPARE(field->role(), QAccessible::EditableText);
    QCOMPARE(field->text(QAccessible::Name), QString("Invoice Amount"));
    QVERIFY(field->valueInterface());
    QCOMPARE(field->valueInterface()->currentValue().toDouble(), 1250.5);
    QCOMPARE(field->text(QAccessible::Value), QString("1250.50"));
    QVERIFY(field->textInterface());
    QCOMPARE(field->textInterface()->text(0, field->textInterface()->characterCount()), QString("1250.50"));
    dynamic_cast<QtNumberEdit&>(*invoice->Surface().FindQWidget("txtInvoiceAmount")).SetValue(std::nullopt);
    QVERIFY(!field->valueInterface()->currentValue().isValid());
  }

  void punctuationTypedInTheGridIsNeverAnArrowKey() {
    auto* remittance = Place<GovtDetails>();
    QVERIFY(remittance);
    remittance->SetFocusGrid();
    Type("(");  // shares its code with the Down arrow
    remittance->SetGridValues(2, "7");
    Type("5.");
    Press(Qt::Key_Return);
    QCOMPARE(remittance->GridValues(1), QString("5."));
    QCOMPARE(remittance->GridValues(2), QString("7"));
  }

  void setRowsOutOfRangeReportsTheHostError() {
    auto* remittance = Place<GovtDetails>();
    QVERIFY(remittance);
    QSignalSpy errors(remittance, &GovtDetails::HostErrorRaised);
    bool ok = true;
    QVERIFY(QMetaObject::invokeMethod(remittance, "SetRows", Q_RETURN_ARG(bool, ok), Q_ARG(short, 27)));
    QVERIFY(!ok);
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors.at(0).at(0).value<quint32>(), 0x80040014u);
    QCOMPARE(errors.at(0).at(1).toString(), QString("GovtDetails"));
    QCOMPARE(errors.at(0).at(2).toString(), QString("Rows must range from 1 to 26"));
    QCOMPARE(remittance->GridNumberofRows(), short{12});
  }

  void propertiesRoundTripThroughSettings() {
    QTemporaryDir dir;
    QSettings settings(dir.filePath("host.ini"), QSettings::IniFormat);
    {
      StdPayment payment;
      payment.SetBusinessMode(true);
      payment.SetBackColorTitle(QColor(10, 20, 30));
      payment.SaveProperties(&settings, "StdPayment1");
    }
    StdPayment loaded;
    loaded.LoadProperties(&settings, "StdPayment1");
    QVERIFY(loaded.BusinessMode());
    QCOMPARE(loaded.BackColorTitle(), QColor(10, 20, 30));
    QVERIFY(!settings.contains("StdPayment1/BackColor"));  // defaults are not written
  }

  void lateBoundHostsSeeEveryMember() {
    GovtDetails remittance;
    const QMetaObject* meta = remittance.metaObject();
    for (const char* property : {"PeriodFrom", "StatementOnly", "GridNumberofRows", "BackColorTitle", "BusinessMode"}) {
      QVERIFY2(meta->indexOfProperty(property) >= 0, property);
    }
    for (const char* method : {"Clear()", "SetRows(short)", "GridValues(short)", "SetFocusPeriodTo()"}) {
      QVERIFY2(meta->indexOfMethod(method) >= 0, method);
    }
    remittance.setProperty("Amount", QVariant::fromValue(Currency::FromText("12.5")));
    QCOMPARE(remittance.property("Amount").value<Currency>(), Currency::FromText("12.5"));
  }

  // Every value a host can bind to signals its change once, whether set, typed or changed as a
  // consequence of another value (a disabled control disables its fields).
  void everyValueChangeIsSignalledOnce() {
    using testing::SignalsMatchChanges;
    // Each Place closes the window of the one before.
    for (int kind = 0; kind < 3; ++kind) {
      ControlWidget* control = kind == 0   ? static_cast<ControlWidget*>(Place<StdPayment>())
                               : kind == 1 ? static_cast<ControlWidget*>(Place<PmtDetails>())
                                           : static_cast<ControlWidget*>(Place<GovtDetails>());
      QVERIFY(control);
      QVERIFY(testing::WritingEveryPropertySignalsItsChanges(control));
      QVERIFY(SignalsMatchChanges(control, "disabled", [&] { control->setEnabled(false); }));
      QVERIFY(SignalsMatchChanges(control, "enabled", [&] { control->setEnabled(true); }));
      QVERIFY(SignalsMatchChanges(control, "business mode", [&] { control->SetBusinessMode(!control->BusinessMode()); }));
    }
    auto* invoice = Place<PmtDetails>();
    QVERIFY(invoice);
    invoice->SetFocusInvoiceNumber();
    QVERIFY(SignalsMatchChanges(invoice, "typed number", [] { Type("A"); }));
    QVERIFY(SignalsMatchChanges(invoice, "typed date", [&] {
      invoice->SetFocusInvoiceDate();
      Type("20260304");
    }));
    auto* remittance = Place<GovtDetails>();
    QVERIFY(remittance);
    QVERIFY(SignalsMatchChanges(remittance, "statement only", [&] { remittance->SetStatementOnly(1); }));
    QVERIFY(SignalsMatchChanges(remittance, "rows", [&] { remittance->SetRows(20); }));
    QVERIFY(SignalsMatchChanges(remittance, "typed comment", [&] {
      remittance->SetStatementOnly(0);
      remittance->SetFocusComment();
      Type("X");
    }));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::ControlsTest)
#include "controls_test.moc"
