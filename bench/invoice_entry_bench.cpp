#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <string>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"

namespace zenta {
namespace {

constexpr int kLinesPerInvoice = 10;

// One host screen with an invoice list, built outside the timed loops.
struct Screen {
  headless::Form form;
  headless::Host host{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};
  InvoiceEntry control{form.AddSurface("InvoiceEntry1"), host, context};

  explicit Screen(bool business = true) { control.SetBusinessMode(business); }

  // n invoices, each split over ten accounts.
  void Fill(int n) {
    const Date day = *Date::FromYmd(2026, 2, 1);
    for (int i = 0; i < n; ++i) {
      control.AddInvoice(day, "INV-" + std::to_string(i) + " a description long enough to wrap twice",
                         Currency::FromUnits(1'000'000), Variant(Currency::FromUnits(130'000)));
    }
    InvoiceStore& store = control.Store();
    for (int row = 0; row < n; ++row) {
      store.EnsureId(row);
      std::vector<InvoiceLine> lines;
      for (int line = 0; line < kLinesPerInvoice; ++line) {
        lines.push_back({Variant(), "51" + std::to_string(line), Currency::FromUnits(87'000)});
      }
      store.SetLines(store.At(row).id, std::move(lines));
    }
    if (n > 0) control.SetEmailFilename(1, "mail.pdf");
  }
};

void Sizes(benchmark::internal::Benchmark* b) { b->RangeMultiplier(4)->Range(512, 32767)->Complexity(benchmark::oN); }

void BM_AddInvoice(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  const Date day = *Date::FromYmd(2026, 2, 1);
  for (auto _ : state) {
    state.PauseTiming();
    auto screen = std::make_unique<Screen>();
    state.ResumeTiming();
    for (int i = 0; i < n; ++i) screen->control.AddInvoice(day, "INV", Currency::FromUnits(10'000 + i));
    state.PauseTiming();
    screen.reset();
    state.ResumeTiming();
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_AddInvoice)->Apply(Sizes)->Unit(benchmark::kMillisecond);

void BM_Totals(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen;
  screen.Fill(n);
  for (auto _ : state) {
    benchmark::DoNotOptimize(screen.control.TotalAmount());
    benchmark::DoNotOptimize(screen.control.TotalGST());
    benchmark::DoNotOptimize(screen.control.TotalExpense());
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_Totals)->Apply(Sizes);

void BM_IsDataValid(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen;
  screen.Fill(n);
  std::string reason;
  bool incomplete = false;
  for (auto _ : state) benchmark::DoNotOptimize(screen.control.IsDataValid(reason, incomplete));
  if (!reason.empty()) state.SkipWithError(reason.c_str());
  state.SetComplexityN(n);
}
BENCHMARK(BM_IsDataValid)->Apply(Sizes);

void BM_InvoiceValuesOfEveryRow(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen;
  screen.Fill(n);
  for (auto _ : state) {
    for (int row = 1; row <= n; ++row) {
      benchmark::DoNotOptimize(screen.control.InvoiceValues(static_cast<std::int16_t>(row)));
    }
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_InvoiceValuesOfEveryRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

void BM_DeleteEveryOtherRowByEmailFilename(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    auto screen = std::make_unique<Screen>();
    screen->Fill(n);
    for (int row = 1; row <= n; row += 2) screen->control.SetEmailFilename(static_cast<std::int16_t>(row), "mail.pdf");
    state.ResumeTiming();
    screen->control.DeleteByEmailFilename("MAIL.PDF");
    state.PauseTiming();
    screen.reset();
    state.ResumeTiming();
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_DeleteEveryOtherRowByEmailFilename)->Apply(Sizes)->Unit(benchmark::kMillisecond);

void BM_Clear(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    auto screen = std::make_unique<Screen>();
    screen->Fill(n);
    state.ResumeTiming();
    screen->control.Clear();
    state.PauseTiming();
    screen.reset();
    state.ResumeTiming();
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_Clear)->Apply(Sizes)->Unit(benchmark::kMillisecond);

// Heap bytes of a full list, per invoice: rows, number texts and ten lines each.
void BM_BytesPerInvoice(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen;
  screen.Fill(n);
  const InvoiceStore& store = screen.control.Store();
  double bytes = 0;
  for (auto _ : state) {
    bytes = static_cast<double>(store.Count()) * sizeof(InvoiceStore::Row);
    for (int row = 0; row < store.Count(); ++row) {
      const auto& r = store.At(row);
      bytes += static_cast<double>(r.number.capacity() > 15 ? r.number.capacity() + 1 : 0);
      if (const auto* lines = store.Lines(r.id)) {
        bytes += static_cast<double>(lines->capacity() * sizeof(InvoiceLine)) + 64;  // vector and map node
      }
    }
  }
  state.counters["bytes_per_invoice"] = bytes / n;
}
BENCHMARK(BM_BytesPerInvoice)->Arg(32767)->Iterations(1);

}  // namespace
}  // namespace zenta
