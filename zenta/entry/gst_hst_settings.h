#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/rate.h"
#include "zenta/entry/gst_hst_table.h"
#include "zenta/platform/keys.h"

namespace zenta {

// Which GST/HST rate applies to the payer: an explicit rate when the host set one, else the
// rate of the payer's province on the day, from the shipped table or the host's own. With
// neither set nothing is worked out, and the controls behave as if the feature were absent.
class GstHstSettings {
 public:
  // The key that fills a GST/HST cell with the tax included in the amount.
  static constexpr int kFillKey = platform::keys::kF8;

  const std::string& Province() const { return province_; }
  // "" clears it; a code the table does not hold raises HostError::InvalidProcedureCall.
  void SetProvince(std::string_view province);
  const std::optional<Rate>& ExplicitRate() const { return explicit_rate_; }
  // A rate below 0 or of 1 (100 %) and above raises InvalidProcedureCall; nullopt clears it.
  void SetExplicitRate(std::optional<Rate> rate);
  const GstHstTable& Table() const { return table_ ? *table_ : GstHstTable::Canada(); }
  void SetTable(GstHstTable table) { table_ = std::move(table); }

  std::optional<Rate> RateOn(Date day) const;
  // The tax included in `amount` at the day's rate, or nullopt when no rate applies.
  std::optional<Currency> IncludedIn(Currency amount, Date day) const;
  // A quiet note for a typed GST/HST more than a cent away from what the rate gives ("The rate
  // gives GST/HST of 13.00"); "" when it is close enough or no rate applies.
  std::string HintFor(Currency amount, Currency typed, Date day) const;

 private:
  std::string province_;
  std::optional<Rate> explicit_rate_;
  std::optional<GstHstTable> table_;
};

}  // namespace zenta
