// Runs the loops a Qt host runs over the invoice list at one size, for the growth gate: under
// callgrind each loop's instruction count is dumped on its own (its name is the dump's
// trigger), so a machine's noise cannot hide a loop that grows faster than its list. The same
// loops run on the headless toolkit too ("headless." names), so the gate can also catch the Qt
// class drifting away from the control logic it wraps.
#include <valgrind/callgrind.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/toolkit/qt_dialog_surface.h"

namespace {

using zenta::Currency;
using zenta::InvoiceStore;

// Counts only what `loop` runs, then dumps the count under `name`.
template <class Loop>
void Measured(const char* name, Loop&& loop) {
  CALLGRIND_ZERO_STATS;
  CALLGRIND_TOGGLE_COLLECT;
  loop();
  CALLGRIND_TOGGLE_COLLECT;
  CALLGRIND_DUMP_STATS_AT(name);
}

// A list of n invoices, each split over ten accounts, loaded straight into the store.
void Fill(InvoiceStore& store, int n) {
  for (int i = 0; i < n; ++i) {
    InvoiceStore::Row row;
    row.date = *zenta::Date::FromYmd(2026, 2, 1);
    row.number = "INV-" + std::to_string(i);
    row.amount = Currency::FromUnits(870'000);
    const int index = store.TargetRowForAdd("probe");
    store.Put(index, std::move(row));
    store.EnsureId(index);
    std::vector<zenta::InvoiceLine> lines;
    for (int line = 0; line < 10; ++line) lines.push_back({zenta::Variant(), "51" + std::to_string(line), Currency::FromUnits(87'000)});
    store.SetLines(store.At(index).id, std::move(lines));
  }
}

void CancelDistributionWhenShown() {
  QTimer::singleShot(0, [] {
    auto* dialog = dynamic_cast<zenta::qt::QtDialogSurface*>(QApplication::activeModalWidget());
    auto* cancel = dialog ? qobject_cast<QAbstractButton*>(dialog->FindQWidget("cmdGLCancel")) : nullptr;
    if (!cancel) {
      CancelDistributionWhenShown();
      return;
    }
    cancel->click();
  });
}

}  // namespace

// The loops below without the Qt class: the control logic on the headless toolkit.
void HeadlessLoops(int n) {
  const zenta::Date day = *zenta::Date::FromYmd(2026, 2, 1);
  zenta::headless::Form form;
  zenta::headless::Host host{form};
  zenta::LibraryContext context{host, [&form] { return form.CreateDialog("frmDistribution"); }};
  {
    zenta::InvoiceEntry added{form.AddSurface("InvoiceEntry1"), host, context};
    Measured("headless.AddInvoice", [&] {
      for (int i = 0; i < n; ++i) added.AddInvoice(day, "INV", Currency::FromUnits(10'000 + i));
    });
  }
  zenta::InvoiceEntry control{form.AddSurface("InvoiceEntry2"), host, context};
  Fill(control.Store(), n);
  Measured("headless.InvoiceValues", [&] {
    for (int row = 1; row <= n; ++row) control.InvoiceValues(static_cast<std::int16_t>(row));
  });
  Measured("headless.SetEmailFilename", [&] {
    for (int row = 1; row <= n; ++row) control.SetEmailFilename(static_cast<std::int16_t>(row), "mail.pdf");
  });
  Measured("headless.InvoiceCount", [&] {
    int total = 0;
    for (int row = 1; row <= n; ++row) total += control.InvoiceCount();
    if (total != n * n) std::fprintf(stderr, "InvoiceCount read %d\n", total);
  });
}

int main(int argc, char** argv) {
  if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  const int n = argc > 1 ? std::atoi(argv[1]) : 2048;
  if (n < 256 || n > InvoiceStore::kMaxRows) {
    std::fprintf(stderr, "usage: %s ROWS (256 to %d)\n", argv[0], InvoiceStore::kMaxRows);
    return 2;
  }
  const QDate day(2026, 2, 1);
  CALLGRIND_START_INSTRUMENTATION;
  {
    zenta::qt::InvoiceEntry widget;
    widget.show();
    QApplication::processEvents();
    Measured("AddInvoice", [&] {
      for (int i = 0; i < n; ++i) widget.AddInvoice(day, QStringLiteral("INV"), Currency::FromUnits(10'000 + i));
      QApplication::processEvents();
    });
  }
  zenta::qt::InvoiceEntry widget;
  widget.show();
  Fill(widget.Control().Store(), n);
  widget.Rebind();
  QApplication::processEvents();
  Measured("InvoiceValues", [&] {
    for (int row = 1; row <= n; ++row) widget.InvoiceValues(static_cast<short>(row));
  });
  Measured("SetEmailFilename", [&] {
    for (int row = 1; row <= n; ++row) widget.SetEmailFilename(static_cast<short>(row), QStringLiteral("mail.pdf"));
  });
  Measured("InvoiceCount", [&] {
    int total = 0;
    for (int row = 1; row <= n; ++row) total += widget.InvoiceCount();
    if (total != n * n) std::fprintf(stderr, "InvoiceCount read %d\n", total);
  });
  // The window opens once per 1,024 rows: the loop grows with the list as the others do.
  Measured("AddInvoiceShowingDistribution", [&] {
    for (int i = 0; i < n / 1024; ++i) {
      CancelDistributionWhenShown();
      widget.AddInvoice(day, QStringLiteral("SHOWN"), Currency::FromUnits(10'000), QVariant(), true);
    }
  });
  HeadlessLoops(n);
  return 0;
}
