#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTest>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QXmlStreamReader>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include "ui_designer_form.h"
#include "zenta/qt/govt_details.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/pmt_details.h"
#include "zenta/qt/std_payment.h"

namespace {

// The designable properties a class adds to QWidget's, in declaration order.
QStringList DesignableProperties(const QMetaObject& meta) {
  QStringList names;
  for (int i = QWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
    const QMetaProperty property = meta.property(i);
    if (property.isDesignable() && property.isWritable()) names << property.name();
  }
  return names;
}

// The properties the test form sets on the widget named `object`.
QStringList FormProperties(const QString& object) {
  QFile file(QStringLiteral(ZENTA_DESIGNER_FORM));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader xml(&file);
  QStringList names;
  bool inside = false;
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement() && xml.name() == u"widget") inside = xml.attributes().value("name") == object;
    if (inside && xml.isStartElement() && xml.name() == u"property") names << xml.attributes().value("name").toString();
  }
  return names;
}

// The part of Designer a plugin meets at initialize(): the core and its extension manager.
class DesignerCore : public QDesignerFormEditorInterface {
 public:
  DesignerCore() { setExtensionManager(new QExtensionManager(this)); }
};

QList<QDesignerCustomWidgetInterface*> PluginWidgets(QPluginLoader& loader) {
  auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
  return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

// Answers the modal dialog the next event loop shows with `keys` typed into its filter line.
void AnswerDialogWith(const QString& typed, const QList<Qt::Key>& keys) {
  QTimer::singleShot(0, [typed, keys] {
    QWidget* dialog = QApplication::activeModalWidget();
    auto* filter = dialog ? dialog->findChild<QLineEdit*>("filter") : nullptr;
    if (!filter) {
      if (dialog) dialog->close();
      return;
    }
    QTest::keyClicks(filter, typed);
    for (Qt::Key key : keys) QTest::keyClick(filter, key);
  });
}

}  // namespace

// Loads the Designer plugin as Designer does and checks that it offers every control, and that
// a form drawn with every designable property compiles and sets them.
class DesignerPluginTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    // Without the image and icon-engine plugins, as in a Designer built without Qt's SVG
    // support: the icons must still draw.
    QCoreApplication::setLibraryPaths({});
  }

  void offersEveryControl() {
    QPluginLoader loader(ZENTA_DESIGNER_PLUGIN);
    QObject* instance = loader.instance();
    QVERIFY2(instance, qPrintable(loader.errorString()));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(instance);
    QVERIFY(collection);
    QStringList names, shown;
    for (QDesignerCustomWidgetInterface* widget : collection->customWidgets()) {
      names << widget->name();
      QVERIFY2(!widget->icon().pixmap(32).isNull(), qPrintable(widget->name()));
      QVERIFY2(!widget->icon().pixmap(64).isNull(), qPrintable(widget->name()));
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

  // The form sets every designable property of each control; a property without a setter the
  // generated code can call would not have compiled.
  void formSetsEveryDesignableProperty() {
    const std::pair<const char*, const QMetaObject*> controls[] = {
        {"payment", &zenta::qt::StdPayment::staticMetaObject},
        {"invoice", &zenta::qt::PmtDetails::staticMetaObject},
        {"remittance", &zenta::qt::GovtDetails::staticMetaObject},
        {"split", &zenta::qt::PaymentDetails::staticMetaObject},
        {"invoices", &zenta::qt::InvoiceEntry::staticMetaObject}};
    for (const auto& [object, meta] : controls) {
      QStringList designable = DesignableProperties(*meta), set = FormProperties(object);
      designable.sort();
      set.sort();
      QCOMPARE(set, designable);
    }
  }

  // Designer asks the extension manager for a task menu of the selected widget; only the two
  // controls with a default account answer, and the action sets the property.
  void theTwoDistributionControlsOfferToChooseTheDefaultAccount() {
    QStandardPaths::setTestModeEnabled(true);
    QTemporaryDir dir;
    const QString chart = dir.filePath("chart.csv");
    QFile file(chart);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("6200,TRAVEL\n5100,OFFICE SUPPLIES\n");
    file.close();
    QSettings("Zenta", "Designer").setValue("DefaultAccountChart", chart);

    QPluginLoader loader(ZENTA_DESIGNER_PLUGIN);
    DesignerCore core;
    QExtensionManager* manager = core.extensionManager();
    QStringList offering;
    std::vector<std::unique_ptr<QWidget>> controls;
    for (QDesignerCustomWidgetInterface* widget : PluginWidgets(loader)) {
      widget->initialize(&core);
      controls.emplace_back(widget->createWidget(nullptr));
      auto* menu = qt_extension<QDesignerTaskMenuExtension*>(manager, controls.back().get());
      if (!menu) continue;
      offering << widget->name();
      QCOMPARE(menu->taskActions().size(), 1);
      QCOMPARE(menu->taskActions().front()->text(), QString("Choose Default G/L Account..."));
    }
    QCOMPARE(offering, QStringList({"zenta::qt::PaymentDetails", "zenta::qt::InvoiceEntry"}));

    QWidget* invoices = controls.back().get();
    invoices->setProperty("DefaultGLAccount", "5100");
    QAction* choose = qt_extension<QDesignerTaskMenuExtension*>(manager, invoices)->preferredEditAction();
    QVERIFY(choose);
    AnswerDialogWith("trav", {Qt::Key_Down, Qt::Key_Escape});
    choose->trigger();
    QCOMPARE(invoices->property("DefaultGLAccount").toString(), QString("5100"));
    AnswerDialogWith("trav", {Qt::Key_Down, Qt::Key_Return});
    choose->trigger();
    QCOMPARE(invoices->property("DefaultGLAccount").toString(), QString("6200"));
  }

  void formValuesReachTheControls() {
    QWidget form;
    Ui::DesignerForm ui;
    ui.setupUi(&form);
    QCOMPARE(ui.payment->BackColor(), QColor(0x12, 0x34, 0x56));
    QCOMPARE(ui.payment->BackColorTitle(), QColor(0xAB, 0xCD, 0xEF));
    QVERIFY(ui.payment->BusinessMode());
    QVERIFY(!ui.payment->Enabled());
    QVERIFY(!ui.remittance->isEnabled());
    QVERIFY(ui.split->LockFields());
    QCOMPARE(ui.invoices->BackColorGridHeader(), QColor(0x10, 0x20, 0x30));
    QCOMPARE(ui.invoices->BackColorGridFooter(), QColor(0x40, 0x50, 0x60));
    QCOMPARE(ui.invoices->ForeColorGridHeader(), QColor(0x70, 0x80, 0x90));
    QCOMPARE(ui.invoices->ForeColorGridFooter(), QColor(0xA0, 0xB0, 0xC0));
    QCOMPARE(ui.invoices->RowColorEven(), QColor(0xD0, 0xE0, 0xF0));
    QCOMPARE(ui.invoices->RowColorOdd(), QColor(0x0F, 0x1F, 0x2F));
    QCOMPARE(ui.invoices->DefaultGLAccount(), QString("5100-OFFICE"));
    QVERIFY(ui.invoices->BusinessMode());
  }
};

QTEST_MAIN(DesignerPluginTest)
#include "designer_plugin_test.moc"
