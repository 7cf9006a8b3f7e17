#pragma once

#include <string>
#include <string_view>

#include "zenta/platform/host_services.h"

namespace zenta::entry {

// Pure filters: each keeps the characters of its input that pass its test, in order. Texts of
// more than 32,767 characters overflow the filters' 16-bit counter and raise
// HostError::Overflow instead of returning.

// Keeps codes 32, 33 and 35 to 125: drops the double quote, control characters, "~", 127 and
// everything above 127 (accented letters included).
std::string StripInvalidChars(std::string_view text);
// Keeps "-", the digits and the host's decimal separator, asked afresh on every call.
std::string NumericCharsOnly(std::string_view text, const platform::HostServices& host);
// Keeps the digits and the host's decimal separator.
std::string DigitsAndDecimalOnly(std::string_view text, const platform::HostServices& host);

inline constexpr std::size_t kMaxFilteredLength = 32767;

}  // namespace zenta::entry
