#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

namespace zenta::demo {

class DemoWindow;

// A short scripted session played with real key events: what a payer types on the demo
// screen. It saves a screenshot after each step into a folder.
class DemoSession {
 public:
  DemoSession(DemoWindow& window, QDir screenshots);

  // Returns the screenshot files written.
  QStringList Play();

 private:
  void Type(const QString& text);
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Settle();
  void Shoot(const QString& name);

  DemoWindow& window_;
  QDir screenshots_;
  QStringList written_;
};

}  // namespace zenta::demo
