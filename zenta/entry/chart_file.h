#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zenta/records/chart_of_accounts.h"

namespace zenta::entry {

// A line of a chart file that gave no account, and why.
struct RefusedLine {
  std::size_t line = 0;  // from 1, as an editor numbers the file
  std::string reason;
};

struct ChartFile {
  ChartOfAccounts chart;
  std::vector<RefusedLine> refused;
};

// A chart of accounts kept as plain text, one account a line: number, name and optionally an
// active flag, separated by tabs or commas (tab-separated when any line holds a tab), cells in
// double quotes as spreadsheets write them. Blank lines are skipped, and so is a first line
// whose number holds no digit (a header such as "Number,Name,Active"). A number is kept as a
// payer would type it (upper case, at most 30 characters); a line that cannot give an account
// is refused with its reason and the others are read.
ChartFile ParseChartFile(std::string_view text);

// The file at `path`, or nothing when it cannot be read.
std::optional<ChartFile> ReadChartFile(const std::filesystem::path& path);

// "Line 4: The account number is missing.", for a list of refusals shown to a person.
std::string RefusalText(const RefusedLine& refused);

// The words that mark an account inactive in an active column: "0", "false", "no",
// "inactive", in any case, blanks around ignored.
bool MarksInactive(std::string_view text);

// A chart file larger than this is refused whole: it is not a chart.
inline constexpr std::size_t kMaxChartFileSize = 32 * 1024 * 1024;

}  // namespace zenta::entry
