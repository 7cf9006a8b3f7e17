#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QString>
#include <cstdlib>
#include <memory>

#include "zenta/qt/invoice_entry.h"

namespace zenta {
namespace {

// Spreadsheet text of `n` rows as a payer copies it: date, number, amount with grouping, CRLF.
QString SpreadsheetRows(int n) {
  const QDate day = QDate::currentDate().addDays(-3);
  const QString date = day.toString("yyyy/MM/dd");
  QString text;
  for (int i = 0; i < n; ++i) {
    text += date + "\tINV-" + QString::number(i) + " hydro and gas\t\"1," + QString::number(100 + i % 900) + ".25\"\r\n";
  }
  return text;
}

std::unique_ptr<qt::InvoiceEntry> ShownList() {
  auto widget = std::make_unique<qt::InvoiceEntry>();
  widget->resize(900, 600);
  widget->show();
  QApplication::processEvents();
  return widget;
}

// Rows pasted into an empty list through the public Qt class, its signals and the posted
// totals and repaint included.
void BM_QtPasteRows(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  const QString text = SpreadsheetRows(n);
  for (auto _ : state) {
    state.PauseTiming();
    auto widget = ShownList();
    state.ResumeTiming();
    widget->PasteText(text);
    QApplication::processEvents();
    state.PauseTiming();
    if (widget->RowCount() != n) state.SkipWithError("rows were refused");
    widget.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_QtPasteRows)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// Undoing such a paste and redoing it: the list swaps back whole each time.
void BM_QtUndoRedoPaste(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  auto widget = ShownList();
  widget->PasteText(SpreadsheetRows(n));
  QApplication::processEvents();
  for (auto _ : state) {
    widget->undoAction()->trigger();
    widget->redoAction()->trigger();
    QApplication::processEvents();
  }
}
BENCHMARK(BM_QtUndoRedoPaste)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zenta
