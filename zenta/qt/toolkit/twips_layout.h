#pragma once

#include <QWidget>

namespace zenta::qt {

// How much larger than the 8-point dialog font the layouts were drawn for a widget's font is,
// along either axis (letter width or line height); never below 1.
double FontScale(const QWidget& widget, Qt::Orientation axis);

}  // namespace zenta::qt
