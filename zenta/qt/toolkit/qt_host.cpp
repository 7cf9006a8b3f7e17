#include "zenta/qt/toolkit/qt_host.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QKeyEvent>
#include <QLocale>
#include <QMessageBox>
#include <QPointer>
#include <stdexcept>

#include "zenta/platform/key_script.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_widget_base.h"
#include "zenta/qt/toolkit/ui_text.h"
#include "zenta/qt/toolkit/window_activation.h"

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

void SendToFocus(const platform::KeyDown& key) {
  QWidget* target = QApplication::focusWidget();
  if (!target) return;
  const bool shift = (key.shift & platform::kShift) != 0;
  const Qt::Key qt_key = key.key_code != platform::keys::kTab ? Qt::Key_Return : shift ? Qt::Key_Backtab : Qt::Key_Tab;
  const QString text = qt_key == Qt::Key_Return ? QStringLiteral("\r") : qt_key == Qt::Key_Tab ? QStringLiteral("\t") : QString();
  const Qt::KeyboardModifiers modifiers = shift ? Qt::ShiftModifier : Qt::NoModifier;
  QKeyEvent press(QEvent::KeyPress, qt_key, modifiers, text);
  QCoreApplication::sendEvent(target, &press);
  if (QWidget* still = QApplication::focusWidget()) {
    QKeyEvent release(QEvent::KeyRelease, qt_key, modifiers, text);
    QCoreApplication::sendEvent(still, &release);
  }
}
}  // namespace

void QtHost::MarkPropertyChanged(const std::string& name) {
  if (changed_sink_) changed_sink_(name);
}

void QtHost::ValueChanged(std::string_view property) {
  if (value_sink_) value_sink_(property);
}

void QtHost::InjectKeys(const std::string& keys) {
  std::vector<platform::KeyDown> script;
  try {
    script = platform::ParseKeyScript(keys);
  } catch (const std::invalid_argument& error) {
    // Thrown through Qt's event dispatch it would end the program; a bad script is dropped.
    qWarning("InjectKeys: %s", error.what());
    return;
  }
  for (const platform::KeyDown& key : script) {
    QMetaObject::invokeMethod(qApp, [key] { SendToFocus(key); }, Qt::QueuedConnection);
  }
}

void QtHost::RaiseEvent(platform::RaisedEvent& event) {
  // The sink's owner may be deleted by the handlers it runs, and this host with it.
  const auto sink = event_sink_;
  if (sink) sink(event);
}

void QtHost::ReportError(const HostError& error) {
  const auto sink = error_sink_;
  if (sink) sink(error);
}

platform::MessageResult QtHost::ShowMessage(const platform::MessageBox& box) {
  QMessageBox message(IconOf(box.icon), UiText(box.title), UiText(box.text), ButtonsOf(box.buttons),
                      owner_ ? owner_->window() : nullptr);
  message.setTextFormat(Qt::PlainText);
  QPointer<QWidget> active = QApplication::activeWindow();
  const platform::MessageResult result = ResultOf(message.exec());
  // The payer goes on typing in the window the box was over.
  if (active) ActivateWindow(*active);
  return result;
}

Date QtHost::Today() const { return FromQDate(QDate::currentDate()); }

char32_t QtHost::DecimalSeparator() const {
  const QList<uint> point = QLocale().decimalPoint().toUcs4();
  return point.isEmpty() ? U'.' : static_cast<char32_t>(point.front());
}

std::string QtHost::ShortDatePattern() const { return QLocale().dateFormat(QLocale::ShortFormat).toStdString(); }

std::string QtHost::ClipboardText() const {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  return clipboard ? clipboard->text().toStdString() : std::string();
}

void QtHost::SetClipboardText(const std::string& text) {
  if (QClipboard* clipboard = QGuiApplication::clipboard()) clipboard->setText(QString::fromStdString(text));
}

void QtHost::Post(std::function<void()> action) {
  if (!owner_) return;
  QPointer<QWidget> owner = owner_;
  // Thrown into Qt's event loop an error would end the program: the host hears of it instead.
  QMetaObject::invokeMethod(
      owner_.data(),
      [this, owner, action = std::move(action)] {
        if (!owner) return;
        try {
          action();
        } catch (const HostError& error) {
          if (owner) ReportError(error);
        }
      },
      Qt::QueuedConnection);
}

void QtHost::Beep() { QApplication::beep(); }

namespace {
platform::WindowMetrics MetricsOf(const QWidget& window) {
  const int dpi_x = window.logicalDpiX();
  const int dpi_y = window.logicalDpiY();
  const QRect outer = window.isWindow() ? window.frameGeometry() : window.geometry();
  const QRect inner = window.geometry();
  return {ToTwipsAlong(outer.x(), dpi_x), ToTwipsAlong(outer.y(), dpi_y), ToTwipsAlong(outer.width(), dpi_x),
          ToTwipsAlong(outer.height(), dpi_y), ToTwipsAlong(inner.width(), dpi_x), ToTwipsAlong(inner.height(), dpi_y)};
}
}  // namespace

platform::ContainerMetrics QtHost::Container() const {
  platform::ContainerMetrics metrics;
  if (!owner_) return metrics;
  metrics.control_left = ToTwipsAlong(owner_->x(), owner_->logicalDpiX());
  metrics.control_top = ToTwipsAlong(owner_->y(), owner_->logicalDpiY());
  const QWidget* container = owner_->parentWidget() ? owner_->parentWidget() : owner_.data();
  metrics.container = MetricsOf(*container);
  metrics.container_is_form = container->isWindow();
  if (!metrics.container_is_form) metrics.parent_form = MetricsOf(*container->window());
  return metrics;
}

}  // namespace zenta::qt
