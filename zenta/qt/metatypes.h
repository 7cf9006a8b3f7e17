#pragma once

/// @file
/// The library's value types as Qt meta-types, so that they travel in a QVariant and in
/// Q_PROPERTYs.

#include <QMetaType>

#include "zenta/core/currency.h"
#include "zenta/core/variant.h"

Q_DECLARE_METATYPE(zenta::Currency)
Q_DECLARE_METATYPE(zenta::ObjectRef)

namespace zenta::qt {

/// Registers zenta::Currency and zenta::ObjectRef with Qt's meta-type system, and the
/// conversions of a QVariant holding a zenta::Currency:
/// - to QString, the display form: at least two decimals, "." as the point, no grouping, and
///   every further decimal the amount has ("113.00", "-0.05", "12.3456"); what
///   QVariant::toString() returns, so a host that prints a property never shows "113";
/// - to double, for display-only use (a double is not exact: book the Currency);
/// - from QString, the invariant text ("12.5"); text that is not an amount, or one past the
///   currency range, fails the conversion, so QObject::setProperty() returns false.
///
/// The first control made calls it; a host that converts amounts before making any control
/// calls it first. Calling it again costs nothing. Thread-safe.
void RegisterMetaTypes();

}  // namespace zenta::qt
