#include "zenta/controls/simple/govt_details.h"

#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"
#include "zenta/entry/amount_entry.h"
#include "zenta/entry/amount_focus_lost.h"
#include "zenta/entry/surface_rules.h"

namespace zenta {

namespace {
std::optional<Currency> AmountOf(const Variant& value) {
  if (value.IsEmpty() || value.IsNull()) return std::nullopt;
  return value.ToCurrency();
}

Variant VariantOf(const std::optional<Currency>& value) { return value ? Variant(*value) : Variant(); }
}  // namespace

GovtDetails::Widgets GovtDetails::Build(platform::ControlSurface& surface) {
  auto& statement = surface.AddCheckBox({"chkStatementOnly", {60, 60, 1740, 300}}, "Statement of Account only");
  surface.AddLabel({"lblPeriodFrom", {60, 420, 800, 240}}, "Period From");
  surface.AddLabel({"lblDateHint", {900, 420, 900, 240}}, "YYYY/MM/DD");
  auto& from = surface.AddDateEdit(
      {"dtPeriodFrom", {60, 660, 1740, 300}, "Enter the start of the period for this payment"});
  surface.AddLabel({"lblPeriodTo", {60, 1020, 1740, 240}}, "Period To");
  auto& to = surface.AddDateEdit({"dtPeriodTo", {60, 1260, 1740, 300}, "Enter the end of the period for this payment"});
  surface.AddLabel({"lblDueDate", {60, 1620, 1740, 240}}, "Due Date");
  auto& due = surface.AddDateEdit(
      {"dtDueDate", {60, 1860, 1740, 300}, "Enter the date on which the payment is due"});
  auto& items = surface.AddGrid({"grItems", {60, 2220, 1740, 1200}}, 2);
  items.Engine().SetCaption("Line Items");
  surface.AddLabel({"lblComments", {60, 3480, 1740, 240}}, "Comments / Contact");
  auto& comments = surface.AddTextBox(
      {"txtComments", {60, 3720, 1740, 300}, "Enter applicable comments / contact information"});
  surface.AddLabel({"lblPaymentAmount", {60, 4080, 1740, 240}}, "Amount of Payment");
  auto& amount = surface.AddNumberEdit({"txtPaymentAmount", {60, 4320, 1740, 300}, "Enter the amount of the payment"});
  surface.AddLabel({"lblOtherAmount", {60, 4680, 1740, 240}}, "Other Amount");
  auto& other = surface.AddNumberEdit(
      {"txtOtherAmount", {60, 4920, 1740, 300}, "Enter the other amount of the payment"});
  return {statement, from, to, due, items, comments, amount, other};
}

GovtDetails::GovtDetails(platform::ControlSurface& surface, platform::HostServices& host)
    : SmallControl(surface, host, colors::kTitleYellow, kMinWidth, kMinHeight),
      w_(Build(surface)),
      items_(w_.items,
             {.row_updated = EventRaiser(kGridRowUpdated, "GridRowUpdated", listener_, &Events::GridRowUpdated),
              .leave_last_row =
                  [this] {
                    if (w_.comments.Enabled()) {
                      w_.comments.SetFocus();
                    } else if (w_.payment_amount.Enabled()) {
                      w_.payment_amount.SetFocus();
                    }
                  }}) {
  entry::ApplyAmountSettings(w_.payment_amount);
  // Kept as it has always been: six "#" in the positive section, eight in the negative one.
  w_.payment_amount.SetDisplayFormat(std::string(formats::kGovtAmountDisplay));
  entry::ApplyAmountSettings(w_.other_amount);

  w_.statement_only.OnClick([this] { ApplyStatementOnly(); });
  w_.comments.OnKeyPress([this](platform::KeyPress& press) { FilterCommentKey(press); });
  w_.payment_amount.OnFocusLost([this] {
    entry::HandleAmountFocusLost(w_.payment_amount, surface_,
                                 {.left_control = EventRaiser(kLostFocusAmount, "LostFocusAmount", listener_,
                                                              &Events::LostFocusAmount),
                                  .stayed_inside = nullptr});
  });
  w_.other_amount.OnFocusLost([this] { entry::ApplyImpliedDecimal(w_.other_amount); });
}

void GovtDetails::FilterCommentKey(platform::KeyPress& press) const {
  char32_t key = press.key;
  bool accepted = (key >= U'A' && key <= U'Z') || (key >= U'a' && key <= U'z') || (key >= U'0' && key <= U'9') ||
                  key == 13 || key == U'.' || key == 8 || key == U'-' || key == U',' || key == U' ';
  if (!accepted) {
    press.key = 0;
  } else if (key >= U'a' && key <= U'z') {
    press.key = key - U'a' + U'A';
  }
}

void GovtDetails::ApplyStatementOnly() {
  const bool statement_only = w_.statement_only.State() == 1;
  platform::Widget* locked[] = {&w_.period_from, &w_.period_to, &w_.due_date,
                                &w_.items,       &w_.comments,  &w_.other_amount};
  for (platform::Widget* widget : locked) widget->SetEnabled(!statement_only);
  AnnounceFields();
  const OleColor paint = statement_only ? colors::k3DLight : colors::kWindowBackground;
  w_.comments.SetBackColor(paint);
  w_.other_amount.SetBackColor(paint);
}

void GovtDetails::ApplyTitleColor() {
  platform::DateEdit* dates[] = {&w_.period_from, &w_.period_to, &w_.due_date};
  entry::ApplyTitleColor(dates, BackColorTitle());
}

void GovtDetails::PropertiesRead() {
  if (surface_.UserMode()) items_.Load(GovtItemsTable::kDefaultRows);
}

void GovtDetails::Shown() {
  if (!surface_.UserMode()) return;
  if (!items_.Loaded()) items_.Load(GovtItemsTable::kDefaultRows);
  w_.items.Engine().Refresh();
}

void GovtDetails::Clear() {
  w_.period_from.SetValue(std::nullopt);
  w_.period_to.SetValue(std::nullopt);
  w_.due_date.SetValue(std::nullopt);
  w_.payment_amount.SetValue(std::nullopt);
  w_.comments.SetText("");
  items_.Load(GovtItemsTable::kDefaultRows);
}

Date GovtDetails::PeriodFrom() const { return w_.period_from.Value().value_or(Date()); }
void GovtDetails::SetPeriodFrom(Date value) { w_.period_from.SetValue(value); }
Date GovtDetails::PeriodTo() const { return w_.period_to.Value().value_or(Date()); }
void GovtDetails::SetPeriodTo(Date value) { w_.period_to.SetValue(value); }
Date GovtDetails::DueDate() const { return w_.due_date.Value().value_or(Date()); }
void GovtDetails::SetDueDate(Date value) { w_.due_date.SetValue(value); }

Variant GovtDetails::StatementOnly() const { return Variant(static_cast<std::int16_t>(w_.statement_only.State())); }
void GovtDetails::SetStatementOnly(const Variant& value) {
  // True arrives as -1: every value but 0 (unchecked) and 2 (grayed) checks the box, the same
  // on every toolkit.
  const int state = value.ToInteger();
  w_.statement_only.SetState(state == 0 || state == 2 ? state : 1);
}

std::string GovtDetails::Comments() const { return w_.comments.Text(); }
void GovtDetails::SetComments(const std::string& value) { w_.comments.SetText(value); }

Variant GovtDetails::OtherAmount() const { return VariantOf(entry::PendingValue(w_.other_amount)); }
void GovtDetails::SetOtherAmount(const Variant& value) { w_.other_amount.SetValue(AmountOf(value)); }

Variant GovtDetails::Amount() const { return VariantOf(entry::PendingValue(w_.payment_amount)); }
void GovtDetails::SetAmount(const Variant& value) {
  std::optional<Currency> amount = AmountOf(value);
  if (amount) {
    entry::SetAmount(w_.payment_amount, *amount);
  } else {
    w_.payment_amount.SetValue(std::nullopt);
  }
}

std::string GovtDetails::GridValues(std::int16_t TheRow) { return items_.AmountText(TheRow); }
void GovtDetails::SetGridValues(std::int16_t TheRow, const std::string& value) { items_.SetAmountText(TheRow, value); }

void GovtDetails::SetRows(std::int16_t NumberofRows) {
  if (NumberofRows < 1 || NumberofRows > GovtItemsTable::kMaxRows) {
    throw HostError::Object(20, "GovtDetails", "Rows must range from 1 to 26");
  }
  items_.Load(NumberofRows);
}

bool GovtDetails::StatementOnlyEnabled() const { return w_.statement_only.Enabled(); }
void GovtDetails::SetStatementOnlyEnabled(bool enabled) {
  w_.statement_only.SetEnabled(enabled);
  host_.ValueChanged("StatementOnlyEnabled");
}
bool GovtDetails::PeriodFromEnabled() const { return w_.period_from.Enabled(); }
void GovtDetails::SetPeriodFromEnabled(bool enabled) {
  w_.period_from.SetEnabled(enabled);
  host_.ValueChanged("PeriodFromEnabled");
}
bool GovtDetails::PeriodToEnabled() const { return w_.period_to.Enabled(); }
void GovtDetails::SetPeriodToEnabled(bool enabled) {
  w_.period_to.SetEnabled(enabled);
  host_.ValueChanged("PeriodToEnabled");
}
bool GovtDetails::DueDateEnabled() const { return w_.due_date.Enabled(); }
void GovtDetails::SetDueDateEnabled(bool enabled) {
  w_.due_date.SetEnabled(enabled);
  host_.ValueChanged("DueDateEnabled");
}
bool GovtDetails::CommentsEnabled() const { return w_.comments.Enabled(); }
void GovtDetails::SetCommentsEnabled(bool enabled) {
  w_.comments.SetEnabled(enabled);
  host_.ValueChanged("CommentsEnabled");
}
bool GovtDetails::OtherAmountEnabled() const { return w_.other_amount.Enabled(); }
void GovtDetails::SetOtherAmountEnabled(bool enabled) {
  w_.other_amount.SetEnabled(enabled);
  host_.ValueChanged("OtherAmountEnabled");
}
bool GovtDetails::AmountEnabled() const { return w_.payment_amount.Enabled(); }
void GovtDetails::SetAmountEnabled(bool enabled) {
  w_.payment_amount.SetEnabled(enabled);
  host_.ValueChanged("AmountEnabled");
}
bool GovtDetails::GridEnabled() const { return w_.items.Enabled(); }
void GovtDetails::SetGridEnabled(bool enabled) {
  w_.items.SetEnabled(enabled);
  host_.ValueChanged("GridEnabled");
}

void GovtDetails::SetFocusPeriodFrom() { entry::SetFocusIfEnabled(w_.period_from); }
void GovtDetails::SetFocusPeriodTo() { entry::SetFocusIfEnabled(w_.period_from); }
void GovtDetails::SetFocusDueDate() { entry::SetFocusIfEnabled(w_.due_date); }
void GovtDetails::SetFocusGrid() { entry::SetFocusIfEnabled(w_.items); }
void GovtDetails::SetFocusComment() { entry::SetFocusIfEnabled(w_.comments); }
void GovtDetails::SetFocusAmount() { entry::SetFocusIfEnabled(w_.payment_amount); }

}  // namespace zenta
