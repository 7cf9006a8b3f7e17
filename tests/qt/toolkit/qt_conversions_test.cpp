#include <QApplication>
#include <QTest>

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {
struct Record : Object {};
}  // namespace

class QtConversionsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { RegisterMetaTypes(); }

  void datesMapDayForDay_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("date");
    QTest::newRow("day 1") << "1899/12/31" << QDate(1899, 12, 31);
    QTest::newRow("first valid year") << "0100/01/01" << QDate(100, 1, 1);
    QTest::newRow("last valid day") << "9999/12/31" << QDate(9999, 12, 31);
  }

  void datesMapDayForDay() {
    QFETCH(QString, text);
    QFETCH(QDate, date);
    const Date ours = *Date::Parse(text.toStdString());
    QCOMPARE(ToQDate(ours), date);
    QCOMPARE(FromQDate(date), ours);
  }

  void noDateIsANullQDate() {
    QVERIFY(ToQDate(Date()).isNull());
    QCOMPARE(FromQDate(QDate()), Date());
    QCOMPARE(FromQDate(QDate(50, 1, 1)), Date());  // before the first valid year
  }

  void currencyTextIsExact_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<qlonglong>("units");
    QTest::newRow("four decimals") << "12.3456" << 123456LL;
    QTest::newRow("cents") << "-0.05" << -500LL;
    QTest::newRow("largest") << "922337203685477.5807" << 9223372036854775807LL;
  }

  void currencyTextIsExact() {
    QFETCH(QString, text);
    QFETCH(qlonglong, units);
    QCOMPARE(CurrencyFromQString(text), Currency::FromUnits(units));
    QCOMPARE(ToQString(Currency::FromUnits(units)), text);
    QCOMPARE(QVariant::fromValue(Currency::FromUnits(units)).toString(), text);
  }

  void malformedOrOversizeCurrencyTextIsNoValue() {
    for (const char* text : {"", "1,5", "1e3", "12.5.1", "$5", "922337203685477.5808"}) {
      QVERIFY2(!CurrencyFromQString(text), text);
    }
  }

  void variantsKeepTheirTypeThroughQVariant_data() {
    QTest::addColumn<int>("index");
    for (int i = 0; i < 11; ++i) QTest::newRow(QByteArray::number(i).constData()) << i;
  }

  void variantsKeepTheirTypeThroughQVariant() {
    QFETCH(int, index);
    const std::vector<Variant> values = {Variant(), Variant::Null(), Variant(true), Variant(std::int16_t{-7}),
                                         Variant(std::int32_t{-2147483633}), Variant(1.5f), Variant(0.1),
                                         Variant(Currency::FromUnits(123456)), Variant(*Date::Parse("2026/11/22")),
                                         Variant("Gr\xc3\xa2" "ce / 12"), Variant(std::make_shared<Record>())};
    const Variant& value = values[static_cast<std::size_t>(index)];
    QCOMPARE(FromQVariant(ToQVariant(value)), value);
  }

  void coloursMapToRgbOrToThePalette() {
    QPalette palette;
    palette.setColor(QPalette::Button, QColor(1, 2, 3));
    palette.setColor(QPalette::Midlight, QColor(4, 5, 6));
    palette.setColor(QPalette::Base, QColor(7, 8, 9));
    QCOMPARE(ToQColor(colors::kButtonFace, palette), QColor(1, 2, 3));
    QCOMPARE(ToQColor(colors::k3DLight, palette), QColor(4, 5, 6));
    QCOMPARE(ToQColor(colors::kWindowBackground, palette), QColor(7, 8, 9));
    QCOMPARE(ToQColor(colors::kTitleBlue, palette), QColor(0, 121, 193));
    QCOMPARE(FromQColor(QColor(226, 229, 90)), colors::kTitleYellow);
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::QtConversionsTest)
#include "qt_conversions_test.moc"
