#include "zenta/entry/amount_entry.h"

#include <algorithm>

#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"

namespace zenta::entry {

std::optional<Currency> ImpliedDecimalValue(std::string_view text) {
  if (text.find('.') != std::string_view::npos) return std::nullopt;
  try {
    std::optional<Currency> value = Currency::Parse(text);
    if (!value) return std::nullopt;  // an erased field stays empty
    return value->DividedBy(100);
  } catch (const HostError&) {
    return std::nullopt;  // too large to hold: left as typed rather than wrapped
  }
}

std::optional<std::string> ImpliedDecimalText(std::string_view text) {
  std::optional<Currency> value = ImpliedDecimalValue(text);
  if (!value) return std::nullopt;
  return FormatNumber(*value, formats::kAmount);
}

bool ApplyImpliedDecimal(platform::NumberEdit& edit) {
  std::optional<std::string> text = ImpliedDecimalText(edit.Text());
  if (!text) return false;
  edit.SetText(*text);
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

std::optional<Currency> PendingValue(const platform::NumberEdit& edit) {
  if (edit.Editing()) {
    if (std::optional<Currency> cents = ImpliedDecimalValue(edit.Text())) return cents;
  }
  return edit.Value();
}

Currency PendingGridAmount(std::string_view typed) {
  try {
    return Currency::Parse(TypedGridAmount(typed)).value_or(Currency());
  } catch (const HostError&) {
    return Currency();
  }
}

Currency AmountAsCurrency(const platform::NumberEdit& edit) { return PendingValue(edit).value_or(Currency()); }

float AmountAsSingle(const platform::NumberEdit& edit) { return AmountAsCurrency(edit).ToSingle(); }

void ApplyAmountSettings(platform::NumberEdit& edit) {
  edit.SetDisplayFormat(std::string(formats::kAmountDisplay));
  edit.SetEditFormat(std::string(formats::kAmountEdit));
}

std::string TypedGridAmount(std::string_view typed) {
  if (auto cents = ImpliedDecimalText(typed)) return *cents;
  if (!Currency::Parse(typed)) return "0";
  return std::string(typed);
}

}  // namespace zenta::entry
