#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "zenta/core/ole_color.h"
#include "zenta/qt/toolkit/settings_property_bag.h"

namespace zenta::qt {

class SettingsPropertyBagTest : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir dir_;
  std::unique_ptr<QSettings> settings_;

 private slots:
  void init() {
    QVERIFY(dir_.isValid());
    settings_ = std::make_unique<QSettings>(dir_.filePath("host.ini"), QSettings::IniFormat);
    settings_->clear();
  }

  void cleanup() { settings_.reset(); }

  void everyPersistedTypeRoundTripsThroughTheFile_data() {
    QTest::addColumn<int>("index");
    for (int i = 0; i < 10; ++i) QTest::newRow(QByteArray::number(i).constData()) << i;
  }

  void everyPersistedTypeRoundTripsThroughTheFile() {
    QFETCH(int, index);
    const std::vector<std::pair<Variant, Variant>> cases = {
        {Variant(static_cast<std::int32_t>(colors::kButtonFace)), Variant(std::int32_t{0})},
        {Variant(static_cast<std::int32_t>(colors::kTitleYellow)), Variant(static_cast<std::int32_t>(colors::kTitleBlue))},
        {Variant(std::int32_t{-5}), Variant(std::int32_t{0})},
        {Variant(false), Variant(true)},
        {Variant(true), Variant(false)},
        {Variant(std::int16_t{-26}), Variant(std::int16_t{12})},
        {Variant(0.1), Variant(0.0)},
        {Variant(Currency::FromUnits(123456)), Variant(Currency())},
        {Variant(*Date::Parse("2026/11/22")), Variant(Date())},
        {Variant("Comments / Contact \xc3\xa9"), Variant("")},
    };
    const auto& [value, default_value] = cases[static_cast<std::size_t>(index)];
    {
      SettingsPropertyBag bag(*settings_, "GovtDetails1");
      bag.Write("Key", value, default_value);
    }
    settings_->sync();
    QSettings reread(dir_.filePath("host.ini"), QSettings::IniFormat);
    SettingsPropertyBag bag(reread, "GovtDetails1");
    QCOMPARE(bag.Read("Key", default_value), value);
  }

  void coloursAreStoredUnsigned() {
    SettingsPropertyBag bag(*settings_, "StdPayment1");
    bag.Write("BackColor", Variant(static_cast<std::int32_t>(colors::kButtonFace)), Variant(std::int32_t{0}));
    QCOMPARE(settings_->value("StdPayment1/BackColor").toString(), QString("2147483663"));
    settings_->setValue("StdPayment1/Other", "-2147483633");  // signed, as written by hand
    QCOMPARE(bag.Read("Other", Variant(std::int32_t{0})), Variant(static_cast<std::int32_t>(colors::kButtonFace)));
  }

  void aDefaultIsNotWrittenAndMissingKeysReadAsTheDefault() {
    SettingsPropertyBag bag(*settings_, "StdPayment1");
    bag.Write("Enabled", Variant(false), Variant(true));
    bag.Write("Enabled", Variant(true), Variant(true));
    QVERIFY(!settings_->contains("StdPayment1/Enabled"));
    QCOMPARE(bag.Read("Enabled", Variant(true)), Variant(true));
  }

  void unreadableTextGivesTheDefault() {
    SettingsPropertyBag bag(*settings_, "StdPayment1");
    settings_->setValue("StdPayment1/BusinessMode", "perhaps");
    settings_->setValue("StdPayment1/BackColor", "blue");
    settings_->setValue("StdPayment1/Rows", "99999");
    QCOMPARE(bag.Read("BusinessMode", Variant(false)), Variant(false));
    QCOMPARE(bag.Read("BackColor", Variant(std::int32_t{7})), Variant(std::int32_t{7}));
    QCOMPARE(bag.Read("Rows", Variant(std::int16_t{12})), Variant(std::int16_t{12}));
  }
};

}  // namespace zenta::qt

QTEST_APPLESS_MAIN(zenta::qt::SettingsPropertyBagTest)
#include "settings_property_bag_test.moc"
