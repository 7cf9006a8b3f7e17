#include "zenta/qt/toolkit/accessible_date.h"

#include "zenta/qt/toolkit/accessible_line_field.h"
#include "zenta/qt/toolkit/masked_date_line.h"
#include "zenta/qt/toolkit/qt_date_edit.h"

namespace zenta::qt {
namespace {

class AccessibleDateLine : public AccessibleLineField {
 public:
  explicit AccessibleDateLine(MaskedDateLine* editor) : AccessibleLineField(editor), editor_(editor) {}

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
  using AccessibleLineField::text;

 protected:
  // Edits of the date as read, put into the mask as typed.
  QString ShownText() const override { return Reading(); }
  void TypeOver(const QString& text) override { Type(text); }

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
