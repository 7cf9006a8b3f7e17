#pragma once

#include <QDate>
#include <QString>
#include <QVariant>
#include <memory>

#include "zenta/qt/control_widget.h"

namespace zenta {
class GovtDetails;
}

namespace zenta::qt {

// A government remittance as a Qt widget: periods and due date (QDate, null for none), the
// statement-only flag, comments, the amount and other amount (QVariant holding an exact
// zenta::Currency, or invalid for none) and up to 26 lettered line items.
class GovtDetails : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QDate PeriodFrom READ PeriodFrom WRITE SetPeriodFrom STORED false)
  Q_PROPERTY(QDate PeriodTo READ PeriodTo WRITE SetPeriodTo STORED false)
  Q_PROPERTY(QDate DueDate READ DueDate WRITE SetDueDate STORED false)
  Q_PROPERTY(QVariant StatementOnly READ StatementOnly WRITE SetStatementOnly STORED false DESIGNABLE false)
  Q_PROPERTY(QString Comments READ Comments WRITE SetComments STORED false)
  Q_PROPERTY(QVariant OtherAmount READ OtherAmount WRITE SetOtherAmount STORED false DESIGNABLE false)
  Q_PROPERTY(QVariant Amount READ Amount WRITE SetAmount STORED false DESIGNABLE false)
  Q_PROPERTY(short GridNumberofRows READ GridNumberofRows STORED false)
  Q_PROPERTY(bool StatementOnlyEnabled READ StatementOnlyEnabled WRITE SetStatementOnlyEnabled STORED false)
  Q_PROPERTY(bool PeriodFromEnabled READ PeriodFromEnabled WRITE SetPeriodFromEnabled STORED false)
  Q_PROPERTY(bool PeriodToEnabled READ PeriodToEnabled WRITE SetPeriodToEnabled STORED false)
  Q_PROPERTY(bool DueDateEnabled READ DueDateEnabled WRITE SetDueDateEnabled STORED false)
  Q_PROPERTY(bool CommentsEnabled READ CommentsEnabled WRITE SetCommentsEnabled STORED false)
  Q_PROPERTY(bool OtherAmountEnabled READ OtherAmountEnabled WRITE SetOtherAmountEnabled STORED false)
  Q_PROPERTY(bool AmountEnabled READ AmountEnabled WRITE SetAmountEnabled STORED false)
  Q_PROPERTY(bool GridEnabled READ GridEnabled WRITE SetGridEnabled STORED false)

 public:
  explicit GovtDetails(QWidget* parent = nullptr);
  ~GovtDetails() override;

  Q_INVOKABLE void Clear();
  Q_INVOKABLE QString GridValues(short TheRow) const;
  Q_INVOKABLE void SetGridValues(short TheRow, const QString& value);
  // 1 to 26 rows. Anything else keeps the table, emits HostErrorRaised with the error's number
  // (0x80040014), source and description, and returns false; C++ hosts may call
  // Control().SetRows to get the error thrown instead.
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

  zenta::GovtDetails& Control() { return *control_; }

 signals:
  void LostFocusAmount();
  void GridRowUpdated(short Row);
  void HostErrorRaised(int number, const QString& source, const QString& description);

 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::GovtDetails> control_;
};

}  // namespace zenta::qt
