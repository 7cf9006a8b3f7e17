#include "zenta/qt/payment_details.h"

#include <QPointer>
#include <QVariantMap>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/qt/application_context.h"
#include "zenta/qt/control_binding.h"
#include "zenta/qt/toolkit/qt_conversions.h"
#include "zenta/qt/toolkit/qt_host.h"
#include "zenta/qt/toolkit/qt_surface.h"
#include "zenta/qt/toolkit/ui_text.h"

namespace zenta::qt {

namespace {

// The payment control keeps no colours of its own: the background is its surface's, and the
// title colour every Qt control offers is kept here for the host.
class PaymentBinding final : public ControlBinding {
 public:
  PaymentBinding(zenta::PaymentDetails& control, QtSurface& surface) : c_(control), surface_(surface) {}
  void ReadProperties(const platform::PropertyBag& bag) override { c_.ReadProperties(bag); }
  void WriteProperties(platform::PropertyBag& bag) const override { c_.WriteProperties(bag); }
  int MinimumWidth() const override { return zenta::PaymentDetails::kMinWidth; }
  int MinimumHeight() const override { return zenta::PaymentDetails::kMinHeight; }
  OleColor BackColor() const override { return surface_.BackColor(); }
  void SetBackColor(OleColor color) override { surface_.SetBackColor(color); }
  std::span<const platform::FieldValue> FieldValues() const override { return zenta::PaymentDetails::FieldValues(); }
  bool BusinessMode() const override { return c_.BusinessMode(); }
  void SetBusinessMode(bool on) override { c_.SetBusinessMode(on); }
  OleColor BackColorTitle() const override { return title_; }
  void SetBackColorTitle(OleColor color) override { title_ = color; }
  bool Enabled() const override { return c_.Enabled(); }
  void SetEnabled(bool enabled) override { c_.SetEnabled(enabled); }

 private:
  zenta::PaymentDetails& c_;
  QtSurface& surface_;
  OleColor title_ = colors::kButtonFace;
};

}  // namespace

PaymentDetails::PaymentDetails(QWidget* parent)
    : ControlWidget(parent),
      control_(std::make_unique<zenta::PaymentDetails>(Surface(), Host(), ApplicationContext())) {
  Attach(std::make_unique<PaymentBinding>(*control_, Surface()));
}

PaymentDetails::~PaymentDetails() {
  // The control lets go of its grid when it is destroyed, so it goes before the surface.
  DetachControl();
  control_.reset();
  DestroySurface();
}

void PaymentDetails::EmitTyped(platform::RaisedEvent& event) {
  auto cancel_flag = [&event](auto emit_signal) {
    bool cancel = !event.args.empty() && event.args.front().ToBool();
    emit_signal(cancel);
    if (!event.args.empty()) event.args.front() = Variant(cancel);
  };
  switch (event.number) {
    case PaymentEvents::kGetPayAmount: emit GetPayAmount(); break;
    case PaymentEvents::kKeypressLockedField: {
      QString field = event.args.empty() ? QString() : ToQString(event.args.front().ToString());
      emit KeypressLockedField(field);
      if (!event.args.empty()) event.args.front() = Variant(FromQString(field));
      break;
    }
    case PaymentEvents::kGLBalanced: emit GLBalanced(); break;
    case PaymentEvents::kGLDistributionBeforeEdit: cancel_flag([this](bool& c) { emit GLDistributionBeforeEdit(c); }); break;
    case PaymentEvents::kPayAmtBeforeUpdate: cancel_flag([this](bool& c) { emit PayAmtBeforeUpdate(c); }); break;
    case PaymentEvents::kGSTAmtBeforeUpdate: cancel_flag([this](bool& c) { emit GSTAmtBeforeUpdate(c); }); break;
    default: break;
  }
}

void PaymentDetails::ShowBusinessMode() { Guard([&] { control_->ShowBusinessMode(); }); }
void PaymentDetails::ShowDistribution() { Guard([&] { control_->ShowDistribution(); }); }
void PaymentDetails::ClearPay() { Guard([&] { control_->ClearPay(); }); }
void PaymentDetails::SetOtherCurrencyCode(const QVariant& code) {
  Guard([&] { control_->SetOtherCurrencyCode(FromQVariant(code)); });
}

bool PaymentDetails::IsDataValid(QString& InvalidReason) {
  const QPointer<PaymentDetails> self(this);
  FinishEdit();
  if (!self) return false;
  std::string reason = FromQString(InvalidReason);
  bool valid = false;
  Guard([&] { valid = control_->IsDataValid(reason); });
  InvalidReason = UiText(reason);  // a reason the host shows to the payer
  return valid;
}

QString PaymentDetails::InvalidReason() {
  QString reason;
  IsDataValid(reason);
  return reason;
}

QVariantList PaymentDetails::Distributions() const {
  QVariantList lines;
  if (!control_->PayDistribution()) return lines;
  for (const auto& line : *control_->PayDistribution()) {
    QVariantMap map;
    map.insert(QStringLiteral("GLAccount"), ToQString(line->GLAccount));
    map.insert(QStringLiteral("Amount"), QVariant::fromValue(line->Amount));
    lines.append(map);
  }
  return lines;
}

Currency PaymentDetails::PaymentAmount() const { return control_->PaymentAmount(); }
void PaymentDetails::SetPaymentAmount(Currency value) { Guard([&] { control_->SetPaymentAmount(value); }); }
Currency PaymentDetails::GST() const { return control_->GST(); }
void PaymentDetails::SetGST(Currency value) { Guard([&] { control_->SetGST(value); }); }
Currency PaymentDetails::NetExpense() const { return control_->NetExpense(); }
QString PaymentDetails::PaymentFor() const { return ToQString(control_->PaymentFor().ToString()); }
QString PaymentDetails::DefaultGLAccount() const { return ToQString(control_->DefaultGLAccount()); }
void PaymentDetails::SetDefaultGLAccount(const QString& account) {
  Guard([&] { control_->SetDefaultGLAccount(FromQString(account)); });
}
bool PaymentDetails::LockFields() const { return control_->LockFields(); }
void PaymentDetails::SetLockFields(bool locked) { Guard([&] { control_->SetLockFields(locked); }); }

}  // namespace zenta::qt
