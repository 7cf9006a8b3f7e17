#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "zenta/core/currency.h"
#include "zenta/core/number_format.h"

namespace zenta {
namespace {

void BM_SumAMillionAmounts(benchmark::State& state) {
  const Currency cent = Currency::FromText("0.01");
  for (auto _ : state) {
    Currency total;
    for (int i = 0; i < 1'000'000; ++i) total += cent;
    benchmark::DoNotOptimize(total);
  }
  state.SetItemsProcessed(state.iterations() * 1'000'000);
}
BENCHMARK(BM_SumAMillionAmounts)->Unit(benchmark::kMillisecond);

void BM_ParseAmount(benchmark::State& state) {
  const std::vector<std::string> texts = {"12.5", "-0.05", "123456789.12", "1234", ".75"};
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(Currency::Parse(texts[i++ % texts.size()]));
}
BENCHMARK(BM_ParseAmount);

void BM_FormatAmountForDisplay(benchmark::State& state) {
  const std::vector<Currency> amounts = {Currency::FromText("-1234567.5"), Currency::FromText("12.5"),
                                         Currency(), Currency::FromText("0.125"), Currency::Max()};
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(FormatNumber(amounts[i++ % amounts.size()], formats::kAmountDisplay));
  }
}
BENCHMARK(BM_FormatAmountForDisplay);

void BM_ConvertAtAnAccountingRate(benchmark::State& state) {
  const Currency amount = Currency::FromText("100");
  for (auto _ : state) benchmark::DoNotOptimize(amount.MultipliedBy(1.234567).RoundedTo(2));
}
BENCHMARK(BM_ConvertAtAnAccountingRate);

}  // namespace
}  // namespace zenta
