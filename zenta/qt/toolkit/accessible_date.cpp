#include "zenta/qt/toolkit/accessible_date.h"

#include <QAccessibleWidget>
#include <QLineEdit>
#include <algorithm>

#include "zenta/qt/toolkit/masked_date_line.h"
#include "zenta/qt/toolkit/qt_date_edit.h"

namespace zenta::qt {
namespace {

class AccessibleDateLine : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleDateLine(MaskedDateLine* editor) : QAccessibleWidget(editor, QAccessible::EditableText), editor_(editor) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = !editor_->isReadOnly();
    state.readOnly = editor_->isReadOnly();
    state.selectableText = true;
    return state;
  }

  QString text(QAccessible::Text kind) const override {
    switch (kind) {
      case QAccessible::Name: {
        // The field carries the caption's name; the edit inside it is what takes the focus.
        const QString own = editor_->accessibleName();
        const QWidget* field = Field();
        if (!own.isEmpty() || !field) return own;
        return field->accessibleName().isEmpty() ? field->toolTip() : field->accessibleName();
      }
      case QAccessible::Description: {
        // The field's tip, which says so when a typed date was refused.
        const QWidget* field = Field();
        return field && !field->accessibleName().isEmpty() ? field->toolTip() : QString();
      }
      case QAccessible::Value: return Reading();
      default: return QAccessibleWidget::text(kind);
    }
  }
  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind == QAccessible::Value) Type(text);
  }

  // Text.
  void selection(int index, int* start, int* end) const override {
    *start = *end = 0;
    if (index == 0 && editor_->hasSelectedText() && !Reading().isEmpty()) {
      *start = editor_->selectionStart();
      *end = *start + static_cast<int>(editor_->selectedText().size());
    }
  }
  int selectionCount() const override { return editor_->hasSelectedText() && !Reading().isEmpty() ? 1 : 0; }
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int) override { editor_->deselect(); }
  void setSelection(int, int start, int end) override { editor_->setSelection(start, end - start); }
  int cursorPosition() const override { return Reading().isEmpty() ? 0 : editor_->cursorPosition(); }
  void setCursorPosition(int position) override { editor_->setCursorPosition(position); }
  QString text(int start, int end) const override { return Reading().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(Reading().size()); }
  QRect characterRect(int offset) const override {
    if (offset < 0 || offset >= characterCount()) return {};
    const QFontMetrics metrics(editor_->font());
    const QString shown = editor_->displayText();
    const QRect contents = editor_->contentsRect();
    const QRect local(contents.left() + metrics.horizontalAdvance(shown.left(offset)), contents.top(),
                      metrics.horizontalAdvance(shown.at(offset)), contents.height());
    return QRect(editor_->mapToGlobal(local.topLeft()), local.size());
  }
  int offsetAtPoint(const QPoint& point) const override { return editor_->cursorPositionAt(editor_->mapFromGlobal(point)); }
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* start, int* end) const override {
    *start = *end = offset;
    return {};
  }

  // Editable text: edits of the date as read, put into the mask as typed.
  void deleteText(int start, int end) override { replaceText(start, end, QString()); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    QString date = Reading();
    start = std::clamp(start, 0, static_cast<int>(date.size()));
    end = std::clamp(end, start, static_cast<int>(date.size()));
    Type(date.replace(start, end - start, text));
  }

 private:
  QString Reading() const { return editor_->Reading(); }
  // The date field the edit sits in; it may still be under construction when first asked.
  const QWidget* Field() const { return dynamic_cast<const QtDateEdit*>(editor_->parentWidget()); }
  void Type(const QString& text) {
    if (auto* field = dynamic_cast<QtDateEdit*>(editor_->parentWidget())) field->TypeOver(text);
  }

  MaskedDateLine* editor_;
};

QAccessibleInterface* DateFactory(const QString&, QObject* object) {
  auto* editor = dynamic_cast<MaskedDateLine*>(object);
  return editor ? new AccessibleDateLine(editor) : nullptr;
}

}  // namespace

void InstallAccessibleDates() {
  static const bool installed = [] {
    QAccessible::installFactory(&DateFactory);
    return true;
  }();
  (void)installed;
}

}  // namespace zenta::qt
