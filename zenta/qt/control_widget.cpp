#include "zenta/qt/control_widget.h"

#include <QVBoxLayout>

#include "zenta/controls/simple/small_control.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
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
}  // namespace

ControlWidget::ControlWidget(QWidget* parent)
    : QWidget(parent), surface_(new QtSurface(this)), host_(std::make_unique<QtHost>(*this)) {
  RegisterMetaTypes();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(surface_);
  host_->SetEventSink([this](platform::RaisedEvent& event) {
    QVariantList args;
    for (const Variant& arg : event.args) args.append(ToQVariant(arg));
    emit EventRaised(event.number, ToQString(event.name), args);
    for (qsizetype i = 0; i < args.size() && i < static_cast<qsizetype>(event.args.size()); ++i) {
      event.args[static_cast<std::size_t>(i)] = FromQVariant(args[i]);
    }
    EmitTyped(event);
  });
}

ControlWidget::~ControlWidget() = default;

void ControlWidget::DestroySurface() {
  host_->SetEventSink(nullptr);
  delete surface_;
  surface_ = nullptr;
}

void ControlWidget::Attach(SmallControl& control) {
  control_ = &control;
  host_->SetPropertyChangedSink([this](const std::string& name) {
    if (name == "BackColor") emit BackColorChanged();
  });
  control_->ReadProperties(DefaultsPropertyBag());
  setMinimumSize(minimumSizeHint());
}

QColor ControlWidget::BackColor() const { return ToQColor(control_->BackColor(), palette()); }
void ControlWidget::SetBackColor(const QColor& color) { control_->SetBackColor(FromQColor(color)); }

bool ControlWidget::BusinessMode() const { return control_->BusinessMode(); }
void ControlWidget::SetBusinessMode(bool on) {
  if (on == control_->BusinessMode()) return;
  control_->SetBusinessMode(on);
  emit BusinessModeChanged();
}

QColor ControlWidget::BackColorTitle() const { return ToQColor(control_->BackColorTitle(), palette()); }
void ControlWidget::SetBackColorTitle(const QColor& color) {
  control_->SetBackColorTitle(FromQColor(color));
  emit BackColorTitleChanged();
}

bool ControlWidget::Enabled() const { return control_->Enabled(); }
void ControlWidget::SetEnabled(bool enabled) {
  if (enabled == control_->Enabled()) return;
  control_->SetEnabled(enabled);
  emit EnabledChanged();
}

void ControlWidget::LoadProperties(QSettings* settings, const QString& group) {
  if (!settings) return;
  ReadProperties(SettingsPropertyBag(*settings, group));
}

void ControlWidget::SaveProperties(QSettings* settings, const QString& group) const {
  if (!settings) return;
  SettingsPropertyBag bag(*settings, group);
  WriteProperties(bag);
}

void ControlWidget::ReadProperties(const platform::PropertyBag& bag) {
  control_->ReadProperties(bag);
  emit BackColorChanged();
  emit EnabledChanged();
  emit BackColorTitleChanged();
  emit BusinessModeChanged();
}

void ControlWidget::WriteProperties(platform::PropertyBag& bag) const { control_->WriteProperties(bag); }

QSize ControlWidget::minimumSizeHint() const {
  if (!control_) return QWidget::minimumSizeHint();
  return QSize(surface_->ToPixels(control_->MinimumWidth()), surface_->ToPixels(control_->MinimumHeight()));
}

QSize ControlWidget::sizeHint() const { return minimumSizeHint(); }

}  // namespace zenta::qt
