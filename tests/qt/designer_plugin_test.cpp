#include <QPluginLoader>
#include <QTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

// Loads the Designer plugin as Designer does and checks that it offers every control.
class DesignerPluginTest : public QObject {
  Q_OBJECT

 private slots:
  void offersEveryControl() {
    QPluginLoader loader(ZENTA_DESIGNER_PLUGIN);
    QObject* instance = loader.instance();
    QVERIFY2(instance, qPrintable(loader.errorString()));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(instance);
    QVERIFY(collection);
    QStringList names, shown;
    for (QDesignerCustomWidgetInterface* widget : collection->customWidgets()) {
      names << widget->name();
      // The icons are SVG: they draw only when the SVG icon engine is installed.
      QVERIFY(!widget->icon().pixmap(32).isNull());
      QVERIFY(!widget->toolTip().isEmpty());
      QVERIFY(!widget->whatsThis().isEmpty());
      shown << widget->domXml().section("displayname=\"", 1).section('"', 0, 0);
      QVERIFY(widget->domXml().contains(widget->name()));
      std::unique_ptr<QWidget> created(widget->createWidget(nullptr));
      QVERIFY(created);
      QVERIFY(created->minimumSizeHint().isValid());
    }
    QCOMPARE(names, QStringList({"zenta::qt::StdPayment", "zenta::qt::PmtDetails", "zenta::qt::GovtDetails",
                                   "zenta::qt::PaymentDetails", "zenta::qt::InvoiceEntry"}));
    QCOMPARE(shown, QStringList({"Payment Amount", "Invoice Details", "Government Remittance", "Payment Details",
                                  "Invoice Entry"}));
  }
};

QTEST_MAIN(DesignerPluginTest)
#include "designer_plugin_test.moc"
