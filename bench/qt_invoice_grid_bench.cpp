#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTableView>
#include <QTest>
#include <cstdlib>
#include <memory>
#include <string>

#include "zenta/qt/invoice_entry.h"
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
