#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

#include "zenta/qt/toolkit/qt_surface.h"

namespace zenta::qt::testing {

// A host window: a control surface, then a field of the host's own below it ("the next field on
// the screen"). Focus only lands in an active window, so Show() waits for activation.
class TestWindow {
 public:
  TestWindow() : window_(std::make_unique<QWidget>()) {
    auto* layout = new QVBoxLayout(window_.get());
    surface_ = new QtSurface;
    surface_->setMinimumSize(320, 240);
    outside_ = new QLineEdit;
    outside_->setObjectName("outside");
    layout->addWidget(surface_);
    layout->addWidget(outside_);
  }

  bool Show() {
    window_->show();
    return QTest::qWaitForWindowActive(window_.get());
  }

  QWidget& Window() { return *window_; }
  QtSurface& Surface() { return *surface_; }
  QLineEdit& Outside() { return *outside_; }

 private:
  std::unique_ptr<QWidget> window_;
  QtSurface* surface_;
  QLineEdit* outside_;
};

// The Qt widget behind a widget the surface created.
template <class T>
T& As(platform::Widget& widget) {
  return dynamic_cast<T&>(widget);
}

// Types each character into whichever widget has the focus by then, as a keyboard does (a key
// that opens a cell editor sends the rest to the editor).
inline void TypeEach(const char* text) {
  for (const char* c = text; *c; ++c) {
    QTest::keyClick(QApplication::focusWidget(), *c);
    QCoreApplication::processEvents();
  }
}

inline QString FocusName() {
  QWidget* focused = QApplication::focusWidget();
  return focused ? focused->objectName() : QString("(none)");
}

}  // namespace zenta::qt::testing
