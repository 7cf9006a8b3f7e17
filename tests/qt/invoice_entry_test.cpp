#include <QApplication>
#include <QHash>
#include <QHeaderView>
#include <QScopeGuard>
#include <QStyle>
#include <QLineEdit>
#include <QSettings>
#include <QSet>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/qt/invoice_entry.h"
#include "tests/qt/distribution_lines.h"
#include "tests/qt/host_window.h"
#include "tests/qt/notify_watch.h"
#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

namespace {
// WCAG contrast of two colours: 1 for the same colour, 21 for black on white.
double Contrast(const QColor& a, const QColor& b) {
  auto luminance = [](const QColor& color) {
    auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
  };
  const double la = luminance(a);
  const double lb = luminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// What is drawn in `area`: its most common colour (the background) and the strongest contrast
// any other pixel (the text) makes with it.
struct Ink {
  QColor back;
  double contrast = 1;
};
Ink InkIn(const QImage& image, const QRect& area) {
  QHash<QRgb, int> counts;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) ++counts[image.pixel(x, y)];
  }
  Ink ink;
  int most = 0;
  for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
    if (it.value() <= most) continue;
    most = it.value();
    ink.back = QColor(it.key());
  }
  for (auto it = counts.cbegin(); it != counts.cend(); ++it) ink.contrast = std::max(ink.contrast, Contrast(ink.back, QColor(it.key())));
  return ink;
}

QPalette DarkPalette() {
  QPalette dark;
  dark.setColor(QPalette::Window, QColor(45, 45, 45));
  dark.setColor(QPalette::WindowText, Qt::white);
  dark.setColor(QPalette::Base, QColor(30, 30, 30));
  dark.setColor(QPalette::AlternateBase, QColor(50, 50, 50));
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::Button, QColor(60, 60, 60));
  dark.setColor(QPalette::ButtonText, Qt::white);
  dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
  dark.setColor(QPalette::HighlightedText, Qt::black);
  return dark;
}
}  // namespace

using testing::ClickCell;
using testing::DialogScript;
using testing::PressKey;
using testing::TypeKeys;

// The invoice list on Qt, driven by real keys and clicks: the rules are tested on the headless
// toolkit; these check what only Qt can break (keys reaching the grid's engine, the modal window
// from a posted call, by-reference event arguments, message boxes, header captions).
class InvoiceEntryTest : public QObject {
  Q_OBJECT

 private:
  enum Column { kDate = 1, kNumber = 2, kAmount = 3 };

  std::unique_ptr<QWidget> window_;
  InvoiceEntry* invoices_ = nullptr;
  QLineEdit* next_field_ = nullptr;

  QTableView* Grid() const { return qobject_cast<QTableView*>(invoices_->Surface().FindQWidget("grInvoices")); }
  static Currency Money(const char* text) { return Currency::FromText(text); }
  // Today's date needs no confirmation, whatever day the test runs.
  static QString Today() { return QDate::currentDate().toString("yyyy/MM/dd"); }

  QStringList VisibleCaptions() const {
    QStringList captions;
    QTableView* grid = Grid();
    for (int column = 0; column < grid->model()->columnCount(); ++column) {
      if (!grid->isColumnHidden(column)) captions << grid->model()->headerData(column, Qt::Horizontal).toString();
    }
    return captions;
  }

  // Captions that are cut short or columns past the grid's right edge, after the window has
  // taken the size the control asks for.
  QStringList ClippedColumns() const {
    testing::Settle();
    QStringList clipped;
    QTableView* grid = Grid();
    QHeaderView* header = grid->horizontalHeader();
    for (int column = 0; column < header->count(); ++column) {
      if (grid->isColumnHidden(column)) continue;
      const bool cut = header->sectionSize(column) < header->sectionSizeHint(column);
      const bool outside = grid->columnViewportPosition(column) + grid->columnWidth(column) > grid->viewport()->width();
      if (cut || outside) clipped << grid->model()->headerData(column, Qt::Horizontal).toString();
    }
    // The lines beside the list must not cover it either.
    const QWidget* lines = invoices_->Surface().FindQWidget("grDistribution");
    if (lines->isVisible() && lines->geometry().intersects(grid->geometry())) clipped << "grDistribution";
    return clipped;
  }

