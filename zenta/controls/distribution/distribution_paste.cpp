#include "zenta/controls/distribution/distribution_paste.h"

#include <vector>

#include "zenta/core/message_template.h"
#include "zenta/core/number_format.h"
#include "zenta/entry/account_number.h"
#include "zenta/entry/clipboard_table.h"
#include "zenta/entry/message_templates.h"
#include "zenta/entry/pasted_amount.h"

namespace zenta {
namespace {

using Column = DistributionModel;

constexpr const char* kRefused = "These lines were not pasted:";
constexpr const char* kNotAnAmount = "not an amount";
constexpr const char* kAmountRequired = "An amount is required.";

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

}  // namespace

DistributionPaste::Outcome DistributionPaste::Paste(DistributionModel& model, const platform::HostServices& host,
                                                    std::string_view text, int current_column) {
  Outcome outcome;
  const std::shared_ptr<platform::Array2D>& table = model.Table();
  if (!table) return outcome;
  const int amount_column = model.AmountColumn();
  std::vector<int> mapping{Column::kAccountColumn, amount_column};
  if (current_column == amount_column) mapping.erase(mapping.begin());

  const entry::TableRows rows = entry::ParseClipboardTable(text);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    std::string account;
    std::string amount_text;
    bool any = false;
    for (std::size_t c = 0; c < rows[i].size() && c < mapping.size(); ++c) {
      const std::string cell = Trimmed(rows[i][c]);
      any = any || !cell.empty();
      // An account keeps what typing lets into its cell.
      if (mapping[c] == Column::kAccountColumn) {
        account = model.CleanCellText(Column::kAccountColumn, cell, host);
      } else {
        amount_text = cell;
      }
    }
    if (!any) continue;
    auto refuse = [&](const char* reason) {
      outcome.refused += "\n" + FillTemplate(texts::kRefusedLine, {std::to_string(i + 1), reason});
    };
    std::optional<Currency> amount;
    if (!amount_text.empty()) {
      amount = entry::ParsePastedAmount(amount_text);
      if (!amount) {
        refuse(kNotAnAmount);
        continue;
      }
    }
    // The cell rules of typing, with the amount already a value: its text carries a "." so
    // nothing reads it as cents.
    std::string account_text = account;
    const Variant amount_cell = amount ? Variant(*amount) : Variant();
    if (model.ValidateCell(Column::kAccountColumn, account_text, account, amount_cell) !=
        DistributionModel::CellVerdict::Accept) {
      refuse(entry::kAccountTooLong);
      continue;
    }
    std::string typed = amount ? FormatNumber(*amount, formats::kAmount) : std::string();
    if (model.ValidateCell(amount_column, typed, account, amount_cell) != DistributionModel::CellVerdict::Accept) {
      refuse(kAmountRequired);
      continue;
    }
    model.ForgetRejectedEdit();
    const int row = table->UpperBound(1) + 1;
    table->AppendRows(1);
    if (!account.empty()) table->Set(row, Column::kAccountColumn, Variant(account));
    if (amount) {
      table->Set(row, amount_column, Variant(*amount));
      if (const auto converted = model.ConvertAmount(amount_column, Variant(*amount))) {
        table->Set(row, converted->column, Variant(converted->value));
      }
    }
    ++outcome.added;
    outcome.last_row = row;
  }
  if (!outcome.refused.empty()) outcome.refused = kRefused + outcome.refused;
  return outcome;
}

}  // namespace zenta
