#include "zenta/qt/toolkit/qt_text_box.h"

#include <QKeyEvent>

namespace zenta::qt {

QtTextBox::QtTextBox(QWidget* parent, const platform::WidgetSpec& definition) : QLineEdit(parent), QtWidgetBase(*this, definition) {}

void QtTextBox::SetBackColor(OleColor color) {
  back_color_ = color;
  QPalette p = palette();
  p.setColor(QPalette::Base, ToQColor(color, QPalette()));
  setPalette(p);
}

void QtTextBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  QString typed = event->text();
  if (filter_ && (enter || (typed.size() == 1 && (typed[0].isPrint() || event->key() == Qt::Key_Backspace)))) {
    char32_t key = enter ? 13 : event->key() == Qt::Key_Backspace ? 8 : typed[0].unicode();
    platform::KeyPress press{key};
    filter_(press);
    if (press.key == 0) return;
    if (press.key != key && press.key >= 32) {
      insert(QString::fromUcs4(&press.key, 1));
      return;
    }
  }
  if (enter) {
    event->ignore();  // a single-line box has no use for Enter: leave it to the form
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace zenta::qt