  QStringList LinesOf(short row) const { return testing::LinesOf(invoices_->InvoiceValues(row).Distributions.ToList()); }

 private slots:
  void init() {
    invoices_ = testing::ShowInHostWindow<InvoiceEntry>(window_, &next_field_);
    QVERIFY(invoices_);
  }

  void cleanup() { window_.reset(); }

  // A host loop calls the list thousands of times: each call signals exactly the values it
  // changed, and nothing else.
  void hostCallsSignalTheValuesTheyChangeOnce() {
    using testing::SignalsMatchChanges;
    QVERIFY(testing::WritingEveryPropertySignalsItsChanges(invoices_));
    invoices_->SetBusinessMode(false);
    const QDate today = QDate::currentDate();
    QVERIFY(SignalsMatchChanges(invoices_, "add", [&] { invoices_->AddInvoice(today, "A-1", Money("5")); }));
    QVERIFY(SignalsMatchChanges(invoices_, "add zero", [&] { invoices_->AddInvoice(today, "A-2", Money("0")); }));
    QVERIFY(SignalsMatchChanges(invoices_, "add more", [&] { invoices_->AddInvoice(today, "A-3", Money("7")); }));
    QVERIFY(SignalsMatchChanges(invoices_, "email", [&] { invoices_->SetEmailFilename(2, "a.pdf"); }));
    QVERIFY(SignalsMatchChanges(invoices_, "values", [&] { invoices_->InvoiceValues(1); }));
    QVERIFY(SignalsMatchChanges(invoices_, "count", [&] { invoices_->InvoiceCount(); }));
    QVERIFY(SignalsMatchChanges(invoices_, "row", [&] { invoices_->SetCurrentRow(3); }));
    QVERIFY(SignalsMatchChanges(invoices_, "delete by email", [&] { invoices_->DeleteByEmailFilename("A.PDF"); }));
    QVERIFY(SignalsMatchChanges(invoices_, "foreign", [&] {
      invoices_->SetCurrencyRate(1.25f);
      invoices_->SetIPCurrency("USD");
    }));
    QVERIFY(SignalsMatchChanges(invoices_, "delete current", [&] { invoices_->DeleteCurrentRow(); }));
    QVERIFY(SignalsMatchChanges(invoices_, "clear", [&] { invoices_->Clear(); }));
  }

