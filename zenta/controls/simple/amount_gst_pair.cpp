#include "zenta/controls/simple/amount_gst_pair.h"

#include "zenta/entry/amount_entry.h"
#include "zenta/entry/amount_focus_lost.h"

namespace zenta {

AmountGstPair::AmountGstPair(platform::ControlSurface& surface, platform::NumberEdit& amount,
                             platform::NumberEdit& gst, platform::Label& gst_label,
                             std::function<bool()> business_mode, Notifications notifications)
    : surface_(surface), amount_(amount), gst_(gst), gst_label_(gst_label), business_mode_(std::move(business_mode)),
      notifications_(std::move(notifications)) {
  entry::ApplyAmountSettings(amount_);
  entry::ApplyAmountSettings(gst_);
  amount_.OnFocusLost([this] {
    entry::HandleAmountFocusLost(amount_, surface_,
                                 {.left_control = notifications_.left_control,
                                  .stayed_inside = notifications_.amount_left_for_field});
  });
  gst_.OnFocusLost([this] { GstLostFocus(); });
}

void AmountGstPair::GstLostFocus() {
  entry::HandleAmountFocusLost(gst_, surface_,
                               {.left_control =
                                    [this] {
                                      // Zero fill only on the way out, so a business payer never
                                      // leaves the GST/HST unstated.
                                      if (business_mode_() && gst_.IsNull()) gst_.SetValue(Currency());
                                      if (notifications_.left_control) notifications_.left_control();
                                    },
                                .stayed_inside = notifications_.gst_left_for_field});
}

void AmountGstPair::ShowBusinessMode(bool business_mode) {
  gst_label_.SetVisible(business_mode);
  gst_.SetVisible(business_mode);
}

}  // namespace zenta
