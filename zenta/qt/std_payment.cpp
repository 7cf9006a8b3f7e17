#include "zenta/qt/std_payment.h"

#include "zenta/controls/simple/std_payment.h"
#include "zenta/qt/control_binding.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt {

StdPayment::StdPayment(QWidget* parent)
    : ControlWidget(parent), control_(std::make_unique<zenta::StdPayment>(Surface(), Host())) {
  Attach(std::make_unique<BindingTo<zenta::StdPayment>>(*control_));
}

StdPayment::~StdPayment() { DestroySurface(); }

void StdPayment::EmitTyped(platform::RaisedEvent& event) {
  switch (event.number) {
    case zenta::StdPayment::kLostFocusPaymentAmount: emit LostFocusPaymentAmount(); break;
    case zenta::StdPayment::kLostFocusGSTAmount: emit LostFocusGSTAmount(); break;
    case zenta::StdPayment::kLostFocusAmount: emit LostFocusAmount(); break;
    default: break;
  }
}

void StdPayment::Clear() { Guard([&] { control_->Clear(); }); }
void StdPayment::ShowBusinessMode() { Guard([&] { control_->ShowBusinessMode(); }); }
void StdPayment::SetFocusPaymentAmount() { Guard([&] { control_->SetFocusPaymentAmount(); }); }
void StdPayment::SetFocusGSTAmount() { Guard([&] { control_->SetFocusGSTAmount(); }); }

float StdPayment::PaymentAmount() const { return control_->PaymentAmount(); }
void StdPayment::SetPaymentAmount(float value) { Guard([&] { control_->SetPaymentAmount(value); }); }
Currency StdPayment::PaymentAmountCurrency() const { return control_->PaymentAmountCurrency(); }
Currency StdPayment::GSTAmount() const { return control_->GSTAmount(); }
void StdPayment::SetGSTAmount(Currency value) { Guard([&] { control_->SetGSTAmount(value); }); }
bool StdPayment::PaymentAmountEnabled() const { return control_->PaymentAmountEnabled(); }
void StdPayment::SetPaymentAmountEnabled(bool enabled) { Guard([&] { control_->SetPaymentAmountEnabled(enabled); }); }
bool StdPayment::GSTAmountEnabled() const { return control_->GSTAmountEnabled(); }
void StdPayment::SetGSTAmountEnabled(bool enabled) { Guard([&] { control_->SetGSTAmountEnabled(enabled); }); }

}  // namespace zenta::qt
