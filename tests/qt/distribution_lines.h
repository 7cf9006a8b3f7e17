#pragma once

#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include "zenta/qt/payment_details.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt::testing {

// Distribution lines as a host reads them, as "account amount", in line order.
inline QStringList LinesOf(const QVariantList& distributions) {
  QStringList lines;
  for (const QVariant& line : distributions) {
    const QVariantMap map = line.toMap();
    lines << map.value("GLAccount").toString() + " " + ToQString(map.value("Amount").value<Currency>());
  }
  return lines;
}

inline QStringList LinesOf(const PaymentDetails& payment) { return LinesOf(payment.Distributions()); }

}  // namespace zenta::qt::testing
