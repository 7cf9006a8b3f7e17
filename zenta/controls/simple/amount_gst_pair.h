#pragma once

#include <functional>

#include "zenta/core/currency.h"
#include "zenta/platform/control_surface.h"

namespace zenta {

// The amount and GST/HST fields of the single-payment controls. Leaving either field reads a
// typed amount as cents; then, if the focus left the control, the GST field is zero-filled in
// business mode and `left_control` runs, otherwise the field's own notification runs. The GST
// label and field show only in business mode.
class AmountGstPair {
 public:
  struct Notifications {
    std::function<void()> amount_left_for_field;
    std::function<void()> gst_left_for_field;
    std::function<void()> left_control;
  };

  AmountGstPair(platform::ControlSurface& surface, platform::NumberEdit& amount, platform::NumberEdit& gst,
                platform::Label& gst_label, std::function<bool()> business_mode, Notifications notifications);

  void ShowBusinessMode(bool business_mode);

 private:
  void GstLostFocus();

  platform::ControlSurface& surface_;
  platform::NumberEdit& amount_;
  platform::NumberEdit& gst_;
  platform::Label& gst_label_;
  std::function<bool()> business_mode_;
  Notifications notifications_;
};

}  // namespace zenta
