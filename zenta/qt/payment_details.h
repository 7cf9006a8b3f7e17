#pragma once

#include <QString>
#include <QVariant>
#include <memory>

#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

// One payment as a Qt widget: the payment amount, GST/HST, net expense, a "View Dist" button and
// what the payment is for, in a one-row grid, with the payment's G/L split entered in the
// shared distribution window. Amounts are exact zenta::Currency values. The in/out arguments of
// the events (Cancel, Field) are references: a connected slot's answer decides, from C++
// (direct connection) or late-bound through EventRaised.
class PaymentDetails : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(zenta::Currency PaymentAmount READ PaymentAmount WRITE SetPaymentAmount NOTIFY PaymentAmountChanged
                 STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency GST READ GST WRITE SetGST NOTIFY GSTChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency NetExpense READ NetExpense NOTIFY NetExpenseChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QString PaymentFor READ PaymentFor NOTIFY PaymentForChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QString DefaultGLAccount READ DefaultGLAccount WRITE SetDefaultGLAccount NOTIFY DefaultGLAccountChanged
                 STORED false DESIGNABLE false)
  Q_PROPERTY(bool LockFields READ LockFields WRITE SetLockFields NOTIFY LockFieldsChanged)

 public:
  explicit PaymentDetails(QWidget* parent = nullptr);
  ~PaymentDetails() override;

  Q_INVOKABLE void ShowBusinessMode();
  Q_INVOKABLE void ShowDistribution();
  Q_INVOKABLE void ClearPay();
  // The shared currency code of the library; the layout follows at the next ShowBusinessMode.
  Q_INVOKABLE void SetOtherCurrencyCode(const QVariant& code);
  // Whether the payment may be accepted; InvalidReason gets the first problem found (in the
  // installed translation's language), or "".
  bool IsDataValid(QString& InvalidReason);
  // The same check for late-bound hosts: the reason, empty when the payment is valid.
  Q_INVOKABLE QString InvalidReason();
  // The accepted G/L lines as (account, amount, payment-currency amount) maps, in line order.
  Q_INVOKABLE QVariantList Distributions() const;

  Currency PaymentAmount() const;
  void SetPaymentAmount(Currency value);
  Currency GST() const;
  void SetGST(Currency value);
  Currency NetExpense() const;
  QString PaymentFor() const;
  QString DefaultGLAccount() const;
  void SetDefaultGLAccount(const QString& account);
  bool LockFields() const;
  void SetLockFields(bool locked);

  // The control logic, for C++ hosts that want its errors thrown rather than signalled.
  zenta::PaymentDetails& Control() { return *control_; }

 signals:
  void GetPayAmount();
  void KeypressLockedField(QString& Field);
  void GLBalanced();
  void GLDistributionBeforeEdit(bool& Cancel);
  void PayAmtBeforeUpdate(bool& Cancel);
  void GSTAmtBeforeUpdate(bool& Cancel);
  void PaymentAmountChanged();
  void GSTChanged();
  void NetExpenseChanged();
  void PaymentForChanged();
  void DefaultGLAccountChanged();
  void LockFieldsChanged();

 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::PaymentDetails> control_;
};

}  // namespace zenta::qt
