#pragma once

#include <QDate>
#include <QString>
#include <QVariant>
#include <memory>

#include "zenta/controls/simple/govt_details.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

// A government remittance as a Qt widget: periods and due date (QDate, null for none), the
// statement-only flag, comments, the amount and other amount (QVariant holding an exact
// zenta::Currency, or invalid for none) and up to 26 lettered line items. A date outside years
// 100 to 9999, an amount that is not one and a StatementOnly outside 16 bits are refused.
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
  explicit GovtDetails(QWidget* parent = nullptr);
  ~GovtDetails() override;

  Q_INVOKABLE void Clear();
  Q_INVOKABLE QString GridValues(short TheRow) const;
  Q_INVOKABLE void SetGridValues(short TheRow, const QString& value);
  // 1 to 26 rows. Anything else keeps the table, emits HostErrorRaised with the error's number
  // (0x80040014), source and description, and returns false.
  Q_INVOKABLE bool SetRows(short NumberofRows);
  Q_INVOKABLE void SetFocusPeriodFrom();
  Q_INVOKABLE void SetFocusPeriodTo();
  Q_INVOKABLE void SetFocusDueDate();
  Q_INVOKABLE void SetFocusGrid();
  Q_INVOKABLE void SetFocusComment();
  Q_INVOKABLE void SetFocusAmount();

  QDate PeriodFrom() const;
  void SetPeriodFrom(const QDate& value);
  QDate PeriodTo() const;
  void SetPeriodTo(const QDate& value);
  QDate DueDate() const;
  void SetDueDate(const QDate& value);
  QVariant StatementOnly() const;
  void SetStatementOnly(const QVariant& value);
  QString Comments() const;
  void SetComments(const QString& value);
  QVariant OtherAmount() const;
  void SetOtherAmount(const QVariant& value);
  QVariant Amount() const;
  void SetAmount(const QVariant& value);
  short GridNumberofRows() const;
  bool StatementOnlyEnabled() const;
  void SetStatementOnlyEnabled(bool enabled);
  bool PeriodFromEnabled() const;
  void SetPeriodFromEnabled(bool enabled);
  bool PeriodToEnabled() const;
  void SetPeriodToEnabled(bool enabled);
  bool DueDateEnabled() const;
  void SetDueDateEnabled(bool enabled);
  bool CommentsEnabled() const;
  void SetCommentsEnabled(bool enabled);
  bool OtherAmountEnabled() const;
  void SetOtherAmountEnabled(bool enabled);
  bool AmountEnabled() const;
  void SetAmountEnabled(bool enabled);
  bool GridEnabled() const;
  void SetGridEnabled(bool enabled);

  // The control logic, for C++ hosts that want its errors thrown rather than signalled.
  zenta::GovtDetails& Control() { return *control_; }

 signals:
  void LostFocusAmount();
  void GridRowUpdated(short Row);
  void PeriodFromChanged();
  void PeriodToChanged();
  void DueDateChanged();
  void StatementOnlyChanged();
  void CommentsChanged();
  void OtherAmountChanged();
  void AmountChanged();
  void StatementOnlyEnabledChanged();
  void PeriodFromEnabledChanged();
  void PeriodToEnabledChanged();
  void DueDateEnabledChanged();
  void CommentsEnabledChanged();
  void OtherAmountEnabledChanged();
  void AmountEnabledChanged();
  void GridEnabledChanged();
  void GridNumberofRowsChanged();

 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::GovtDetails> control_;
};

}  // namespace zenta::qt
