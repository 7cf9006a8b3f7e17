#pragma once

#include <QColor>
#include <QSettings>
#include <QVariantList>
#include <QWidget>
#include <memory>

#include "zenta/platform/property_bag.h"
#include "zenta/platform/raised_event.h"

namespace zenta {
class SmallControl;
}

namespace zenta::qt {

class QtHost;
class QtSurface;

// What every Zenta control widget shares: the surface its control logic runs on, the host
// services, the four persisted properties as Q_PROPERTYs, and every event as EventRaised (by
// number, for late-bound hosts) next to the control's own typed signals. A widget created in
// code starts as if loaded with default properties.
class ControlWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor NOTIFY BackColorChanged)
  Q_PROPERTY(bool BusinessMode READ BusinessMode WRITE SetBusinessMode NOTIFY BusinessModeChanged)
  Q_PROPERTY(QColor BackColorTitle READ BackColorTitle WRITE SetBackColorTitle NOTIFY BackColorTitleChanged)
  Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled NOTIFY EnabledChanged)

 public:
  ~ControlWidget() override;

  QColor BackColor() const;
  void SetBackColor(const QColor& color);
  bool BusinessMode() const;
  void SetBusinessMode(bool on);
  QColor BackColorTitle() const;
  void SetBackColorTitle(const QColor& color);
  bool Enabled() const;
  void SetEnabled(bool enabled);

  // Persistence in the host's store: a QSettings group, or any property bag.
  Q_INVOKABLE void LoadProperties(QSettings* settings, const QString& group);
  Q_INVOKABLE void SaveProperties(QSettings* settings, const QString& group) const;
  void ReadProperties(const platform::PropertyBag& bag);
  void WriteProperties(platform::PropertyBag& bag) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  // The widget the control logic runs on, for tests and tools that look inside.
  QtSurface& Surface() const { return *surface_; }

 signals:
  // Every event by its number; a connected slot may change the in/out arguments.
  void EventRaised(int number, const QString& name, QVariantList& args);
  void BackColorChanged();
  void BusinessModeChanged();
  void BackColorTitleChanged();
  void EnabledChanged();

 protected:
  explicit ControlWidget(QWidget* parent);
  // Called by the subclass once its control exists.
  void Attach(SmallControl& control);
  QtHost& Host() const { return *host_; }
  // Deletes the child widgets while the control that handles their notifications still exists;
  // subclasses call it first in their destructor.
  void DestroySurface();
  // Emits the typed signal for an event the control raised.
  virtual void EmitTyped(platform::RaisedEvent& event) = 0;

 private:
  QtSurface* surface_;
  std::unique_ptr<QtHost> host_;
  SmallControl* control_ = nullptr;
};

}  // namespace zenta::qt
