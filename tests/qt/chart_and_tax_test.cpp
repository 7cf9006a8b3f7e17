#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "tests/qt/distribution_lines.h"
#include "tests/qt/host_window.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/records/cls_distributions.h"
#include "zenta/qt/application_context.h"
#include "zenta/qt/chart_of_accounts.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/ui_text.h"
#include "zenta/qt/translator.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

using testing::ClickCell;
using testing::DialogScript;
using testing::PressKey;
using testing::TypeKeys;

// The chart of accounts and the GST/HST rate on Qt: the rules are tested headless; these check
// the offers list, the cell notes a person and a screen reader meet, the fill key and its
// button, and a host's own item model as the chart.
class ChartAndTaxTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<QWidget> window_;
  PaymentDetails* payment_ = nullptr;
  QStandardItemModel accounts_;

  QWidget* Grid() const { return payment_->Surface().FindQWidget("grdPaymentAmount"); }
  static Currency Money(const char* text) { return Currency::FromText(text); }
  void AddAccount(const char* number, const char* name) {
    accounts_.appendRow({new QStandardItem(number), new QStandardItem(name)});
  }

 private slots:
  void init() {
    accounts_.clear();
    AddAccount("6200", "TRAVEL");
    AddAccount("6210", "TRAVEL MEALS");
    AddAccount("5100", "OFFICE SUPPLIES");
    SetChartOfAccounts(&accounts_);
    payment_ = testing::ShowInHostWindow<PaymentDetails>(window_);
    QVERIFY(payment_);
  }

  void cleanup() {
    window_.reset();
    SetChartOfAccounts(nullptr);
    SetGstHstProvince("");
    SetGstHstRate("");
  }

  void theChartFollowsTheHostsModel() {
    QCOMPARE(ApplicationContext().Chart()->Size(), std::size_t{3});
    AddAccount("7000", "RENT");
    QVERIFY(ApplicationContext().Chart()->Find("7000"));
    accounts_.item(3, 1)->setText("LEASE");
    QCOMPARE(ApplicationContext().Chart()->Find("7000")->name, std::string("LEASE"));
    const ChartOfAccounts fromColumns = ChartFromModel(accounts_, {1, 0, -1});
    QVERIFY(fromColumns.Find("LEASE"));
  }

  void typingANameOffersAccountsAndTheKeyboardTakesOne() {
    payment_->SetPaymentAmount(Money("100"));
    QStringList offered;
    QString tooltip;
    QString description;
    QString footer;
    bool unknown_marked = false;
    DialogScript split([&](QtDialogSurface& dialog) {
      auto* lines = qobject_cast<QTableView*>(dialog.FindQWidget("grTempDistribution"));
      QVERIFY(lines);
      QVERIFY(ClickCell(lines, 0, 1));
      TypeKeys("trav");
      auto* offers = dialog.findChild<QListWidget*>("offers");
      QVERIFY(offers);
      QVERIFY(offers->isVisible());
      for (int i = 0; i < offers->count(); ++i) offered << offers->item(i)->text();
      PressKey(Qt::Key_Down);
      PressKey(Qt::Key_Down);
      QCOMPARE(offers->currentRow(), 1);
      PressKey(Qt::Key_Tab);
      QVERIFY(!offers->isVisible());
      footer = dialog.findChild<QLabel*>("lblAccountName")->text();
      TypeKeys("6000");
      PressKey(Qt::Key_Tab);
      TypeKeys("9999");
      PressKey(Qt::Key_Tab);
      PressKey(Qt::Key_Tab);
      tooltip = lines->model()->index(0, 1).data(Qt::ToolTipRole).toString();
      description = lines->model()->index(1, 1).data(Qt::AccessibleDescriptionRole).toString();
      unknown_marked = !lines->model()->index(1, 1).data(Qt::DecorationRole).isNull();
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
    });
    payment_->ShowDistribution();
    QVERIFY(split.Ran());
    QCOMPARE(offered, (QStringList{"6200 TRAVEL", "6210 TRAVEL MEALS"}));
    QCOMPARE(footer, QString("6210 TRAVEL MEALS"));
    QCOMPARE(testing::LinesOf(*payment_), (QStringList{"6210 60", "9999 40"}));
    QCOMPARE(tooltip, QString("6210 TRAVEL MEALS"));
    QVERIFY2(description.contains("Not in the chart of accounts"), qPrintable(description));
    QVERIFY(unknown_marked);
  }

  void strictModeRefusesAnUnknownAccountNamingTheLine() {
    SetStrictAccounts(true);
    payment_->SetPaymentAmount(Money("100"));
    auto kept = std::make_shared<clsDistributions>();
    kept->Add(Variant(), "6200", Money("60"));
    kept->Add(Variant(), "1234", Money("40"));
    payment_->Control().SetPayDistribution(kept);
    QString text;
    DialogScript split([&](QtDialogSurface& dialog) {
      testing::AnswerNextMessage(QMessageBox::Ok, [&](QMessageBox& box) { text = box.text(); });
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
      QVERIFY(dialog.isVisible());
      testing::Click(dialog.FindQWidget("cmdGLCancel"));
    });
    payment_->ShowDistribution();
    SetStrictAccounts(false);
    QVERIFY(split.Ran());
    QCOMPARE(text, QString("Line 2: the account 1234 is not in the chart of accounts."));
  }

  void theFillKeyAndItsButtonWorkOutTheTax() {
    QVERIFY(SetGstHstProvince("on"));
    QVERIFY(!SetGstHstProvince("XX"));
    payment_->SetBusinessMode(true);
    QVERIFY(ClickCell(Grid(), 0, 0));
    TypeKeys("11300");
    PressKey(Qt::Key_Tab);
    PressKey(Qt::Key_F8);
    PressKey(Qt::Key_Tab);
    QCOMPARE(payment_->GST(), Money("13"));
    QCOMPARE(payment_->NetExpense(), Money("100"));

    QVERIFY(SetGstHstRate("0.15"));
    QVERIFY(ClickCell(Grid(), 0, 0));
    TypeKeys("11500");
    PressKey(Qt::Key_Tab);
    auto* button = Grid()->findChild<QToolButton*>("cellAction");
    QVERIFY(button);
    QVERIFY(button->isVisible());
    QVERIFY(button->toolTip().contains("F8"));
    QTest::mouseClick(button, Qt::LeftButton);
    PressKey(Qt::Key_Tab);
    QCOMPARE(payment_->GST(), Money("15"));
  }

  void aTypedTaxAwayFromTheRateGetsAQuietTooltip() {
    QVERIFY(SetGstHstProvince("ON"));
    payment_->SetBusinessMode(true);
    QVERIFY(ClickCell(Grid(), 0, 0));
    TypeKeys("11300");
    PressKey(Qt::Key_Tab);
    TypeKeys("1000");
    PressKey(Qt::Key_Tab);
    QCOMPARE(payment_->GST(), Money("10"));
    auto* grid = qobject_cast<QTableView*>(Grid());
    QCOMPARE(grid->model()->index(0, 1).data(Qt::ToolTipRole).toString(), QString("The rate gives GST/HST of 13.00"));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
  }

  void withoutARateThereIsNoButton() {
    payment_->SetBusinessMode(true);
    QVERIFY(ClickCell(Grid(), 0, 1));
    auto* button = Grid()->findChild<QToolButton*>("cellAction");
    QVERIFY(!button || !button->isVisible());
  }

  // Last: the translation stays installed for the rest of the program.
  void theNotesReadInFrenchToo() {
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::French, QLocale::Canada));
    const QString hint = UiText("The rate gives GST/HST of 13.00");
    QLocale::setDefault(before);
    QCOMPARE(hint, QString("Au taux, la TPS/TVH serait de 13,00"));
    QCOMPARE(UiText(AccountChart::kUnknownNote), QString("Absent du plan comptable"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::ChartAndTaxTest)
#include "chart_and_tax_test.moc"
