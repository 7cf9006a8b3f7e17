#include "zenta/platform/grid_engine.h"

#include <algorithm>
#include <utility>

#include "zenta/core/date_mask.h"
#include "zenta/core/host_error.h"
#include "zenta/core/utf8.h"
#include "zenta/platform/array_grid_source.h"
#include "zenta/platform/grid_navigation.h"

namespace zenta::platform {

namespace {

// Raises a re-entrancy flag for one handler call, exceptions included; a handler may destroy
// the engine, and then the flag is gone with it.
class Raised {
 public:
  Raised(bool& flag, std::weak_ptr<bool> engine) : flag_(flag), engine_(std::move(engine)) { flag_ = true; }
  ~Raised() {
    if (!engine_.expired()) flag_ = false;
  }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;

 private:
  bool& flag_;
  std::weak_ptr<bool> engine_;
};

// "*" any run of characters, "?" exactly one; everything else literally.
bool Matches(std::u32string_view pattern, std::u32string_view text) {
  std::size_t p = 0;
  std::size_t t = 0;
  std::size_t star = std::u32string_view::npos;
  std::size_t resume = 0;
  while (t < text.size()) {
    if (p < pattern.size() && (pattern[p] == U'?' || pattern[p] == text[t])) {
      ++p;
      ++t;
    } else if (p < pattern.size() && pattern[p] == U'*') {
      star = p++;
      resume = t;
    } else if (star != std::u32string_view::npos) {
      p = star + 1;
      t = ++resume;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == U'*') ++p;
  return p == pattern.size();
}

int Length(const std::string& text) { return static_cast<int>(utf8::Length(text)); }

}  // namespace

GridEngine::GridEngine(GridView& view, int column_count)
    : view_(view), columns_(static_cast<std::size_t>(std::max(column_count, 0))), alive_(std::make_shared<bool>(true)) {}

GridEngine::~GridEngine() = default;

void GridEngine::Bind(std::shared_ptr<Array2D> array) {
  auto source = std::make_unique<ArrayGridSource>(array);
  bound_array_ = std::move(array);
  owned_source_ = std::move(source);
  source_ = owned_source_.get();
  current_row_.reset();
  Rebind();
}

void GridEngine::SetSource(GridSource* source) {
  source_ = source;
  bound_array_.reset();
  owned_source_.reset();
  current_row_.reset();
  Rebind();
}

std::shared_ptr<Array2D> GridEngine::BoundArray() const { return bound_array_; }

void GridEngine::Rebind() {
  CloseEdit();
  pending_.clear();
  const int rows = DisplayRowCount();
  if (!current_row_ || *current_row_ < FirstRow() || *current_row_ >= FirstRow() + rows) {
    current_row_ = rows > 0 ? std::optional<int>(FirstRow()) : std::nullopt;
  }
  ++moves_;
  view_.RowsChanged();
  view_.CurrentCellChanged();
}

void GridEngine::Refresh() { view_.RowsChanged(); }

int GridEngine::FirstRow() const { return source_ ? source_->FirstRow() : 0; }
int GridEngine::RowCount() const { return source_ ? source_->RowCount() : 0; }
int GridEngine::DisplayRowCount() const { return source_ ? RowCount() + (allow_add_new_ ? 1 : 0) : 0; }

bool GridEngine::IsAddNewRow(int row) const { return allow_add_new_ && source_ && row == FirstRow() + RowCount(); }

bool GridEngine::HasButtonToPress(int row) const {
  return !IsAddNewRow(row) || (current_row_ == row && (RowChanged() || editing_));
}

void GridEngine::SetAllowAddNew(bool allow) {
  if (allow == allow_add_new_) return;
  if (!allow && current_row_ && IsAddNewRow(*current_row_)) {
    CloseEdit();
    pending_.clear();
  }
  allow_add_new_ = allow;
  const int rows = DisplayRowCount();
  if (rows == 0) {
    current_row_.reset();
  } else if (!current_row_) {
    current_row_ = FirstRow();
  } else if (*current_row_ >= FirstRow() + rows) {
    current_row_ = FirstRow() + rows - 1;
  }
  view_.RowsChanged();
}

const GridColumn& GridEngine::Column(int column) const {
  if (column < 0 || column >= ColumnCount()) throw HostError::SubscriptOutOfRange("Grid");
  return columns_[static_cast<std::size_t>(column)];
}

void GridEngine::SetColumn(int column, GridColumn description) {
  const_cast<GridColumn&>(Column(column)) = std::move(description);
  view_.ColumnsChanged();
}
void GridEngine::SetCaption(const std::string& caption) {
  caption_ = caption;
  view_.ColumnsChanged();
}

void GridEngine::SetColumnCaption(int column, const std::string& caption) {
  const_cast<GridColumn&>(Column(column)).caption = caption;
  view_.ColumnsChanged();
}
void GridEngine::SetColumnVisible(int column, bool visible) {
  const_cast<GridColumn&>(Column(column)).visible = visible;
  view_.ColumnsChanged();
}
void GridEngine::SetColumnWidth(int column, int twips) {
  const_cast<GridColumn&>(Column(column)).width = twips;
  view_.ColumnsChanged();
}
void GridEngine::SetColumnLocked(int column, bool locked) {
  const_cast<GridColumn&>(Column(column)).locked = locked;
  view_.ColumnsChanged();
}
void GridEngine::SetColumnKind(int column, ColumnKind kind) {
  const_cast<GridColumn&>(Column(column)).kind = kind;
  view_.ColumnsChanged();
}
void GridEngine::SetColumnTabStop(int column, bool tab_stop) {
  const_cast<GridColumn&>(Column(column)).tab_stop = tab_stop;
  view_.ColumnsChanged();
}
void GridEngine::SetFooterText(int column, const std::string& text) {
  // Totals are set after every edit; an unchanged one repaints nothing.
  if (Column(column).footer_text == text) return;
  const_cast<GridColumn&>(Column(column)).footer_text = text;
  view_.ColumnsChanged();
}
void GridEngine::SetColumnColors(int column, std::optional<OleColor> back, std::optional<OleColor> fore) {
  auto& described = const_cast<GridColumn&>(Column(column));
  described.back_color = back;
  described.fore_color = fore;
  view_.ColumnsChanged();
}
void GridEngine::AddColumnStyle(int column, CellStyleRule rule) {
  const_cast<GridColumn&>(Column(column)).styles.push_back(std::move(rule));
  view_.ColumnsChanged();
}
void GridEngine::SetColors(const GridColors& colors) {
  colors_ = colors;
  view_.ColumnsChanged();
}

bool GridEngine::CellEditable(int column) const {
  if (column < 0 || column >= ColumnCount()) return false;
  const GridColumn& described = Column(column);
  return described.visible && !described.locked && described.kind != ColumnKind::Button;
}

bool GridEngine::StopsAt(int column) const {
  if (column < 0 || column >= ColumnCount()) return false;
  const GridColumn& described = Column(column);
  return described.visible && described.tab_stop;
}

bool GridEngine::MoveTo(int row, int column) {
  auto valid = [&] {
    return row >= FirstRow() && row < FirstRow() + DisplayRowCount() && column >= 0 && column < ColumnCount();
  };
  if (!current_row_ || !valid()) return false;
  if (in_col_update_) {
    // From inside before_col_update: the column is taken once the handler has returned.
    if (row != *current_row_) return false;
    requested_column_ = column;
    return true;
  }
  if (*current_row_ == row && current_column_ == column) return true;
  if (!CommitEdit()) return false;
  if (!current_row_ || !valid()) return false;
  if (row != *current_row_) {
    if (!CommitRow()) return false;
    // after_update may have rebound the rows.
    if (!current_row_ || !valid()) return false;
  }
  const std::optional<int> last_row = current_row_;
  const int last_column = current_column_;
  current_row_ = row;
  current_column_ = column;
  ++moves_;
  view_.CurrentCellChanged();
  if (handlers_.row_col_change) handlers_.row_col_change(last_row, last_column);
  return true;
}

bool GridEngine::SetCurrentRow(int row) { return MoveTo(row, current_column_); }

bool GridEngine::SetCurrentColumn(int column) {
  if (current_row_) return MoveTo(*current_row_, column);
  if (column < 0 || column >= ColumnCount()) return false;
  current_column_ = column;
  return true;
}

std::string GridEngine::ValueText(const Variant& value) const {
  if (value.IsEmpty() || value.IsNull() || value.IsObject()) return {};
  try {
    return value.ToString();
  } catch (const HostError&) {
    return {};
  }
}

std::string GridEngine::CellText(int column) const {
  if (editing_ && column == current_column_) return edit_text_;
  return current_row_ ? ValueText(StoredValue(*current_row_, column)) : std::string();
}

Variant GridEngine::CellValue(int column) const {
  if (editing_ && column == current_column_) return Variant(edit_text_);
  return current_row_ ? StoredValue(*current_row_, column) : Variant();
}

void GridEngine::SetCellText(int column, const std::string& text) { SetCellValue(column, Variant(text)); }

void GridEngine::SetCellValue(int column, const Variant& value) {
  if (column < 0 || column >= ColumnCount()) throw HostError::SubscriptOutOfRange("Grid");
  if (editing_ && column == current_column_) {
    edit_text_ = ValueText(value);
    selection_start_ = Length(edit_text_);
    selection_length_ = 0;
    view_.EditorChanged();
    return;
  }
  if (!current_row_) return;
  pending_[column] = value;
  view_.RowChanged(*current_row_);
}

Variant GridEngine::StoredValue(int row, int column) const {
  if (column < 0 || column >= ColumnCount()) return {};
  if (current_row_ == row) {
    auto found = pending_.find(column);
    if (found != pending_.end()) return found->second;
  }
  if (!source_ || IsAddNewRow(row) || row < FirstRow() || row >= FirstRow() + RowCount()) return {};
  try {
    return source_->Cell(row, column);
  } catch (const HostError&) {
    return {};
  }
}

CellHintArgs GridEngine::Hint(int row, int column) const {
  CellHintArgs args;
  args.row = row;
  args.column = column;
  if (!handlers_.cell_hint || IsAddNewRow(row) || row < FirstRow() || row >= FirstRow() + RowCount()) return args;
  args.value = StoredValue(row, column);
  handlers_.cell_hint(args);
  return args;
}

CellActionArgs GridEngine::CurrentCellAction() const {
  CellActionArgs args;
  args.column = current_column_;
  if (!handlers_.cell_action || !current_row_ || !CellEditable(current_column_)) return args;
  handlers_.cell_action(args);
  return args;
}

CellAppearance GridEngine::Appearance(int row, int column) const {
  CellAppearance appearance;
  if (editing_ && current_row_ == row && column == current_column_) {
    appearance.text = edit_text_;
  } else {
    FormatTextArgs args;
    args.column = column;
    args.row = row;
    args.value = StoredValue(row, column);
    args.text = ValueText(args.value);
    if (handlers_.format_text) handlers_.format_text(args);
    appearance.text = std::move(args.text);
    const bool button = column >= 0 && column < ColumnCount() && Column(column).kind == ColumnKind::Button;
    if (button && appearance.text.empty() && HasButtonToPress(row)) appearance.text = Column(column).button_text;
  }
  appearance.back_color = (row - FirstRow()) % 2 == 0 ? colors_.even_row_back : colors_.odd_row_back;
  if (column < 0 || column >= ColumnCount()) return appearance;
  const GridColumn& described = Column(column);
  if (described.back_color) appearance.back_color = described.back_color;
  if (described.fore_color) appearance.fore_color = described.fore_color;
  const std::u32string text = utf8::Decode(appearance.text);
  for (const CellStyleRule& rule : described.styles) {
    if (!Matches(utf8::Decode(rule.pattern), text)) continue;
    if (rule.fore_color) appearance.fore_color = rule.fore_color;
    if (rule.back_color) appearance.back_color = rule.back_color;
  }
  return appearance;
}

void GridEngine::SetSelection(int start, int length) {
  if (!editing_) return;
  const int size = Length(edit_text_);
  selection_start_ = std::clamp(start, 0, size);
  selection_length_ = std::clamp(length, 0, size - selection_start_);
  view_.EditorChanged();
}

bool GridEngine::OpenEdit(char32_t key) {
  const std::weak_ptr<bool> token = alive_;
  if (!current_row_ || !CellEditable(current_column_)) return false;
  if (IsAddNewRow(*current_row_) && handlers_.new_row_request) {
    handlers_.new_row_request(*current_row_);
    if (!Survived(token) || !current_row_ || !CellEditable(current_column_)) return false;
    if (editing_) return true;
  }
  BeforeColEditArgs args;
  args.column = current_column_;
  args.key = key;
  if (handlers_.before_col_edit) {
    handlers_.before_col_edit(args);
    if (!Survived(token)) return false;
  }
  if (args.cancel || !current_row_) return false;
  if (editing_) return true;
  edit_text_ = CellText(current_column_);
  if (Column(current_column_).kind == ColumnKind::Date) edit_text_ = DateMask::FromText(edit_text_).Text();
  editing_ = true;
  selection_start_ = 0;
  selection_length_ = Length(edit_text_);
  view_.EditorOpened();
  return true;
}

Variant GridEngine::EditedValue(int column) const {
  if (Column(column).kind != ColumnKind::Date) return Variant(edit_text_);
  // A date cell stores its date, nothing when its mask is blank, and the text of a partial
  // date only when the control's column check let it through.
  const DateMask mask = DateMask::FromText(edit_text_);
  if (mask.IsBlank()) return Variant();
  if (const auto date = mask.Value()) return Variant(*date);
  return Variant(edit_text_);
}

void GridEngine::CloseEdit() {
  if (!editing_) return;
  editing_ = false;
  edit_text_.clear();
  selection_start_ = 0;
  selection_length_ = 0;
  view_.EditorClosed();
}

bool GridEngine::StartEdit() {
  if (editing_) return true;
  if (!OpenEdit(0)) return false;
  selection_start_ = Length(edit_text_);
  selection_length_ = 0;
  view_.EditorChanged();
  return true;
}

void GridEngine::TypeIntoDate(char32_t key) {
  DateMask mask = DateMask::FromText(edit_text_);
  const bool digit = key >= U'0' && key <= U'9';
  const bool all_selected = selection_length_ > 0 && selection_length_ >= Length(edit_text_);
  if (all_selected && (digit || key == keys::kBackspace)) {
    mask.Clear();
    if (digit) mask.Type(key);
  } else if (key == keys::kBackspace) {
    mask.Backspace();
  } else if (!mask.Type(key)) {
    return;  // the mask's slashes are its own; other characters type nothing
  }
  edit_text_ = mask.Text();
  selection_start_ = mask.Caret();
  selection_length_ = 0;
}

void GridEngine::InsertIntoEdit(char32_t key) {
  if (Column(current_column_).kind == ColumnKind::Date) return TypeIntoDate(key);
  std::u32string text = utf8::Decode(edit_text_);
  const auto size = static_cast<int>(text.size());
  int start = std::clamp(selection_start_, 0, size);
  int length = std::clamp(selection_length_, 0, size - start);
  if (key == keys::kBackspace) {
    if (length == 0 && start > 0) {
      --start;
      length = 1;
    }
    text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
  } else {
    text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), 1, key);
    ++start;
  }
  edit_text_ = utf8::Encode(text);
  selection_start_ = start;
  selection_length_ = 0;
}

