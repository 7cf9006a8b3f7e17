#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace zenta::qt {

// The Designer plugin: every Zenta control, under one group of the widget box.
class ControlCollection : public QObject, public QDesignerCustomWidgetCollectionInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

 public:
  explicit ControlCollection(QObject* parent = nullptr);
  QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return widgets_; }

 private:
  QList<QDesignerCustomWidgetInterface*> widgets_;
};

}  // namespace zenta::qt
