#include "zenta/qt/toolkit/qt_host.h"

#include <QApplication>
#include <QDate>
#include <QKeyEvent>
#include <QLocale>
#include <QMessageBox>

#include "zenta/platform/key_script.h"
#include "zenta/qt/toolkit/qt_conversions.h"

namespace zenta::qt {

namespace {
QMessageBox::StandardButtons ButtonsOf(platform::MessageButtons buttons) {
  switch (buttons) {
    case platform::MessageButtons::Ok: return QMessageBox::Ok;
    case platform::MessageButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case platform::MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case platform::MessageButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(platform::MessageIcon icon) {
  switch (icon) {
    case platform::MessageIcon::Critical: return QMessageBox::Critical;
    case platform::MessageIcon::Question: return QMessageBox::Question;
    case platform::MessageIcon::Exclamation: return QMessageBox::Warning;
    case platform::MessageIcon::Information: return QMessageBox::Information;
    case platform::MessageIcon::None: return QMessageBox::NoIcon;
  }
  return QMessageBox::NoIcon;
}

platform::MessageResult ResultOf(int button) {
  switch (button) {
    case QMessageBox::Yes: return platform::MessageResult::Yes;
    case QMessageBox::No: return platform::MessageResult::No;
    case QMessageBox::Cancel: return platform::MessageResult::Cancel;
    default: return platform::MessageResult::Ok;
  }
}

Qt::Key QtKeyOf(const platform::KeyDown& key) {
  if (key.key_code == platform::keys::kTab) return (key.shift & platform::kShift) ? Qt::Key_Backtab : Qt::Key_Tab;
  return Qt::Key_Return;
}
}  // namespace

void QtHost::MarkPropertyChanged(const std::string& name) {
  if (changed_sink_) changed_sink_(name);
}

void QtHost::InjectKeys(const std::string& keys) {
  for (const platform::KeyDown& key : platform::ParseKeyScript(keys)) {
    // Queued: the keystroke reaches whichever widget has the focus once this handler returns.
    QMetaObject::invokeMethod(
        qApp,
        [key] {
          QWidget* target = QApplication::focusWidget();
          if (!target) return;
          Qt::KeyboardModifiers modifiers = (key.shift & platform::kShift) ? Qt::ShiftModifier : Qt::NoModifier;
          QKeyEvent press(QEvent::KeyPress, QtKeyOf(key), modifiers);
          QCoreApplication::sendEvent(target, &press);
        },
        Qt::QueuedConnection);
  }
}

void QtHost::RaiseEvent(platform::RaisedEvent& event) {
  if (event_sink_) event_sink_(event);
}

platform::MessageResult QtHost::ShowMessage(const platform::MessageBox& box) {
  QMessageBox message(IconOf(box.icon), ToQString(box.title), ToQString(box.text), ButtonsOf(box.buttons),
                      owner_ ? owner_->window() : nullptr);
  return ResultOf(message.exec());
}

Date QtHost::Today() const { return FromQDate(QDate::currentDate()); }

char32_t QtHost::DecimalSeparator() const {
  QString point = QLocale().decimalPoint();
  return point.isEmpty() ? U'.' : point.toUcs4().value(0, U'.');
}

}  // namespace zenta::qt
