#pragma once

#include <memory>

#include "zenta/core/currency.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta {
class StdPayment;
}

namespace zenta::qt {

// The payment amount and GST/HST control as a Qt widget. PaymentAmount is a float; GSTAmount
// is an exact zenta::Currency (it converts to QString and double in a QVariant).
class StdPayment : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(float PaymentAmount READ PaymentAmount WRITE SetPaymentAmount STORED false)
  Q_PROPERTY(zenta::Currency GSTAmount READ GSTAmount WRITE SetGSTAmount STORED false DESIGNABLE false)
  Q_PROPERTY(bool PaymentAmountEnabled READ PaymentAmountEnabled WRITE SetPaymentAmountEnabled STORED false)
  Q_PROPERTY(bool GSTAmountEnabled READ GSTAmountEnabled WRITE SetGSTAmountEnabled STORED false)

 public:
  explicit StdPayment(QWidget* parent = nullptr);
  ~StdPayment() override;

  Q_INVOKABLE void Clear();
  Q_INVOKABLE void ShowBusinessMode();
  Q_INVOKABLE void SetFocusPaymentAmount();
  Q_INVOKABLE void SetFocusGSTAmount();

  float PaymentAmount() const;
  void SetPaymentAmount(float value);
  Currency GSTAmount() const;
  void SetGSTAmount(Currency value);
  bool PaymentAmountEnabled() const;
  void SetPaymentAmountEnabled(bool enabled);
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);

  zenta::StdPayment& Control() { return *control_; }

 signals:
  void LostFocusPaymentAmount();
  void LostFocusGSTAmount();
  void LostFocusAmount();

 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::StdPayment> control_;
};

}  // namespace zenta::qt
