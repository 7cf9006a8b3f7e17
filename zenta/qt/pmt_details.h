#pragma once

#include <QDate>
#include <QString>
#include <memory>

#include "zenta/qt/control_widget.h"

namespace zenta {
class PmtDetails;
}

namespace zenta::qt {

// One invoice's date, number, amount and GST/HST as a Qt widget. InvoiceDate is a QDate (null
// for no date); the amounts are floats.
class PmtDetails : public ControlWidget {
  Q_OBJECT
  Q_PROPERTY(QDate InvoiceDate READ InvoiceDate WRITE SetInvoiceDate STORED false)
  Q_PROPERTY(QString InvoiceNumber READ InvoiceNumber WRITE SetInvoiceNumber STORED false)
  Q_PROPERTY(float InvoiceAmount READ InvoiceAmount WRITE SetInvoiceAmount STORED false)
  Q_PROPERTY(float GSTAmount READ GSTAmount WRITE SetGSTAmount STORED false)
  Q_PROPERTY(bool InvoiceDateEnabled READ InvoiceDateEnabled WRITE SetInvoiceDateEnabled STORED false)
  Q_PROPERTY(bool InvoiceNumberEnabled READ InvoiceNumberEnabled WRITE SetInvoiceNumberEnabled STORED false)
  Q_PROPERTY(bool InvoiceAmountEnabled READ InvoiceAmountEnabled WRITE SetInvoiceAmountEnabled STORED false)
  Q_PROPERTY(bool GSTAmountEnabled READ GSTAmountEnabled WRITE SetGSTAmountEnabled STORED false)

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
  float GSTAmount() const;
  void SetGSTAmount(float value);
  bool InvoiceDateEnabled() const;
  void SetInvoiceDateEnabled(bool enabled);
  bool InvoiceNumberEnabled() const;
  void SetInvoiceNumberEnabled(bool enabled);
  bool InvoiceAmountEnabled() const;
  void SetInvoiceAmountEnabled(bool enabled);
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);

  zenta::PmtDetails& Control() { return *control_; }

 signals:
  void LostFocusInvoiceAmount();
  void LostFocusGSTAmount();
  void LostFocusAmount();

 protected:
  void EmitTyped(platform::RaisedEvent& event) override;

 private:
  std::unique_ptr<zenta::PmtDetails> control_;
};

}  // namespace zenta::qt
