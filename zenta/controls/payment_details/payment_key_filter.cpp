#include "zenta/controls/payment_details/payment_key_filter.h"

#include <algorithm>
#include <string>

#include "zenta/core/utf8.h"
#include "zenta/entry/amount_key_filter.h"
#include "zenta/platform/keys.h"

namespace zenta {

namespace {

constexpr entry::AmountDigitLimits kWithPoint{7, 2};
constexpr entry::AmountDigitLimits kWithoutPoint{9, 2};

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

}  // namespace

PaymentKeyVerdict FilterPaymentKey(const platform::CellKeyPressArgs& key) {
  const char32_t c = key.key;
  if (c == platform::keys::kEnter || c == platform::keys::kBackspace) return PaymentKeyVerdict::Pass;
  if (!IsDigit(c) && c != U'.' && c != U'-') return PaymentKeyVerdict::Discard;

  const std::u32string text = utf8::Decode(key.text);
  const auto size = static_cast<int>(text.size());
  const int start = std::clamp(key.selection_start, 0, size);
  const int length = std::clamp(key.selection_length, 0, size - start);
  if (length == size) return PaymentKeyVerdict::Pass;

  const bool has_point = text.find(U'.') != std::u32string::npos;
  const std::u32string selected = text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
  if (c == U'.' && has_point && selected.find(U'.') == std::u32string::npos) return PaymentKeyVerdict::Discard;

  const entry::AmountDigitLimits limits = has_point || c == U'.' ? kWithPoint : kWithoutPoint;
  if (entry::FilterAmountKey(key.text, start, length, c, limits) != 0) return PaymentKeyVerdict::Pass;
  // A minus sign only goes first; anything else refused here is too long.
  return c == U'-' ? PaymentKeyVerdict::Discard : PaymentKeyVerdict::Beep;
}

}  // namespace zenta