  // The record a host reads, through its fields, its gadget properties (late-bound hosts) and
  // as a map: the same values, lines included, and texts that are not ASCII both ways.
  void invoiceValuesKeepTheirShapeAndTexts() {
    invoices_->SetBusinessMode(true);
    invoices_->AddInvoice(QDate(2026, 2, 1), "INV-ü", Money("10"), QVariant::fromValue(Money("1.30")));
    InvoiceStore& store = invoices_->Control().Store();
    store.EnsureId(0);
    store.SetLines(store.At(0).id, {{Variant(), "5100", Money("5")}, {Variant(7), "5200-é", Money("3.70")}});
    invoices_->SetEmailFilename(1, QString::fromUtf8("reçu.pdf"));

    const InvoiceRecord invoice = invoices_->InvoiceValues(1);
    QVERIFY(!invoice.isNull());
    QCOMPARE(invoice.InvoiceNo, QString::fromUtf8("INV-ü"));
    QCOMPARE(invoice.GSTAmount, Money("1.30"));
    QCOMPARE(invoice.CompanyExpense, Money("8.70"));
    QCOMPARE(invoice.EmailFilename, QString::fromUtf8("reçu.pdf"));
    QCOMPARE(invoice.Distributions.size(), 2);
    QCOMPARE(LinesOf(1), QStringList({"5100 5", QString::fromUtf8("5200-é 3.7")}));
    QCOMPARE(invoices_->InvoiceValues(1), invoice);

    // Late-bound: the gadget's properties, and a returned QVariant read as a map.
    const QMetaObject& meta = InvoiceRecord::staticMetaObject;
    const auto read = [&](const char* name) { return meta.property(meta.indexOfProperty(name)).readOnGadget(&invoice); };
    QCOMPARE(read("InvoiceAmount").toString(), QString("10.00"));
    QCOMPARE(read("Distributions").toList().size(), 2);
    InvoiceRecord invoked;
    QVERIFY(QMetaObject::invokeMethod(invoices_, "InvoiceValues", Qt::DirectConnection,
                                      Q_RETURN_ARG(zenta::qt::InvoiceRecord, invoked), Q_ARG(short, 1)));
    QCOMPARE(invoked, invoice);
    const QVariantMap map = QVariant::fromValue(invoice).toMap();
    QCOMPARE(map, invoice.toMap());
    QCOMPARE(map.keys(), QStringList({"CompanyExpense", "Distributions", "EmailFilename", "GSTAmount", "InvoiceAmount",
                                      "InvoiceDate", "InvoiceNo", "PaymentFor"}));
    QCOMPARE(map.value("InvoiceDate").metaType(), QMetaType::fromType<QDate>());
    QCOMPARE(map.value("PaymentFor").metaType(), QMetaType::fromType<QString>());
    QCOMPARE(map.value("Distributions").value<QVariantList>(), invoice.DistributionList());
    QCOMPARE(invoice.DistributionList()[1].toMap().keys(), QStringList({"Amount", "GLAccount"}));

    // A record the host changes is its own.
    InvoiceRecord changed = invoice;
    changed.InvoiceNo = "other";
    QCOMPARE(invoices_->InvoiceValues(1).InvoiceNo, QString::fromUtf8("INV-ü"));

    QSignalSpy errors(invoices_, &InvoiceEntry::HostErrorRaised);
    invoices_->SetEmailFilename(2, "lost.pdf");
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors[0][1].toString(), QString("InvoiceValues"));
    QCOMPARE(errors[0][2].toString(), QString("The row 2 does not exist"));
    QCOMPARE(invoices_->InvoiceValues(1).EmailFilename, QString::fromUtf8("reçu.pdf"));
    QVERIFY(InvoiceRecord().toMap().isEmpty());
  }

  void aRowTypedByKeysIsStoredInCentsAndMovesSignalOnce() {
    using testing::SignalsMatchChanges;
    QSignalSpy recalculate(invoices_, &InvoiceEntry::Recalculate);
    QVERIFY(ClickCell(Grid(), 0, kDate));
    TypeKeys(Today());
    PressKey(Qt::Key_Tab);
    TypeKeys("INV-1");
    PressKey(Qt::Key_Tab);
    TypeKeys("1250");
    QVERIFY(SignalsMatchChanges(invoices_, "row stored", [this] {
      next_field_->setFocus(Qt::TabFocusReason);
      testing::Settle();
    }));
    QCOMPARE(invoices_->TotalAmount(), Money("12.50"));
    QCOMPARE(invoices_->RowCount(), short{1});
    const InvoiceRecord invoice = invoices_->InvoiceValues(1);
    QCOMPARE(invoice.InvoiceDate, QDate::currentDate());
    QCOMPARE(invoice.InvoiceNo, QString("INV-1"));
    QCOMPARE(invoice.InvoiceAmount, Money("12.50"));
    QVERIFY(recalculate.count() >= 1);
    invoices_->AddInvoice(QDate::currentDate(), "INV-2", Money("3"));
    QVERIFY(ClickCell(Grid(), 1, kNumber));
    QVERIFY(SignalsMatchChanges(invoices_, "up", [] { PressKey(Qt::Key_Up); }));
    QCOMPARE(invoices_->CurrentRow(), short{1});
    QVERIFY(SignalsMatchChanges(invoices_, "down", [] { PressKey(Qt::Key_Down); }));
    QCOMPARE(invoices_->CurrentRow(), short{2});
  }

  void tabPastTheLastAmountOpensTheWindowAndAnnouncesTheFirstSplit() {
    invoices_->SetDefaultGLAccount("5100");
    QList<short> announced;
    connect(invoices_, &InvoiceEntry::FirstDistributionEntered, this, [&announced](short& TheRow) { announced << TheRow; });
    DialogScript split(testing::SplitSixtyForty);
    QVERIFY(ClickCell(Grid(), 0, kDate));
    TypeKeys(Today());
    PressKey(Qt::Key_Tab);
    TypeKeys("INV-2");
    PressKey(Qt::Key_Tab);
    TypeKeys("10000");
    PressKey(Qt::Key_Tab);
    testing::Settle();
    QVERIFY(split.Ran());
    QCOMPARE(announced, QList<short>{1});
    QCOMPARE(LinesOf(1), (QStringList{"5100 60", "5200 40"}));
    QString reason = "stale";
    bool incomplete = true;
    QVERIFY2(invoices_->IsDataValid(reason, incomplete), qPrintable(reason));
    QCOMPARE(reason, QString());
  }

  void aHostRefusesADuplicateNumberThroughTheTypedSignal() {
    invoices_->AddInvoice(QDate::currentDate(), "A-100", Money("5"));
    QString seen;
    connect(invoices_, &InvoiceEntry::CheckDuplicateInvoices, this, [&seen](QString& strInvoiceNo, bool& bolCancel) {
      seen = strInvoiceNo;
      bolCancel = strInvoiceNo == "A-100";
    });
    QVERIFY(ClickCell(Grid(), 1, kNumber));
    TypeKeys("A-100");
    PressKey(Qt::Key_Tab);
    QCOMPARE(seen, QString("A-100"));
    QCOMPARE(invoices_->InvoiceCount(), short{1});
    QString reason;
    bool incomplete = false;
    QVERIFY(!invoices_->IsDataValid(reason, incomplete));
  }

  void deletingAskedOfThePayerKeepsTheRowOnNoAndTheHostsDeletionAsksNothing() {
    invoices_->AddInvoice(QDate::currentDate(), "A-1", Money("5"));
    invoices_->AddInvoice(QDate::currentDate(), "A-2", Money("7"));
    QVERIFY(ClickCell(Grid(), 1, kNumber));
    QString asked;
    testing::AnswerNextMessage(QMessageBox::No, [&asked](QMessageBox& box) { asked = box.text(); });
    PressKey(Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(asked, QString("Are you sure you want to delete this invoice?"));
    QCOMPARE(invoices_->RowCount(), short{2});
    QCOMPARE(invoices_->CurrentRow(), short{2});
    invoices_->DeleteCurrentRow();
    QCOMPARE(invoices_->RowCount(), short{1});
    QCOMPARE(invoices_->TotalAmount(), Money("5"));
    // A missing row reaches the host as an error, not an exception.
    QSignalSpy errors(invoices_, &ControlWidget::HostErrorRaised);
    QVERIFY(invoices_->InvoiceValues(2).isNull());
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors.front().at(0).value<quint32>(), 0x800403E8u);
    QCOMPARE(errors.front().at(2).toString(), QString("The row 2 does not exist"));
    invoices_->SetInvoiceValues(1, QString("not an invoice"));
    QCOMPARE(errors.count(), 2);
    QCOMPARE(invoices_->InvoiceValues(1).InvoiceNo, QString("A-1"));
  }

  void aNewInvoiceOnAFullListTellsThePayerAndCurrentRowNeverWraps() {
    InvoiceStore& store = invoices_->Control().Store();
    InvoiceStore::Row row;
    row.date = FromQDate(QDate::currentDate());
    row.number = "N";
    row.amount = Money("1");
    for (int i = 0; i < InvoiceStore::kMaxRows; ++i) store.Put(store.TargetRowForAdd("test"), row);
    invoices_->Rebind();
    testing::Settle();
    Grid()->scrollToBottom();
    QVERIFY(ClickCell(Grid(), 32767, kNumber));
    QCOMPARE(invoices_->CurrentRow(), short{0});
    TypeKeys("ONE MORE");
    QString told;
    testing::AnswerNextMessage(QMessageBox::Ok, [&told](QMessageBox& box) { told = box.text(); });
    next_field_->setFocus(Qt::TabFocusReason);
    testing::Settle();
    QCOMPARE(told, QString("The list is full: it holds at most 32,767 invoices. Delete one, or clear a row, to add "
                           "this invoice."));
    QCOMPARE(invoices_->RowCount(), short{32767});
    QCOMPARE(invoices_->CurrentRow(), short{0});
  }

  void coloursModeAndAccountPersistAndReachTheGrid() {
    QCOMPARE(invoices_->RowColorOdd(), QColor(255, 255, 255));
    QVERIFY(!invoices_->BusinessMode());
    QTemporaryDir dir;
    QSettings settings(dir.filePath("host.ini"), QSettings::IniFormat);
    {
      InvoiceEntry saved;
      saved.SetRowColorEven(QColor(200, 220, 240));
      saved.SetBusinessMode(true);
      saved.SetDefaultGLAccount("5100");
      saved.SaveProperties(&settings, "InvoiceEntry1");
    }
    QSignalSpy even(invoices_, &InvoiceEntry::RowColorEvenChanged);
    invoices_->LoadProperties(&settings, "InvoiceEntry1");
    QCOMPARE(even.count(), 1);
    QCOMPARE(invoices_->RowColorEven(), QColor(200, 220, 240));
    QVERIFY(invoices_->BusinessMode());
    QCOMPARE(invoices_->DefaultGLAccount(), QString("5100"));
    invoices_->AddInvoice(QDate::currentDate(), "A-1", Money("5"));
    invoices_->AddInvoice(QDate::currentDate(), "A-2", Money("6"));
    QAbstractItemModel* model = Grid()->model();
    const QList<QVariant> backs{model->index(0, kNumber).data(Qt::BackgroundRole),
                                model->index(1, kNumber).data(Qt::BackgroundRole)};
    QVERIFY(backs.contains(QVariant(QColor(200, 220, 240))));
  }

  // A dark desktop theme: rows, header and footer the host left alone follow it, a row colour
  // the host chose is drawn as chosen, and every text reads on what it is drawn on.
  void aDarkThemeKeepsTheListReadable() {
    const QString style = QApplication::style()->name();
    const QPalette light = QApplication::palette();
    auto restore = qScopeGuard([&] {
      QApplication::setPalette(light);
      QApplication::setStyle(style);
    });
    QApplication::setStyle("Fusion");
    QApplication::setPalette(DarkPalette());
    QCoreApplication::processEvents();
    for (const char* number : {"A-1", "A-2", "A-3", "A-4"}) invoices_->AddInvoice(QDate::currentDate(), number, Money("5"));
    QCoreApplication::processEvents();  // the totals follow the rows
    QTableView* grid = Grid();

    auto cell = [&](int row) { return grid->visualRect(grid->model()->index(row, kNumber)).adjusted(1, 1, -2, -2); };
    auto weakest_row = [&](const QImage& rows) {
      Ink weakest{QColor(), 21};
      for (int row = 0; row < 4; ++row) {
        const Ink ink = InkIn(rows, cell(row));
        if (ink.contrast < weakest.contrast) weakest = ink;
      }
      return weakest;
    };
    const QImage themed = grid->viewport()->grab().toImage();
    const Ink themed_rows = weakest_row(themed);
    QVERIFY2(themed_rows.contrast >= 4.5, qPrintable(themed_rows.back.name()));
    QCOMPARE(InkIn(themed, cell(0)).back, DarkPalette().color(QPalette::AlternateBase));
    QCOMPARE(invoices_->RowColorOdd(), QColor(255, 255, 255));  // the stored default is unchanged

    QHeaderView* header = grid->horizontalHeader();
    const QRect caption(header->sectionViewportPosition(kNumber) + 1, 1, header->sectionSize(kNumber) - 3, header->height() - 3);
    const Ink heading = InkIn(header->grab().toImage(), caption);
    QVERIFY2(heading.contrast >= 4.5, qPrintable(QString::number(heading.contrast)));
    QVERIFY(heading.back != QColor(226, 229, 90));

    const QRect view = grid->viewport()->geometry();
    const QRect total(view.left() + grid->columnViewportPosition(kAmount) + 1, view.bottom() + 3,
                      grid->columnWidth(kAmount) - 3, grid->verticalHeader()->defaultSectionSize() - 4);
    const Ink footer = InkIn(grid->grab().toImage(), total);
    QVERIFY2(footer.contrast >= 4.5, qPrintable(QString::number(footer.contrast)));

    invoices_->SetRowColorOdd(QColor(255, 255, 200));
    invoices_->SetRowColorEven(QColor(0, 0, 128));
    QCoreApplication::processEvents();
    const QImage chosen = grid->viewport()->grab().toImage();
    const Ink chosen_rows = weakest_row(chosen);
    QVERIFY2(chosen_rows.contrast >= 4.5, qPrintable(chosen_rows.back.name()));
    QCOMPARE(InkIn(chosen, cell(0)).back, QColor(0, 0, 128));
    QCOMPARE(InkIn(chosen, cell(1)).back, QColor(255, 255, 200));
  }

  // A stored invoice has a View Dist button to press; the row for a new one shows none until
  // something is typed in it.
  void theRowForANewInvoiceShowsNoButton() {
    invoices_->AddInvoice(QDate::currentDate(), "A-1", Money("5"));
    QCoreApplication::processEvents();
    QTableView* grid = Grid();
    int view = -1;
    for (int column = 0; column < grid->model()->columnCount(); ++column) {
      if (grid->model()->headerData(column, Qt::Horizontal).toString() == "View Dist") view = column;
    }
    QVERIFY(view >= 0);
    QImage shown = grid->viewport()->grab().toImage();
    auto colours = [&](int row) {
      QSet<QRgb> seen;
      const QRect cell = grid->visualRect(grid->model()->index(row, view)).adjusted(1, 1, -2, -2);
      for (int y = cell.top(); y <= cell.bottom(); ++y) {
        for (int x = cell.left(); x <= cell.right(); ++x) seen.insert(shown.pixel(x, y));
      }
      return seen.size();
    };
    QVERIFY(colours(0) > 2);    // a raised button with its caption
    QCOMPARE(colours(1), 1);    // the row's own background only

    // Once the payer types in it, the new row can be split like any other.
    QVERIFY(ClickCell(grid, 1, kNumber));
    TypeKeys("B-2");
    shown = grid->viewport()->grab().toImage();
    QVERIFY(colours(1) > 2);
  }

  void theCaptionsFollowBusinessAndForeignMode() {
    QCOMPARE(VisibleCaptions(), (QStringList{"Invoice Date", "Invoice Number / Description", "Invoice Amount", "View Dist"}));
    QSignalSpy mode(invoices_, &ControlWidget::BusinessModeChanged);
    invoices_->setProperty("BusinessMode", true);
    QCOMPARE(mode.count(), 1);
    QCOMPARE(VisibleCaptions(), (QStringList{"Invoice Date", "Invoice Number / Description", "Invoice Amount",
                                             "Refundable GST/HST", "Net Expense", "View Dist"}));
    QCOMPARE(ClippedColumns(), QStringList());
    invoices_->SetBusinessMode(false);
    invoices_->SetOtherCurrencyCode("USD");
    invoices_->SetIPCurrency("USD");
    invoices_->SetCurrencyRate(1.25f);
    invoices_->SetupIPGrid();
    QCOMPARE(VisibleCaptions(), (QStringList{"Invoice Date", "Invoice Number / Description", "Invoice Amount (USD)",
                                             "Accounting Rate", "Invoice Amount (CAD)", "View Dist"}));
    QCOMPARE(ClippedColumns(), QStringList());
    // The grid shows the rate as kept, and the Canadian amount is exactly that rate times the
    // foreign amount (not 1.2346, not the float's binary value).
    invoices_->SetCurrencyRate(1.234567f);
    invoices_->AddInvoice(QDate(2026, 2, 1), "US-1", Money("1000"));
    testing::Settle();
    const QAbstractItemModel* model = Grid()->model();
    QCOMPARE(model->index(0, 4).data().toString(), QString("1.234567"));
    QCOMPARE(model->index(0, 5).data().toString(), QString("1234.57"));
  }
};

}  // namespace zenta::qt

QTEST_MAIN(zenta::qt::InvoiceEntryTest)
#include "invoice_entry_test.moc"
