#include "zenta/controls/payment_details/payment_details.h"

#include "zenta/controls/distribution/distribution_handover.h"
#include "zenta/controls/distribution/validation_texts.h"
#include "zenta/controls/distribution/view_dist_column.h"
#include "zenta/controls/payment_details/payment_key_filter.h"
#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/core/ole_color.h"
#include "zenta/core/utf8.h"
#include "zenta/entry/amount_entry.h"
#include "zenta/entry/enter_key.h"
#include "zenta/entry/surface_rules.h"
#include "zenta/platform/keys.h"

namespace zenta {

namespace {

using platform::TwipsRect;

constexpr const char* kPaymentRequired = "A payment amount is required";
using texts::kGSTRequired;
constexpr const char* kNotEqual =
    "The payment amount does not equal the G/L Distribution amount. Please click the \"View Dist\" button.";
using texts::kNoDistribution;

constexpr TwipsRect kGridRect{0, 0, 2640, 585};
constexpr int kPrivateGridWidth = 2640;
constexpr int kPrivateWidth = 2670;
constexpr int kBusinessGridWidth = 6810;
constexpr int kBusinessWidth = 6840;
constexpr int kForeignPayAmtWidth = 5200;


platform::GridColumn Described(const char* caption, platform::ColumnKind kind, int width) {
  platform::GridColumn column;
  column.caption = caption;
  column.kind = kind;
  column.width = width;
  return column;
}

bool IsAmountColumn(int column) {
  return column == PaymentDetails::kPayAmtColumn || column == PaymentDetails::kGSTColumn ||
         column == PaymentDetails::kNetExpenseColumn;
}

Variant AmountCell(Currency value) { return Variant(FormatNumber(value, formats::kAmount)); }

std::string ValueText(const Variant& value) {
  if (value.IsEmpty() || value.IsNull()) return {};
  try {
    return value.ToString();
  } catch (const HostError&) {
    return {};
  }
}

}  // namespace

PaymentDetails::PaymentDetails(platform::ControlSurface& surface, platform::HostServices& host,
                               LibraryContext& context)
    : surface_(surface),
      host_(host),
      context_(context),
      events_(host),
      grid_(surface.AddGrid({"grdPaymentAmount", kGridRect, "", true}, kColumnCount)) {
  context_.SetCurrencyCode(std::string(LibraryContext::kHomeCurrency));
  BuildColumns();
  WireGrid();
  surface_.OnKeyDown([this](platform::KeyDown& key) { entry::EnterMovesOn(key, host_); });
  surface_.OnResize([this] { entry::EnforceMinimumSize(surface_, kMinWidth, kMinHeight); });
  ApplyProperties();
}

PaymentDetails::~PaymentDetails() {
  // The grid and surface may outlive the control (a host's form keeps them): nothing they do
  // later may reach it.
  grid_.Engine().Handlers() = {};
  surface_.OnKeyDown({});
  surface_.OnResize({});
}

void PaymentDetails::BuildColumns() {
  platform::GridEngine& engine = grid_.Engine();
  using platform::ColumnKind;
  engine.SetCaption("Payment Amount");
  engine.SetColumn(kPayAmtColumn, Described("Payment Amount", ColumnKind::Number, 1335));
  engine.SetColumn(kGSTColumn, Described("Refundable GST/HST", ColumnKind::Number, 1695));
  engine.SetColumn(kNetExpenseColumn, Described("Net Expense", ColumnKind::Number, 1335));
  engine.SetColumn(kViewDistColumn, ViewDistColumn(900));
  engine.SetColumn(kPaymentForColumn, Described("Payment For", ColumnKind::Text, 1500));
}

void PaymentDetails::WireGrid() {
  platform::GridEngine& engine = grid_.Engine();
  platform::GridHandlers& on = engine.Handlers();
  // The grid edits whichever cell the cursor stands on while it has the focus, with the text
  // selected so that typing replaces it.
  auto edit_here = [this, &engine] {
    if (!grid_.HasFocus() || engine.IsEditing() || !engine.StartEdit()) return;
    engine.SetSelection(0, static_cast<int>(utf8::Length(engine.EditText())));
  };
  on.focus_gained = edit_here;
  on.row_col_change = [edit_here](std::optional<int>, int) { edit_here(); };
  on.before_col_edit = [this](platform::BeforeColEditArgs& args) { OnBeforeColEdit(args); };
  on.before_col_update = [this](platform::BeforeColUpdateArgs& args) { OnBeforeColUpdate(args); };
  on.after_col_update = [this](int column) {
    if (BusinessMode() && (column == kPayAmtColumn || column == kGSTColumn)) CalculateNetExpense();
  };
  on.before_update = [this](platform::CancelArgs& args) {
    std::string reason;
    if (!CheckPaymentValues(reason)) args.cancel = true;
  };
  on.after_update = [this] { events_.GetPayAmount(); };  // last: the host may destroy the control
  on.format_text = [](platform::FormatTextArgs& args) {
    if (!IsAmountColumn(args.column) || args.text.empty()) return;
    try {
      args.text = FormatNumber(args.value.ToCurrency(), formats::kAmount);
    } catch (const HostError&) {
      // Text that is no number is shown as it stands.
    }
  };
  on.error = [](platform::GridErrorArgs& args) { args.show_message = false; };
  on.button_click = [this](int column) {
    if (column == kViewDistColumn) ViewDistClicked();
  };
  on.key_down = [this](platform::KeyDown& key) { OnKeyDown(key); };
  on.cell_action = [this](platform::CellActionArgs& args) {
    if (args.column == kGSTColumn && BusinessMode()) TaxCell().OfferFill(context_.GstHst(), host_.Today(), args);
  };
  on.cell_hint = [this](platform::CellHintArgs& args) {
    if (args.column != kGSTColumn || !BusinessMode()) return;
    args.text = TaxCell().Hint(grid_.Engine(), args.row, context_.GstHst(), host_.Today());
  };
  on.key_press = [this](platform::CellKeyPressArgs& args) { OnKeyPress(args); };
}

void PaymentDetails::SetPayDistribution(std::shared_ptr<clsDistributions> distribution) {
  pay_distribution_ = std::move(distribution);
}

void PaymentDetails::SetBusinessMode(bool on) {
  properties_.business_mode = on;
  ShowBusinessMode();
  ClearPay();
  host_.ValueChanged("BusinessMode");
}

void PaymentDetails::ShowBusinessMode() {
  platform::GridEngine& engine = grid_.Engine();
  const bool asks_gst = BusinessMode() && HomeCurrency();
  engine.SetColumnVisible(kGSTColumn, asks_gst);
  engine.SetColumnVisible(kNetExpenseColumn, asks_gst);
  if (BusinessMode() && !asks_gst) engine.SetColumnWidth(kPayAmtColumn, kForeignPayAmtWidth);
  TwipsRect rect = grid_.Rect();
  rect.width = BusinessMode() ? kBusinessGridWidth : kPrivateGridWidth;
  grid_.SetRect(rect);
  surface_.SetWidth(BusinessMode() ? kBusinessWidth : kPrivateWidth);
}

Currency PaymentDetails::PaymentAmount() const { return HostAmount(kPayAmtColumn); }

void PaymentDetails::SetPaymentAmount(Currency value) {
  SetCell(kPayAmtColumn, AmountCell(value));
  CalculateNetExpense();
}

Currency PaymentDetails::GST() const { return HostAmount(kGSTColumn); }

void PaymentDetails::SetGST(Currency value) {
  SetCell(kGSTColumn, AmountCell(value));
  CalculateNetExpense();
}

Currency PaymentDetails::NetExpense() const { return HostAmount(kNetExpenseColumn); }

void PaymentDetails::ShowDistribution() { CheckedDistribution(); }

bool PaymentDetails::CheckedDistribution() {
  FrmDistribution& dialog = opener_.Prepare();
  try {
    return ShowDistributionSteps(dialog);
  } catch (const HostError&) {
    // A cell that does not read as an amount ends the hand-over where it failed.
  }
  return true;
}

void PaymentDetails::OpenFromButton() {
  try {
    CheckedDistribution();
  } catch (const HostError&) {
    // The window is open for another control: the click opens nothing.
  }
}

bool PaymentDetails::ShowDistributionSteps(FrmDistribution& dialog) {
  const platform::Lifetime::Watch control = lifetime_.Watched();
  grid_.Engine().CommitRow();  // the host's vetoes run here
  if (!control.Alive()) return false;
  dialog.SetVisibleInvoice(false);
  StyleDialogLines(dialog.Grid().Engine());
  // Payments are never split in foreign-currency mode, whatever the shared code says.
  dialog.SetIsFXPayment(false);
  const DialogPlacement place = PlaceBelowRow(host_.Container(), grid_.FirstRowTop(), grid_.RowHeight());
  dialog.Move(place.left, place.top);

  if (!pay_distribution_) pay_distribution_ = std::make_shared<clsDistributions>();
  const bool had_lines = pay_distribution_->Count() > 0;
  auto table = LinesForDialog(*pay_distribution_);
  dialog.SetXTempDistribution(table);
  dialog.SetupForm();
  const Currency amount = CellAmount(BusinessMode() ? kNetExpenseColumn : kPayAmtColumn);
  dialog.SetAmountToDistribute(amount);
  dialog.SetPaymentFor(Variant(CellText(kPaymentForColumn)));
  if (!had_lines) ProposeWholeAmount(dialog, *table, default_gl_account_, amount);

  switch (opener_.Show()) {
    case DistributionOpener::Outcome::ControlGone: return false;
    case DistributionOpener::Outcome::Cancelled: return true;
    case DistributionOpener::Outcome::Accepted: break;
  }
  if (!pay_distribution_) pay_distribution_ = std::make_shared<clsDistributions>();
  if (const auto& accepted = dialog.XTempDistribution()) CopyLinesBack(*accepted, *pay_distribution_);
  SetCell(kPaymentForColumn, dialog.PaymentFor());
  if (!events_.GLBalanced()) return false;
  distribution_accepted_ = true;
  return true;
}

void PaymentDetails::ClearPay() {
  opener_.Abandon();
  row_ = std::make_shared<platform::Array2D>(0, 0, 0, kColumnCount - 1);
  grid_.Engine().Bind(row_);
  if (!grid_.Visible()) grid_.SetVisible(true);
  pay_distribution_.reset();
}

bool PaymentDetails::Enabled() const { return surface_.Enabled(); }

void PaymentDetails::SetEnabled(bool enabled) {
  surface_.SetEnabled(enabled);
  host_.ValueChanged("Enabled");
}

Variant PaymentDetails::PaymentFor() const { return Variant(CellText(kPaymentForColumn)); }

void PaymentDetails::SetLockFields(bool locked) {
  properties_.lock_fields = locked;
  ApplyLockFields();
  host_.ValueChanged("LockFields");
}

void PaymentDetails::ApplyLockFields() {
  grid_.Engine().SetColumnLocked(kPayAmtColumn, LockFields());
  grid_.Engine().SetColumnLocked(kGSTColumn, LockFields());
}

bool PaymentDetails::IsDataValid(std::string& InvalidReason) {
  std::string reason;
  bool valid = false;
  try {
    if (!CheckPaymentValues(reason)) {
      InvalidReason = reason;
      return false;
    }
    const platform::Lifetime::Watch control = lifetime_.Watched();
    grid_.Engine().CommitRow();  // the host's vetoes run here
    if (!control.Alive()) return false;
    const Currency amount = CellAmount(BusinessMode() ? kNetExpenseColumn : kPayAmtColumn);
    if (!pay_distribution_) pay_distribution_ = std::make_shared<clsDistributions>();
    const Currency sum = SumOfLines(*pay_distribution_);
    if (sum != Currency() || amount == Currency()) {
      valid = amount == sum;
      if (!valid) reason = kNotEqual;
    } else {
      reason = kNoDistribution;
    }
    if (!valid) {
      grid_.Engine().SetCurrentColumn(kViewDistColumn);  // ends the cell edit: the host's vetoes run
      if (!control.Alive()) {
        InvalidReason = reason;
        return false;
      }
      grid_.SetFocus();
    }
  } catch (const HostError&) {
    // A cell that does not read as an amount ends the check with what was reached.
  }
  InvalidReason = reason;
  return valid;
}

void PaymentDetails::SetOtherCurrencyCode(const Variant& code) { context_.SetCurrencyCode(ValueText(code)); }

void PaymentDetails::InitProperties() {
  properties_ = PaymentProperties{};
  ApplyProperties();
}

void PaymentDetails::ReadProperties(const platform::PropertyBag& bag) {
  properties_ = PaymentProperties::Read(bag);
  ApplyProperties();
}

void PaymentDetails::ApplyProperties() {
  ShowBusinessMode();
  ClearPay();
  ApplyLockFields();
  for (const char* name : {"BusinessMode", "LockFields", "Enabled", "BackColor", "BackColorTitle"}) host_.ValueChanged(name);
}

std::string PaymentDetails::CellText(int column) const { return grid_.Engine().CellText(column); }

Currency PaymentDetails::CellAmount(int column) const {
  const Variant value = grid_.Engine().CellValue(column);
  if (ValueText(value).empty()) return Currency();
  return value.ToCurrency();
}

Currency PaymentDetails::HostAmount(int column) const {
  if (std::optional<Currency> typed = TypedAmount(column)) return *typed;
  if (column == kNetExpenseColumn && BusinessMode()) {
    // Leaving a typed amount works the net expense out again.
    const std::optional<Currency> pay = TypedAmount(kPayAmtColumn);
    const std::optional<Currency> gst = TypedAmount(kGSTColumn);
    if (pay || (gst && !CellEmpty(kPayAmtColumn))) {
      return pay.value_or(StoredAmount(kPayAmtColumn)) - gst.value_or(StoredAmount(kGSTColumn));
    }
  }
  return StoredAmount(column);
}

std::optional<Currency> PaymentDetails::TypedAmount(int column) const {
  const platform::GridEngine& engine = grid_.Engine();
  if (!engine.IsEditing() || engine.CurrentColumn() != column) return std::nullopt;
  return entry::PendingGridAmount(engine.EditText());
}

Currency PaymentDetails::StoredAmount(int column) const {
  try {
    return CellAmount(column);
  } catch (const HostError&) {
    const platform::GridEngine& engine = grid_.Engine();
    const Variant stored = engine.StoredValue(engine.FirstRow(), column);
    return ValueText(stored).empty() ? Currency() : stored.ToCurrency();
  }
}

void PaymentDetails::SetCell(int column, const Variant& value) { grid_.Engine().SetCellValue(column, value); }

bool PaymentDetails::HomeCurrency() const { return LibraryContext::IsHomeCurrency(context_.CurrencyCode()); }

void PaymentDetails::CalculateNetExpense() {
  if (CellEmpty(kPayAmtColumn)) return;
  if (CellEmpty(kGSTColumn)) {
    SetCell(kNetExpenseColumn, grid_.Engine().CellValue(kPayAmtColumn));
    return;
  }
  try {
    SetCell(kNetExpenseColumn, AmountCell(CellAmount(kPayAmtColumn) - CellAmount(kGSTColumn)));
  } catch (const HostError&) {
    // Amounts that do not read as numbers leave the net expense as it was.
  }
}

bool PaymentDetails::CheckPaymentValues(std::string& reason) {
  platform::GridEngine& engine = grid_.Engine();
  if (CellEmpty(kPayAmtColumn)) {
    engine.SetCurrentColumn(kPayAmtColumn);
    reason = kPaymentRequired;
    return false;
  }
  if (BusinessMode() && HomeCurrency()) {
    const platform::Lifetime::Watch control = lifetime_.Watched();
    engine.SetCurrentColumn(kGSTColumn);  // ends the cell edit: the host's vetoes run
    if (!control.Alive()) return false;
    if (CellEmpty(kGSTColumn)) {
      reason = kGSTRequired;
      return false;
    }
  }
  reason.clear();
  return true;
}

// Reads typed cents, then lets the host veto the amount. True when the update is refused, and
// always when a handler destroyed the control.
bool PaymentDetails::CheckAmountCell(int column) {
  const std::string typed = CellText(column);
  const std::string text = entry::TypedGridAmount(typed);
  if (text != typed) SetCell(column, Variant(text));

  if (column == kPayAmtColumn) {
    const std::optional<bool> cancel = events_.PayAmtBeforeUpdate();
    if (!cancel) return true;
    if (!*cancel) return false;
    SetCell(kPayAmtColumn, Variant(std::string()));
    if (BusinessMode()) {
      SetCell(kGSTColumn, Variant(std::string()));
      SetCell(kNetExpenseColumn, Variant(std::string()));
    }
    CalculateNetExpense();
    events_.GetPayAmount();
    return true;
  }
  if (column == kGSTColumn) {
    const std::optional<bool> cancel = events_.GSTAmtBeforeUpdate();
    if (!cancel) return true;
    if (!*cancel) return false;
    if (BusinessMode()) SetCell(kNetExpenseColumn, grid_.Engine().CellValue(kPayAmtColumn));
    return true;
  }
  return false;
}

void PaymentDetails::ViewDistClicked() {
  const std::optional<bool> cancel = events_.GLDistributionBeforeEdit();
  if (!cancel || *cancel) return;
  std::string reason;
  if (!CheckPaymentValues(reason)) return;
  try {
    if (CellAmount(kPayAmtColumn) == Currency()) {
      CalculateNetExpense();
      if (!events_.GetPayAmount()) return;
    }
    if (grid_.Engine().Column(kGSTColumn).visible && CellEmpty(kGSTColumn)) {
      SetCell(kGSTColumn, AmountCell(Currency()));
      SetCell(kNetExpenseColumn, AmountCell(CellAmount(kPayAmtColumn) - CellAmount(kGSTColumn)));
    }
    const int split = BusinessMode() ? kNetExpenseColumn : kPayAmtColumn;
    if (CellAmount(split) != Currency()) {
      PostToSelf(&PaymentDetails::OpenFromButton);
    } else if (BusinessMode()) {
      grid_.Engine().SetCurrentColumn(kPayAmtColumn);
    }
  } catch (const HostError&) {
    // An amount that does not read as a number opens nothing.
  }
}

void PaymentDetails::OpenFromKeyboard() {
  try {
    if (CellAmount(BusinessMode() ? kNetExpenseColumn : kPayAmtColumn) != Currency() && !CheckedDistribution()) return;
  } catch (const HostError&) {
    // Nothing to split, or the window is open for another control.
  }
  events_.GLBalanced();
}

// The window is modal: it opens after the grid's notification has returned, never inside it.
void PaymentDetails::PostToSelf(void (PaymentDetails::*action)()) {
  host_.Post([this, control = lifetime_.Watched(), action] {
    if (control.Alive()) (this->*action)();
  });
}

void PaymentDetails::OnBeforeColEdit(platform::BeforeColEditArgs& args) {
  // The payment amount is always typed first.
  if (args.column != kPayAmtColumn && CellEmpty(kPayAmtColumn)) {
    grid_.Engine().SetCurrentColumn(kPayAmtColumn);
    args.cancel = true;
  }
}

void PaymentDetails::OnBeforeColUpdate(platform::BeforeColUpdateArgs& args) {
  const std::string text = CellText(args.column);
  // A cell left as it was is not checked again.
  if (text.empty() || !IsAmountColumn(args.column) || text == ValueText(args.old_value)) return;
  if (CheckAmountCell(args.column)) {
    args.old_value = Variant(std::string());
    args.cancel = true;
  }
}

// Tab or Enter past the last amount leads into the distribution window.
entry::GstHstCell PaymentDetails::TaxCell() { return {kPayAmtColumn, kGSTColumn}; }

void PaymentDetails::OnKeyDown(platform::KeyDown& key) {
  if (BusinessMode() && TaxCell().Fill(grid_.Engine(), context_.GstHst(), host_.Today(), key)) return;
  if ((key.key_code != platform::keys::kTab && key.key_code != platform::keys::kEnter) ||
      key.shift != platform::kNoShift) {
    return;
  }
  platform::GridEngine& engine = grid_.Engine();
  const platform::Lifetime::Watch control = lifetime_.Watched();
  const bool committed = engine.CommitEdit();  // the host's vetoes run here
  if (!control.Alive()) return;
  if (!committed) {
    key.key_code = 0;
    return;
  }
  const int column = engine.CurrentColumn();
  const int last_amount = BusinessMode() ? kNetExpenseColumn : kPayAmtColumn;
  if (column != last_amount && column != kViewDistColumn) return;
  // Consumed either way: a failed check has moved the cursor to the cell to fix.
  key.key_code = 0;
  std::string reason;
  if (CheckPaymentValues(reason)) PostToSelf(&PaymentDetails::OpenFromKeyboard);
}

void PaymentDetails::OnKeyPress(platform::CellKeyPressArgs& args) {
  switch (FilterPaymentKey(args)) {
    case PaymentKeyVerdict::Discard:
      args.key = 0;
      return;
    case PaymentKeyVerdict::Beep:
      host_.Beep();
      args.key = 0;
      return;
    case PaymentKeyVerdict::Pass:
      break;
  }
  if (LockFields() && (args.column == kPayAmtColumn || args.column == kGSTColumn)) {
    std::string field = grid_.Engine().Column(args.column).caption;
    events_.KeypressLockedField(field);
    args.key = 0;
    return;
  }
  if (!BusinessMode() && distribution_accepted_ && args.column == kViewDistColumn) events_.GLBalanced();
}

}  // namespace zenta
