#pragma once

#include <memory>

#include "zenta/controls/simple/std_payment.h"
#include "zenta/core/currency.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

// The payment amount and GST/HST control as a Qt widget. PaymentAmount is kept a float for
// hosts that have always read it so; PaymentAmountCurrency is the same amount exact, the one to
// book. GSTAmount is an exact zenta::Currency (it converts to QString and double in a QVariant).
// Reading an amount never changes the field: while the payer types "2500" it reads 25.00.
class StdPayment : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(float PaymentAmount READ PaymentAmount WRITE SetPaymentAmount NOTIFY PaymentAmountChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency PaymentAmountCurrency READ PaymentAmountCurrency NOTIFY PaymentAmountChanged
                 STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency GSTAmount READ GSTAmount WRITE SetGSTAmount NOTIFY GSTAmountChanged STORED false
                 DESIGNABLE false)
  Q_PROPERTY(bool PaymentAmountEnabled READ PaymentAmountEnabled WRITE SetPaymentAmountEnabled NOTIFY
                 PaymentAmountEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool GSTAmountEnabled READ GSTAmountEnabled WRITE SetGSTAmountEnabled NOTIFY GSTAmountEnabledChanged
                 STORED false DESIGNABLE false)

 public:
  explicit StdPayment(QWidget* parent = nullptr);
  ~StdPayment() override;

  Q_INVOKABLE void Clear();
  Q_INVOKABLE void ShowBusinessMode();
  Q_INVOKABLE void SetFocusPaymentAmount();
  Q_INVOKABLE void SetFocusGSTAmount();

  float PaymentAmount() const;
  void SetPaymentAmount(float value);
  Currency PaymentAmountCurrency() const;
  Currency GSTAmount() const;
  void SetGSTAmount(Currency value);
  bool PaymentAmountEnabled() const;
  void SetPaymentAmountEnabled(bool enabled);
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);

  // The control logic, for C++ hosts that want its errors thrown rather than signalled.
  zenta::StdPayment& Control() { return *control_; }

 signals:
  void LostFocusPaymentAmount();
  void LostFocusGSTAmount();
  void LostFocusAmount();
  void PaymentAmountChanged();
  void GSTAmountChanged();
  void PaymentAmountEnabledChanged();
  void GSTAmountEnabledChanged();

 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::StdPayment> control_;
};

}  // namespace zenta::qt
