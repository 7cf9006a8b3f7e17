#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <functional>

namespace zenta::qt {

// Offers one Zenta control in Qt Designer's widget box.
class ControlPlugin : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  struct Description {
    QString class_name;
    QString display_name;  // what the widget box lists
    QString header;
    QString tooltip;
    QString whats_this;
    QString icon;  // a 32-pixel PNG resource, with its 64-pixel "@2x" twin beside it
    bool chooses_default_account = false;  // offers "Choose Default G/L Account..."
  };

  ControlPlugin(Description description, std::function<QWidget*(QWidget*)> factory, QObject* parent);

  QString name() const override { return description_.class_name; }
  QString group() const override { return "Zenta Data Entry Controls"; }
  QString toolTip() const override { return description_.tooltip; }
  QString whatsThis() const override { return description_.whats_this; }
  QString includeFile() const override { return description_.header; }
  QIcon icon() const override;
  bool isContainer() const override { return false; }
  QWidget* createWidget(QWidget* parent) override { return factory_(parent); }
  bool isInitialized() const override { return initialized_; }
  void initialize(QDesignerFormEditorInterface* core) override;
  QString domXml() const override;

 private:
  Description description_;
  std::function<QWidget*(QWidget*)> factory_;
  bool initialized_ = false;
};

}  // namespace zenta::qt
