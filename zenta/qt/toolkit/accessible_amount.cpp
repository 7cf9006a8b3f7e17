#include "zenta/qt/toolkit/accessible_amount.h"

#include "zenta/qt/toolkit/accessible_line_field.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_number_edit.h"

namespace zenta::qt {
namespace {

class AccessibleAmount : public AccessibleLineField, public QAccessibleValueInterface {
 public:
  explicit AccessibleAmount(QtNumberEdit* edit) : AccessibleLineField(edit), edit_(edit) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleLineField::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
    // As the field shows it away from the focus, not the digits being typed.
    return edit_->Value() ? LocalAmountText(ToQString(edit_->DisplayText()), edit_->locale()) : QString();
  }
  using AccessibleLineField::text;

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

 protected:
  // Edits are made on the amount as typed (digits and "."), then typed over the field.
  QString EditedText() const override { return ToQString(edit_->Text()); }
  void TypeOver(const QString& text) override { edit_->TypeOver(text); }

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
