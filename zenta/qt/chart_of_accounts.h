#pragma once

#include <QString>

#include "zenta/records/chart_of_accounts.h"

/// @cond internal
class QAbstractItemModel;
/// @endcond

namespace zenta::qt {

/// Where the columns of a host's account model are: number and name, and optionally a column
/// whose value reads as false for an inactive account (-1: every account is active).
struct AccountColumns {
  int number = 0;   ///< The account number's column.
  int name = 1;     ///< The account name's column.
  int active = -1;  ///< The active flag's column, or -1 when every account is active.
};

/// The accounts `model` holds now, read through its DisplayRole (the active column through
/// CheckStateRole when it has one, else DisplayRole).
ChartOfAccounts ChartFromModel(const QAbstractItemModel& model, AccountColumns columns = {});

/// The accounts of a chart file: plain text, one account a line, "number,name" or
/// "number,name,active" separated by commas or tabs (tab-separated when any line holds a tab),
/// cells in double quotes as spreadsheets write them. An active column reading 0, false, no or
/// inactive marks an inactive account; blank lines and a first line whose number holds no digit
/// (a header) are skipped. Numbers are kept as a payer types them: upper case, at most 30
/// characters. The same file serves Qt Designer's "Choose Default G/L Account..." and a running
/// host, e.g. `ApplicationContext().SetChart(std::make_shared<const ChartOfAccounts>(ChartFromFile(path)))`.
/// Lines that give no account are left out; `error`, when given, receives one "Line 4: reason"
/// a line for them, or why the file could not be read, and is emptied when all went well.
ChartOfAccounts ChartFromFile(const QString& path, QString* error = nullptr);

/// Gives every control of the application the accounts of `model`, read again whenever the model
/// changes (rows added, removed or moved, data changed, reset), so a model the host already
/// keeps can be shared. nullptr takes the chart away and accounts are free text again.
void SetChartOfAccounts(QAbstractItemModel* model, AccountColumns columns = {});
/// Accept in the distribution window refuses an account not in the chart, or inactive in it.
void SetStrictAccounts(bool strict);

/// The payer's province or territory ("ON"), whose GST/HST rate on the day fills a GST/HST cell
/// with F8 or its small button. An empty text clears it; an unknown code is refused (false).
bool SetGstHstProvince(const QString& province);
/// An explicit rate (0.13 for 13 %) that wins over the province's; an empty text clears it.
/// False, and nothing changed, for text that is not a rate from 0 up to 1.
bool SetGstHstRate(const QString& rate);

}  // namespace zenta::qt
