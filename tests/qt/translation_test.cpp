#include <QLabel>
#include <QTableView>
#include <QTest>
#include <memory>

#include "tests/qt/host_window.h"

#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/controls/simple/pmt_details.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_surface.h"
#include "zenta/qt/toolkit/ui_text.h"
#include "zenta/qt/translator.h"
#include "zenta/records/cls_distributions.h"

namespace zenta::qt {

// The French-Canadian translation: installed on request, English exactly otherwise.
class TranslationTest : public QObject {
  Q_OBJECT

 private:
  static QString Caption(const ControlWidget& control, const char* label) {
    return qobject_cast<QLabel*>(control.Surface().FindQWidget(label))->text();
  }

 private slots:
  void englishByDefaultAndFrenchOnRequest() {
    {
      PmtDetails english;
      QCOMPARE(Caption(english, "lblInvoiceAmount"), QString("Invoice Amount"));
      QCOMPARE(english.Control().BusinessMode(), false);
    }
    QVERIFY(!InstallTranslator(QLocale(QLocale::German, QLocale::Germany)));
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    PmtDetails french;
    QCOMPARE(Caption(french, "lblInvoiceAmount"), QString("Montant de la facture"));
    QCOMPARE(french.Surface().FindQWidget("txtInvoiceAmount")->accessibleName(), QString("Montant de la facture"));
  }

  void theInvoiceListSpeaksFrenchToo() {
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    InvoiceEntry list;
    list.SetBusinessMode(true);
    for (const char* name : {"grInvoices", "grDistribution"}) {
      auto* grid = qobject_cast<QTableView*>(list.Surface().FindQWidget(name));
      QVERIFY(grid);
      const platform::GridEngine& engine =
          std::string(name) == "grInvoices" ? list.Control().grInvoices().Engine() : list.Control().grDistribution().Engine();
      for (int column = 0; column < engine.ColumnCount(); ++column) {
        if (grid->isColumnHidden(column)) continue;
        const QString shown = grid->model()->headerData(column, Qt::Horizontal).toString();
        QVERIFY2(shown != QString::fromStdString(engine.Column(column).caption), qPrintable(shown));
      }
    }
  }

  void captionsBuiltWithACurrencyCodeKeepTheCode() {
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    QCOMPARE(UiText("Invoice Amount (USD)"), QString("Montant de la facture (USD)"));
    QCOMPARE(UiText("Nothing known (USD)"), QString("Nothing known (USD)"));
    QCOMPARE(UiText("(USD)"), QString("(USD)"));
  }

  void captionsWithAFigureTranslateTheWordsAndLocaliseTheFigure() {
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::French, QLocale::Canada));
    const QString remaining = UiText("Remaining -40.00");
    const QString amount = UiText("Amount to distribute 100.00");
    const QString not_a_figure = UiText("Remaining 40.");
    QLocale::setDefault(before);
    QCOMPARE(remaining, QString("Reste -40,00"));
    QCOMPARE(amount, QString("Montant à répartir 100,00"));
    QCOMPARE(not_a_figure, QString("Remaining 40."));
    QCOMPARE(UiText("View"), QString("Voir"));
  }

  // Messages built around figures (rows, lines, accounts) and listing several refusals: the
  // words move as the translation has them, the figures stay, the captions and reasons inside
  // are translated too.
  void messagesWithFiguresReadInTheInstalledLanguage() {
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    QCOMPARE(UiText("These rows were not pasted:\nRow 2, Invoice Amount: not an amount\nRow 5, Invoice Amount: 100%1"),
             QString::fromUtf8("Ces lignes n’ont pas été collées :\nLigne 2, Montant de la facture : pas un montant\n"
                               "Ligne 5, Montant de la facture : 100%1"));
    QCOMPARE(UiText("Line 2: the account 9999 is not in the chart of accounts."),
             QString::fromUtf8("Ligne 2 : le compte 9999 n’est pas dans le plan comptable."));
    QCOMPARE(UiText("5100 OFFICE (inactive)"), QString("5100 OFFICE (inactif)"));
  }

  // The reasons IsDataValid hands the host are for the payer: translated when a translation is
  // installed, the English texts exactly otherwise.
  void validationReasonsReadInTheInstalledLanguage_data() {
    QTest::addColumn<bool>("french");
    QTest::addColumn<QString>("paymentReason");
    QTest::addColumn<QString>("invoiceReason");
    QTest::newRow("English") << false << "A payment amount is required"
                             << "You must enter the G/L Distribution. Please click the \"View Dist\" button.";
    QTest::newRow("fr_CA") << true << "Un montant de paiement est requis"
                           << "Vous devez entrer la ventilation du grand livre. Cliquez sur le bouton « Ventil. ».";
  }

  void validationReasonsReadInTheInstalledLanguage() {
    QFETCH(bool, french);
    QFETCH(QString, paymentReason);
    QFETCH(QString, invoiceReason);
    QCOMPARE(InstallTranslator(french ? QLocale(QLocale::French, QLocale::Canada) : QLocale(QLocale::German)), french);
    PaymentDetails payment;
    QString reason;
    QVERIFY(!payment.IsDataValid(reason));
    QCOMPARE(reason, paymentReason);
    QCOMPARE(payment.InvalidReason(), paymentReason);

    InvoiceEntry list;
    list.AddInvoice(QDate::currentDate(), "A-100", Currency::FromText("5"));
    bool incomplete = false;
    QVERIFY(!list.IsDataValid(reason, incomplete));
    QCOMPARE(reason, invoiceReason);
    payment.SetPaymentAmount(Currency::FromText("5"));
    QCOMPARE(payment.InvalidReason(), invoiceReason);
  }

  void messagesAndTitlesAreTranslatedToo() {
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    std::unique_ptr<QWidget> window;
    auto* payment = testing::ShowInHostWindow<PaymentDetails>(window);
    QVERIFY(payment);
    payment->SetPaymentAmount(Currency::FromText("150"));
    auto kept = std::make_shared<clsDistributions>();
    kept->Add(Variant(), "5100", Currency::FromText("100"));
    payment->Control().SetPayDistribution(kept);
    QString title;
    QString accept;
    testing::DialogScript refuse([&](QtDialogSurface& dialog) {
      accept = qobject_cast<QAbstractButton*>(dialog.FindQWidget("cmdGLAccept"))->text();
      testing::AnswerNextMessage(QMessageBox::Ok, [&](QMessageBox& box) { title = box.windowTitle(); });
      testing::Click(dialog.FindQWidget("cmdGLAccept"));
      testing::Click(dialog.FindQWidget("cmdGLCancel"));
    });
    payment->ShowDistribution();
    QVERIFY(refuse.Ran());
    QCOMPARE(title, QString("Impossible d'accepter la ventilation."));
    QCOMPARE(accept, QString("&Accepter"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::TranslationTest)
#include "translation_test.moc"
