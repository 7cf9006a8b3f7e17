#pragma once

#include <QDir>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace zenta::qt::testing {
class DialogScript;
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
  // Answers the next message box with OK, after noting its texts and a screenshot of it.
  void Refused(const QString& screenshot);
  void CheckOpened(const qt::testing::DialogScript& script, const QString& step);
  void PlayPaymentSplit();
  void PlaySplitWithRefusal();
  void PlayLockedFields();
  void PlayInvoiceList();
  void PlayChartAndTax();
  void PlayInvoicePaste();

  DemoWindow& window_;
  QDir screenshots_;
  QStringList written_;
  QStringList notes_;
  bool complete_ = true;
};

}  // namespace zenta::demo