bool GridEngine::CommitEdit() {
  if (!editing_) return true;
  if (in_col_update_) return false;
  const std::weak_ptr<bool> token = alive_;
  const int column = current_column_;
  const Variant original = current_row_ ? StoredValue(*current_row_, column) : Variant();
  BeforeColUpdateArgs args;
  args.column = column;
  args.old_value = original;
  requested_column_.reset();
  if (handlers_.before_col_update) {
    Raised inside(in_col_update_, alive_);
    handlers_.before_col_update(args);
  }
  if (!Survived(token)) return false;
  const std::optional<int> requested = std::exchange(requested_column_, std::nullopt);
  // The handler rebound the grid or closed the edit itself.
  if (!editing_ || !current_row_) return !args.cancel;
  if (args.cancel) {
    if (!(args.old_value == original)) {
      CloseEdit();
      pending_.erase(column);
      if (!(StoredValue(*current_row_, column) == args.old_value)) pending_[column] = args.old_value;
      view_.RowChanged(*current_row_);
    } else if (requested && *requested != column) {
      // The handler sends the user to another cell: this cell's text is dropped, unstored.
      CloseEdit();
    }
    if (requested && *requested != current_column_) MoveTo(*current_row_, *requested);
    return false;
  }
  pending_[column] = EditedValue(column);
  CloseEdit();
  view_.RowChanged(*current_row_);
  if (handlers_.after_col_update) {
    handlers_.after_col_update(column);
    if (!Survived(token)) return false;
  }
  if (requested && current_row_ && *requested != current_column_) MoveTo(*current_row_, *requested);
  return true;
}

