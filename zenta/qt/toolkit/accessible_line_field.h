#pragma once

#include <QAccessibleWidget>
#include <QLineEdit>

namespace zenta::qt {

// What assistive tools read and edit in a one-line field: its text with caret and selection,
// and edits that go through the field's own typing rules. A field says what it shows
// (ShownText), what an edit applies to (EditedText) and how the result is typed (TypeOver).
class AccessibleLineField : public QAccessibleWidget,
                            public QAccessibleTextInterface,
                            public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleLineField(QLineEdit* line) : QAccessibleWidget(line, QAccessible::EditableText), line_(line) {}

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::State state() const override;
  using QAccessibleWidget::text;

  // Text.
  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override;
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int) override { line_->deselect(); }
  void setSelection(int, int start, int end) override { line_->setSelection(start, end - start); }
  int cursorPosition() const override { return ShownText().isEmpty() ? 0 : line_->cursorPosition(); }
  void setCursorPosition(int position) override { line_->setCursorPosition(position); }
  QString text(int start, int end) const override { return ShownText().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(ShownText().size()); }
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override { return line_->cursorPositionAt(line_->mapFromGlobal(point)); }
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* start, int* end) const override;

  // Editable text.
  void deleteText(int start, int end) override { replaceText(start, end, QString()); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override;

 protected:
  virtual QString ShownText() const { return line_->text(); }
  virtual QString EditedText() const { return ShownText(); }
  virtual void TypeOver(const QString& text) = 0;

 private:
  QLineEdit* line_;
};

}  // namespace zenta::qt
