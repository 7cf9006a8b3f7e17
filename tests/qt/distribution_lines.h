#pragma once

#include <QStringList>
#include <QVariantMap>

#include "zenta/qt/payment_details.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt::testing {

// A payment's accepted lines as "account amount", in line order.
inline QStringList LinesOf(const PaymentDetails& payment) {
  QStringList lines;
  for (const QVariant& line : payment.Distributions()) {
    const QVariantMap map = line.toMap();
    lines << map.value("GLAccount").toString() + " " + ToQString(map.value("Amount").value<Currency>());
  }
  return lines;
}

}  // namespace zenta::qt::testing