void GridEngine::ReportError(const std::exception& error, int number) {
  GridErrorArgs args;
  args.error = number;
  const auto* host_error = dynamic_cast<const HostError*>(&error);
  args.description = host_error ? host_error->Description() : error.what();
  if (handlers_.error) handlers_.error(args);
}

bool GridEngine::CommitRow() {
  const std::weak_ptr<bool> token = alive_;
  if (!CommitEdit()) return false;
  if (pending_.empty() || !current_row_ || !source_) return true;
  if (in_row_update_) return false;
  CancelArgs args;
  if (handlers_.before_update) {
    Raised inside(in_row_update_, alive_);
    handlers_.before_update(args);
  }
  if (!Survived(token) || args.cancel) return false;
  if (pending_.empty() || !current_row_) return true;
  const int row = *current_row_;
  try {
    if (IsAddNewRow(row)) {
      current_row_ = source_->AppendRow(pending_);
    } else {
      source_->WriteRow(row, pending_);
    }
  } catch (const HostError& error) {
    ReportError(error, error.Number());
    return false;
  }
  pending_.clear();
  view_.RowsChanged();
  if (handlers_.after_update) handlers_.after_update();
  return true;
}

void GridEngine::CancelEdit() {
  CloseEdit();
  pending_.clear();
  if (current_row_) view_.RowChanged(*current_row_);
}

