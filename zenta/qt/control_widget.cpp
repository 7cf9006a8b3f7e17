#include "zenta/qt/control_widget.h"

#include <QAbstractButton>
#include <QEvent>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPointer>
#include <QVBoxLayout>
#include <exception>

#include "zenta/core/host_error.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_number_edit.h"
#include "zenta/qt/toolkit/qt_surface.h"
#include "zenta/qt/toolkit/settings_property_bag.h"

namespace zenta::qt {

namespace {
// The store of a control created in code: every property at its default.
class DefaultsPropertyBag : public platform::PropertyBag {
 public:
  Variant Read(const std::string&, const Variant& default_value) const override { return default_value; }
  void Write(const std::string&, const Variant&, const Variant&) override {}
};

// What a failure that is not one of the control's own errors reads as (E_FAIL).
constexpr quint32 kUnspecifiedError = 0x80004005u;
}  // namespace

ControlWidget::ControlWidget(QWidget* parent)
    : QWidget(parent), surface_(new QtSurface(this)), host_(std::make_unique<QtHost>(*this)) {
  RegisterMetaTypes();
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(surface_);
  host_->SetEventSink([this](platform::RaisedEvent& event) {
    // A slot may delete this widget (a host closing its form): nothing of it is read then.
    const QPointer<ControlWidget> self(this);
    QVariantList args;
    for (const Variant& arg : event.args) args.append(ToQVariant(arg));
    emit EventRaised(event.number, ToQString(event.name), args);
    if (!self) return;
    for (qsizetype i = 0; i < args.size() && i < static_cast<qsizetype>(event.args.size()); ++i) {
      event.args[static_cast<std::size_t>(i)] = FromQVariant(args[i]);
    }
    EmitTyped(event);
  });
  host_->SetErrorSink([this](const HostError& error) {
    emit HostErrorRaised(static_cast<quint32>(error.Number()), ToQString(error.Source()), ToQString(error.Description()));
  });
}

ControlWidget::~ControlWidget() = default;

void ControlWidget::DestroySurface() {
  host_->SetEventSink(nullptr);
  delete surface_;
  surface_ = nullptr;
}

void ControlWidget::Attach(std::unique_ptr<ControlBinding> binding) {
  control_ = std::move(binding);
  host_->SetPropertyChangedSink([this](const std::string&) { NotifyChanges(); });
  control_->ReadProperties(DefaultsPropertyBag());
  setMinimumSize(minimumSizeHint());
  WatchChildren();
  NotifyChanges();
}

void ControlWidget::WatchChildren() {
  // Typed changes reach the NOTIFY signals through the fields' own change signals.
  for (QLineEdit* edit : surface_->findChildren<QLineEdit*>()) {
    connect(edit, &QLineEdit::textChanged, this, [this] { NotifyChanges(); });
  }
  for (QAbstractItemView* grid : surface_->findChildren<QAbstractItemView*>()) {
    QAbstractItemModel* model = grid->model();
    if (!model) continue;
    connect(model, &QAbstractItemModel::dataChanged, this, [this] { NotifyChanges(); });
    connect(model, &QAbstractItemModel::modelReset, this, [this] { NotifyChanges(); });
  }
  for (QAbstractButton* button : surface_->findChildren<QAbstractButton*>()) {
    connect(button, &QAbstractButton::toggled, this, [this] { NotifyChanges(); });
  }
}

void ControlWidget::NotifyChanges() const noexcept {
  if (notifying_ || !control_ || !surface_) return;
  notifying_ = true;
  try {
    const QMetaObject* meta = metaObject();
    QList<int> emitted;  // a signal shared by two readings of one value goes out once
    for (int i = 0; i < meta->propertyCount(); ++i) {
      const QMetaProperty property = meta->property(i);
      if (!property.hasNotifySignal() || i < ControlWidget::staticMetaObject.propertyOffset()) continue;
      QVariant value = property.read(this);
      auto [it, inserted] = last_values_.try_emplace(i, value);
      if (inserted) continue;
      if (it->second == value) continue;
      it->second = std::move(value);
      if (emitted.contains(property.notifySignalIndex())) continue;
      emitted.append(property.notifySignalIndex());
      property.notifySignal().invoke(const_cast<ControlWidget*>(this), Qt::DirectConnection);
    }
  } catch (...) {
    // A slot of the host's that throws is its own business; the control stays usable.
  }
  notifying_ = false;
}

void ControlWidget::ReportCurrentException() const noexcept {
  auto* self = const_cast<ControlWidget*>(this);
  try {
    throw;
  } catch (const HostError& error) {
    emit self->HostErrorRaised(static_cast<quint32>(error.Number()), ToQString(error.Source()),
                               ToQString(error.Description()));
  } catch (const std::exception& error) {
    emit self->HostErrorRaised(kUnspecifiedError, metaObject()->className(), QString::fromLocal8Bit(error.what()));
  } catch (...) {
    emit self->HostErrorRaised(kUnspecifiedError, metaObject()->className(), QString());
  }
}

void ControlWidget::FinishEdit() {
  const QPointer<ControlWidget> self(this);
  for (QtNumberEdit* edit : surface_->findChildren<QtNumberEdit*>()) {
    if (edit->hasFocus()) Guard([edit] { edit->FinishEdit(); });
    if (!self) return;
  }
}

void ControlWidget::FinishEditForRead() const {
  if (!notifying_) const_cast<ControlWidget*>(this)->FinishEdit();
}

QColor ControlWidget::BackColor() const { return ToQColor(control_->BackColor(), palette()); }
void ControlWidget::SetBackColor(const QColor& color) {
  Guard([&] { control_->SetBackColor(FromQColor(color)); });
}

bool ControlWidget::BusinessMode() const { return control_->BusinessMode(); }
void ControlWidget::SetBusinessMode(bool on) {
  Guard([&] { control_->SetBusinessMode(on); });
}

QColor ControlWidget::BackColorTitle() const { return ToQColor(control_->BackColorTitle(), palette()); }
void ControlWidget::SetBackColorTitle(const QColor& color) {
  Guard([&] { control_->SetBackColorTitle(FromQColor(color)); });
}

bool ControlWidget::Enabled() const { return control_->Enabled(); }
void ControlWidget::SetEnabled(bool enabled) {
  Guard([&] {
    control_->SetEnabled(enabled);
    setEnabled(enabled);
  });
}

void ControlWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange && surface_) {
    setMinimumSize(minimumSizeHint());
    updateGeometry();
  }
  // QWidget::setEnabled on this widget (not a parent's) is the control's Enabled.
  if (event->type() == QEvent::EnabledChange && control_) {
    const bool own = !testAttribute(Qt::WA_ForceDisabled);
    if (own != control_->Enabled()) Guard([&] { control_->SetEnabled(own); });
  }
  QWidget::changeEvent(event);
}

