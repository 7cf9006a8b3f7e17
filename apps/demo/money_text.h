#pragma once

#include <QString>
#include <QVariant>

#include "zenta/qt/metatypes.h"

namespace zenta::demo {

// An amount as a host prints it: through QVariant, with two decimals ("113.00").
inline QString MoneyText(Currency amount) { return QVariant::fromValue(amount).toString(); }

}  // namespace zenta::demo
