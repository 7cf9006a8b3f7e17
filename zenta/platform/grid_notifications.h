#pragma once

#include <functional>
#include <optional>
#include <string>

#include "zenta/core/variant.h"
#include "zenta/platform/keys.h"

namespace zenta::platform {

// Arguments of the grid notifications that carry more than a column. Fields a handler may
// change are marked in/out; `cancel` starts false and, set true, vetoes the step.

struct BeforeColEditArgs {
  int column = 0;
  char32_t key = 0;     // the character that starts the edit, 0 when started otherwise
  bool cancel = false;  // in/out
};

// Before a cell's edited text is stored in the row. The new text is the grid's CellText(column)
// (a handler may rewrite it with SetCellText). Cancel keeps the cell open in edit with its
// text; a handler that also changes `old_value` ends the edit with the cell reverted to it.
struct BeforeColUpdateArgs {
  int column = 0;
  Variant old_value;  // in/out
  bool cancel = false;
};

struct CancelArgs {
  bool cancel = false;  // in/out
};

// A typed character on its way into the current cell, with the cell's text and selection as
// they are before the key (when no edit is open yet: the cell's text, all of it selected, as
// the key will replace it). key 0 discards the character.
struct CellKeyPressArgs {
  char32_t key = 0;  // in/out
  int column = 0;
  std::string text;
  int selection_start = 0;   // in code points
  int selection_length = 0;
};

// The text a cell shows when it is not being edited; a handler may replace `text`.
struct FormatTextArgs {
  int column = 0;
  int row = 0;  // bookmark
  Variant value;
  std::string text;  // in/out
};

// A note on a cell (bookmark `row`), asked for when a view shows the cell's tooltip or its
// description to assistive tools; `warning` also marks the cell visibly. A handler fills
// `text`; a note never refuses anything.
struct CellHintArgs {
  int row = 0;
  int column = 0;
  Variant value;
  std::string text;      // out
  bool warning = false;  // out
};

// A small button a view may show in the current cell, standing for a key the cell answers
// (a fill key): a handler sets `key` and the button's `tooltip`; key 0 shows none.
struct CellActionArgs {
  int column = 0;
  int key = 0;           // out
  std::string tooltip;   // out
};

// The grid's own error report; `show_message` false (the default a handler should keep) means
// the grid shows nothing of its own.
struct GridErrorArgs {
  int error = 0;
  std::string description;
  bool show_message = false;  // in/out
};

// Every notification a grid raises. A handler left empty means "nothing to do". They run on
// the user-interface thread, synchronously, inside the user action or program call that caused
// them — except `posted`, which runs after the notification that posted it has returned.
struct GridHandlers {
  std::function<void()> focus_gained;
  std::function<void(BeforeColEditArgs&)> before_col_edit;
  std::function<void(BeforeColUpdateArgs&)> before_col_update;
  std::function<void(int column)> after_col_update;
  std::function<void(CancelArgs&)> before_update;  // before a row is stored
  std::function<void()> after_update;
  std::function<void(CancelArgs&)> before_delete;
  std::function<void()> after_delete;
  // The user starts an edit in the add-new row (below the last row). The handler may append
  // rows to the source itself and Rebind(); the edit then goes on in the row that now stands
  // at the current bookmark, if any, else in the add-new row.
  std::function<void(int row)> new_row_request;
  std::function<void(int column)> button_click;
  std::function<void(FormatTextArgs&)> format_text;
  std::function<void(CellHintArgs&)> cell_hint;
  std::function<void(CellActionArgs&)> cell_action;
  // The edit text of the current cell changed while typing; the handler may rewrite it with
  // SetCellText.
  std::function<void()> change;
  std::function<void(CellKeyPressArgs&)> key_press;
  // Every key-down while the grid or its cell editor has the focus, before the grid's own
  // handling; key_code 0 consumes it.
  std::function<void(KeyDown&)> key_down;
  std::function<void(std::optional<int> last_row, int last_column)> row_col_change;
  std::function<void(int message)> posted;
  std::function<void(GridErrorArgs&)> error;
};

}  // namespace zenta::platform
