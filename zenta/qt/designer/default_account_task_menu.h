#pragma once

#include <QPointer>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

class QAction;
class QExtensionManager;

namespace zenta::qt {

// "Choose Default G/L Account..." in Designer's context menu of a control with a
// DefaultGLAccount property: the account picked from a chart file is set through the form's
// cursor, so Designer's undo stack and property editor see the change.
class DefaultAccountTaskMenu : public QObject, public QDesignerTaskMenuExtension {
  Q_OBJECT
  Q_INTERFACES(QDesignerTaskMenuExtension)

 public:
  DefaultAccountTaskMenu(QWidget* control, QObject* parent);

  QAction* preferredEditAction() const override { return choose_; }
  QList<QAction*> taskActions() const override { return {choose_}; }

  // Sets the control's account as Designer does when the property editor changes it; outside
  // a form (a control on its own) directly.
  static void SetAccount(QWidget& control, const QString& account);

 private:
  void Choose();

  QPointer<QWidget> control_;
  QAction* choose_;
};

// Gives the task menu to the widgets of one class, and to no other.
class DefaultAccountTaskMenuFactory : public QExtensionFactory {
  Q_OBJECT

 public:
  DefaultAccountTaskMenuFactory(QByteArray class_name, QExtensionManager* parent);

 protected:
  QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;

 private:
  QByteArray class_name_;
};

}  // namespace zenta::qt
