#include "zenta/controls/payment_details/payment_events.h"

namespace zenta {

void PaymentEvents::GetPayAmount() {
  platform::RaisedEvent event{kGetPayAmount, "GetPayAmount", {}};
  host_.RaiseEvent(event);
  if (listener_) listener_->GetPayAmount();
}

void PaymentEvents::KeypressLockedField(std::string& Field) {
  platform::RaisedEvent event{kKeypressLockedField, "KeypressLockedField", {Variant(Field)}};
  host_.RaiseEvent(event);
  if (!event.args.empty()) Field = event.args.front().ToString();
  if (listener_) listener_->KeypressLockedField(Field);
}

void PaymentEvents::GLBalanced() {
  platform::RaisedEvent event{kGLBalanced, "GLBalanced", {}};
  host_.RaiseEvent(event);
  if (listener_) listener_->GLBalanced();
}

bool PaymentEvents::GLDistributionBeforeEdit() {
  return RaiseCancel(kGLDistributionBeforeEdit, "GLDistributionBeforeEdit", &Listener::GLDistributionBeforeEdit);
}

bool PaymentEvents::PayAmtBeforeUpdate() {
  return RaiseCancel(kPayAmtBeforeUpdate, "PayAmtBeforeUpdate", &Listener::PayAmtBeforeUpdate);
}

bool PaymentEvents::GSTAmtBeforeUpdate() {
  return RaiseCancel(kGSTAmtBeforeUpdate, "GSTAmtBeforeUpdate", &Listener::GSTAmtBeforeUpdate);
}

bool PaymentEvents::RaiseCancel(Number number, const char* name, void (Listener::*typed)(bool&)) {
  platform::RaisedEvent event{number, name, {Variant(false)}};
  host_.RaiseEvent(event);
  bool cancel = !event.args.empty() && event.args.front().ToBool();
  if (listener_) (listener_->*typed)(cancel);
  return cancel;
}

}  // namespace zenta
