#include <gtest/gtest.h>

#include <string>

#include "zenta/core/currency.h"
#include "zenta/core/host_error.h"
#include "zenta/entry/gst_hst_settings.h"
#include "zenta/entry/gst_hst_table.h"
#include "zenta/entry/included_tax.h"

namespace zenta {
namespace {

Currency Money(const char* text) { return *Currency::Parse(text); }
Rate Percent(int whole) { return *Rate::FromParts(whole, 2); }
Date Day(int y, int m, int d) { return *Date::FromYmd(y, m, d); }

TEST(IncludedTax, IsExactToTheCent) {
  EXPECT_EQ(IncludedTax(Money("113.00"), Percent(13)), Money("13.00"));
  EXPECT_EQ(IncludedTax(Money("115.00"), Percent(15)), Money("15.00"));
  EXPECT_EQ(IncludedTax(Money("105.00"), Percent(5)), Money("5.00"));
  EXPECT_EQ(IncludedTax(Money("-105.00"), Percent(5)), Money("-5.00"));
  EXPECT_EQ(IncludedTax(Money("0"), Percent(13)), Money("0"));
  // 100 × 0.13 / 1.13 = 11.504424...; 1.05 × 0.05 / 1.05 = 0.05.
  EXPECT_EQ(IncludedTax(Money("100.00"), Percent(13)), Money("11.50"));
  EXPECT_EQ(IncludedTax(Money("1.05"), Percent(5)), Money("0.05"));
}

TEST(IncludedTax, RoundsAnExactHalfCentToEven) {
  // 0.105 at 5 % holds 0.005 exactly, 0.315 holds 0.015.
  EXPECT_EQ(IncludedTax(Money("0.105"), Percent(5)), Money("0.00"));
  EXPECT_EQ(IncludedTax(Money("0.315"), Percent(5)), Money("0.02"));
  EXPECT_EQ(IncludedTax(Money("-0.315"), Percent(5)), Money("-0.02"));
}

TEST(IncludedTax, RefusesWhatCannotBeWorkedOut) {
  EXPECT_THROW(IncludedTax(Money("10"), *Rate::FromParts(-1, 0)), HostError);
  EXPECT_THROW(IncludedTax(Currency::Max(), *Rate::FromParts(5, -36)), HostError);
  // The largest amount still works: the product is formed in 128 bits.
  EXPECT_GT(IncludedTax(Currency::Max(), Percent(15)), Currency());
}

struct ProvinceCase {
  const char* province;
  int percent;
};

class EveryProvince : public testing::TestWithParam<ProvinceCase> {};

TEST_P(EveryProvince, IncludedTaxAtTodaysRateIsExactAtSeveralAmounts) {
  const ProvinceCase c = GetParam();
  const Date today = Day(2026, 1, 15);
  const auto rate = GstHstTable::Canada().RateOn(c.province, today);
  ASSERT_TRUE(rate.has_value());
  EXPECT_EQ(*rate, Percent(c.percent));
  for (std::int64_t cents : {0LL, 1LL, 99LL, 10000LL, 12345LL, 99999999LL, -4321LL}) {
    const Currency net = Currency::FromUnits(cents * 100);
    // A net amount plus its tax rounded to the cent gives back that tax, whatever the rate.
    const Currency tax_on_net = Currency::FromUnits(cents * c.percent).RoundedTo(2);
    const Currency gross = net + tax_on_net;
    const Currency included = IncludedTax(gross, *rate);
    EXPECT_EQ(included, tax_on_net) << c.province << " " << gross;
    // amount × r ÷ (1 + r), checked in integers: |included × (100 + p) − gross × p| ≤ half a
    // cent × (100 + p).
    const std::int64_t lhs = included.Units() * (100 + c.percent);
    const std::int64_t rhs = gross.Units() * c.percent;
    EXPECT_LE(std::llabs(lhs - rhs), 50 * (100 + c.percent)) << c.province << " " << gross;
    EXPECT_EQ(included.Units() % 100, 0) << "not whole cents";
  }
}

INSTANTIATE_TEST_SUITE_P(Canada, EveryProvince,
                         testing::Values(ProvinceCase{"AB", 5}, ProvinceCase{"BC", 5}, ProvinceCase{"MB", 5},
                                         ProvinceCase{"NB", 15}, ProvinceCase{"NL", 15}, ProvinceCase{"NS", 14},
                                         ProvinceCase{"NT", 5}, ProvinceCase{"NU", 5}, ProvinceCase{"ON", 13},
                                         ProvinceCase{"PE", 15}, ProvinceCase{"QC", 5}, ProvinceCase{"SK", 5},
                                         ProvinceCase{"YT", 5}),
                         [](const testing::TestParamInfo<ProvinceCase>& param_info) { return std::string(param_info.param.province); });

TEST(GstHstTable, FollowsEffectiveDates) {
  const GstHstTable& table = GstHstTable::Canada();
  EXPECT_EQ(table.Provinces().size(), 13u);
  EXPECT_EQ(table.RateOn("NS", Day(2025, 3, 31)), Percent(15));
  EXPECT_EQ(table.RateOn("NS", Day(2025, 4, 1)), Percent(14));
  EXPECT_EQ(table.RateOn("on", Day(2010, 6, 30)), Percent(5));
  EXPECT_EQ(table.RateOn(" ON ", Day(2010, 7, 1)), Percent(13));
  EXPECT_EQ(table.RateOn("BC", Day(2012, 1, 1)), Percent(12));
  EXPECT_EQ(table.RateOn("BC", Day(2013, 4, 1)), Percent(5));
  EXPECT_EQ(table.RateOn("ON", Day(2007, 12, 31)), std::nullopt);
  EXPECT_EQ(table.RateOn("XX", Day(2026, 1, 1)), std::nullopt);
}

TEST(GstHstSettings, ExplicitRateWinsOverProvinceAndNothingAppliesUnset) {
  GstHstSettings settings;
  const Date day = Day(2026, 1, 15);
  EXPECT_EQ(settings.IncludedIn(Money("113"), day), std::nullopt);
  settings.SetProvince("on");
  EXPECT_EQ(settings.Province(), "ON");
  EXPECT_EQ(settings.IncludedIn(Money("113"), day), Money("13.00"));
  settings.SetExplicitRate(Percent(5));
  EXPECT_EQ(settings.IncludedIn(Money("105"), day), Money("5.00"));
  settings.SetExplicitRate(std::nullopt);
  EXPECT_THROW(settings.SetProvince("ZZ"), HostError);
  EXPECT_EQ(settings.Province(), "ON");
  EXPECT_THROW(settings.SetExplicitRate(Percent(100)), HostError);
  EXPECT_THROW(settings.SetExplicitRate(*Rate::FromParts(-5, 2)), HostError);
}

TEST(GstHstSettings, AHostTableReplacesTheShippedOne) {
  GstHstSettings settings;
  settings.SetTable(GstHstTable({{"ON", Day(2026, 1, 1), Percent(10)}}));
  settings.SetProvince("ON");
  EXPECT_EQ(settings.IncludedIn(Money("110"), Day(2026, 2, 1)), Money("10.00"));
  EXPECT_THROW(settings.SetProvince("QC"), HostError);
}

TEST(GstHstSettings, HintsOnlyWhenMoreThanACentAway) {
  GstHstSettings settings;
  settings.SetProvince("ON");
  const Date day = Day(2026, 1, 15);
  EXPECT_EQ(settings.HintFor(Money("113"), Money("13.00"), day), "");
  EXPECT_EQ(settings.HintFor(Money("113"), Money("13.01"), day), "");
  EXPECT_EQ(settings.HintFor(Money("113"), Money("12.99"), day), "");
  EXPECT_EQ(settings.HintFor(Money("113"), Money("12.98"), day), "The rate gives GST/HST of 13.00");
  EXPECT_EQ(settings.HintFor(Money("113"), Money("0"), day), "The rate gives GST/HST of 13.00");
  EXPECT_EQ(settings.HintFor(Currency::Max(), Currency::Min(), day), "");
  GstHstSettings unset;
  EXPECT_EQ(unset.HintFor(Money("113"), Money("0"), day), "");
}

}  // namespace
}  // namespace zenta
