#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"
#include "zenta/records/chart_of_accounts.h"

namespace zenta {
namespace {

// A business chart: numbered accounts with names of two or three common words.
std::vector<GLAccount> Accounts(int count) {
  static const char* const kWords[] = {"TRAVEL",  "MEALS",   "OFFICE",  "SUPPLIES", "RENT",    "UTILITIES", "FUEL",
                                       "REPAIRS", "WAGES",   "BENEFITS", "INSURANCE", "LEGAL",  "AUDIT",    "BANK",
                                       "CHARGES", "FREIGHT", "POSTAGE", "PHONE",    "SOFTWARE", "HARDWARE", "TRAINING",
                                       "DUES",    "LICENCES", "ADVERTISING", "EQUIPMENT", "VEHICLE", "PARKING", "CLEANING",
                                       "SECURITY", "CONSULTING", "COMMISSIONS", "ROYALTIES"};
  constexpr int kWordCount = sizeof(kWords) / sizeof(kWords[0]);
  std::vector<GLAccount> accounts;
  accounts.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    std::string name = std::string(kWords[i % kWordCount]) + " " + kWords[(i / kWordCount) % kWordCount];
    if (i % 3 == 0) name += " " + std::string(kWords[(i / 7) % kWordCount]);
    accounts.push_back({std::to_string(10000 + i * 7), name, i % 50 != 0});
  }
  return accounts;
}

void BM_BuildChart(benchmark::State& state) {
  const std::vector<GLAccount> accounts = Accounts(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(ChartOfAccounts(accounts).Size());
}
BENCHMARK(BM_BuildChart)->Arg(10000)->Unit(benchmark::kMillisecond);

// What the payer has typed so far: a number prefix, a broad and a narrow name prefix, two words.
void BM_Complete(benchmark::State& state, const char* typed) {
  const ChartOfAccounts chart(Accounts(10000));
  for (auto _ : state) benchmark::DoNotOptimize(chart.Complete(typed));
}
BENCHMARK_CAPTURE(BM_Complete, number_1, "1")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Complete, number_4567, "4567")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Complete, name_t, "t")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Complete, name_trav, "trav")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Complete, two_words, "trav mea")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Complete, no_match, "zzz")->Unit(benchmark::kMicrosecond);

// One keystroke in the distribution window's account cell, on the headless toolkit: the key,
// the cell's filters, completion over 10,000 accounts, the offers shown and the footer's name.
void BM_KeystrokeInAccountCell(benchmark::State& state) {
  headless::Form form;
  headless::Host host{form};
  headless::User user{form};
  form.AddSurface("caller");
  LibraryContext context{host, [&form] { return form.CreateDialog("frmDistribution"); }};
  context.SetChart(std::make_shared<const ChartOfAccounts>(Accounts(10000)));
  FrmDistribution& dialog = context.Distribution();
  dialog.SetVisibleInvoice(false);
  dialog.SetIsFXPayment(false);
  dialog.SetXTempDistribution(std::make_shared<platform::Array2D>(0, -1, 0, 3));
  dialog.SetupForm();
  dialog.SetAmountToDistribute(Currency::FromInteger(100));
  form.ExpectDialog([&](headless::Dialog&) {
    user.Type("tra");
    for (auto _ : state) {
      user.Type("v");
      user.PressBackspace();
    }
    user.PressEscape();
    user.PressEscape();
    user.PressEscape();
  });
  dialog.Show();
  state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_KeystrokeInAccountCell)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zenta
