#include "zenta/qt/toolkit/accessible_line_field.h"

#include <QFontMetrics>
#include <algorithm>

namespace zenta::qt {

void* AccessibleLineField::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleLineField::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.editable = !line_->isReadOnly();
  state.readOnly = line_->isReadOnly();
  state.selectableText = true;
  return state;
}

void AccessibleLineField::selection(int index, int* start, int* end) const {
  *start = *end = 0;
  if (index == 0 && selectionCount() == 1) {
    *start = line_->selectionStart();
    *end = *start + static_cast<int>(line_->selectedText().size());
  }
}

int AccessibleLineField::selectionCount() const {
  return line_->hasSelectedText() && !ShownText().isEmpty() ? 1 : 0;
}

QRect AccessibleLineField::characterRect(int offset) const {
  const QString shown = line_->displayText();
  if (offset < 0 || offset >= characterCount() || offset >= shown.size()) return {};
  const QFontMetrics metrics(line_->font());
  const QRect contents = line_->contentsRect();
  const int width = metrics.horizontalAdvance(shown.at(offset));
  // A right-aligned field (amounts) is measured from its right edge.
  const int left = line_->alignment() & Qt::AlignRight
                       ? contents.right() - metrics.horizontalAdvance(shown.mid(offset + 1)) - width
                       : contents.left() + metrics.horizontalAdvance(shown.left(offset));
  return QRect(line_->mapToGlobal(QPoint(left, contents.top())), QSize(width, contents.height()));
}

QString AccessibleLineField::attributes(int offset, int* start, int* end) const {
  *start = *end = offset;
  return {};
}

void AccessibleLineField::replaceText(int start, int end, const QString& text) {
  QString edited = EditedText();
  start = std::clamp(start, 0, static_cast<int>(edited.size()));
  end = std::clamp(end, start, static_cast<int>(edited.size()));
  TypeOver(edited.replace(start, end - start, text));
}

}  // namespace zenta::qt
