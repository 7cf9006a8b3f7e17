#pragma once

/// @file
/// InvoiceRecord, one invoice of an InvoiceEntry as the host reads it.

#include <QDate>
#include <QMetaType>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include "zenta/core/currency.h"
#include "zenta/qt/invoice_line_list.h"
#include "zenta/qt/metatypes.h"

namespace zenta::qt {

/// One invoice of an InvoiceEntry, as InvoiceEntry::InvoiceValues() returns it: a value with
/// the invoice record's field names, public for C++ hosts and Q_PROPERTYs for late-bound ones
/// (QML and QMetaProperty::readOnGadget()).
///
/// Reading it costs one conversion of the invoice's texts and nothing for its lines until
/// they are read, so a loop over every row stays close to the control's own speed. A host
/// that wants a map calls toMap(); a QVariant holding a record also converts with
/// QVariant::toMap().
class InvoiceRecord {
  Q_GADGET
  Q_PROPERTY(QDate InvoiceDate MEMBER InvoiceDate)
  Q_PROPERTY(QString InvoiceNo MEMBER InvoiceNo)
  Q_PROPERTY(zenta::Currency InvoiceAmount MEMBER InvoiceAmount)
  Q_PROPERTY(zenta::Currency GSTAmount MEMBER GSTAmount)
  Q_PROPERTY(zenta::Currency CompanyExpense MEMBER CompanyExpense)
  Q_PROPERTY(QString PaymentFor MEMBER PaymentFor)
  Q_PROPERTY(QString EmailFilename MEMBER EmailFilename)
  Q_PROPERTY(QVariantList Distributions READ DistributionList)

 public:
  QDate InvoiceDate;                ///< The invoice's date; null when none was typed.
  QString InvoiceNo;                ///< The invoice number or description.
  zenta::Currency InvoiceAmount;    ///< The amount in Canadian dollars.
  zenta::Currency GSTAmount;        ///< The GST/HST part (business mode).
  zenta::Currency CompanyExpense;   ///< The amount less the GST/HST (business mode).
  QString PaymentFor;               ///< The "payment for" text of the split.
  QString EmailFilename;            ///< The e-mail file name the row is filed under.
  InvoiceLineList Distributions;    ///< The split's lines in line order.

  /// A null record.
  InvoiceRecord() = default;

  /// True for a record that holds no invoice: what a row that does not exist returns.
  bool isNull() const { return null_; }
  /// The lines as "GLAccount", "Amount" maps in line order (the Distributions property).
  QVariantList DistributionList() const { return Distributions.ToList(); }
  /// The record as a QVariantMap keyed by the field names; "Distributions" holds the lines,
  /// read with toList() or value<QVariantList>(). A null record gives an empty map.
  QVariantMap toMap() const;

  /// Field by field, lines compared by account and amount.
  friend bool operator==(const InvoiceRecord& a, const InvoiceRecord& b);
  /// Not equal field by field.
  friend bool operator!=(const InvoiceRecord& a, const InvoiceRecord& b) { return !(a == b); }

  /// Registers the type and its conversion to QVariantMap. The first InvoiceEntry calls it.
  static void Register();

 private:
  friend class InvoiceEntry;
  struct Filled {};
  explicit InvoiceRecord(Filled) : null_(false) {}

  bool null_ = true;
};

}  // namespace zenta::qt

Q_DECLARE_METATYPE(zenta::qt::InvoiceRecord)
