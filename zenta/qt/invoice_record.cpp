#include "zenta/qt/invoice_record.h"

#include <map>
#include <mutex>

#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

QVariantMap InvoiceRecord::toMap() const {
  if (null_) return {};
  // Keys in order: the tree is built without searching.
  std::map<QString, QVariant> entries;
  const auto add = [&entries](QString key, QVariant value) {
    entries.emplace_hint(entries.end(), std::move(key), std::move(value));
  };
  add(QStringLiteral("CompanyExpense"), QVariant::fromValue(CompanyExpense));
  add(QStringLiteral("Distributions"), QVariant::fromValue(Distributions));
  add(QStringLiteral("EmailFilename"), EmailFilename);
  add(QStringLiteral("GSTAmount"), QVariant::fromValue(GSTAmount));
  add(QStringLiteral("InvoiceAmount"), QVariant::fromValue(InvoiceAmount));
  add(QStringLiteral("InvoiceDate"), InvoiceDate);
  add(QStringLiteral("InvoiceNo"), InvoiceNo);
  add(QStringLiteral("PaymentFor"), PaymentFor);
  return QVariantMap(std::move(entries));
}

bool operator==(const InvoiceRecord& a, const InvoiceRecord& b) {
  return a.null_ == b.null_ && a.InvoiceDate == b.InvoiceDate && a.InvoiceNo == b.InvoiceNo &&
         a.InvoiceAmount == b.InvoiceAmount && a.GSTAmount == b.GSTAmount && a.CompanyExpense == b.CompanyExpense &&
         a.PaymentFor == b.PaymentFor && a.EmailFilename == b.EmailFilename && a.Distributions == b.Distributions;
}

void InvoiceRecord::Register() {
  static std::once_flag once;
  std::call_once(once, [] {
    InvoiceLineList::Register();
    qRegisterMetaType<InvoiceRecord>("zenta::qt::InvoiceRecord");
    RegisterConverterOnce<InvoiceRecord, QVariantMap>(&InvoiceRecord::toMap);
  });
}

}  // namespace zenta::qt
