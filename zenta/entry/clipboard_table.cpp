#include "zenta/entry/clipboard_table.h"

namespace zenta::entry {
namespace {

char SeparatorOf(std::string_view text) {
  // A tab outside quotes decides; CSV is the fallback for text with none.
  bool quoted = false;
  for (char c : text) {
    if (c == '"') quoted = !quoted;
    if (!quoted && c == '\t') return '\t';
  }
  return ',';
}

}  // namespace

TableRows ParseClipboardTable(std::string_view text, std::vector<std::size_t>* row_lines) {
  const char separator = SeparatorOf(text);
  TableRows rows;
  std::size_t line = 1;
  std::size_t row_line = 1;
  std::vector<std::string> row;
  std::string cell;
  bool quoted = false;
  bool cell_started = false;  // anything read since the last row end
  auto end_cell = [&] {
    row.push_back(std::move(cell));
    cell.clear();
  };
  auto end_row = [&] {
    end_cell();
    rows.push_back(std::move(row));
    row.clear();
    cell_started = false;
    if (row_lines) row_lines->push_back(row_line);
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted) {
      if (c != '"') {
        // A quoted line break counts as a line, as an editor shows the file.
        if (c == '\n' || (c == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'))) ++line;
        cell += c;
      } else if (i + 1 < text.size() && text[i + 1] == '"') {
        cell += '"';
        ++i;
      } else {
        quoted = false;
      }
      continue;
    }
    if (c == '"' && cell.empty()) {
      quoted = true;
      cell_started = true;
    } else if (c == separator) {
      end_cell();
      cell_started = true;
    } else if (c == '\r' || c == '\n') {
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
      end_row();
      row_line = ++line;
    } else {
      cell += c;
      cell_started = true;
    }
  }
  if (cell_started || !row.empty()) end_row();
  return rows;
}

std::string FormatClipboardTable(const TableRows& rows) {
  std::string out;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) out += '\t';
      const std::string& cell = row[i];
      if (cell.find_first_of("\t\r\n\"") == std::string::npos) {
        out += cell;
        continue;
      }
      out += '"';
      for (char c : cell) {
        if (c == '"') out += '"';
        out += c;
      }
      out += '"';
    }
    out += "\r\n";
  }
  return out;
}

}  // namespace zenta::entry
