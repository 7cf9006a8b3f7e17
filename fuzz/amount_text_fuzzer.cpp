// Any text, as typed or pasted, must parse, format and filter without crashing, and a parsed
// amount must read back as the same amount.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "zenta/core/currency.h"
#include "zenta/core/date.h"
#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/entry/text_filters.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    if (auto amount = zenta::Currency::Parse(text)) {
      if (zenta::Currency::Parse(amount->ToString()) != amount) std::abort();
      (void)zenta::FormatNumber(*amount, zenta::formats::kAmountDisplay);
      (void)amount->DividedBy(100);
    }
  } catch (const zenta::HostError&) {
  }
  if (auto date = zenta::Date::Parse(text)) {
    if (date->ToText() != text) std::abort();
  }
  zenta::headless::Form form;
  zenta::headless::Host host(form);
  try {
    (void)zenta::entry::StripInvalidChars(text);
    (void)zenta::entry::NumericCharsOnly(text, host);
  } catch (const zenta::HostError&) {
  }
  return 0;
}
