#pragma once

#include <QColor>
#include <QPointer>
#include <QSettings>
#include <QVariantList>
#include <QWidget>
#include <map>
#include <memory>

#include "zenta/platform/property_bag.h"
#include "zenta/platform/raised_event.h"
#include "zenta/qt/control_binding.h"

namespace zenta::qt {

class QtHost;
class QtSurface;

// What every Zenta control widget shares: the surface its control logic runs on, the host
// services, the common properties as Q_PROPERTYs, and every event as EventRaised (by number, for
// late-bound hosts) next to the control's own typed signals. A widget created in code starts as
// if loaded with default properties.
//
// No exception leaves a Qt member: a value the control refuses leaves the property as it was and
// is reported by HostErrorRaised with the error's number (0x80040014 reads as such), source and
// description. Every value property has a NOTIFY signal, emitted when the value changes, typed
// or set. QWidget::setEnabled and the Enabled property are one state.
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

  // The setters code generated from a Designer form calls; the per-field properties are set
  // in code. Enabled is QWidget::setEnabled, one state with the Enabled property.
  void setBackColor(const QColor& color) { SetBackColor(color); }
  void setBusinessMode(bool on) { SetBusinessMode(on); }
  void setBackColorTitle(const QColor& color) { SetBackColorTitle(color); }

  // Ends the amount the payer is still typing as leaving the field would (money typed without a
  // "." is read as cents) while the focus stays where it is. The amount getters call it, so a
  // host that reads them from a shortcut that keeps the focus in the field (Alt+P on its own Pay
  // button) reads 12.50, not 1250.
  Q_INVOKABLE void FinishEdit();

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
  void HostErrorRaised(quint32 number, const QString& source, const QString& description);
  // LoadProperties found a stored value it could not take for `key`; the key kept its default.
  void PropertyRefused(const QString& key);
  void BackColorChanged();
  void BusinessModeChanged();
  void BackColorTitleChanged();
  void EnabledChanged();

 protected:
  explicit ControlWidget(QWidget* parent);
  // Called by the subclass once its control exists.
  void Attach(std::unique_ptr<ControlBinding> binding);
  QtHost& Host() const { return *host_; }
  // Deletes the child widgets while the control that handles their notifications still exists;
  // subclasses call it first in their destructor.
  void DestroySurface();
  // Stops reading the control, for a subclass whose control must go before the surface.
  void DetachControl() { control_.reset(); }
  // Emits the typed signal for an event the control raised.
  virtual void EmitTyped(platform::RaisedEvent& event) = 0;

  // Runs a call into the control; a refusal becomes HostErrorRaised and false. Afterwards the
  // NOTIFY signals of the properties it changed are emitted.
  // A host that deletes the widget from a slot the call reached gets nothing further.
  template <class Call>
  bool Guard(Call&& call) const noexcept {
    const QPointer<const ControlWidget> self(this);
    try {
      call();
    } catch (...) {
      if (self) ReportCurrentException();
      return false;
    }
    if (!self) return false;
    NotifyChanges();
    return true;
  }
  // FinishEdit for a getter, unless the getter is being read to look for changes.
  void FinishEditForRead() const;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void ReportCurrentException() const noexcept;
  void NotifyChanges() const noexcept;
  void WatchChildren();

  QtSurface* surface_;
  std::unique_ptr<QtHost> host_;
  std::unique_ptr<ControlBinding> control_;
  mutable std::map<int, QVariant> last_values_;
  mutable bool notifying_ = false;
};

}  // namespace zenta::qt
