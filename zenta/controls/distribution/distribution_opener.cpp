#include "zenta/controls/distribution/distribution_opener.h"

#include "zenta/core/host_error.h"

namespace zenta {

DistributionOpener::~DistributionOpener() { Abandon(); }

FrmDistribution& DistributionOpener::Prepare() {
  if (context_.HasDistribution() && context_.Distribution().Surface().IsShown()) {
    throw HostError::Object(kAlreadyOpen, "frmDistribution", kAlreadyOpenText);
  }
  return context_.Distribution();
}

DistributionOpener::Outcome DistributionOpener::Show() {
  FrmDistribution& window = context_.Distribution();
  const platform::Lifetime::Watch control = lifetime_.Watched();
  open_ = true;
  abandoned_ = false;
  try {
    window.Show();
  } catch (...) {
    if (control.Alive()) open_ = false;
    throw;
  }
  if (!control.Alive()) return Outcome::ControlGone;
  open_ = false;
  if (abandoned_) return Outcome::Cancelled;
  return window.Chosen() ? Outcome::Accepted : Outcome::Cancelled;
}

void DistributionOpener::Abandon() {
  if (!open_) return;
  abandoned_ = true;
  context_.Distribution().CloseAsCancelled();
}

}  // namespace zenta