void ControlWidget::LoadProperties(QSettings* settings, const QString& group) {
  if (!settings) return;
  SettingsPropertyBag bag(*settings, group);
  Guard([&] { ReadProperties(bag); });
  for (const std::string& key : bag.RefusedKeys()) emit PropertyRefused(ToQString(key));
}

void ControlWidget::SaveProperties(QSettings* settings, const QString& group) const {
  if (!settings) return;
  Guard([&] {
    SettingsPropertyBag bag(*settings, group);
    WriteProperties(bag);
  });
}

void ControlWidget::ReadProperties(const platform::PropertyBag& bag) {
  control_->ReadProperties(bag);
  setEnabled(control_->Enabled());
  NotifyChanges();
}

void ControlWidget::WriteProperties(platform::PropertyBag& bag) const { control_->WriteProperties(bag); }

QSize ControlWidget::minimumSizeHint() const {
  if (!control_ || !surface_) return QWidget::minimumSizeHint();
  return surface_->FittedSize(control_->MinimumWidth(), control_->MinimumHeight());
}

bool ControlWidget::event(QEvent* event) {
  // The surface asks for more room when the font makes a caption wider.
  if (event->type() == QEvent::LayoutRequest && control_ && surface_) setMinimumSize(minimumSizeHint());
  return QWidget::event(event);
}

QSize ControlWidget::sizeHint() const {
  // A control that sets its own width (the payment grid per mode) asks for it; never less than
  // its minimum.
  const QSize minimum = minimumSizeHint();
  if (!control_ || !surface_) return minimum;
  const QSize asked = surface_->FittedSize(surface_->RequestedWidth(), surface_->RequestedHeight());
  return minimum.expandedTo(asked);
}

}  // namespace zenta::qt
