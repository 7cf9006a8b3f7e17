#include <QApplication>
#include <QLabel>
#include <QTextStream>
#include <QVBoxLayout>

#include "zenta/core/number_format.h"
#include "zenta/qt/payment_details.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_dialog_surface.h"

using namespace zenta::qt::testing;

namespace {

QString Amount(zenta::Currency value) {
  return QString::fromStdString(zenta::FormatNumber(value, zenta::formats::kAmount));
}

}  // namespace

// With --check the host sets a business payment of 113.00 with 13.00 GST/HST, the payer splits
// its 100.00 net expense 70/30 in the distribution window by keyboard, and the host books the
// lines; --screenshot FILE saves the window as the split is typed. Otherwise it is shown.
int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QWidget window;
  window.setWindowTitle("Pay a bill");
  auto* payment = new zenta::qt::PaymentDetails(&window);
  auto* status = new QLabel(&window);
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(payment);
  layout->addWidget(status);
  payment->SetBusinessMode(true);
  payment->SetDefaultGLAccount("5100");
  // The net expense follows what is typed; the control says when it changed.
  QObject::connect(payment, &zenta::qt::PaymentDetails::NetExpenseChanged, &window,
                   [&] { status->setText("Net expense " + Amount(payment->NetExpense())); });
  const QStringList args = app.arguments();
  window.show();
  if (!args.contains("--check")) return app.exec();

  Settle();
  payment->SetPaymentAmount(zenta::Currency::FromText("113"));
  payment->SetGST(zenta::Currency::FromText("13"));
  const int at = args.indexOf("--screenshot");
  DialogScript split([&](zenta::qt::QtDialogSurface& dialog) {
    ClickCell(dialog.FindQWidget("grTempDistribution"), 0, 2);
    TypeKeys("7000");
    PressKey(Qt::Key_Tab);
    TypeKeys("6200 TRAVEL");
    PressKey(Qt::Key_Tab);
    if (at >= 0 && at + 1 < args.size()) dialog.grab().save(args[at + 1]);
    PressKey(Qt::Key_Tab);
    PressKey(Qt::Key_Enter);
  });
  payment->ShowDistribution();
  Settle();

  QTextStream out(stdout);
  QStringList booked;
  for (const QVariant& line : payment->Distributions()) {
    const QVariantMap map = line.toMap();
    booked << map.value("GLAccount").toString() + " " + Amount(map.value("Amount").value<zenta::Currency>());
  }
  out << booked.join('\n') << '\n';
  QString reason;
  const bool valid = payment->IsDataValid(reason);
  out << (valid ? QString("Ready to pay.") : reason) << '\n';
  return split.Ran() && valid && booked == QStringList{"5100 70.00", "6200 TRAVEL 30.00"} ? 0 : 1;
}
