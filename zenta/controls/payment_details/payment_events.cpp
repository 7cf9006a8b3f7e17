#include "zenta/controls/payment_details/payment_events.h"

namespace zenta {

bool PaymentEvents::GetPayAmount() {
  platform::RaisedEvent event{kGetPayAmount, "GetPayAmount", {}};
  return channel_.Raise(event, [this] {
    if (listener_) listener_->GetPayAmount();
  });
}

bool PaymentEvents::KeypressLockedField(std::string& Field) {
  platform::RaisedEvent event{kKeypressLockedField, "KeypressLockedField", {Variant(Field)}};
  return channel_.Raise(event, [&] {
    if (!event.args.empty()) Field = event.args.front().ToString();
    if (listener_) listener_->KeypressLockedField(Field);
  });
}

bool PaymentEvents::GLBalanced() {
  platform::RaisedEvent event{kGLBalanced, "GLBalanced", {}};
  return channel_.Raise(event, [this] {
    if (listener_) listener_->GLBalanced();
  });
}

std::optional<bool> PaymentEvents::GLDistributionBeforeEdit() {
  return RaiseCancel(kGLDistributionBeforeEdit, "GLDistributionBeforeEdit", &Listener::GLDistributionBeforeEdit);
}

std::optional<bool> PaymentEvents::PayAmtBeforeUpdate() {
  return RaiseCancel(kPayAmtBeforeUpdate, "PayAmtBeforeUpdate", &Listener::PayAmtBeforeUpdate);
}

std::optional<bool> PaymentEvents::GSTAmtBeforeUpdate() {
  return RaiseCancel(kGSTAmtBeforeUpdate, "GSTAmtBeforeUpdate", &Listener::GSTAmtBeforeUpdate);
}

std::optional<bool> PaymentEvents::RaiseCancel(Number number, const char* name, void (Listener::*typed)(bool&)) {
  platform::RaisedEvent event{number, name, {Variant(false)}};
  bool cancel = false;
  const bool survived = channel_.Raise(event, [&] {
    cancel = !event.args.empty() && event.args.front().ToBool();
    if (listener_) (listener_->*typed)(cancel);
  });
  if (!survived) return std::nullopt;
  return cancel;
}

}  // namespace zenta