bool GridEngine::DeleteCurrentRow() {
  const std::weak_ptr<bool> token = alive_;
  if (!current_row_ || !source_ || IsAddNewRow(*current_row_)) return false;
  CancelArgs args;
  if (handlers_.before_delete) {
    handlers_.before_delete(args);
    if (!Survived(token)) return false;
  }
  if (args.cancel || !current_row_ || IsAddNewRow(*current_row_)) return false;
  const int row = *current_row_;
  try {
    source_->DeleteRow(row);
  } catch (const HostError& error) {
    ReportError(error, error.Number());
    return false;
  }
  CloseEdit();
  pending_.clear();
  const int rows = DisplayRowCount();
  if (rows == 0) {
    current_row_.reset();
  } else if (row >= FirstRow() + rows) {
    current_row_ = FirstRow() + rows - 1;
  }
  ++moves_;
  view_.RowsChanged();
  view_.CurrentCellChanged();
  if (handlers_.after_delete) handlers_.after_delete();
  return true;
}

void GridEngine::PostMessage(int message) {
  std::weak_ptr<bool> token = alive_;
  view_.Post([this, token, message] {
    if (token.expired()) return;
    if (handlers_.posted) handlers_.posted(message);
  });
}

void GridEngine::Navigate(platform::KeyDown& key) {
  if (!current_row_) return;
  const unsigned moves = moves_;
  if (editing_ && !CommitEdit()) {
    key.key_code = 0;
    return;
  }
  // A handler of the commit already chose where the user goes.
  if (moves != moves_ || !current_row_) {
    key.key_code = 0;
    return;
  }
  std::vector<bool> stops(static_cast<std::size_t>(ColumnCount()));
  for (int c = 0; c < ColumnCount(); ++c) stops[static_cast<std::size_t>(c)] = StopsAt(c);
  auto next = NextGridCell({*current_row_, current_column_}, FirstRow(), FirstRow() + DisplayRowCount() - 1, stops, key);
  if (!next) return;  // Tab from the last cell leaves the grid; the focus loss stores the row
  key.key_code = 0;
  MoveTo(next->row, next->column);
}

