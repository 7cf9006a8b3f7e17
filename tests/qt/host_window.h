#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <memory>

#include "zenta/qt/testing/modal_scripts.h"
#include "zenta/qt/toolkit/qt_dialog_surface.h"

namespace zenta::qt::testing {

// A host's window with one control and a field of the host's own after it, shown and active;
// nullptr when the window never became active.
template <class Control>
Control* ShowInHostWindow(std::unique_ptr<QWidget>& window, QLineEdit** next_field = nullptr) {
  window = std::make_unique<QWidget>();
  auto* layout = new QVBoxLayout(window.get());
  auto* control = new Control;
  auto* next = new QLineEdit;
  layout->addWidget(control);
  layout->addWidget(next);
  if (next_field) *next_field = next;
  window->show();
  return QTest::qWaitForWindowActive(window.get()) ? control : nullptr;
}

// What a payer does in the distribution window to split 60 / 40: 60.00 typed over the proposed
// amount, the rest's line given account 5200, then Accept.
inline void SplitSixtyForty(QtDialogSurface& dialog) {
  QWidget* lines = dialog.FindQWidget("grTempDistribution");
  QVERIFY(ClickCell(lines, 0, 2));
  TypeKeys("6000");
  PressKey(Qt::Key_Tab);
  // The 40.00 left waits on the next line for its account; past its amount is Accept.
  TypeKeys("5200");
  PressKey(Qt::Key_Tab);
  PressKey(Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), dialog.FindQWidget("cmdGLAccept"));
  PressKey(Qt::Key_Enter);
}

}  // namespace zenta::qt::testing
