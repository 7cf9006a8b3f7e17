#include "zenta/controls/distribution/library_context.h"

#include <gtest/gtest.h>

#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"

namespace zenta {
namespace {

TEST(LibraryContextTest, MakesTheWindowOnFirstUseOnly) {
  headless::Form form;
  headless::Host host(form);
  int made = 0;
  LibraryContext context(host, [&] {
    ++made;
    return form.CreateDialog("frmDistribution");
  });
  EXPECT_FALSE(context.HasDistribution());
  EXPECT_EQ(made, 0);
  FrmDistribution& dialog = context.Distribution();
  EXPECT_EQ(&context.Distribution(), &dialog);
  EXPECT_EQ(made, 1);
}

TEST(LibraryContextTest, TheCurrencyCodeStartsCanadianAndTakesTheLastSetting) {
  headless::Form form;
  headless::Host host(form);
  LibraryContext context(host, [&] { return form.CreateDialog(); });
  EXPECT_EQ(context.CurrencyCode(), "CAD");
  context.SetCurrencyCode("USD");
  context.SetCurrencyCode("EUR");
  EXPECT_EQ(context.CurrencyCode(), "EUR");
}

TEST(LibraryContextTest, AFactoryThatMakesNothingIsAClearError) {
  headless::Form form;
  headless::Host host(form);
  EXPECT_THROW(LibraryContext(host, nullptr), std::invalid_argument);
  LibraryContext context(host, [] { return std::unique_ptr<platform::DialogSurface>(); });
  EXPECT_THROW(context.Distribution(), std::runtime_error);
}

struct HomeCase {
  const char* code;
  bool home;
};

class HomeCurrency : public ::testing::TestWithParam<HomeCase> {};

TEST_P(HomeCurrency, IsABlankCodeOrExactlyCad) {
  EXPECT_EQ(LibraryContext::IsHomeCurrency(GetParam().code), GetParam().home) << "'" << GetParam().code << "'";
}

INSTANTIATE_TEST_SUITE_P(Table, HomeCurrency,
                         ::testing::Values(HomeCase{"", true}, HomeCase{"   ", true}, HomeCase{"CAD", true},
                                           HomeCase{"USD", false}, HomeCase{"cad", false},
                                           HomeCase{" CAD", false}, HomeCase{"CAD ", false}));

}  // namespace
}  // namespace zenta
