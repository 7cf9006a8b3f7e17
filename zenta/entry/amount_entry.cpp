#include "zenta/entry/amount_entry.h"

#include "zenta/core/number_format.h"

namespace zenta::entry {

bool ApplyImpliedDecimal(platform::NumberEdit& edit) {
  if (edit.Text().find('.') != std::string::npos) return false;
  std::optional<Currency> value = edit.Value();
  if (!value) return false;  // an erased field stays empty
  edit.SetText(FormatNumber(value->DividedBy(100), formats::kAmount));
  return true;
}

void SetAmount(platform::NumberEdit& edit, Currency value) {
  edit.SetValue(value);
  if (edit.Text().find('.') == std::string::npos) edit.SetText(FormatNumber(value, formats::kAmount));
}

void SetAmount(platform::NumberEdit& edit, float value) {
  // A single goes in as the decimal it shows (12.5f, not 12.5000000001).
  SetAmount(edit, Currency::FromDouble(static_cast<double>(value)));
}

Currency AmountAsCurrency(const platform::NumberEdit& edit) { return edit.Value().value_or(Currency()); }

float AmountAsSingle(const platform::NumberEdit& edit) { return AmountAsCurrency(edit).ToSingle(); }

void ApplyAmountSettings(platform::NumberEdit& edit) {
  edit.SetDisplayFormat(std::string(formats::kAmountDisplay));
  edit.SetEditFormat(std::string(formats::kAmountEdit));
}

}  // namespace zenta::entry
