#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "zenta/qt/chart_of_accounts.h"
#include "zenta/qt/designer/default_account_dialog.h"
#include "zenta/qt/translator.h"

namespace zenta::qt {

// Chart files read by a Qt host, and the dialog that picks a default account from one, driven
// from the keyboard as a designer would.
class DefaultAccountTest : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir dir_;

  QString WriteChart(const QString& name, const QByteArray& text) {
    const QString path = dir_.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return {};
    file.write(text);
    return path;
  }

  QString Chart() {
    return WriteChart("chart.csv",
                      "Number,Name,Active\n"
                      "5100,OFFICE SUPPLIES\n"
                      "6150,\"TRAVEL, OLD\",inactive\n"
                      "6200,TRAVEL\n"
                      "6210,TRAVEL MEALS\n");
  }

  static QStringList Shown(const DefaultAccountDialog& dialog) {
    QStringList shown;
    const auto* list = dialog.findChild<QListWidget*>("accounts");
    for (int row = 0; row < list->count(); ++row) shown << list->item(row)->text();
    return shown;
  }

 private slots:
  void initTestCase() {
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(dir_.isValid());
  }

  void init() { QSettings("Zenta", "Designer").clear(); }

  void aHostReadsAFileAndHearsOfTheLinesLeftOut() {
    QString error = "stale";
    const ChartOfAccounts chart = ChartFromFile(WriteChart("bad.tsv", "6200\tTRAVEL\n\t\n7000\n"), &error);
    QCOMPARE(chart.Size(), std::size_t{1});
    QCOMPARE(error, QString("Line 3: A line needs an account number and a name, separated by a tab or a comma."));
    ChartFromFile(Chart(), &error);
    QCOMPARE(error, QString());
    QCOMPARE(ChartFromFile(dir_.filePath("missing.csv"), &error).Size(), std::size_t{0});
    QVERIFY(error.startsWith("The chart file cannot be read."));
  }

  void typingFiltersAndDownThenEnterTakesTheAccount() {
    DefaultAccountDialog dialog("");
    dialog.LoadChart(Chart());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* filter = dialog.findChild<QLineEdit*>("filter");
    QCOMPARE(QApplication::focusWidget(), filter);
    QCOMPARE(Shown(dialog).size(), 4);
    QTest::keyClicks(filter, "trav");
    // The inactive account is listed, marked and passed over.
    QCOMPARE(Shown(dialog), QStringList({"6150  TRAVEL, OLD (inactive)", "6200  TRAVEL", "6210  TRAVEL MEALS"}));
    QTest::keyClick(filter, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QTest::keyClick(filter, Qt::Key_Down);
    QCOMPARE(dialog.Account(), QString("6200"));
    QTest::keyClick(filter, Qt::Key_Down);
    QTest::keyClick(filter, Qt::Key_Down);
    QCOMPARE(dialog.Account(), QString("6210"));
    QTest::keyClick(filter, Qt::Key_Up);
    QTest::keyClick(filter, Qt::Key_Up);
    QTest::keyClick(filter, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.Account(), QString("6200"));
  }

  void theLastChartIsRememberedAndTheCurrentAccountMarked() {
    {
      DefaultAccountDialog first("");
      first.LoadChart(WriteChart("empty.csv", "Number,Name\n"));
      QVERIFY(first.Chart().Empty());
      first.LoadChart(Chart());
    }
    DefaultAccountDialog next("6210");
    QCOMPARE(next.Chart().Size(), std::size_t{4});
    QCOMPARE(next.findChild<QLineEdit*>("chartFile")->text(), QFileInfo(Chart()).absoluteFilePath());
    QCOMPARE(next.Account(), QString("6210"));
    QVERIFY(next.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
  }

  void aFileTypedInThePathLineIsReadAndItsBadLinesShown() {
    DefaultAccountDialog dialog("");
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* path = dialog.findChild<QLineEdit*>("chartFile");
    QCOMPARE(QApplication::focusWidget(), path);
    path->setText(WriteChart("mixed.csv", "5100,OFFICE\n5100,AGAIN\n"));
    QTest::keyClick(path, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.Chart().Size(), std::size_t{1});
    QCOMPARE(dialog.findChild<QLabel*>("status")->text(),
             QString("Line 2: The account number is already on an earlier line."));
    QCOMPARE(QApplication::focusWidget(), dialog.findChild<QLineEdit*>("filter"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
  }

  void frenchWhenInstalled() {
    QVERIFY(InstallTranslator(QLocale(QLocale::French, QLocale::Canada)));
    DefaultAccountDialog dialog("");
    dialog.LoadChart(Chart());
    QTest::keyClicks(dialog.findChild<QLineEdit*>("filter"), "old");
    QCOMPARE(Shown(dialog), QStringList({"6150  TRAVEL, OLD (inactif)"}));
    QCOMPARE(dialog.windowTitle(), QString("Compte du grand livre par défaut"));
    dialog.LoadChart(WriteChart("long.csv", "1234567890123456789012345678901,LONG\n"));
    QCOMPARE(dialog.findChild<QLabel*>("status")->text(),
             QString("Ligne 1 : Le numéro de compte du grand livre ne doit pas dépasser 30 caractères."));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::DefaultAccountTest)
#include "default_account_test.moc"
