#include "zenta/entry/gst_hst_settings.h"

#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/entry/included_tax.h"

namespace zenta {

namespace {
constexpr const char* kSource = "GSTRate";
constexpr Currency kOneCent = Currency::FromUnits(Currency::kScale / 100);
}  // namespace

void GstHstSettings::SetProvince(std::string_view province) {
  std::string code = GstHstTable::NormalisedCode(province);
  if (!code.empty() && !Table().HasProvince(code)) throw HostError::InvalidProcedureCall(kSource);
  province_ = std::move(code);
}

void GstHstSettings::SetExplicitRate(std::optional<Rate> rate) {
  if (rate && (rate->Significand() < 0 || !(rate->ToCurrency(kSource) < Currency::FromInteger(1)))) {
    throw HostError::InvalidProcedureCall(kSource);
  }
  explicit_rate_ = rate;
}

std::optional<Rate> GstHstSettings::RateOn(Date day) const {
  if (explicit_rate_) return explicit_rate_;
  if (province_.empty()) return std::nullopt;
  return Table().RateOn(province_, day);
}

std::optional<Currency> GstHstSettings::IncludedIn(Currency amount, Date day) const {
  const std::optional<Rate> rate = RateOn(day);
  if (!rate) return std::nullopt;
  return IncludedTax(amount, *rate, kSource);
}

std::string GstHstSettings::HintFor(Currency amount, Currency typed, Date day) const {
  try {
    const std::optional<Currency> expected = IncludedIn(amount, day);
    if (!expected) return {};
    const Currency gap = typed > *expected ? typed - *expected : *expected - typed;
    if (gap <= kOneCent) return {};
    return "The rate gives GST/HST of " + FormatNumber(*expected, formats::kAmount);
  } catch (const HostError&) {
    return {};  // an amount too large to compare has nothing quiet to say
  }
}

}  // namespace zenta
