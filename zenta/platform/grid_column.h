#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zenta/core/ole_color.h"

namespace zenta::platform {

// How a cell of a column is edited and shown.
//  Text   — free text typed into the cell.
//  Number — an amount typed into the cell; the control's key filter and update checks decide
//           what is kept. Right-aligned.
//  Date   — typed through the mask "____/__/__"; the edit text keeps the mask's prompts.
//  Button — a button in every cell; a click (or Space) raises the button-click notification.
enum class ColumnKind { Text, Number, Date, Button };

// A display style a cell takes when its displayed text matches `pattern`: "*" matches any run
// of characters, "?" one character ("-*" matches negative amounts).
struct CellStyleRule {
  std::string pattern;
  std::optional<OleColor> fore_color;
  std::optional<OleColor> back_color;
};

// Everything a grid knows about one column, described once for every toolkit. Widths are in
// twips; 0 lets the toolkit choose.
struct GridColumn {
  std::string caption;
  ColumnKind kind = ColumnKind::Text;
  bool visible = true;
  int width = 0;
  // A locked cell cannot be edited; the cursor may still stand on it.
  bool locked = false;
  // Keyboard navigation (Tab, Enter, arrows) passes over a column without a tab stop; a click
  // or the program may still make it current.
  bool tab_stop = true;
  std::string footer_text;
  // Tooltip of the column's in-cell editor.
  std::string editor_tooltip;
  // A button column's cells: the text on each button (rows that exist, not the add-new row)
  // and what it does, for its tooltip and the name assistive tools read.
  std::string button_text;
  std::string button_tooltip;
  std::optional<OleColor> back_color;
  std::optional<OleColor> fore_color;
  std::vector<CellStyleRule> styles;
};

// Colours of the grid's parts; unset parts keep the toolkit's own.
struct GridColors {
  std::optional<OleColor> header_back;
  std::optional<OleColor> header_fore;
  std::optional<OleColor> footer_back;
  std::optional<OleColor> footer_fore;
  std::optional<OleColor> even_row_back;
  std::optional<OleColor> odd_row_back;
  // Rows without a colour of their own alternate in the toolkit's theme, the first one shaded.
  bool alternate_rows = false;
};

// What a view needs to paint one cell: its text and resolved colours.
struct CellAppearance {
  std::string text;
  std::optional<OleColor> fore_color;
  std::optional<OleColor> back_color;
};

}  // namespace zenta::platform
