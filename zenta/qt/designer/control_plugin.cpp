#include "zenta/qt/designer/control_plugin.h"

#include <QIcon>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

#include "zenta/qt/designer/default_account_task_menu.h"

namespace zenta::qt {

ControlPlugin::ControlPlugin(Description description, std::function<QWidget*(QWidget*)> factory, QObject* parent)
    : QObject(parent), description_(std::move(description)), factory_(std::move(factory)) {}

// PNG, at the widget box's size and twice it: an SVG icon needs Qt's SVG plugins, and a Designer
// without them would show the generic icon.
QIcon ControlPlugin::icon() const {
  QIcon icon(description_.icon);
  icon.addFile(QString(description_.icon).replace(".png", "@2x.png"));
  return icon;
}

void ControlPlugin::initialize(QDesignerFormEditorInterface* core) {
  if (initialized_) return;
  initialized_ = true;
  QExtensionManager* manager = core ? core->extensionManager() : nullptr;
  if (!description_.chooses_default_account || !manager) return;
  manager->registerExtensions(new DefaultAccountTaskMenuFactory(description_.class_name.toLatin1(), manager),
                              Q_TYPEID(QDesignerTaskMenuExtension));
}

QString ControlPlugin::domXml() const {
  // The object name a new instance gets on the form: the class name without its namespace.
  QString object_name = description_.class_name.section("::", -1);
  object_name[0] = object_name[0].toLower();
  return QString("<ui language=\"c++\" displayname=\"%3\"><widget class=\"%1\" name=\"%2\">"
                 "<property name=\"BusinessMode\"><bool>false</bool></property>"
                 "</widget></ui>")
      .arg(description_.class_name, object_name, description_.display_name.toHtmlEscaped());
}

}  // namespace zenta::qt
