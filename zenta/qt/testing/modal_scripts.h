#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "zenta/qt/toolkit/qt_dialog_surface.h"

// Helpers for hosts that test their Qt screens with real input, as the demo does. A modal window
// suspends the call that opens it, so what a person does in it is queued before that call and
// runs once the window is up and active.
namespace zenta::qt::testing {

// Runs the event loop a few times: queued calls, posted grid messages and injected keys.
inline void Settle() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

// Clicks a grid cell as a person would; when storing the row being left sends the focus on (a
// balanced distribution window to its Accept button), clicks it again, as a person would.
// The host may close the form on the click: then false.
inline bool ClickCell(QWidget* grid, int row, int column) {
  const QPointer<QTableView> view = qobject_cast<QTableView*>(grid);
  if (!view) return false;
  const QRect cell = view->visualRect(view->model()->index(row, column));
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
  Settle();
  if (!view) return false;
  if (!view->hasFocus()) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    Settle();
  }
  return view && view->hasFocus();
}

inline bool Click(QWidget* button) {
  auto* push = qobject_cast<QAbstractButton*>(button);
  if (!push) return false;
  QTest::mouseClick(push, Qt::LeftButton);
  Settle();
  return true;
}

// Keys to whichever widget has the focus, one at a time, with the work each one queues.
inline void TypeKeys(const QString& text) {
  for (QChar c : text) {
    QWidget* target = QApplication::focusWidget();
    if (!target) return;
    QTest::keyClick(target, c.toLatin1());
    Settle();
  }
}

inline void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  if (QWidget* target = QApplication::focusWidget()) QTest::keyClick(target, key, modifiers);
  Settle();
}

// Waits for a shown, active dialog window and runs `script` in it, once. `Cancel` (or the
// object going away) stops the waiting; `Ran` tells whether the script ran.
class DialogScript {
 public:
  explicit DialogScript(std::function<void(QtDialogSurface&)> script) : state_(std::make_shared<State>()) {
    state_->script = std::move(script);
    Poll(state_);
  }
  ~DialogScript() { Cancel(); }
  DialogScript(const DialogScript&) = delete;
  DialogScript& operator=(const DialogScript&) = delete;

  bool Ran() const { return state_->ran; }
  void Cancel() { state_->cancelled = true; }

 private:
  struct State {
    std::function<void(QtDialogSurface&)> script;
    bool ran = false;
    bool cancelled = false;
  };
  static void Poll(std::shared_ptr<State> state) {
    QTimer::singleShot(10, [state] {
      if (state->cancelled || state->ran) return;
      auto* dialog = dynamic_cast<QtDialogSurface*>(QApplication::activeModalWidget());
      if (!dialog || !dialog->isVisible() || !dialog->isActiveWindow()) {
        Poll(state);
        return;
      }
      state->ran = true;
      Settle();  // the window's own activation runs first, as it does before a person types
      state->script(*dialog);
    });
  }
  std::shared_ptr<State> state_;
};

// Answers the next message box with `button` once it shows; `seen` gets the box first (for its
// texts or a screenshot). Gives up after about three seconds of event-loop time.
inline void AnswerNextMessage(QMessageBox::StandardButton button, std::function<void(QMessageBox&)> seen = {}) {
  auto attempts = std::make_shared<int>(0);
  auto poll = std::make_shared<std::function<void()>>();
  *poll = [button, seen, attempts, poll] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      if (seen) seen(*box);
      if (QAbstractButton* answer = box->button(button)) {
        answer->click();
      } else {
        box->reject();
      }
      *poll = nullptr;
      return;
    }
    if (++*attempts > 300) {
      *poll = nullptr;
      return;
    }
    QTimer::singleShot(10, *poll);
  };
  QTimer::singleShot(0, *poll);
}

}  // namespace zenta::qt::testing
