#include "zenta/qt/designer/default_account_task_menu.h"

#include <QAction>
#include <QVariant>
#include <QWidget>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QExtensionManager>

#include "zenta/qt/designer/default_account_dialog.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {
namespace {

constexpr const char* kProperty = "DefaultGLAccount";

}  // namespace

DefaultAccountTaskMenu::DefaultAccountTaskMenu(QWidget* control, QObject* parent)
    : QObject(parent), control_(control), choose_(new QAction(UiText("Choose Default G/L Account..."), this)) {
  choose_->setObjectName("chooseDefaultAccount");
  connect(choose_, &QAction::triggered, this, &DefaultAccountTaskMenu::Choose);
}

void DefaultAccountTaskMenu::Choose() {
  if (!control_) return;
  DefaultAccountDialog dialog(control_->property(kProperty).toString(), control_->window());
  // exec() runs the event loop: the control may be gone from the form by the time it returns.
  if (dialog.exec() != QDialog::Accepted || !control_) return;
  const QString account = dialog.Account();
  if (account.isEmpty() || account == control_->property(kProperty).toString()) return;
  SetAccount(*control_, account);
}

void DefaultAccountTaskMenu::SetAccount(QWidget& control, const QString& account) {
  if (QDesignerFormWindowInterface* form = QDesignerFormWindowInterface::findFormWindow(&control)) {
    // The cursor sets the property of the current widget, which is not always the one whose
    // menu was opened.
    if (form->cursor()->current() != &control) {
      form->clearSelection(false);
      form->selectWidget(&control);
    }
    form->cursor()->setProperty(kProperty, account);
  } else {
    control.setProperty(kProperty, account);
  }
}

DefaultAccountTaskMenuFactory::DefaultAccountTaskMenuFactory(QByteArray class_name, QExtensionManager* parent)
    : QExtensionFactory(parent), class_name_(std::move(class_name)) {}

QObject* DefaultAccountTaskMenuFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const {
  if (iid != Q_TYPEID(QDesignerTaskMenuExtension)) return nullptr;
  auto* control = qobject_cast<QWidget*>(object);
  if (!control || !control->inherits(class_name_.constData())) return nullptr;
  return new DefaultAccountTaskMenu(control, parent);
}

}  // namespace zenta::qt
