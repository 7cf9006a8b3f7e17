#pragma once

#include <QWidget>

namespace zenta::qt {

// Makes a shown top-level window the active one, so the payer's keys reach it. Some platforms
// (the offscreen one among them) do not reactivate a window by themselves when a modal box
// over it closes or when it is shown again after hiding.
void ActivateWindow(QWidget& window);

}  // namespace zenta::qt
