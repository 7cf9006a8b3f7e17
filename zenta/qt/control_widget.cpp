#include "zenta/qt/control_widget.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QEvent>
#include <QAbstractItemView>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>

#include "zenta/core/host_error.h"
#include "zenta/platform/raised_event.h"
#include "zenta/qt/control_binding.h"
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

void ControlWidget::DetachControl() { control_.reset(); }

void ControlWidget::Attach(std::unique_ptr<ControlBinding> binding) {
  control_ = std::move(binding);
  const QMetaObject* meta = metaObject();
  properties_.resize(static_cast<std::size_t>(meta->propertyCount()));
  for (int i = ControlWidget::staticMetaObject.propertyOffset(); i < meta->propertyCount(); ++i) {
    const QMetaProperty property = meta->property(i);
    if (!property.hasNotifySignal()) continue;
    properties_[static_cast<std::size_t>(i)] = property;
    notifying_properties_.emplace(property.name(), i);
    signal_properties_[property.notifySignalIndex()].push_back(i);
  }
  last_values_.resize(static_cast<std::size_t>(meta->propertyCount()));
  is_pending_.resize(static_cast<std::size_t>(meta->propertyCount()));
  host_->SetValueChangedSink([this](std::string_view property) { Announce(property); });
  ++calls_;  // the defaults are the baseline, not a change
  control_->ReadProperties(DefaultsPropertyBag());
  --calls_;
  setMinimumSize(minimumSizeHint());
  WatchChildren();
  TakeBaseline();
}

void ControlWidget::TakeBaseline() {
  pending_.clear();
  std::fill(is_pending_.begin(), is_pending_.end(), false);
  notifying_ = true;
  for (const auto& [name, index] : notifying_properties_) {
    last_values_[static_cast<std::size_t>(index)] = properties_[static_cast<std::size_t>(index)].read(this);
  }
  notifying_ = false;
}

void ControlWidget::WatchChildren() {
  // Typed changes reach the NOTIFY signals through the change signals of the fields that hold
  // the values; the control names them.
  for (const platform::FieldValue& value : control_->FieldValues()) {
    QWidget* field = surface_->FindQWidget(std::string(value.field));
    if (!field) continue;
    auto [it, first] = watched_.try_emplace(field);
    it->second.push_back(value.property);
    if (!first) continue;
    const std::vector<std::string_view>* properties = &it->second;  // node addresses are stable
    auto announce = [this, properties] { Announce(*properties); };
    field->installEventFilter(this);
    QList<QLineEdit*> edits = field->findChildren<QLineEdit*>();
    if (auto* edit = qobject_cast<QLineEdit*>(field)) edits.append(edit);
    for (QLineEdit* edit : edits) connect(edit, &QLineEdit::textChanged, this, announce);
    if (auto* check = qobject_cast<QCheckBox*>(field)) {
      connect(check, &QCheckBox::stateChanged, this, announce);
    } else if (auto* button = qobject_cast<QAbstractButton*>(field)) {
      connect(button, &QAbstractButton::toggled, this, announce);
    }
    if (auto* grid = qobject_cast<QAbstractItemView*>(field); grid && grid->model()) {
      QAbstractItemModel* model = grid->model();
      connect(model, &QAbstractItemModel::dataChanged, this, announce);
      connect(model, &QAbstractItemModel::modelReset, this, announce);
      connect(model, &QAbstractItemModel::rowsInserted, this, announce);
      connect(model, &QAbstractItemModel::rowsRemoved, this, announce);
    }
  }
}

bool ControlWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::EnabledChange) {
    const auto found = watched_.find(watched);
    if (found != watched_.end()) Announce(found->second);
  }
  return QWidget::eventFilter(watched, event);
}

void ControlWidget::Announce(std::string_view property) const noexcept {
  const auto found = notifying_properties_.find(property);
  if (found == notifying_properties_.end()) return;
  const auto index = static_cast<std::size_t>(found->second);
  if (!is_pending_[index]) {
    is_pending_[index] = true;
    pending_.push_back(found->second);
  }
  if (calls_ == 0) NotifyChanges();
}

void ControlWidget::Announce(const std::vector<std::string_view>& properties) const noexcept {
  ++calls_;
  for (std::string_view property : properties) Announce(property);
  if (--calls_ == 0) NotifyChanges();
}

void ControlWidget::NotifyChanges() const noexcept {
  if (notifying_ || !control_ || !surface_) return;
  notifying_ = true;
  try {
    const QMetaObject* meta = metaObject();
    // A slot may change more values while this runs; those are appended and handled here too.
    for (std::size_t k = 0; k < pending_.size(); ++k) {
      // Read already with another property its signal stands for (and not announced since).
      if (!is_pending_[static_cast<std::size_t>(pending_[k])]) continue;
      const int signal = properties_[static_cast<std::size_t>(pending_[k])].notifySignalIndex();
      bool changed = false;
      for (int index : signal_properties_.at(signal)) {
        is_pending_[static_cast<std::size_t>(index)] = false;
        QVariant value = properties_[static_cast<std::size_t>(index)].read(this);
        QVariant& last = last_values_[static_cast<std::size_t>(index)];
        if (last == value) continue;
        last = std::move(value);
        changed = true;
      }
      if (changed) meta->method(signal).invoke(const_cast<ControlWidget*>(this), Qt::DirectConnection);
    }
  } catch (...) {
    // A slot of the host's that throws is its own business; the control stays usable.
    for (int index : pending_) is_pending_[static_cast<std::size_t>(index)] = false;
  }
  pending_.clear();
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
  // The toolkit's widgets have no meta-object of their own: findChildren<QtNumberEdit*> would
  // match every line edit, text boxes included.
  const QPointer<ControlWidget> self(this);
  for (QLineEdit* line : surface_->findChildren<QLineEdit*>()) {
    auto* edit = dynamic_cast<QtNumberEdit*>(line);
    if (edit && edit->hasFocus()) Guard([edit] { edit->FinishEdit(); });
    if (!self) return;
  }
}

QColor ControlWidget::BackColor() const { return ToQColor(control_->BackColor(), palette()); }
void ControlWidget::SetBackColor(const QColor& color) {
  Guard([&] {
    control_->SetBackColor(FromQColor(color));
    Announce("BackColor");
  });
}

bool ControlWidget::BusinessMode() const { return control_->BusinessMode(); }
void ControlWidget::SetBusinessMode(bool on) {
  Guard([&] { control_->SetBusinessMode(on); });
}

QColor ControlWidget::BackColorTitle() const { return ToQColor(control_->BackColorTitle(), palette()); }
void ControlWidget::SetBackColorTitle(const QColor& color) {
  Guard([&] {
    control_->SetBackColorTitle(FromQColor(color));
    Announce("BackColorTitle");
  });
}

bool ControlWidget::Enabled() const { return control_->Enabled(); }
void ControlWidget::SetEnabled(bool enabled) {
  Guard([&] {
    control_->SetEnabled(enabled);
    setEnabled(enabled);
    Announce("Enabled");
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
    if (own != control_->Enabled()) {
      Guard([&] {
        control_->SetEnabled(own);
        Announce("Enabled");
      });
    }
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
  ++calls_;
  try {
    control_->ReadProperties(bag);
    setEnabled(control_->Enabled());
  } catch (...) {
    if (--calls_ == 0) NotifyChanges();
    throw;
  }
  if (--calls_ == 0) NotifyChanges();
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
