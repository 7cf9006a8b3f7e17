#pragma once

#include <QApplication>
#include <QTest>

namespace zenta::qt::testing {

// Real key events to whichever widget has the focus, then the queued work they caused
// (injected keystrokes) is run.
inline void Type(const char* text) {
  QTest::keyClicks(QApplication::focusWidget(), text);
  QCoreApplication::processEvents();
}

inline void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  QCoreApplication::processEvents();
}

}  // namespace zenta::qt::testing
