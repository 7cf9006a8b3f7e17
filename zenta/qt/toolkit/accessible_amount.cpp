#include "zenta/qt/toolkit/accessible_amount.h"

#include <QAccessibleWidget>
#include <QFontMetrics>
#include <algorithm>

#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {
namespace {

class AccessibleAmount : public QAccessibleWidget,
                         public QAccessibleValueInterface,
                         public QAccessibleTextInterface,
                         public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleAmount(QtNumberEdit* edit) : QAccessibleWidget(edit, QAccessible::EditableText), edit_(edit) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = !edit_->isReadOnly();
    state.readOnly = edit_->isReadOnly();
    state.selectableText = true;
    return state;
  }

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
    // As the field shows it away from the focus, not the digits being typed.
    return edit_->Value() ? LocalAmountText(ToQString(edit_->DisplayText()), edit_->locale()) : QString();
  }

  // Value: the amount. A new one is typed with its two decimals, so the field's rules apply.
  QVariant currentValue() const override {
    const auto value = edit_->Value();
    return value ? QVariant(value->ToDouble()) : QVariant();
  }
  void setCurrentValue(const QVariant& value) override {
    bool number = false;
    const double amount = value.toDouble(&number);
    if (number) edit_->TypeOver(ToQString(FormatNumber(amount, formats::kAmount)));
  }
  QVariant maximumValue() const override { return {}; }
  QVariant minimumValue() const override { return {}; }
  QVariant minimumStepSize() const override { return 0.01; }

  // Text: what the field shows, with its caret and selection.
  void selection(int index, int* start, int* end) const override {
    *start = *end = 0;
    if (index == 0 && edit_->hasSelectedText()) {
      *start = edit_->selectionStart();
      *end = *start + static_cast<int>(edit_->selectedText().size());
    }
  }
  int selectionCount() const override { return edit_->hasSelectedText() ? 1 : 0; }
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int) override { edit_->deselect(); }
  void setSelection(int, int start, int end) override { edit_->setSelection(start, end - start); }
  int cursorPosition() const override { return edit_->cursorPosition(); }
  void setCursorPosition(int position) override { edit_->setCursorPosition(position); }
  QString text(int start, int end) const override { return edit_->text().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(edit_->text().size()); }
  QRect characterRect(int offset) const override {
    const QString shown = edit_->text();
    if (offset < 0 || offset >= shown.size()) return {};
    // Right-aligned text: measure from the contents' right edge.
    const QFontMetrics metrics(edit_->font());
    const QRect contents = edit_->contentsRect();
    const int right = contents.right() - metrics.horizontalAdvance(shown.mid(offset + 1));
    const QRect local(right - metrics.horizontalAdvance(shown.at(offset)), contents.top(),
                      metrics.horizontalAdvance(shown.at(offset)), contents.height());
    return QRect(edit_->mapToGlobal(local.topLeft()), local.size());
  }
  int offsetAtPoint(const QPoint& point) const override { return edit_->cursorPositionAt(edit_->mapFromGlobal(point)); }
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* start, int* end) const override {
    *start = *end = offset;
    return {};
  }

  // Editable text: the edit is made on the amount as typed (digits and "."), then typed over
  // the field.
  void deleteText(int start, int end) override { replaceText(start, end, QString()); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    QString typed = ToQString(edit_->Text());
    start = std::clamp(start, 0, static_cast<int>(typed.size()));
    end = std::clamp(end, start, static_cast<int>(typed.size()));
    edit_->TypeOver(typed.replace(start, end - start, text));
  }

 private:
  QtNumberEdit* edit_;
};

QAccessibleInterface* AmountFactory(const QString&, QObject* object) {
  auto* edit = dynamic_cast<QtNumberEdit*>(object);
  return edit ? new AccessibleAmount(edit) : nullptr;
}

}  // namespace

void InstallAccessibleAmounts() {
  static const bool installed = [] {
    QAccessible::installFactory(&AmountFactory);
    return true;
  }();
  (void)installed;
}

}  // namespace zenta::qt
