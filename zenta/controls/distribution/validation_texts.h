#pragma once

namespace zenta::texts {

// Reasons the grid controls give when their amounts and G/L lines do not agree.
inline constexpr const char* kGSTRequired = "A GST/HST amount is required (0.00 is acceptable)";
inline constexpr const char* kNoDistribution =
    "You must enter the G/L Distribution. Please click the \"View Dist\" button.";

}  // namespace zenta::texts
