#include "zenta/entry/amount_entry.h"

#include <algorithm>

#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/core/utf8.h"

namespace zenta::entry {

namespace {
constexpr int kIntegerDigits = 9;
constexpr int kDecimals = 2;
}  // namespace

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

bool AmountKeyFits(std::string_view text, int selection_start, int selection_length, char32_t key) {
  if (key == 8) return true;
  std::u32string result = utf8::Decode(text);
  const auto size = static_cast<int>(result.size());
  const int start = std::clamp(selection_start, 0, size);
  const int length = std::clamp(selection_length, 0, size - start);
  result.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), 1, key);
  int integer = 0;
  int fraction = 0;
  bool point = false;
  for (std::size_t i = 0; i < result.size(); ++i) {
    const char32_t c = result[i];
    if (c == U'-' && i == 0) continue;
    if (c == U'.' && !point) {
      point = true;
    } else if (c >= U'0' && c <= U'9') {
      ++(point ? fraction : integer);
    } else {
      return false;
    }
  }
  return integer <= kIntegerDigits && fraction <= kDecimals;
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

std::string TypedGridAmount(std::string_view typed) {
  if (auto cents = ImpliedDecimalText(typed)) return *cents;
  if (!Currency::Parse(typed)) return "0";
  return std::string(typed);
}

}  // namespace zenta::entry
