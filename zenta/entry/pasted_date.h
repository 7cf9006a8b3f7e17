#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/date.h"

namespace zenta::entry {

// A date pasted as text: "2026/03/15", "2026-03-15", or in the host locale's short form
// `short_pattern` ("d", "dd", "M", "MM", "yy", "yyyy" and separators, as "M/d/yy"). A two-digit
// year is in this century. Blanks around it are ignored; anything else gives nullopt.
std::optional<Date> ParsePastedDate(std::string_view text, std::string_view short_pattern);

}  // namespace zenta::entry
