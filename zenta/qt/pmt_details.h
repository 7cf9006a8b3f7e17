#pragma once

/// @file
/// PmtDetails, the one invoice a payment settles.

#include <QDate>
#include <QString>
#include <memory>

#include "zenta/core/currency.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/metatypes.h"

/// @cond internal
namespace zenta {
class PmtDetails;
}
/// @endcond

namespace zenta::qt {

/// One invoice's date, number or description, amount and, for a business payer, GST/HST.
///
/// InvoiceDate is a QDate (null for no date), typed through a ____/__/__ mask; F2 clears it,
/// F3 puts today's date and F4 opens the calendar. A payer who leaves the date with a partial
/// or impossible date gets the previous one back. Amounts are in dollars, typed as cents. The
/// amounts are floats for hosts that have always read them so; InvoiceAmountCurrency and
/// GSTAmountCurrency are the same amounts exact, the ones to book. Reading an amount never
/// changes the field being typed.
class PmtDetails : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QDate InvoiceDate READ InvoiceDate WRITE SetInvoiceDate NOTIFY InvoiceDateChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QString InvoiceNumber READ InvoiceNumber WRITE SetInvoiceNumber NOTIFY InvoiceNumberChanged STORED false DESIGNABLE false)
  Q_PROPERTY(float InvoiceAmount READ InvoiceAmount WRITE SetInvoiceAmount NOTIFY InvoiceAmountChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency InvoiceAmountCurrency READ InvoiceAmountCurrency NOTIFY InvoiceAmountChanged
                 STORED false DESIGNABLE false)
  Q_PROPERTY(float GSTAmount READ GSTAmount WRITE SetGSTAmount NOTIFY GSTAmountChanged STORED false DESIGNABLE false)
  Q_PROPERTY(zenta::Currency GSTAmountCurrency READ GSTAmountCurrency NOTIFY GSTAmountChanged STORED false
                 DESIGNABLE false)
  Q_PROPERTY(bool InvoiceDateEnabled READ InvoiceDateEnabled WRITE SetInvoiceDateEnabled NOTIFY
                 InvoiceDateEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool InvoiceNumberEnabled READ InvoiceNumberEnabled WRITE SetInvoiceNumberEnabled NOTIFY
                 InvoiceNumberEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool InvoiceAmountEnabled READ InvoiceAmountEnabled WRITE SetInvoiceAmountEnabled NOTIFY
                 InvoiceAmountEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool GSTAmountEnabled READ GSTAmountEnabled WRITE SetGSTAmountEnabled NOTIFY GSTAmountEnabledChanged
                 STORED false DESIGNABLE false)

 public:
  /// An empty control with default properties, a child of `parent`.
  explicit PmtDetails(QWidget* parent = nullptr);
  ~PmtDetails() override;

  /// Empties the date, number and amounts.
  Q_INVOKABLE void Clear();
  /// Lays the fields out for BusinessMode: the GST/HST field shows only for a business payer.
  Q_INVOKABLE void ShowBusinessMode();
  Q_INVOKABLE void SetFocusInvoiceDate();    ///< Puts the focus in the invoice date.
  Q_INVOKABLE void SetFocusInvoiceNumber();  ///< Puts the focus in the invoice number.
  Q_INVOKABLE void SetFocusInvoiceAmount();  ///< Puts the focus in the invoice amount.
  Q_INVOKABLE void SetFocusGSTAmount();      ///< Puts the focus in the GST/HST amount.
  /// @{

  /// Property InvoiceDate: the invoice's date; a null QDate is no date. A date outside years
  /// 100 to 9999 raises 0x80040015 (source "dtInvoiceDate") and keeps the date.
  QDate InvoiceDate() const;
  void SetInvoiceDate(const QDate& value);
  /// @}
  /// @{
  /// Property InvoiceNumber: the invoice's number or description, at most 255 characters.
  QString InvoiceNumber() const;
  void SetInvoiceNumber(const QString& value);
  /// @}
  /// @{
  /// Property InvoiceAmount: the invoice amount in dollars, as a float (0 when empty). NaN,
  /// infinity or an amount past the currency range raises Overflow (6) and keeps the amount.
  float InvoiceAmount() const;
  void SetInvoiceAmount(float value);
  /// @}
  /// Property InvoiceAmountCurrency (read-only): the invoice amount exact, the one to book.
  Currency InvoiceAmountCurrency() const;
  /// @{
  /// Property GSTAmount: the GST/HST part of the invoice in dollars, as a float; errors as
  /// InvoiceAmount.
  float GSTAmount() const;
  void SetGSTAmount(float value);
  /// @}
  /// Property GSTAmountCurrency (read-only): the GST/HST amount exact, the one to book.
  Currency GSTAmountCurrency() const;
  /// @{
  /// Property InvoiceDateEnabled: whether the payer can type the date.
  bool InvoiceDateEnabled() const;
  void SetInvoiceDateEnabled(bool enabled);
  /// @}
  /// @{
  /// Property InvoiceNumberEnabled: whether the payer can type the number.
  bool InvoiceNumberEnabled() const;
  void SetInvoiceNumberEnabled(bool enabled);
  /// @}
  /// @{
  /// Property InvoiceAmountEnabled: whether the payer can type the amount.
  bool InvoiceAmountEnabled() const;
  void SetInvoiceAmountEnabled(bool enabled);
  /// @}
  /// @{
  /// Property GSTAmountEnabled: whether the payer can type the GST/HST amount.
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);
  /// @}

  /// The control logic, for C++ hosts that want its errors thrown as zenta::HostError rather
  /// than signalled: include "zenta/controls/simple/pmt_details.h" to use it.
  zenta::PmtDetails& Control() { return *control_; }

 signals:
  void LostFocusInvoiceAmount();  ///< The payer left the invoice amount field.
  void LostFocusGSTAmount();      ///< The payer left the GST/HST field.
  void LostFocusAmount();         ///< The payer left either amount field, after the field's own signal.
  void InvoiceDateChanged();      ///< NOTIFY of InvoiceDate.
  void InvoiceNumberChanged();    ///< NOTIFY of InvoiceNumber.
  void InvoiceAmountChanged();    ///< NOTIFY of InvoiceAmount and InvoiceAmountCurrency.
  void GSTAmountChanged();        ///< NOTIFY of GSTAmount and GSTAmountCurrency.
  void InvoiceDateEnabledChanged();    ///< NOTIFY of InvoiceDateEnabled.
  void InvoiceNumberEnabledChanged();  ///< NOTIFY of InvoiceNumberEnabled.
  void InvoiceAmountEnabledChanged();  ///< NOTIFY of InvoiceAmountEnabled.
  void GSTAmountEnabledChanged();      ///< NOTIFY of GSTAmountEnabled.

  /// @cond internal
 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::PmtDetails> control_;
  /// @endcond
};

}  // namespace zenta::qt
