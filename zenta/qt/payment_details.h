#pragma once

/// @file
/// PaymentDetails, one payment with its G/L split.

#include <QString>
#include <QVariant>
#include <memory>

#include "zenta/core/currency.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/metatypes.h"

/// @cond internal
namespace zenta {
class PaymentDetails;
}
/// @endcond

namespace zenta::qt {

/// One payment with its G/L split: the payment amount, GST/HST, net expense, a "View Dist"
/// button and what the payment is for, in a one-row grid.
///
/// Amounts are in dollars, exact zenta::Currency values; the payer types them as cents. Tab
/// past the last amount, the "View Dist" button or ShowDistribution() opens the application's
/// one distribution window (see ApplicationContext()), which accepts only lines that add up to
/// the amount exactly; Distributions() lists the accepted lines. A business payer states the
/// GST/HST and splits the net expense; a private payer splits the payment.
///
/// The in/out arguments of the events (Cancel, Field) are references: a connected slot's
/// answer decides. @direct
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
  /// An empty payment with default properties, a child of `parent`.
  explicit PaymentDetails(QWidget* parent = nullptr);
  ~PaymentDetails() override;

  /// Lays the grid out for BusinessMode and the library's currency code.
  Q_INVOKABLE void ShowBusinessMode();
  /// Opens the distribution window for this payment; on acceptance its lines replace
  /// Distributions(). While the window is open for any control it raises 0x80040016 "The
  /// distribution window is already open" (source "frmDistribution") and changes nothing.
  Q_INVOKABLE void ShowDistribution();
  /// Empties the payment and drops its split; mode, lock and default account stay. A window
  /// open for this payment closes as cancelled.
  Q_INVOKABLE void ClearPay();
  /// Sets the library-wide currency code (every PaymentDetails and InvoiceEntry shares it; a
  /// new control resets it to "CAD"); the layout follows at the next ShowBusinessMode().
  Q_INVOKABLE void SetOtherCurrencyCode(const QVariant& code);
  /// Whether the payment may be accepted; `InvalidReason` gets the first problem found, in
  /// the installed translation's language, or "". Never raises.
  bool IsDataValid(QString& InvalidReason);
  /// IsDataValid() for late-bound hosts: the reason, empty when the payment is valid.
  Q_INVOKABLE QString InvalidReason();
  /// The accepted G/L lines, in line order, each a QVariantMap with "GLAccount" (QString) and
  /// "Amount" (zenta::Currency in dollars; its QString form is "113.00"); empty until a split
  /// is accepted.
  Q_INVOKABLE QVariantList Distributions() const;
  /// @{

  /// Property PaymentAmount: the payment in dollars. Set by the host it is taken as given
  /// (never read as cents) and the net expense follows.
  Currency PaymentAmount() const;
  void SetPaymentAmount(Currency value);
  /// @}
  /// @{
  /// Property GST: the GST/HST part of the payment in dollars (business mode); the net expense
  /// follows.
  Currency GST() const;
  void SetGST(Currency value);
  /// @}
  /// Property NetExpense (read-only): the payment less its GST/HST, in dollars; the amount a
  /// business payer splits.
  Currency NetExpense() const;
  /// Property PaymentFor (read-only): what the payment is for, as the distribution window set it.
  QString PaymentFor() const;
  /// @{
  /// Property DefaultGLAccount: the G/L account the distribution window proposes for a new line.
  QString DefaultGLAccount() const;
  void SetDefaultGLAccount(const QString& account);
  /// @}
  /// @{
  /// Property LockFields: whether the two amount cells refuse the payer's keys (each refused
  /// key raises KeypressLockedField()); designable, default false.
  bool LockFields() const;
  void SetLockFields(bool locked);
  /// @}
  /// The setter a Designer form's generated code calls for LockFields.
  void setLockFields(bool locked) { SetLockFields(locked); }

  /// The control logic, for C++ hosts that want its errors thrown as zenta::HostError rather
  /// than signalled, and for its PayDistribution() records: include
  /// "zenta/controls/payment_details/payment_details.h" to use it.
  zenta::PaymentDetails& Control() { return *control_; }

 signals:
  /// The payment amount was stored (typed and left, or before the split opens with none).
  void GetPayAmount();
  /// The payer pressed a key in a locked amount cell (LockFields); `Field` names the cell by
  /// its caption and may be changed by the slot. @direct
  void KeypressLockedField(QString& Field);
  /// The split was accepted and adds up to the amount.
  void GLBalanced();
  /// The distribution window is about to open from "View Dist"; set `Cancel` to keep it
  /// closed. @direct
  void GLDistributionBeforeEdit(bool& Cancel);
  /// The payer typed a payment amount and is leaving the cell; set `Cancel` to refuse it (the
  /// cell keeps the previous amount). @direct
  void PayAmtBeforeUpdate(bool& Cancel);
  /// As PayAmtBeforeUpdate(), for the GST/HST amount. @direct
  void GSTAmtBeforeUpdate(bool& Cancel);
  void PaymentAmountChanged();     ///< NOTIFY of PaymentAmount.
  void GSTChanged();               ///< NOTIFY of GST.
  void NetExpenseChanged();        ///< NOTIFY of NetExpense.
  void PaymentForChanged();        ///< NOTIFY of PaymentFor.
  void DefaultGLAccountChanged();  ///< NOTIFY of DefaultGLAccount.
  void LockFieldsChanged();        ///< NOTIFY of LockFields.

  /// @cond internal
 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::PaymentDetails> control_;
  /// @endcond
};

}  // namespace zenta::qt
