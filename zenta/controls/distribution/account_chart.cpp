#include "zenta/controls/distribution/account_chart.h"

#include "zenta/core/message_template.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/message_templates.h"

namespace zenta {

AccountChart::Note AccountChart::NoteFor(std::string_view account) const {
  if (!HasChart() || utf8::Trim(account).empty()) return {};
  const GLAccount* found = chart_->Find(account);
  if (!found) return {kUnknownNote, true};
  if (!found->active) return {FillTemplate(texts::kInactiveAccount, {ChartOfAccounts::Caption(*found)}), true};
  return {ChartOfAccounts::Caption(*found), false};
}

std::optional<AccountChart::Refusal> AccountChart::StrictRefusal(const platform::Array2D& table,
                                                                int account_column) const {
  if (!strict_ || !HasChart() || table.RowCount() == 0) return std::nullopt;
  const int first = table.LowerBound(1);
  for (int row = first; row <= table.UpperBound(1); ++row) {
    const Variant& cell = table.Get(row, account_column);
    if (cell.IsNull() || cell.IsEmpty()) continue;
    const std::string account = cell.ToString();
    if (utf8::Trim(account).empty()) continue;
    const GLAccount* found = chart_->Find(account);
    if (found && found->active) continue;
    const std::string line = std::to_string(row - first + 1);
    const char* templ = found ? texts::kInactiveAccountLine : texts::kUnknownAccountLine;
    return Refusal{row, FillTemplate(templ, {line, utf8::Trim(account)})};
  }
  return std::nullopt;
}

}  // namespace zenta
