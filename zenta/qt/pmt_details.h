#pragma once

#include <QDate>
#include <QString>
#include <memory>

#include "zenta/controls/simple/pmt_details.h"
#include "zenta/qt/control_widget.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

// One invoice's date, number, amount and GST/HST as a Qt widget. InvoiceDate is a QDate (null
// for no date); a date outside years 100 to 9999 is refused. The amounts are floats for hosts
// that have always read them so; InvoiceAmountCurrency and GSTAmountCurrency are the same
// amounts exact, the ones to book. Reading an amount never changes the field being typed.
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
  explicit PmtDetails(QWidget* parent = nullptr);
  ~PmtDetails() override;

  Q_INVOKABLE void Clear();
  Q_INVOKABLE void ShowBusinessMode();
  Q_INVOKABLE void SetFocusInvoiceDate();
  Q_INVOKABLE void SetFocusInvoiceNumber();
  Q_INVOKABLE void SetFocusInvoiceAmount();
  Q_INVOKABLE void SetFocusGSTAmount();

  QDate InvoiceDate() const;
  void SetInvoiceDate(const QDate& value);
  QString InvoiceNumber() const;
  void SetInvoiceNumber(const QString& value);
  float InvoiceAmount() const;
  void SetInvoiceAmount(float value);
  Currency InvoiceAmountCurrency() const;
  float GSTAmount() const;
  void SetGSTAmount(float value);
  Currency GSTAmountCurrency() const;
  bool InvoiceDateEnabled() const;
  void SetInvoiceDateEnabled(bool enabled);
  bool InvoiceNumberEnabled() const;
  void SetInvoiceNumberEnabled(bool enabled);
  bool InvoiceAmountEnabled() const;
  void SetInvoiceAmountEnabled(bool enabled);
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);

  // The control logic, for C++ hosts that want its errors thrown rather than signalled.
  zenta::PmtDetails& Control() { return *control_; }

 signals:
  void LostFocusInvoiceAmount();
  void LostFocusGSTAmount();
  void LostFocusAmount();
  void InvoiceDateChanged();
  void InvoiceNumberChanged();
  void InvoiceAmountChanged();
  void GSTAmountChanged();
  void InvoiceDateEnabledChanged();
  void InvoiceNumberEnabledChanged();
  void InvoiceAmountEnabledChanged();
  void GSTAmountEnabledChanged();

 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::PmtDetails> control_;
};

}  // namespace zenta::qt
