#pragma once

#include <QDir>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace zenta::qt {
class QtDialogSurface;
}

namespace zenta::demo {

class DemoWindow;

// A short scripted session played with real key events: what a payer types on the demo
// screen. It saves a screenshot after each step into a folder.
class DemoSession {
 public:
  DemoSession(DemoWindow& window, QDir screenshots);

  // Returns the screenshot files written.
  QStringList Play();
  // What the session checked beyond the values a host reads, one line each.
  const QStringList& Notes() const { return notes_; }
  // False when a step did not happen as scripted (a window that never opened, say).
  bool Complete() const { return complete_; }

 private:
  void Type(const QString& text);
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Settle();
  void Shoot(const QString& name);
  void ShootWidget(QWidget& widget, const QString& name);
  void ClickCell(QWidget* grid, int row, int column);
  void Click(QWidget* button);
  // The distribution window is modal: the call that opens it returns only once it hides, so
  // what the payer does in it is queued first and runs once the window is up.
  void WhenDialogShows(std::function<void(qt::QtDialogSurface&)> script);
  // Answers the next message box with `button` (a QMessageBox::StandardButton), after a
  // screenshot of it.
  void AnswerNextMessage(const QString& screenshot, int button);
  // Closes a step that opened the window: a step whose window never opened is reported.
  void EndStep();
  void PlayPaymentSplit();
  void PlaySplitWithRefusal();
  void PlayLockedFields();

  DemoWindow& window_;
  QDir screenshots_;
  QStringList written_;
  QStringList notes_;
  bool complete_ = true;
  int step_ = 0;
  int dialog_steps_run_ = 0;
};

}  // namespace zenta::demo
