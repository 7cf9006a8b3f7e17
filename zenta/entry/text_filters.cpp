#include "zenta/entry/text_filters.h"

#include <functional>

#include "zenta/core/host_error.h"
#include "zenta/core/utf8.h"

namespace zenta::entry {

namespace {
std::string Keep(std::string_view text, const std::function<bool(char32_t)>& passes) {
  std::u32string points = utf8::Decode(text);
  // The filters walk the text with a 16-bit counter.
  if (points.size() > kMaxFilteredLength) throw HostError::Overflow("StringFilter");
  std::u32string kept;
  kept.reserve(points.size());
  for (char32_t c : points) {
    if (passes(c)) kept.push_back(c);
  }
  return utf8::Encode(kept);
}

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }
}  // namespace

std::string StripInvalidChars(std::string_view text) {
  return Keep(text, [](char32_t c) { return c == 32 || c == 33 || (c >= 35 && c <= 125); });
}

std::string NumericCharsOnly(std::string_view text, const platform::HostServices& host) {
  const char32_t separator = host.DecimalSeparator();
  return Keep(text, [separator](char32_t c) { return c == U'-' || IsDigit(c) || c == separator; });
}

std::string DigitsAndDecimalOnly(std::string_view text, const platform::HostServices& host) {
  const char32_t separator = host.DecimalSeparator();
  return Keep(text, [separator](char32_t c) { return IsDigit(c) || c == separator; });
}

}  // namespace zenta::entry