void GridEngine::PageBy(int pages) {
  if (!current_row_) return;
  // The row that stays in sight when the page turns counts once.
  const int page = std::max(1, view_.VisibleRows() - 1);
  const int first = FirstRow();
  const int last = std::max(first, first + DisplayRowCount() - 1);
  const int target = std::clamp(*current_row_ + pages * page, first, last);
  if (target != *current_row_) MoveTo(target, current_column_);
}

void GridEngine::MoveAcross(platform::KeyDown& key, int step) {
  if (editing_) {
    const int size = Length(edit_text_);
    int caret = selection_start_ + (selection_length_ > 0 ? (step > 0 ? selection_length_ : 0) : step);
    selection_start_ = std::clamp(caret, 0, size);
    selection_length_ = 0;
    view_.EditorChanged();
    key.key_code = 0;
    return;
  }
  if (!current_row_) return;
  for (int c = current_column_ + step; c >= 0 && c < ColumnCount(); c += step) {
    if (StopsAt(c)) {
      MoveTo(*current_row_, c);
      break;
    }
  }
  key.key_code = 0;
}

void GridEngine::KeyDown(platform::KeyDown& key) {
  const std::weak_ptr<bool> token = alive_;
  if (handlers_.key_down) {
    handlers_.key_down(key);
    if (!Survived(token)) return;
  }
  const bool plain = key.shift == kNoShift;
  const bool on_button = current_row_ && current_column_ < ColumnCount() && Column(current_column_).kind == ColumnKind::Button;
  switch (key.key_code) {
    case 0:
      return;
    case keys::kEnter:
    case keys::kTab:
      if (key.key_code == keys::kEnter && plain && on_button && !editing_) {
        key.key_code = 0;
        ClickButton(*current_row_, current_column_);
        return;
      }
      Navigate(key);
      return;
    case keys::kUp:
    case keys::kDown:
      Navigate(key);
      return;
    case keys::kLeft:
    case keys::kRight:
      MoveAcross(key, key.key_code == keys::kLeft ? -1 : 1);
      return;
    case keys::kPageUp:
    case keys::kPageDown: {
      const int pages = key.key_code == keys::kPageDown ? 1 : -1;
      key.key_code = 0;
      PageBy(pages);
      return;
    }
    case keys::kF2:
      key.key_code = 0;
      StartEdit();
      return;
    case keys::kEscape:
      // Left alone when there is nothing to abandon, so a dialog's cancel button still hears it.
      if (editing_) {
        key.key_code = 0;
        CloseEdit();
      } else if (!pending_.empty()) {
        key.key_code = 0;
        CancelEdit();
      }
      return;
    case keys::kSpace:
      if (plain && on_button && !editing_) {
        key.key_code = 0;
        ClickButton(*current_row_, current_column_);
      }
      return;
    case keys::kDelete:
      if ((key.shift & kCtrl) != 0 && allow_delete_) {
        key.key_code = 0;
        DeleteCurrentRow();
      }
      return;
    default:
      return;
  }
}

