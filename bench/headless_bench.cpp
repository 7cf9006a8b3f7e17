#include <benchmark/benchmark.h>

#include "zenta/controls/simple/std_payment.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/memory_property_bag.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta {
namespace {

// A payer's keystroke round trip on a control: what a host test suite pays per field.
void BM_TypeAnAmountAndTabOn(benchmark::State& state) {
  headless::Form form;
  auto& surface = form.AddSurface("payment");
  headless::Host host(form);
  StdPayment payment(surface, host);
  payment.ReadProperties(headless::MemoryPropertyBag());
  payment.SetBusinessMode(true);
  form.AddHostField("next");
  headless::User user(form);
  auto& amount = surface.Get<platform::NumberEdit>("txtPaymentAmount");
  for (auto _ : state) {
    user.Click(amount);
    user.Type("2500\t");
    host.ClearEvents();
  }
}
BENCHMARK(BM_TypeAnAmountAndTabOn);

}  // namespace
}  // namespace zenta
