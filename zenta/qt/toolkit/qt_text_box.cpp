#include "zenta/qt/toolkit/qt_text_box.h"

#include <QKeyEvent>

namespace zenta::qt {

QtTextBox::QtTextBox(QWidget* parent, const platform::WidgetSpec& definition)
    : QLineEdit(parent), QtWidgetBase(*this, definition) {}

void QtTextBox::SetBackColor(OleColor color) {
  back_color_ = color;
  QPalette p = palette();
  p.setColor(QPalette::Base, ToQColor(color, QPalette()));
  setPalette(p);
}

void QtTextBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool back = event->key() == Qt::Key_Backspace;
  const QList<uint> typed = event->text().toUcs4();
  const bool printable = typed.size() == 1 && QChar::isPrint(typed[0]);
  char32_t key = enter ? char32_t{platform::keys::kEnter}
                 : back ? char32_t{platform::keys::kBackspace}
                 : printable ? static_cast<char32_t>(typed[0])
                             : char32_t{0};
  if (key != 0 && filter_) {
    platform::KeyPress press{key};
    filter_(press);
    if (press.key == 0) return;
    if (press.key != key) {
      key = press.key;
      if (key == platform::keys::kBackspace) {
        backspace();
      } else if (key >= 32 && key != 127) {
        insert(QString::fromUcs4(&key, 1));
      }
      if (key != platform::keys::kEnter) return;
    }
  }
  if (key == platform::keys::kEnter) {
    event->ignore();  // a single-line box has no use for Enter
    return;
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace zenta::qt
