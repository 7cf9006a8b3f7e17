#pragma once

/// @file
/// ControlWidget, the base every Qt control class shares.

#include <QColor>
#include <QMetaProperty>
#include <QPointer>
#include <QSettings>
#include <QVariantList>
#include <QWidget>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

/// @cond internal
namespace zenta::platform {
class PropertyBag;
struct RaisedEvent;
}  // namespace zenta::platform
/// @endcond

/// The Qt 6 Widgets classes a host places on its forms.
namespace zenta::qt {

/// @cond internal
class ControlBinding;
class QtHost;
class QtSurface;
/// @endcond

/// What every Zenta control widget shares: the common properties, persistence, error reporting
/// and every event by number.
///
/// Each control class (StdPayment, PmtDetails, GovtDetails, PaymentDetails, InvoiceEntry)
/// derives from it. A widget created in code starts as if loaded with default properties.
///
/// **Errors.** No exception leaves a Qt member: a value the control refuses leaves the property
/// as it was and is reported by HostErrorRaised with the error's number, source and
/// description; QObject::setProperty() returns false when Qt cannot convert the value at all
/// ("abc" for an amount). The numbers a host meets:
/// - 6, Overflow: an amount past the currency range, NaN or infinity, a 16-bit value out of range;
/// - 13, Type mismatch: a value of the wrong kind (text that is not an amount);
/// - 0x80040014: GovtDetails::SetRows() outside 1 to 26;
/// - 0x80040015: a date outside 0100/01/01 to 9999/12/31, source the date field's name;
/// - 0x80040016: a second distribution window while one is open, source "frmDistribution";
/// - 0x800403E8: an InvoiceEntry row that does not exist, source "InvoiceValues".
///
/// **Change signals.** Every value property has a NOTIFY signal, emitted once the call or
/// keystroke that changed the value has finished, whether the payer typed it or the host set
/// it. QWidget::setEnabled() and the Enabled property are one state.
///
/// **Sizes.** The controls take the host's font and stretch horizontally in a layout; their
/// minimum size is kept.
class ControlWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor NOTIFY BackColorChanged)
  Q_PROPERTY(bool BusinessMode READ BusinessMode WRITE SetBusinessMode NOTIFY BusinessModeChanged)
  Q_PROPERTY(QColor BackColorTitle READ BackColorTitle WRITE SetBackColorTitle NOTIFY BackColorTitleChanged)
  Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled NOTIFY EnabledChanged)

 public:
  /// Deletes the child widgets while the control logic still exists.
  ~ControlWidget() override;
  /// @{

  /// Property BackColor: the background of the control (persisted). The default is the
  /// system's button face, drawn in the host's palette.
  QColor BackColor() const;
  void SetBackColor(const QColor& color);
  /// @}
  /// @{
  /// Property BusinessMode: whether the payer is a business, which shows the GST/HST and net
  /// expense fields (persisted, default false). InvoiceEntry and PaymentDetails clear their
  /// values when it is set.
  bool BusinessMode() const;
  void SetBusinessMode(bool on);
  /// @}
  /// @{
  /// Property BackColorTitle: the background of the captions (persisted).
  QColor BackColorTitle() const;
  void SetBackColorTitle(const QColor& color);
  /// @}
  /// @{
  /// Property Enabled: whether the payer can use the control (persisted, default true); one
  /// state with QWidget::isEnabled().
  bool Enabled() const;
  void SetEnabled(bool enabled);
  /// @}
  /// @{

  /// The setter a Designer form's generated code calls for the property of the same name.
  /// The property Enabled is set through QWidget::setEnabled(), one state with it.
  void setBackColor(const QColor& color) { SetBackColor(color); }
  void setBusinessMode(bool on) { SetBusinessMode(on); }
  void setBackColorTitle(const QColor& color) { SetBackColorTitle(color); }
  /// @}

  /// Ends the amount the payer is still typing as leaving the field would (money typed without
  /// a "." is read as cents: "2500" becomes 25.00) while the focus stays where it is. The
  /// amount getters never do: they return what the field will hold once left (1250 typed reads
  /// 12.50) and leave its text, caret and selection alone.
  Q_INVOKABLE void FinishEdit();

  /// Loads the persisted properties from `group` of `settings`. A key that is missing keeps
  /// its default; a stored value of the wrong type or out of range keeps the default too and
  /// is reported by PropertyRefused(); the other keys still load.
  Q_INVOKABLE void LoadProperties(QSettings* settings, const QString& group);
  /// Saves the persisted properties into `group` of `settings`; values equal to their defaults
  /// are not written.
  Q_INVOKABLE void SaveProperties(QSettings* settings, const QString& group) const;
  /// As LoadProperties(), from any property store (zenta::headless::MemoryPropertyBag, or a
  /// host's own implementation of zenta::platform::PropertyBag).
  void ReadProperties(const platform::PropertyBag& bag);
  /// As SaveProperties(), into any property store.
  void WriteProperties(platform::PropertyBag& bag) const;

  /// The size the control asks for in the host's font: never less than minimumSizeHint().
  QSize sizeHint() const override;
  /// The control's minimum size (kept in twips by the control logic) in pixels of the host's
  /// font and screen.
  QSize minimumSizeHint() const override;

  /// @cond internal
  // The widget the control logic runs on, for tests and tools that look inside.
  QtSurface& Surface() const { return *surface_; }
  /// @endcond

 signals:
  /// Every event the control raises, by its number and name, after the typed signal of the
  /// same event: for late-bound hosts. `args` holds the event's arguments; a slot may change
  /// the in/out ones (a Cancel flag, a row number) and the control reads them back. @direct
  void EventRaised(int number, const QString& name, QVariantList& args);
  /// A call refused a value, or a refresh after a call or keystroke failed: `number` is the
  /// error's number, unsigned (0x80040014 reads as such), `source` what raised it,
  /// `description` its fixed text. The values are as they were before the call. The numbers
  /// are listed in the class description.
  void HostErrorRaised(quint32 number, const QString& source, const QString& description);
  /// LoadProperties() or ReadProperties() found a stored value it could not take for `key`;
  /// the key kept its default.
  void PropertyRefused(const QString& key);
  void BackColorChanged();       ///< NOTIFY of BackColor.
  void BusinessModeChanged();    ///< NOTIFY of BusinessMode.
  void BackColorTitleChanged();  ///< NOTIFY of BackColorTitle.
  void EnabledChanged();         ///< NOTIFY of Enabled, also when QWidget::setEnabled() changed it.

  /// @cond internal
 protected:
  explicit ControlWidget(QWidget* parent);
  // Called by the subclass once its control exists.
  void Attach(std::unique_ptr<ControlBinding> binding);
  QtHost& Host() const { return *host_; }
  // Deletes the child widgets while the control that handles their notifications still exists;
  // subclasses call it first in their destructor.
  void DestroySurface();
  // Stops reading the control, for a subclass whose control must go before the surface.
  void DetachControl();
  // Emits the typed signal for an event the control raised.
  virtual void EmitTyped(platform::RaisedEvent& event) = 0;

  // Runs a call into the control; a refusal becomes HostErrorRaised and false. Once the
  // outermost call has returned, the NOTIFY signals of the values it changed are emitted. A
  // host that deletes the widget from a slot the call reached gets nothing further.
  template <class Call>
  bool Guard(Call&& call) const noexcept {
    const QPointer<const ControlWidget> self(this);
    ++calls_;
    bool done = true;
    try {
      call();
    } catch (...) {
      if (self) ReportCurrentException();
      done = false;
    }
    if (!self) return false;
    if (--calls_ == 0) NotifyChanges();
    return done;
  }
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ReportCurrentException() const noexcept;
  // The control said that `property` may have changed: its value is compared with the last one
  // signalled, after the current call or at once outside one.
  void Announce(std::string_view property) const noexcept;
  void Announce(const std::vector<std::string_view>& properties) const noexcept;
  // Reads only the announced properties and emits the NOTIFY signal of each that changed, once.
  void NotifyChanges() const noexcept;
  void TakeBaseline();
  void WatchChildren();

  QtSurface* surface_;
  std::unique_ptr<QtHost> host_;
  std::unique_ptr<ControlBinding> control_;
  // Property index by name (the names are the meta-object's own strings).
  std::unordered_map<std::string_view, int> notifying_properties_;
  // The properties each NOTIFY signal stands for, by signal index: read together, so that a
  // signal shared by several readings of one value goes out once per change.
  std::unordered_map<int, std::vector<int>> signal_properties_;
  // The notifying properties by index, looked up once: making a QMetaProperty is not cheap.
  std::vector<QMetaProperty> properties_;
  mutable std::vector<QVariant> last_values_;  // by property index
  mutable std::vector<int> pending_;
  mutable std::vector<bool> is_pending_;
  // The properties each watched child widget holds.
  std::unordered_map<const QObject*, std::vector<std::string_view>> watched_;
  mutable int calls_ = 0;
  mutable bool notifying_ = false;
  /// @endcond
};

}  // namespace zenta::qt
