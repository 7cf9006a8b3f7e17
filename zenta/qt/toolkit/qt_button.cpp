#include "zenta/qt/toolkit/qt_button.h"

#include <QKeyEvent>

#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

QtButton::QtButton(QWidget* parent, const platform::WidgetSpec& definition, const std::string& caption)
    : QPushButton(parent), QtWidgetBase(*this, definition) {
  SetCaption(caption);
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] {
    if (on_click_) on_click_();
  });
}

void QtButton::SetCaption(const std::string& caption) {
  caption_ = caption;
  setText(UiText(caption));
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
