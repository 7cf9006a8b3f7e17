#include "zenta/qt/pmt_details.h"

#include "zenta/controls/simple/pmt_details.h"
#include "zenta/qt/control_binding.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

PmtDetails::PmtDetails(QWidget* parent)
    : ControlWidget(parent), control_(std::make_unique<zenta::PmtDetails>(Surface(), Host())) {
  Attach(std::make_unique<BindingTo<zenta::PmtDetails>>(*control_));
}

PmtDetails::~PmtDetails() { DestroySurface(); }

void PmtDetails::EmitTyped(platform::RaisedEvent& event) {
  switch (event.number) {
    case zenta::PmtDetails::kLostFocusInvoiceAmount: emit LostFocusInvoiceAmount(); break;
    case zenta::PmtDetails::kLostFocusGSTAmount: emit LostFocusGSTAmount(); break;
    case zenta::PmtDetails::kLostFocusAmount: emit LostFocusAmount(); break;
    default: break;
  }
}

void PmtDetails::Clear() { Guard([&] { control_->Clear(); }); }
void PmtDetails::ShowBusinessMode() { Guard([&] { control_->ShowBusinessMode(); }); }
void PmtDetails::SetFocusInvoiceDate() { Guard([&] { control_->SetFocusInvoiceDate(); }); }
void PmtDetails::SetFocusInvoiceNumber() { Guard([&] { control_->SetFocusInvoiceNumber(); }); }
void PmtDetails::SetFocusInvoiceAmount() { Guard([&] { control_->SetFocusInvoiceAmount(); }); }
void PmtDetails::SetFocusGSTAmount() { Guard([&] { control_->SetFocusGSTAmount(); }); }

QDate PmtDetails::InvoiceDate() const { return ToQDate(control_->InvoiceDate()); }
void PmtDetails::SetInvoiceDate(const QDate& value) {
  Guard([&] { control_->SetInvoiceDate(FromQDate(value, "dtInvoiceDate")); });
}
QString PmtDetails::InvoiceNumber() const { return ToQString(control_->InvoiceNumber()); }
void PmtDetails::SetInvoiceNumber(const QString& value) {
  Guard([&] { control_->SetInvoiceNumber(FromQString(value)); });
}
float PmtDetails::InvoiceAmount() const { return control_->InvoiceAmount(); }
void PmtDetails::SetInvoiceAmount(float value) { Guard([&] { control_->SetInvoiceAmount(value); }); }
Currency PmtDetails::InvoiceAmountCurrency() const { return control_->InvoiceAmountCurrency(); }
float PmtDetails::GSTAmount() const { return control_->GSTAmount(); }
void PmtDetails::SetGSTAmount(float value) { Guard([&] { control_->SetGSTAmount(value); }); }
Currency PmtDetails::GSTAmountCurrency() const { return control_->GSTAmountCurrency(); }
bool PmtDetails::InvoiceDateEnabled() const { return control_->InvoiceDateEnabled(); }
void PmtDetails::SetInvoiceDateEnabled(bool enabled) { Guard([&] { control_->SetInvoiceDateEnabled(enabled); }); }
bool PmtDetails::InvoiceNumberEnabled() const { return control_->InvoiceNumberEnabled(); }
void PmtDetails::SetInvoiceNumberEnabled(bool enabled) { Guard([&] { control_->SetInvoiceNumberEnabled(enabled); }); }
bool PmtDetails::InvoiceAmountEnabled() const { return control_->InvoiceAmountEnabled(); }
void PmtDetails::SetInvoiceAmountEnabled(bool enabled) { Guard([&] { control_->SetInvoiceAmountEnabled(enabled); }); }
bool PmtDetails::GSTAmountEnabled() const { return control_->GSTAmountEnabled(); }
void PmtDetails::SetGSTAmountEnabled(bool enabled) { Guard([&] { control_->SetGSTAmountEnabled(enabled); }); }

}  // namespace zenta::qt
