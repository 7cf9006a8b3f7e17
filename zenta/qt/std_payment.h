#pragma once

/// @file
/// StdPayment, one payment amount and its GST/HST.

#include <memory>

#include "zenta/core/currency.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/metatypes.h"

/// @cond internal
namespace zenta {
class StdPayment;
}
/// @endcond

namespace zenta::qt {

/// One payment amount and, for a business payer, the GST/HST part of it.
///
/// Amounts are in dollars. The payer types them as cents ("2500" becomes 25.00 when the field
/// is left); Enter moves on like Tab; F2 clears a field. PaymentAmount is kept a float for hosts
/// that have always read it so; PaymentAmountCurrency is the same amount exact, the one to
/// book. GSTAmount is an exact zenta::Currency (in a QVariant it converts to the QString
/// "113.00" and to double, see RegisterMetaTypes()). Reading an amount never changes the
/// field: while the payer types "2500" it reads 0.02, 0.25, 2.50 and then 25.00.
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
  /// An empty control with default properties, a child of `parent`.
  explicit StdPayment(QWidget* parent = nullptr);
  ~StdPayment() override;

  /// Empties both amounts.
  Q_INVOKABLE void Clear();
  /// Lays the fields out for BusinessMode: the GST/HST field shows only for a business payer.
  Q_INVOKABLE void ShowBusinessMode();
  /// Puts the focus in the payment amount.
  Q_INVOKABLE void SetFocusPaymentAmount();
  /// Puts the focus in the GST/HST amount (shown in business mode only).
  Q_INVOKABLE void SetFocusGSTAmount();
  /// @{

  /// Property PaymentAmount: the payment in dollars, as a float (0 when empty). Setting NaN,
  /// infinity or an amount past the currency range raises Overflow (6) and keeps the amount.
  float PaymentAmount() const;
  void SetPaymentAmount(float value);
  /// @}
  /// Property PaymentAmountCurrency (read-only): the payment amount exact, the one to book.
  Currency PaymentAmountCurrency() const;
  /// @{
  /// Property GSTAmount: the GST/HST part of the payment in dollars, exact.
  Currency GSTAmount() const;
  void SetGSTAmount(Currency value);
  /// @}
  /// @{
  /// Property PaymentAmountEnabled: whether the payer can type the payment amount.
  bool PaymentAmountEnabled() const;
  void SetPaymentAmountEnabled(bool enabled);
  /// @}
  /// @{
  /// Property GSTAmountEnabled: whether the payer can type the GST/HST amount.
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);
  /// @}

  /// The control logic, for C++ hosts that want its errors thrown as zenta::HostError rather
  /// than signalled: include "zenta/controls/simple/std_payment.h" to use it.
  zenta::StdPayment& Control() { return *control_; }

 signals:
  void LostFocusPaymentAmount();  ///< The payer left the payment amount field.
  void LostFocusGSTAmount();      ///< The payer left the GST/HST field.
  void LostFocusAmount();         ///< The payer left either amount field, after the field's own signal.
  void PaymentAmountChanged();    ///< NOTIFY of PaymentAmount and PaymentAmountCurrency.
  void GSTAmountChanged();        ///< NOTIFY of GSTAmount.
  void PaymentAmountEnabledChanged();  ///< NOTIFY of PaymentAmountEnabled.
  void GSTAmountEnabledChanged();      ///< NOTIFY of GSTAmountEnabled.

  /// @cond internal
 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::StdPayment> control_;
  /// @endcond
};

}  // namespace zenta::qt
