#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"
#include "zenta/platform/headless/button_widget.h"

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

// The same loop by a host that also reads every line of every record: the lines are copied in
// when first reached.
void BM_InvoiceValuesReadingEveryLine(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen;
  screen.Fill(n);
  for (auto _ : state) {
    Currency sum;
    for (int row = 1; row <= n; ++row) {
      const auto invoice = screen.control.InvoiceValues(static_cast<std::int16_t>(row));
      for (const auto& line : *invoice->Distributions) sum += line->Amount;
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_InvoiceValuesReadingEveryLine)->Apply(Sizes)->Unit(benchmark::kMillisecond);

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

void BM_SetEmailFilenameOnEveryRow(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen;
  screen.Fill(n);
  for (auto _ : state) {
    for (int row = 1; row <= n; ++row) screen.control.SetEmailFilename(static_cast<std::int16_t>(row), "mail.pdf");
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_SetEmailFilenameOnEveryRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

// A host that polls the count once per row it adds or reads.
void BM_InvoiceCountPollPerRow(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen;
  screen.Fill(n);
  for (auto _ : state) {
    for (int row = 1; row <= n; ++row) benchmark::DoNotOptimize(screen.control.InvoiceCount());
  }
  state.SetComplexityN(n);
}
BENCHMARK(BM_InvoiceCountPollPerRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

// One AddInvoice that opens the distribution window (closed at once) on a list of n invoices:
// the cost of a call must not grow with the list.
void BM_AddInvoiceShowingDistribution(benchmark::State& state) {
  const int n = static_cast<int>(state.range(0));
  Screen screen(false);
  screen.Fill(n - 1);
  headless::User user{screen.form};
  const Date day = *Date::FromYmd(2026, 2, 1);
  for (auto _ : state) {
    screen.form.ExpectDialog([&user](headless::Dialog& dialog) { user.Click(dialog.Get<headless::ButtonWidget>("cmdGLCancel")); });
    screen.control.AddInvoice(day, "INV", Currency::FromUnits(10'000), Variant(), Variant(true));
    state.PauseTiming();
    screen.control.Store().Remove(screen.control.Store().Count() - 1);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_AddInvoiceShowingDistribution)->Arg(512)->Arg(32767)->Unit(benchmark::kMicrosecond);

// The floor the list is measured against: the same rows as plain structs, scanned without any
// of the control's machinery.
struct PlainLine {
  std::string account;
  Currency amount;
};
struct PlainInvoice {
  Date date;
  std::string number;
  Currency amount, gst, expense;
  std::string payment_for, email;
  std::vector<PlainLine> lines;
};

std::vector<PlainInvoice> PlainList(int n) {
  std::vector<PlainInvoice> list(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    PlainInvoice& invoice = list[static_cast<std::size_t>(i)];
    invoice.date = *Date::FromYmd(2026, 2, 1);
    invoice.number = "INV-" + std::to_string(i) + " a description long enough to wrap twice";
    invoice.amount = Currency::FromUnits(1'000'000);
    invoice.gst = Currency::FromUnits(130'000);
    invoice.expense = invoice.amount - invoice.gst;
    for (int line = 0; line < kLinesPerInvoice; ++line) invoice.lines.push_back({"51" + std::to_string(line), Currency::FromUnits(87'000)});
  }
  return list;
}

void BM_FloorTotals(benchmark::State& state) {
  const auto list = PlainList(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    Currency amount, gst, expense;
    for (const PlainInvoice& invoice : list) {
      amount += invoice.amount;
      gst += invoice.gst;
      expense += invoice.expense;
    }
    benchmark::DoNotOptimize(amount);
    benchmark::DoNotOptimize(gst);
    benchmark::DoNotOptimize(expense);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_FloorTotals)->Apply(Sizes);

// Every invoice's lines summed and compared with its amount, as the validity check does.
void BM_FloorIsDataValid(benchmark::State& state) {
  const auto list = PlainList(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    bool valid = true;
    for (const PlainInvoice& invoice : list) {
      Currency lines;
      for (const PlainLine& line : invoice.lines) lines += line.amount;
      valid = valid && lines == invoice.expense;
    }
    benchmark::DoNotOptimize(valid);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_FloorIsDataValid)->Apply(Sizes);

// A copy of every invoice with its lines, as a record handed to the host must be.
void BM_FloorInvoiceValuesOfEveryRow(benchmark::State& state) {
  const auto list = PlainList(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    for (const PlainInvoice& invoice : list) {
      auto copy = std::make_shared<PlainInvoice>(invoice);
      benchmark::DoNotOptimize(copy);
    }
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_FloorInvoiceValuesOfEveryRow)->Apply(Sizes)->Unit(benchmark::kMillisecond);

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
        // the lines, and their shared block with its control block
        bytes += static_cast<double>(lines->capacity() * sizeof(InvoiceLine) + sizeof(InvoiceLineBlock)) + 16;
      }
    }
  }
  state.counters["bytes_per_invoice"] = bytes / n;
}
BENCHMARK(BM_BytesPerInvoice)->Arg(32767)->Iterations(1);

}  // namespace
}  // namespace zenta
