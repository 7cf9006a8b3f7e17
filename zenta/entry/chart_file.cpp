#include "zenta/entry/chart_file.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <unordered_set>

#include "zenta/core/message_template.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/account_number.h"
#include "zenta/entry/clipboard_table.h"
#include "zenta/entry/message_templates.h"

namespace zenta::entry {
namespace {

constexpr const char* kNoSeparator = "A line needs an account number and a name, separated by a tab or a comma.";
constexpr const char* kTooManyColumns = "A line holds at most three columns: number, name and active.";
constexpr const char* kNumberMissing = "The account number is missing.";
constexpr const char* kUntypeable = "The account number holds characters a payer cannot type.";
constexpr const char* kLineBreak = "A cell holds a line break; is a quote left open?";
constexpr const char* kUnknownActive = "The active column must read yes, no, true, false, 1, 0, active or inactive.";
constexpr const char* kDuplicate = "The account number is already on an earlier line.";

bool MarksActive(std::string_view text) {
  const std::string key = utf8::ToUpperAscii(utf8::Trim(text));
  return key.empty() || key == "1" || key == "TRUE" || key == "YES" || key == "ACTIVE";
}

bool IsBlankRow(const std::vector<std::string>& row) {
  return std::all_of(row.begin(), row.end(), [](const std::string& cell) { return utf8::Trim(cell).empty(); });
}

bool HoldsDigit(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool HoldsLineBreak(const std::vector<std::string>& row) {
  return std::any_of(row.begin(), row.end(),
                     [](const std::string& cell) { return cell.find_first_of("\r\n") != std::string::npos; });
}

// The account a row gives, or the reason it gives none.
const char* ReadAccount(const std::vector<std::string>& row, GLAccount& account) {
  if (row.size() < 2) return kNoSeparator;
  if (row.size() > 3) return kTooManyColumns;
  if (HoldsLineBreak(row)) return kLineBreak;
  const std::string_view number = utf8::Trim(row[0]);
  if (number.empty()) return kNumberMissing;
  // Checked before filtering, which refuses texts far longer than any account.
  if (utf8::Length(number) > kMaxAccountLength) return kAccountTooLong;
  account.number = AccountNumberText(number);
  if (account.number != utf8::ToUpperAscii(number)) return kUntypeable;
  account.name = std::string(utf8::Trim(row[1]));
  if (row.size() == 3) {
    if (MarksInactive(row[2])) {
      account.active = false;
    } else if (!MarksActive(row[2])) {
      return kUnknownActive;
    }
  }
  return nullptr;
}

}  // namespace

bool MarksInactive(std::string_view text) {
  const std::string key = utf8::ToUpperAscii(utf8::Trim(text));
  return key == "0" || key == "FALSE" || key == "NO" || key == "INACTIVE";
}

ChartFile ParseChartFile(std::string_view text) {
  // Spreadsheets saving "UTF-8 CSV" start with a byte-order mark.
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
  std::vector<std::size_t> lines;
  const TableRows rows = ParseClipboardTable(text, &lines);
  ChartFile file;
  std::vector<GLAccount> accounts;
  accounts.reserve(rows.size());
  std::unordered_set<std::string> numbers;
  numbers.reserve(rows.size());
  bool first = true;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::vector<std::string>& row = rows[i];
    if (IsBlankRow(row)) continue;
    const bool header = first && !HoldsDigit(row[0]);
    first = false;
    if (header) continue;
    GLAccount account;
    const char* refusal = ReadAccount(row, account);
    if (!refusal && !numbers.insert(account.number).second) refusal = kDuplicate;
    if (refusal) {
      file.refused.push_back({lines[i], refusal});
    } else {
      accounts.push_back(std::move(account));
    }
  }
  file.chart = ChartOfAccounts(std::move(accounts));
  return file;
}

std::optional<ChartFile> ReadChartFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::string text;
  char buffer[65536];
  while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
    text.append(buffer, static_cast<std::size_t>(in.gcount()));
    if (text.size() > kMaxChartFileSize) return std::nullopt;
  }
  if (in.bad()) return std::nullopt;
  return ParseChartFile(text);
}

std::string RefusalText(const RefusedLine& refused) {
  return FillTemplate(texts::kRefusedLine, {std::to_string(refused.line), refused.reason});
}

}  // namespace zenta::entry
