#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zenta::entry {

using TableRows = std::vector<std::vector<std::string>>;

// Rows of cells as spreadsheets and mail programs put them on the clipboard: tab-separated
// when any line holds a tab, comma-separated otherwise. CRLF, CR and LF end a row; a cell
// in double quotes may hold separators and line breaks ("" is a quote). The empty line a
// spreadsheet leaves after the last row is not a row. `row_lines`, when given, receives the
// line (from 1) each row starts on, for messages about a row of a file.
TableRows ParseClipboardTable(std::string_view text, std::vector<std::size_t>* row_lines = nullptr);

// The reverse, tab-separated with CRLF line ends; a cell holding a tab, a line break or a
// quote is quoted so that a paste reads it back whole.
std::string FormatClipboardTable(const TableRows& rows);

}  // namespace zenta::entry
