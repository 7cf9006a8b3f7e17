#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/qt/invoice_entry.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_dialog_surface.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta {
namespace {

// The invoice list on Qt with `n` invoices loaded straight into its store, shown at a size a
// host screen gives it; built outside the timed loops.
struct InvoiceScreen {
  std::unique_ptr<qt::InvoiceEntry> widget = std::make_unique<qt::InvoiceEntry>();
  QTableView* grid = nullptr;

  explicit InvoiceScreen(int n) {
    widget->SetBusinessMode(true);
    InvoiceStore& store = widget->Control().Store();
    const Date day = *Date::FromYmd(2026, 2, 1);
    for (int i = 0; i < n; ++i) {
      InvoiceStore::Row row;
      row.date = day;
      row.number = "INV-" + std::to_string(i) + " a description long enough to wrap twice";
      row.amount = Currency::FromUnits(1'000'000 + i);
      row.gst = Currency::FromUnits(130'000);
      row.expense = *row.amount - *row.gst;
      store.Put(store.TargetRowForAdd("bench"), std::move(row));
    }
    widget->Rebind();
    widget->resize(900, 600);
    widget->show();
    grid = qobject_cast<QTableView*>(widget->Surface().FindQWidget("grInvoices"));
    QApplication::processEvents();
  }
};

constexpr int kFullList = 32767;
constexpr int kLinesPerInvoice = 10;

void Sizes(benchmark::internal::Benchmark* b) { b->RangeMultiplier(4)->Range(512, kFullList)->Complexity(benchmark::oN); }

// The host loops a Qt host runs over the public class, each as the headless benchmark of the
// same name runs it on the control logic: both figures belong side by side.
void WithLines(qt::InvoiceEntry& widget) {
  InvoiceStore& store = widget.Control().Store();
  for (int row = 0; row < store.Count(); ++row) {
    store.EnsureId(row);
    std::vector<InvoiceLine> lines;
    for (int line = 0; line < kLinesPerInvoice; ++line) {
      lines.push_back({Variant(), "51" + std::to_string(line), Currency::FromUnits(87'000)});
    }
    store.SetLines(store.At(row).id, std::move(lines));
  }
}

void BM_QtAddInvoice(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  const QDate day(2026, 2, 1);
  for (auto _ : state) {
    state.PauseTiming();
    auto widget = std::make_unique<qt::InvoiceEntry>();
    widget->resize(900, 600);
    widget->show();
    QApplication::processEvents();
    state.ResumeTiming();
    for (int i = 0; i < n; ++i) widget->AddInvoice(day, QStringLiteral("INV"), Currency::FromUnits(10'000 + i));
    QApplication::processEvents();  // the posted footer totals belong to the loop
    state.PauseTiming();
    widget.reset();
    state.ResumeTiming();
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_QtAddInvoice)->Apply(Sizes)->Unit(benchmark::kMillisecond);

void BM_QtInvoiceValuesOfEveryRow(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  InvoiceScreen screen(n);
  WithLines(*screen.widget);
  for (auto _ : state) {
    for (int row = 1; row <= n; ++row) benchmark::DoNotOptimize(screen.widget->InvoiceValues(static_cast<short>(row)));
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_QtInvoiceValuesOfEveryRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

// The same loop by a host that also reads every line: the lines become maps when first read.
void BM_QtInvoiceValuesReadingEveryLine(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  InvoiceScreen screen(n);
  WithLines(*screen.widget);
  for (auto _ : state) {
    qsizetype lines = 0;
    for (int row = 1; row <= n; ++row) {
      lines += screen.widget->InvoiceValues(static_cast<short>(row)).Distributions.ToList().size();
    }
    benchmark::DoNotOptimize(lines);
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_QtInvoiceValuesReadingEveryLine)->Apply(Sizes)->Unit(benchmark::kMillisecond);

// A host that wants maps: every row read and turned into a QVariantMap (lines left unread).
void BM_QtInvoiceValuesAsMapOfEveryRow(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  InvoiceScreen screen(n);
  WithLines(*screen.widget);
  for (auto _ : state) {
    for (int row = 1; row <= n; ++row) benchmark::DoNotOptimize(screen.widget->InvoiceValues(static_cast<short>(row)).toMap());
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_QtInvoiceValuesAsMapOfEveryRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

void BM_QtSetEmailFilenameOnEveryRow(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  InvoiceScreen screen(n);
  const QString mail = QStringLiteral("mail.pdf");
  for (auto _ : state) {
    for (int row = 1; row <= n; ++row) screen.widget->SetEmailFilename(static_cast<short>(row), mail);
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_QtSetEmailFilenameOnEveryRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

void BM_QtInvoiceCountPollPerRow(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  InvoiceScreen screen(n);
  for (auto _ : state) {
    for (int row = 1; row <= n; ++row) benchmark::DoNotOptimize(screen.widget->InvoiceCount());
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_QtInvoiceCountPollPerRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

// Closes the distribution window as soon as it is up, from inside its modal loop.
void CancelDistributionWhenShown() {
  QTimer::singleShot(0, [] {
    auto* dialog = dynamic_cast<qt::QtDialogSurface*>(QApplication::activeModalWidget());
    auto* cancel = dialog ? qobject_cast<QAbstractButton*>(dialog->FindQWidget("cmdGLCancel")) : nullptr;
    if (!cancel) {
      CancelDistributionWhenShown();
      return;
    }
    cancel->click();
  });
}

// One AddInvoice that opens the distribution window (closed at once) on a list of n invoices.
void BM_QtAddInvoiceShowingDistribution(benchmark::State& state) {
  InvoiceScreen screen(static_cast<int>(state.range(0)) - 1);
  screen.widget->SetBusinessMode(false);
  const QDate day(2026, 2, 1);
  InvoiceStore& store = screen.widget->Control().Store();
  for (int i = store.Count(); i < state.range(0) - 1; ++i) {
    InvoiceStore::Row row;
    row.date = *Date::FromYmd(2026, 2, 1);
    row.number = "INV-" + std::to_string(i);
    row.amount = Currency::FromUnits(1'000'000);
    store.Put(store.TargetRowForAdd("bench"), std::move(row));
  }
  screen.widget->Rebind();
  for (auto _ : state) {
    CancelDistributionWhenShown();
    screen.widget->AddInvoice(day, QStringLiteral("INV"), Currency::FromUnits(10'000), QVariant(), true);
    state.PauseTiming();
    store.Remove(store.Count() - 1);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_QtAddInvoiceShowingDistribution)->Arg(512)->Arg(kFullList)->Unit(benchmark::kMicrosecond);

// A payer changes an amount in the middle of the full list and leaves the row with Down: the
// row is stored, the totals follow and the grid repaints.
void BM_QtLeaveEditedRowWithDown(benchmark::State& state) {
  InvoiceScreen screen(static_cast<int>(state.range(0)));
  screen.grid->setFocus();
  const short middle = static_cast<short>(screen.widget->RowCount() / 2);
  int typed = 0;
  for (auto _ : state) {
    state.PauseTiming();
    screen.widget->SetCurrentRow(middle);
    screen.widget->Control().grInvoices().Engine().SetCurrentColumn(InvoiceStore::kAmountColumn);
    QApplication::processEvents();
    QTest::keyClick(screen.grid, static_cast<char>('1' + typed++ % 9));
    state.ResumeTiming();
    QTest::keyClick(screen.grid, Qt::Key_Down);
    QApplication::processEvents();  // the posted refresh, the totals and the one repaint they ask for
  }
  if (screen.widget->CurrentRow() != middle + 1) state.SkipWithError("Down did not leave the row");
}
BENCHMARK(BM_QtLeaveEditedRowWithDown)->Arg(512)->Arg(kFullList)->Unit(benchmark::kMillisecond);

// Rebinding the full list and painting the grid once, as a host sees it after loading a payment.
void BM_FirstPaintAfterRebind(benchmark::State& state) {
  InvoiceScreen screen(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    screen.widget->Rebind();
    screen.grid->viewport()->repaint();
  }
  state.counters["rows"] = static_cast<double>(screen.widget->RowCount());
}
BENCHMARK(BM_FirstPaintAfterRebind)->Arg(512)->Arg(kFullList)->Unit(benchmark::kMillisecond);

// A grab renders the whole control (headers, footer, rows) into a pixmap.
void BM_GrabControl(benchmark::State& state) {
  InvoiceScreen screen(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(screen.widget->grab());
}
BENCHMARK(BM_GrabControl)->Arg(512)->Arg(kFullList)->Unit(benchmark::kMillisecond);

// PageDown through the list with a repaint after each key; wraps back to the top at the end.
void BM_PageDownAndRepaint(benchmark::State& state) {
  InvoiceScreen screen(static_cast<int>(state.range(0)));
  screen.grid->setFocus();
  screen.widget->SetCurrentRow(1);
  for (auto _ : state) {
    const short before = screen.widget->CurrentRow();
    QTest::keyClick(screen.grid, Qt::Key_PageDown);
    screen.grid->viewport()->repaint();
    if (screen.widget->CurrentRow() <= before) {
      state.SkipWithError("PageDown did not move the current row");
      break;
    }
    if (screen.widget->CurrentRow() >= screen.widget->RowCount() - 40) {
      state.PauseTiming();
      screen.widget->SetCurrentRow(1);
      state.ResumeTiming();
    }
  }
}
BENCHMARK(BM_PageDownAndRepaint)->Arg(512)->Arg(kFullList)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zenta

int main(int argc, char** argv) {
  if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