void GridEngine::TypeCharacter(char32_t character) {
  const std::weak_ptr<bool> token = alive_;
  // Enter, Tab and Escape are handled as key-downs; other control characters type nothing.
  if (!current_row_ || (character < 32 && character != keys::kBackspace)) return;
  // key_press sees keys on locked and button cells too (a control may answer them); such a
  // cell still takes no typing, as OpenEdit refuses it.
  CellKeyPressArgs args;
  args.key = character;
  args.column = current_column_;
  if (editing_) {
    args.text = edit_text_;
    args.selection_start = selection_start_;
    args.selection_length = selection_length_;
  } else {
    args.text = CellText(current_column_);
    args.selection_length = Length(args.text);
  }
  if (handlers_.key_press) {
    handlers_.key_press(args);
    if (!Survived(token)) return;
  }
  if (args.key == 0 || (args.key < 32 && args.key != keys::kBackspace)) return;
  if (!editing_ && !OpenEdit(args.key)) return;
  InsertIntoEdit(args.key);
  view_.EditorChanged();
  if (handlers_.change) handlers_.change();
}

void GridEngine::ClickCell(int row, int column) { MoveTo(row, column); }

void GridEngine::ClickButton(int row, int column) {
  if (!MoveTo(row, column)) return;
  if (Column(column).kind == ColumnKind::Button && handlers_.button_click) handlers_.button_click(column);
}

void GridEngine::FocusGained() {
  const std::weak_ptr<bool> token = alive_;
  if (current_row_ && !StopsAt(current_column_)) {
    for (int c = 0; c < ColumnCount(); ++c) {
      if (StopsAt(c)) {
        MoveTo(*current_row_, c);
        break;
      }
    }
  }
  if (!Survived(token)) return;
  if (handlers_.focus_gained) handlers_.focus_gained();
}

void GridEngine::FocusLost() { CommitRow(); }

}  // namespace zenta::platform
