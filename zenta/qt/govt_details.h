#pragma once

/// @file
/// GovtDetails, a government remittance.

#include <QDate>
#include <QString>
#include <QVariant>
#include <memory>

#include "zenta/core/currency.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/metatypes.h"

/// @cond internal
namespace zenta {
class GovtDetails;
}
/// @endcond

namespace zenta::qt {

/// A government remittance: the period it covers, its due date, a statement-only flag,
/// comments, the amount and other amount, and up to 26 lettered line items.
///
/// Dates are QDates (null for none); a date outside years 100 to 9999 raises 0x80040015 with
/// the date field's name as source ("dtPeriodFrom", "dtPeriodTo", "dtDueDate"). Amounts are in
/// dollars, a QVariant holding an exact zenta::Currency, or an invalid QVariant for none; a
/// value that is not an amount raises Type mismatch (13), one past the currency range Overflow
/// (6). Every refused value leaves the property as it was.
class GovtDetails : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QDate PeriodFrom READ PeriodFrom WRITE SetPeriodFrom NOTIFY PeriodFromChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QDate PeriodTo READ PeriodTo WRITE SetPeriodTo NOTIFY PeriodToChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QDate DueDate READ DueDate WRITE SetDueDate NOTIFY DueDateChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QVariant StatementOnly READ StatementOnly WRITE SetStatementOnly NOTIFY StatementOnlyChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QString Comments READ Comments WRITE SetComments NOTIFY CommentsChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QVariant OtherAmount READ OtherAmount WRITE SetOtherAmount NOTIFY OtherAmountChanged STORED false DESIGNABLE false)
  Q_PROPERTY(QVariant Amount READ Amount WRITE SetAmount NOTIFY AmountChanged STORED false DESIGNABLE false)
  Q_PROPERTY(short GridNumberofRows READ GridNumberofRows NOTIFY GridNumberofRowsChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool StatementOnlyEnabled READ StatementOnlyEnabled WRITE SetStatementOnlyEnabled NOTIFY StatementOnlyEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool PeriodFromEnabled READ PeriodFromEnabled WRITE SetPeriodFromEnabled NOTIFY PeriodFromEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool PeriodToEnabled READ PeriodToEnabled WRITE SetPeriodToEnabled NOTIFY PeriodToEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool DueDateEnabled READ DueDateEnabled WRITE SetDueDateEnabled NOTIFY DueDateEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool CommentsEnabled READ CommentsEnabled WRITE SetCommentsEnabled NOTIFY CommentsEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool OtherAmountEnabled READ OtherAmountEnabled WRITE SetOtherAmountEnabled NOTIFY OtherAmountEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool AmountEnabled READ AmountEnabled WRITE SetAmountEnabled NOTIFY AmountEnabledChanged STORED false DESIGNABLE false)
  Q_PROPERTY(bool GridEnabled READ GridEnabled WRITE SetGridEnabled NOTIFY GridEnabledChanged STORED false DESIGNABLE false)

 public:
  /// An empty control with default properties, a child of `parent`.
  explicit GovtDetails(QWidget* parent = nullptr);
  ~GovtDetails() override;

  /// Empties the dates, flag, comments, amounts and line items.
  Q_INVOKABLE void Clear();
  /// The amount on line item `TheRow` (rows from 1, lettered A, B...) as text, also while the
  /// payer types it; "" for an empty item or a row outside the table.
  Q_INVOKABLE QString GridValues(short TheRow) const;
  /// Puts the amount text `value` on line item `TheRow` (from 1), storing first what the payer
  /// is typing there; a row outside the table is ignored.
  Q_INVOKABLE void SetGridValues(short TheRow, const QString& value);
  /// Makes the line-item table `NumberofRows` rows long, 1 to 26. Anything else keeps the
  /// table, raises 0x80040014 "Rows must range from 1 to 26" (source "GovtDetails") and
  /// returns false.
  Q_INVOKABLE bool SetRows(short NumberofRows);
  Q_INVOKABLE void SetFocusPeriodFrom();  ///< Puts the focus in the period's first date.
  Q_INVOKABLE void SetFocusPeriodTo();    ///< Puts the focus in the period's last date.
  Q_INVOKABLE void SetFocusDueDate();     ///< Puts the focus in the due date.
  Q_INVOKABLE void SetFocusGrid();        ///< Puts the focus in the line-item table.
  Q_INVOKABLE void SetFocusComment();     ///< Puts the focus in the comments.
  Q_INVOKABLE void SetFocusAmount();      ///< Puts the focus in the amount.
  /// @{

  /// Property PeriodFrom: the first day of the period remitted for; null for none.
  QDate PeriodFrom() const;
  void SetPeriodFrom(const QDate& value);
  /// @}
  /// @{
  /// Property PeriodTo: the last day of the period remitted for; null for none.
  QDate PeriodTo() const;
  void SetPeriodTo(const QDate& value);
  /// @}
  /// @{
  /// Property DueDate: when the remittance is due; null for none.
  QDate DueDate() const;
  void SetDueDate(const QDate& value);
  /// @}
  /// @{
  /// Property StatementOnly: the "Statement of Account only" check box as a 16-bit integer:
  /// 0 unchecked, 1 checked, 2 greyed; any other number (true is -1) checks it. A value that
  /// is no number raises Type mismatch (13), one outside 16 bits Overflow (6).
  QVariant StatementOnly() const;
  void SetStatementOnly(const QVariant& value);
  /// @}
  /// @{
  /// Property Comments: the payer's comments.
  QString Comments() const;
  void SetComments(const QString& value);
  /// @}
  /// @{
  /// Property OtherAmount: the other amount in dollars, a zenta::Currency, or invalid for none.
  QVariant OtherAmount() const;
  void SetOtherAmount(const QVariant& value);
  /// @}
  /// @{
  /// Property Amount: the amount remitted in dollars, a zenta::Currency, or invalid for none.
  QVariant Amount() const;
  void SetAmount(const QVariant& value);
  /// @}
  /// Property GridNumberofRows (read-only): the line-item table's length, set by SetRows().
  short GridNumberofRows() const;
  /// @{
  /// Property StatementOnlyEnabled: whether the payer can change the statement-only flag.
  bool StatementOnlyEnabled() const;
  void SetStatementOnlyEnabled(bool enabled);
  /// @}
  /// @{
  /// Property PeriodFromEnabled: whether the payer can type the period's first date.
  bool PeriodFromEnabled() const;
  void SetPeriodFromEnabled(bool enabled);
  /// @}
  /// @{
  /// Property PeriodToEnabled: whether the payer can type the period's last date.
  bool PeriodToEnabled() const;
  void SetPeriodToEnabled(bool enabled);
  /// @}
  /// @{
  /// Property DueDateEnabled: whether the payer can type the due date.
  bool DueDateEnabled() const;
  void SetDueDateEnabled(bool enabled);
  /// @}
  /// @{
  /// Property CommentsEnabled: whether the payer can type comments.
  bool CommentsEnabled() const;
  void SetCommentsEnabled(bool enabled);
  /// @}
  /// @{
  /// Property OtherAmountEnabled: whether the payer can type the other amount.
  bool OtherAmountEnabled() const;
  void SetOtherAmountEnabled(bool enabled);
  /// @}
  /// @{
  /// Property AmountEnabled: whether the payer can type the amount.
  bool AmountEnabled() const;
  void SetAmountEnabled(bool enabled);
  /// @}
  /// @{
  /// Property GridEnabled: whether the payer can type line items.
  bool GridEnabled() const;
  void SetGridEnabled(bool enabled);
  /// @}

  /// The control logic, for C++ hosts that want its errors thrown as zenta::HostError rather
  /// than signalled: include "zenta/controls/simple/govt_details.h" to use it.
  zenta::GovtDetails& Control() { return *control_; }

 signals:
  void LostFocusAmount();          ///< The payer left the amount field.
  void GridRowUpdated(short Row);  ///< The payer stored line item `Row` (from 1).
  void PeriodFromChanged();        ///< NOTIFY of PeriodFrom.
  void PeriodToChanged();          ///< NOTIFY of PeriodTo.
  void DueDateChanged();           ///< NOTIFY of DueDate.
  void StatementOnlyChanged();     ///< NOTIFY of StatementOnly.
  void CommentsChanged();          ///< NOTIFY of Comments.
  void OtherAmountChanged();       ///< NOTIFY of OtherAmount.
  void AmountChanged();            ///< NOTIFY of Amount.
  void StatementOnlyEnabledChanged();  ///< NOTIFY of StatementOnlyEnabled.
  void PeriodFromEnabledChanged();     ///< NOTIFY of PeriodFromEnabled.
  void PeriodToEnabledChanged();       ///< NOTIFY of PeriodToEnabled.
  void DueDateEnabledChanged();        ///< NOTIFY of DueDateEnabled.
  void CommentsEnabledChanged();       ///< NOTIFY of CommentsEnabled.
  void OtherAmountEnabledChanged();    ///< NOTIFY of OtherAmountEnabled.
  void AmountEnabledChanged();         ///< NOTIFY of AmountEnabled.
  void GridEnabledChanged();           ///< NOTIFY of GridEnabled.
  void GridNumberofRowsChanged();      ///< NOTIFY of GridNumberofRows.

  /// @cond internal
 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::GovtDetails> control_;
  /// @endcond
};

}  // namespace zenta::qt
