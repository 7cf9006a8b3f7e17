#include "zenta/qt/govt_details.h"

#include "zenta/controls/simple/govt_details.h"
#include "zenta/qt/control_binding.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

GovtDetails::GovtDetails(QWidget* parent)
    : ControlWidget(parent), control_(std::make_unique<zenta::GovtDetails>(Surface(), Host())) {
  Attach(std::make_unique<BindingTo<zenta::GovtDetails>>(*control_));
}

GovtDetails::~GovtDetails() { DestroySurface(); }

void GovtDetails::EmitTyped(platform::RaisedEvent& event) {
  switch (event.number) {
    case zenta::GovtDetails::kLostFocusAmount: emit LostFocusAmount(); break;
    case zenta::GovtDetails::kGridRowUpdated: emit GridRowUpdated(event.args.at(0).ToInteger()); break;
    default: break;
  }
}

void GovtDetails::Clear() { Guard([&] { control_->Clear(); }); }
QString GovtDetails::GridValues(short TheRow) const {
  QString value;
  Guard([&] { value = ToQString(control_->GridValues(TheRow)); });
  return value;
}
void GovtDetails::SetGridValues(short TheRow, const QString& value) { Guard([&] { control_->SetGridValues(TheRow, FromQString(value)); }); }

bool GovtDetails::SetRows(short NumberofRows) {
  return Guard([&] { control_->SetRows(NumberofRows); });
}

void GovtDetails::SetFocusPeriodFrom() { Guard([&] { control_->SetFocusPeriodFrom(); }); }
void GovtDetails::SetFocusPeriodTo() { Guard([&] { control_->SetFocusPeriodTo(); }); }
void GovtDetails::SetFocusDueDate() { Guard([&] { control_->SetFocusDueDate(); }); }
void GovtDetails::SetFocusGrid() { Guard([&] { control_->SetFocusGrid(); }); }
void GovtDetails::SetFocusComment() { Guard([&] { control_->SetFocusComment(); }); }
void GovtDetails::SetFocusAmount() { Guard([&] { control_->SetFocusAmount(); }); }

QDate GovtDetails::PeriodFrom() const { return ToQDate(control_->PeriodFrom()); }
void GovtDetails::SetPeriodFrom(const QDate& value) { Guard([&] { control_->SetPeriodFrom(FromQDate(value, "dtPeriodFrom")); }); }
QDate GovtDetails::PeriodTo() const { return ToQDate(control_->PeriodTo()); }
void GovtDetails::SetPeriodTo(const QDate& value) { Guard([&] { control_->SetPeriodTo(FromQDate(value, "dtPeriodTo")); }); }
QDate GovtDetails::DueDate() const { return ToQDate(control_->DueDate()); }
void GovtDetails::SetDueDate(const QDate& value) { Guard([&] { control_->SetDueDate(FromQDate(value, "dtDueDate")); }); }
QVariant GovtDetails::StatementOnly() const { return ToQVariant(control_->StatementOnly()); }
void GovtDetails::SetStatementOnly(const QVariant& value) { Guard([&] { control_->SetStatementOnly(FromQVariant(value)); }); }
QString GovtDetails::Comments() const { return ToQString(control_->Comments()); }
void GovtDetails::SetComments(const QString& value) { Guard([&] { control_->SetComments(FromQString(value)); }); }
QVariant GovtDetails::OtherAmount() const { return ToQVariant(control_->OtherAmount()); }
void GovtDetails::SetOtherAmount(const QVariant& value) { Guard([&] { control_->SetOtherAmount(FromQVariant(value)); }); }
QVariant GovtDetails::Amount() const { return ToQVariant(control_->Amount()); }
void GovtDetails::SetAmount(const QVariant& value) { Guard([&] { control_->SetAmount(FromQVariant(value)); }); }
short GovtDetails::GridNumberofRows() const { return control_->GridNumberofRows(); }
bool GovtDetails::StatementOnlyEnabled() const { return control_->StatementOnlyEnabled(); }
void GovtDetails::SetStatementOnlyEnabled(bool enabled) { Guard([&] { control_->SetStatementOnlyEnabled(enabled); }); }
bool GovtDetails::PeriodFromEnabled() const { return control_->PeriodFromEnabled(); }
void GovtDetails::SetPeriodFromEnabled(bool enabled) { Guard([&] { control_->SetPeriodFromEnabled(enabled); }); }
bool GovtDetails::PeriodToEnabled() const { return control_->PeriodToEnabled(); }
void GovtDetails::SetPeriodToEnabled(bool enabled) { Guard([&] { control_->SetPeriodToEnabled(enabled); }); }
bool GovtDetails::DueDateEnabled() const { return control_->DueDateEnabled(); }
void GovtDetails::SetDueDateEnabled(bool enabled) { Guard([&] { control_->SetDueDateEnabled(enabled); }); }
bool GovtDetails::CommentsEnabled() const { return control_->CommentsEnabled(); }
void GovtDetails::SetCommentsEnabled(bool enabled) { Guard([&] { control_->SetCommentsEnabled(enabled); }); }
bool GovtDetails::OtherAmountEnabled() const { return control_->OtherAmountEnabled(); }
void GovtDetails::SetOtherAmountEnabled(bool enabled) { Guard([&] { control_->SetOtherAmountEnabled(enabled); }); }
bool GovtDetails::AmountEnabled() const { return control_->AmountEnabled(); }
void GovtDetails::SetAmountEnabled(bool enabled) { Guard([&] { control_->SetAmountEnabled(enabled); }); }
bool GovtDetails::GridEnabled() const { return control_->GridEnabled(); }
void GovtDetails::SetGridEnabled(bool enabled) { Guard([&] { control_->SetGridEnabled(enabled); }); }

}  // namespace zenta::qt
