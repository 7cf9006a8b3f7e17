#include "zenta/qt/toolkit/window_activation.h"

#include <QApplication>
#include <QWindow>

namespace zenta::qt {

void ActivateWindow(QWidget& window) {
  if (!window.isVisible() || window.isActiveWindow()) return;
  window.activateWindow();
  if (QWindow* handle = window.windowHandle()) handle->requestActivate();
  if (!window.isActiveWindow()) {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(&window);
    QT_WARNING_POP
  }
}

}  // namespace zenta::qt
