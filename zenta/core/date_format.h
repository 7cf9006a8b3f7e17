#pragma once

#include <string>
#include <string_view>

#include "zenta/core/date.h"

namespace zenta {

// Formats a date with tokens "yyyy" (year), "yyy" (also the full year), "mmmm" (English month
// name), "mm" (two-digit month), "dd" (two-digit day); other characters are copied.
// ("yyyy/mm/dd") -> "2026/11/22"; ("mmmm yyy") -> "November 2026".
std::string FormatDate(Date date, std::string_view pattern);

namespace formats {
inline constexpr std::string_view kDate = "yyyy/mm/dd";
inline constexpr std::string_view kDateMask = "____/__/__";
inline constexpr std::string_view kCalendarTitle = "mmmm yyy";
inline constexpr std::string_view kCalendarDayNames = "Sun,Mon,Tue,Wed,Thu,Fri,Sat";
}  // namespace formats

}  // namespace zenta
