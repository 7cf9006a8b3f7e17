#include "zenta/controls/distribution/frm_distribution.h"

#include <utility>

#include "zenta/controls/distribution/distribution_paste.h"
#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/core/ole_color.h"
#include "zenta/entry/account_number.h"
#include "zenta/entry/edit_keys.h"
#include "zenta/platform/keys.h"

namespace zenta {

namespace {

using platform::TwipsRect;
using Column = DistributionModel;  // for its column numbers

constexpr const char* kRefusedTitle = "Cannot accept distibution.";
constexpr int kTotalsMessage = 10;
constexpr const char* kNegativePattern = "-*";
constexpr OleColor kRed = 0x000000FF;

// The window as designed, wide enough for both amount columns.
constexpr TwipsRect kWindow{0, 0, 8205, 4695};
constexpr TwipsRect kGrid{120, 120, 7950, 2775};
constexpr TwipsRect kPaymentForLabel{120, 3015, 1095, 255};
constexpr TwipsRect kPaymentFor{1240, 2985, 6845, 315};
constexpr TwipsRect kAccept{5400, 3630, 1335, 375};
constexpr TwipsRect kCancel{6840, 3630, 1335, 375};
constexpr TwipsRect kFrame{0, 3480, 8205, 705};
constexpr TwipsRect kShape{0, 0, 8190, 3420};
// What is to be split and what is left, beside the buttons in both layouts.
constexpr TwipsRect kAmountLabel{120, 3540, 3660, 255};
constexpr TwipsRect kRemainingLabel{120, 3810, 3660, 255};
// Under the buttons, shown only with a chart: the name of the current line's account.
constexpr TwipsRect kAccountNameLabel{120, 4215, 6450, 255};
constexpr int kDeleteWidth = 450;
constexpr int kAccountWidth = 4215;
constexpr int kAmountWidth = 1500;

// The same window narrowed for a payment in Canadian dollars.
struct PlainLayout {
  static constexpr int kWindowWidth = 6705;
  static constexpr int kPaymentForWidth = 5345;
  static constexpr int kFrameWidth = 6705;
  static constexpr int kShapeWidth = 6690;
  static constexpr int kGridWidth = 6450;
  static constexpr int kAcceptLeft = 3900;
  static constexpr int kCancelLeft = 5340;
};

void SetWidth(platform::Widget& widget, int width) {
  TwipsRect rect = widget.Rect();
  rect.width = width;
  widget.SetRect(rect);
}

void SetLeft(platform::Widget& widget, int left) {
  TwipsRect rect = widget.Rect();
  rect.left = left;
  widget.SetRect(rect);
}

platform::GridColumn AmountColumn(std::string caption, bool visible) {
  platform::GridColumn column;
  column.caption = std::move(caption);
  column.kind = platform::ColumnKind::Number;
  column.visible = visible;
  column.width = kAmountWidth;
  column.editor_tooltip = "Enter the amount of the payment";
  return column;
}

platform::TextBox& AddPaymentFor(platform::DialogSurface& surface) {
  surface.AddLabel({"lblPaymentFor", kPaymentForLabel, "", false}, "&Payment For:");
  return surface.AddTextBox({"txtPaymentFor", kPaymentFor, "", true});
}

}  // namespace

FrmDistribution::FrmDistribution(platform::HostServices& host, std::unique_ptr<platform::DialogSurface> surface)
    : host_(host),
      surface_(std::move(surface)),
      grid_(surface_->AddGrid({"grTempDistribution", kGrid, "", true}, 4)),
      payment_for_(AddPaymentFor(*surface_)),
      accept_(surface_->AddButton({"cmdGLAccept", kAccept, "Accept this distribution", true}, "&Accept")),
      cancel_(surface_->AddButton({"cmdGLCancel", kCancel, "Cancel this distribution", true}, "Cancel")),
      frame_(surface_->AddFrame({"Frame1", kFrame, "", false}, "")),
      shape_(surface_->AddShape({"Shape1", kShape, "", false})),
      amount_label_(surface_->AddLabel({"lblAmountToDistribute", kAmountLabel, "", false}, "")),
      remaining_label_(surface_->AddLabel({"lblRemaining", kRemainingLabel, "", false}, "")),
      account_name_(surface_->AddLabel({"lblAccountName", kAccountNameLabel, "", false}, "")) {
  account_name_.SetVisible(false);
  surface_->SetRect(kWindow);
  surface_->SetCancelButton(cancel_);

  platform::GridEngine& engine = grid_.Engine();
  engine.SetCaption("G/L Distribution");
  platform::GridColumn marker;
  marker.caption = "Del";
  marker.kind = platform::ColumnKind::Button;
  marker.tab_stop = false;
  marker.width = kDeleteWidth;
  marker.button_text = "X";
  marker.button_tooltip = "Delete this line";
  engine.SetColumn(Column::kDeleteColumn, marker);
  platform::GridColumn account;
  account.caption = "General Ledger Account No., Payment Description/Sub Ledger";
  account.footer_text = "Total Expense";
  account.width = kAccountWidth;
  engine.SetColumn(Column::kAccountColumn, account);
  engine.SetColumn(Column::kPaymentColumn, AmountColumn("Expense (USD)", true));
  engine.SetColumn(Column::kHomeColumn, AmountColumn("Expense (CAD)", false));
  engine.SetAllowAddNew(true);
  engine.SetAllowDelete(true);
  WireGrid();

  payment_for_.OnKeyPress([this](platform::KeyPress& key) {
    if (key.key == platform::keys::kEnter) {
      key.key = 0;
      FocusGrid();
      return;
    }
    key.key = DistributionModel::FilterPaymentForKey(key.key);
  });
  accept_.OnClick([this] { OnAccept(); });
  cancel_.OnClick([this] { OnCancel(); });
  surface_->OnActivate([this] { OnActivate(); });
}

FrmDistribution::~FrmDistribution() = default;

void FrmDistribution::WireGrid() {
  platform::GridEngine& engine = grid_.Engine();
  platform::GridHandlers& on = engine.Handlers();
  on.before_col_update = [this](platform::BeforeColUpdateArgs& args) { OnBeforeColUpdate(args); };
  on.after_col_update = [this](int column) { OnAfterColUpdate(column); };
  on.before_delete = [this](platform::CancelArgs& args) {
    const platform::MessageBox question{"Are you sure you want to delete this distribution?",
                                        "Delete this distribution?", platform::MessageButtons::YesNo,
                                        platform::MessageIcon::Question};
    if (host_.ShowMessage(question) != platform::MessageResult::Yes) {
      args.cancel = true;
      return;
    }
    deleting_row_ = grid_.Engine().CurrentRow();
    if (model_.Table()) lines_before_ = *model_.Table();
  };
  on.after_delete = [this] {
    // The line that took the deleted one's place is where the payer goes on.
    const std::optional<int> deleted = std::exchange(deleting_row_, std::nullopt);
    AfterLinesChanged(deleted ? std::optional<int>(*deleted - 1) : std::nullopt);
    KeepOffDeleteColumn();
    if (lines_before_) RecordLines(*std::exchange(lines_before_, std::nullopt));
  };
  on.before_update = [this](platform::CancelArgs&) {
    if (model_.Table()) lines_before_ = *model_.Table();
  };
  on.after_update = [this] {
    OnAfterUpdate();
    if (lines_before_) RecordLines(*std::exchange(lines_before_, std::nullopt));
  };
  on.new_row_request = [this](int) { OnNewRowRequest(); };
  on.button_click = [&engine](int column) {
    if (column == Column::kDeleteColumn) engine.DeleteCurrentRow();
  };
  on.format_text = [](platform::FormatTextArgs& args) {
    if (!Column::IsAmountColumn(args.column) || Column::IsEmptyOrNull(args.value)) return;
    try {
      args.text = FormatNumber(args.value.ToCurrency(), formats::kAmount);
    } catch (const HostError&) {
      // Text that is no number is shown as it stands.
    }
  };
  on.posted = [this](int message) {
    if (message == kTotalsMessage) CalculateDistAmounts();
  };
  on.error = [](platform::GridErrorArgs& args) { args.show_message = false; };
  on.change = [this, &engine] {
    const int column = engine.CurrentColumn();
    const std::string text = engine.CellText(column);
    const std::string cleaned = model_.CleanCellText(column, text, host_);
    if (cleaned != text) engine.SetCellText(column, cleaned);
    if (column != Column::kAccountColumn) return;
    completion_.Update(cleaned);
    ShowAccountName();
  };
  on.key_press = [this](platform::CellKeyPressArgs& args) { args.key = model_.FilterCellKey(args); };
  on.key_down = [this](platform::KeyDown& key) {
    if (const std::optional<std::string> number = completion_.HandleKey(key)) PutAccount(*number);
    if (key.key_code != 0) OnKeyDown(key);
  };
  on.row_col_change = [this](std::optional<int>, int) {
    completion_.Hide();
    KeepOffDeleteColumn();
    ShowAccountName();
  };
  on.cell_hint = [this](platform::CellHintArgs& args) {
    if (args.column != Column::kAccountColumn || Column::IsEmptyOrNull(args.value)) return;
    const AccountChart::Note note = accounts_.NoteFor(args.value.ToString());
    args.text = note.text;
    args.warning = note.warning;
  };
  grid_.OnOfferClicked([this](int offer) {
    if (const std::optional<std::string> number = completion_.Take(offer)) PutAccount(*number);
  });
}

Variant FrmDistribution::CalculateDistAmounts() {
  const std::optional<Currency> total = model_.CalculateDistAmounts();
  if (!total) return Variant();
  ShowTotals();
  return Variant(*total);
}

void FrmDistribution::SetupForm() {
  platform::GridEngine& engine = grid_.Engine();
  for (int column : {Column::kPaymentColumn, Column::kHomeColumn}) {
    bool styled = false;
    for (const platform::CellStyleRule& rule : engine.Column(column).styles) styled |= rule.pattern == kNegativePattern;
    if (!styled) engine.AddColumnStyle(column, {kNegativePattern, kRed, std::nullopt});
  }
  engine.Bind(model_.Table());
  history_.Clear();
  lines_before_.reset();
  CalculateDistAmounts();
  ShowAccountName();
}

void FrmDistribution::SetChart(std::shared_ptr<const ChartOfAccounts> chart) {
  accounts_.SetChart(std::move(chart));
  completion_.Hide();
  account_name_.SetVisible(accounts_.HasChart());
  ShowAccountName();
}

void FrmDistribution::ShowAccountName() {
  if (!accounts_.HasChart()) return;
  const platform::GridEngine& engine = grid_.Engine();
  account_name_.SetCaption(engine.CurrentRow() ? accounts_.NoteFor(engine.CellText(Column::kAccountColumn)).text : "");
}

// A taken offer goes in as if typed: the same cleaning, and the length rule when the cell is left.
void FrmDistribution::PutAccount(const std::string& number) {
  platform::GridEngine& engine = grid_.Engine();
  if (engine.CurrentColumn() != Column::kAccountColumn) return;
  engine.SetCellText(Column::kAccountColumn, model_.CleanCellText(Column::kAccountColumn, number, host_));
  ShowAccountName();
}

Variant FrmDistribution::PaymentFor() const { return Variant(payment_for_.Text()); }

void FrmDistribution::SetPaymentFor(const Variant& vntPaymentFor) {
  payment_for_.SetText(DistributionModel::PaymentForText(vntPaymentFor.ToString()));
}

void FrmDistribution::SetIsFXPayment(bool fx) {
  model_.SetIsFXPayment(fx);
  SetFXPayment();
}

void FrmDistribution::SetFXPayment() {
  platform::GridEngine& engine = grid_.Engine();
  if (model_.IsFXPayment()) {
    engine.SetColumnVisible(Column::kHomeColumn, true);
    return;
  }
  TwipsRect window = surface_->Rect();
  window.width = PlainLayout::kWindowWidth;
  surface_->SetRect(window);
  SetWidth(payment_for_, PlainLayout::kPaymentForWidth);
  SetWidth(frame_, PlainLayout::kFrameWidth);
  SetWidth(shape_, PlainLayout::kShapeWidth);
  SetWidth(grid_, PlainLayout::kGridWidth);
  engine.SetColumnCaption(Column::kPaymentColumn, DistributionModel::PlainPaymentColumnCaption());
  engine.SetColumnVisible(Column::kHomeColumn, false);
  SetLeft(accept_, PlainLayout::kAcceptLeft);
  SetLeft(cancel_, PlainLayout::kCancelLeft);
}

void FrmDistribution::SetFXCurrencyCode(const std::string& code) {
  model_.SetFXCurrencyCode(code);
  grid_.Engine().SetColumnCaption(Column::kPaymentColumn, model_.PaymentColumnCaption());
}

void FrmDistribution::Show() {
  completion_.Hide();
  surface_->ShowModal();
  completion_.Hide();
}

void FrmDistribution::SetAmountToDistribute(Currency curAmount) {
  model_.SetAmountToDistribute(curAmount);
  ShowTotals();
}

void FrmDistribution::ShowTotals() {
  platform::GridEngine& engine = grid_.Engine();
  engine.SetFooterText(Column::kPaymentColumn, model_.FooterText(Column::kPaymentColumn));
  engine.SetFooterText(Column::kHomeColumn, model_.FooterText(Column::kHomeColumn));
  amount_label_.SetCaption("Amount to distribute " + FormatNumber(model_.AmountToDistribute(), formats::kAmount));
  const std::optional<Currency> remaining = model_.Remaining();
  remaining_label_.SetCaption(remaining ? "Remaining " + FormatNumber(*remaining, formats::kAmount) : "");
}

void FrmDistribution::FocusGrid() {
  if (surface_->CanFocus(grid_)) grid_.SetFocus();
}

void FrmDistribution::FocusAccept() {
  if (accept_.Enabled()) accept_.SetFocus();
}

void FrmDistribution::KeepOffDeleteColumn() {
  platform::GridEngine& engine = grid_.Engine();
  if (engine.CurrentColumn() <= Column::kDeleteColumn) engine.SetCurrentColumn(Column::kAccountColumn);
}

void FrmDistribution::Inform(const std::string& text) {
  host_.ShowMessage({text, kRefusedTitle, platform::MessageButtons::Ok, platform::MessageIcon::Information});
}

void FrmDistribution::AfterLinesChanged(std::optional<int> changed_row) {
  CalculateDistAmounts();
  model_.RefreshFooters();
  if (model_.FillRemainingAmount(changed_row)) {
    grid_.Engine().Rebind();
    CalculateDistAmounts();
  }
  ShowTotals();
}

void FrmDistribution::OnBeforeColUpdate(platform::BeforeColUpdateArgs& args) {
  completion_.Hide();
  platform::GridEngine& engine = grid_.Engine();
  std::string text = engine.CellText(args.column);
  const std::string typed = text;
  const std::string account = engine.CellText(Column::kAccountColumn);
  const Variant amount = engine.CellValue(model_.AmountColumn());
  const auto verdict = model_.ValidateCell(args.column, text, account, amount);
  if (text != typed) engine.SetCellText(args.column, text);
  switch (verdict) {
    case DistributionModel::CellVerdict::Accept:
      return;
    case DistributionModel::CellVerdict::AccountTooLong:
      Inform(entry::kAccountTooLong);
      args.cancel = true;
      engine.SetCurrentColumn(Column::kAccountColumn);
      return;
    case DistributionModel::CellVerdict::AmountRequired:
      Inform("An amount is required.");
      args.cancel = true;
      engine.SetCurrentColumn(model_.AmountColumn());
      return;
  }
}

void FrmDistribution::OnAfterColUpdate(int column) {
  if (!Column::IsAmountColumn(column)) return;
  if (!model_.VisibleInvoice()) {
    CalculateDistAmounts();
    return;
  }
  platform::GridEngine& engine = grid_.Engine();
  if (const auto converted = model_.ConvertAmount(column, engine.CellValue(column))) {
    engine.SetCellValue(converted->column, Variant(converted->value));
  }
  engine.PostMessage(kTotalsMessage);
}

void FrmDistribution::OnAfterUpdate() {
  platform::GridEngine& engine = grid_.Engine();
  AfterLinesChanged(engine.CurrentRow());
  if (model_.LinesAddUp() && !engine.CellText(Column::kAccountColumn).empty()) FocusAccept();
}

// Tab or Enter from the row's last amount stores the row, then goes to Accept once the lines
// add up, else to the next line's account. Ctrl+Tab is the way out of the grid and passes.
void FrmDistribution::OnKeyDown(platform::KeyDown& key) {
  if (RunEditCommand(key)) return;
  if ((key.key_code != platform::keys::kTab && key.key_code != platform::keys::kEnter) ||
      key.shift != platform::kNoShift) {
    return;
  }
  platform::GridEngine& engine = grid_.Engine();
  if (!engine.CurrentRow() || engine.CurrentColumn() <= Column::kDeleteColumn) return;
  if (engine.CurrentColumn() < model_.AmountColumn()) {
    LeaveAccountColumn(key);
    return;
  }
  const int pressed = key.key_code;
  key.key_code = 0;
  if (!engine.CommitRow() || accept_.HasFocus()) return;
  if (model_.LinesAddUp()) {
    FocusAccept();
    return;
  }
  const std::optional<int> row = engine.CurrentRow();
  if (row && *row + 1 < engine.FirstRow() + engine.DisplayRowCount()) {
    if (engine.SetCurrentRow(*row + 1)) engine.SetCurrentColumn(Column::kAccountColumn);
    return;
  }
  // Past the last line the grid's own handling goes on (Tab leaves the grid).
  key.key_code = pressed;
}

// Before the amount: once the lines add up there is nothing left to type, so Accept is next;
// otherwise the cursor goes on to the amount.
void FrmDistribution::LeaveAccountColumn(platform::KeyDown& key) {
  if (!model_.LinesAddUp()) return;
  platform::GridEngine& engine = grid_.Engine();
  key.key_code = 0;
  if (!engine.CommitRow() || accept_.HasFocus()) return;
  if (model_.LinesAddUp()) FocusAccept();
}

// A line started below the last one becomes a table line at once, so the fill and the totals
// see it as the line being typed.
void FrmDistribution::OnNewRowRequest() {
  platform::GridEngine& engine = grid_.Engine();
  const LineTable& table = model_.Table();
  if (!table || engine.RowChanged()) return;
  table->AppendRows(1);
  engine.Rebind();
}

void FrmDistribution::OnActivate() {
  platform::GridEngine& engine = grid_.Engine();
  // The cursor never waits on the delete column, drawn or not.
  engine.SetCurrentColumn(Column::kAccountColumn);
  if (model_.TotalsMatch() && !engine.CellText(Column::kAccountColumn).empty()) {
    FocusAccept();
    return;
  }
  FocusGrid();
}

void FrmDistribution::OnAccept() {
  platform::GridEngine& engine = grid_.Engine();
  // A refused cell has shown its own message; accepting stops there.
  if (model_.EditRejected() || !engine.CommitRow()) {
    model_.ForgetRejectedEdit();
    FocusGrid();
    return;
  }
  const DistributionModel::AmountsCheck check = model_.CheckAmountsEntered();
  if (!check.may_accept) {
    if (check.missing_amount_row) {
      Inform("An amount is required.");
      engine.SetCurrentRow(*check.missing_amount_row);
      engine.SetCurrentColumn(model_.AmountColumn());
    }
    FocusGrid();
    return;
  }
  if (RefusedByChart()) return;
  const Variant total = CalculateDistAmounts();
  if (!total.IsEmpty() && total.ToCurrency() == model_.AmountToDistribute()) {
    model_.SetChosen(true);
    surface_->Hide();
    return;
  }
  Inform("The total amounts you enter must be equal to the 'Amount to Distribute'.");
  FocusGrid();
}

bool FrmDistribution::RefusedByChart() {
  if (!model_.Table()) return false;
  const std::optional<AccountChart::Refusal> refusal =
      accounts_.StrictRefusal(*model_.Table(), Column::kAccountColumn);
  if (!refusal) return false;
  Inform(refusal->message);
  platform::GridEngine& engine = grid_.Engine();
  engine.SetCurrentRow(refusal->row);
  engine.SetCurrentColumn(Column::kAccountColumn);
  FocusGrid();
  return true;
}

void FrmDistribution::OnCancel() {
  completion_.Hide();
  grid_.Engine().CancelEdit();
  model_.SetChosen(false);
  surface_->Hide();
}

bool FrmDistribution::RunEditCommand(platform::KeyDown& key) {
  const entry::EditCommand command = entry::EditCommandOf(key);
  if (command == entry::EditCommand::kNone || command == entry::EditCommand::kCopy) return false;
  key.key_code = 0;
  if (command == entry::EditCommand::kPaste) PasteText(host_.ClipboardText());
  if (command == entry::EditCommand::kUndo) Undo();
  if (command == entry::EditCommand::kRedo) Redo();
  return true;
}

void FrmDistribution::PasteText(const std::string& text) {
  // An empty clipboard leaves the line being typed as it is.
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) return;
  platform::GridEngine& engine = grid_.Engine();
  const int column = engine.CurrentColumn();
  if (!engine.CommitRow() || !model_.Table()) return;
  platform::Array2D before = *model_.Table();
  const DistributionPaste::Outcome outcome = DistributionPaste::Paste(model_, host_, text, column);
  if (outcome.added > 0) {
    RecordLines(std::move(before));
    engine.Rebind();
    // Checked against the amount to distribute as typed lines are.
    AfterLinesChanged(outcome.last_row);
  }
  if (!outcome.refused.empty()) Inform(outcome.refused);
}

void FrmDistribution::RecordLines(platform::Array2D before) {
  auto kept = std::make_shared<platform::Array2D>(std::move(before));
  history_.Push([this, kept] {
    if (!model_.Table()) return;
    std::swap(*model_.Table(), *kept);
    grid_.Engine().Rebind();
    CalculateDistAmounts();
    ShowTotals();
  });
}

bool FrmDistribution::Undo() {
  platform::GridEngine& engine = grid_.Engine();
  if (engine.IsEditing() || engine.RowChanged()) {
    engine.CancelEdit();
    return true;
  }
  return history_.Undo();
}

bool FrmDistribution::Redo() {
  if (!history_.CanRedo()) return false;
  grid_.Engine().CancelEdit();
  return history_.Redo();
}

}  // namespace zenta
