#include <benchmark/benchmark.h>

#include "zenta/records/cls_distributions.h"

namespace zenta {
namespace {

// Clear must stay linear: emptying the largest collection it accepts is one pass.
void BM_AddThenClear(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  for (auto _ : state) {
    clsDistributions lines;
    for (int i = 0; i < count; ++i) lines.Add(Variant(), "5100", Currency::FromInteger(i));
    lines.Clear();
    benchmark::DoNotOptimize(lines.Count());
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_AddThenClear)->RangeMultiplier(8)->Range(64, 32767)->Complexity(benchmark::oN);

void BM_ItemByKey(benchmark::State& state) {
  clsDistributions lines;
  for (int i = 0; i < 1000; ++i) lines.Add(Variant(), "5100", Currency(), "K" + std::to_string(i));
  for (auto _ : state) benchmark::DoNotOptimize(lines.Item(Variant("k500")));
}
BENCHMARK(BM_ItemByKey);

}  // namespace
}  // namespace zenta
