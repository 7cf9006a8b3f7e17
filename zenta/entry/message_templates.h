#pragma once

#include <array>

namespace zenta::texts {

// Messages with figures in them (see FillTemplate). The Qt layer translates the template and
// puts the figures back, so every such template is listed in kTemplates.
inline constexpr const char* kRefusedRow = "Row %1, %2: %3";  // row, column caption, reason
inline constexpr const char* kQuestionRows = "Rows: %1";      // the pasted rows a question is about
inline constexpr const char* kRefusedLine = "Line %1: %2";    // line, reason
inline constexpr const char* kUnknownAccountLine = "Line %1: the account %2 is not in the chart of accounts.";
inline constexpr const char* kInactiveAccountLine = "Line %1: the account %2 is inactive in the chart of accounts.";
inline constexpr const char* kInactiveAccount = "%1 (inactive)";  // account number and name

// Most specific first: a text is read as the first template it fits.
inline constexpr std::array kTemplates{kUnknownAccountLine, kInactiveAccountLine, kRefusedLine,
                                       kRefusedRow,         kQuestionRows,        kInactiveAccount};

}  // namespace zenta::texts
