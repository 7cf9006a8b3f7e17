#include "zenta/qt/toolkit/qt_button.h"

#include <QKeyEvent>

namespace zenta::qt {

QtButton::QtButton(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption)
    : QPushButton(parent), QtWidgetBase(*this, definition) {
  setText(ToQString(caption));
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] {
    if (on_click_) on_click_();
  });
}

void QtButton::keyPressEvent(QKeyEvent* event) {
  if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && event->modifiers() == Qt::NoModifier) {
    event->accept();
    click();
    return;
  }
  QPushButton::keyPressEvent(event);
}

}  // namespace zenta::qt
