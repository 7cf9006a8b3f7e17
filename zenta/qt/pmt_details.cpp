#include "zenta/qt/pmt_details.h"

#include "zenta/controls/simple/pmt_details.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

PmtDetails::PmtDetails(QWidget* parent)
    : ControlWidget(parent), control_(std::make_unique<zenta::PmtDetails>(Surface(), Host())) {
  Attach(*control_);
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

void PmtDetails::Clear() { control_->Clear(); }
void PmtDetails::ShowBusinessMode() { control_->ShowBusinessMode(); }
void PmtDetails::SetFocusInvoiceDate() { control_->SetFocusInvoiceDate(); }
void PmtDetails::SetFocusInvoiceNumber() { control_->SetFocusInvoiceNumber(); }
void PmtDetails::SetFocusInvoiceAmount() { control_->SetFocusInvoiceAmount(); }
void PmtDetails::SetFocusGSTAmount() { control_->SetFocusGSTAmount(); }

QDate PmtDetails::InvoiceDate() const { return ToQDate(control_->InvoiceDate()); }
void PmtDetails::SetInvoiceDate(const QDate& value) { control_->SetInvoiceDate(FromQDate(value)); }
QString PmtDetails::InvoiceNumber() const { return ToQString(control_->InvoiceNumber()); }
void PmtDetails::SetInvoiceNumber(const QString& value) { control_->SetInvoiceNumber(FromQString(value)); }
float PmtDetails::InvoiceAmount() const { return control_->InvoiceAmount(); }
void PmtDetails::SetInvoiceAmount(float value) { control_->SetInvoiceAmount(value); }
float PmtDetails::GSTAmount() const { return control_->GSTAmount(); }
void PmtDetails::SetGSTAmount(float value) { control_->SetGSTAmount(value); }
bool PmtDetails::InvoiceDateEnabled() const { return control_->InvoiceDateEnabled(); }
void PmtDetails::SetInvoiceDateEnabled(bool enabled) { control_->SetInvoiceDateEnabled(enabled); }
bool PmtDetails::InvoiceNumberEnabled() const { return control_->InvoiceNumberEnabled(); }
void PmtDetails::SetInvoiceNumberEnabled(bool enabled) { control_->SetInvoiceNumberEnabled(enabled); }
bool PmtDetails::InvoiceAmountEnabled() const { return control_->InvoiceAmountEnabled(); }
void PmtDetails::SetInvoiceAmountEnabled(bool enabled) { control_->SetInvoiceAmountEnabled(enabled); }
bool PmtDetails::GSTAmountEnabled() const { return control_->GSTAmountEnabled(); }
void PmtDetails::SetGSTAmountEnabled(bool enabled) { control_->SetGSTAmountEnabled(enabled); }

}  // namespace zenta::qt
