#pragma once

#include <cstdint>

#include "zenta/controls/distribution/frm_distribution.h"
#include "zenta/controls/distribution/library_context.h"
#include "zenta/platform/lifetime.h"

namespace zenta {

// One control's use of the thread's one distribution window. An opening while the window is
// open (a host calling ShowDistribution of another control from an event) is refused before
// anything of the open split is touched. The control that has the window open may end that
// opening (its payment or list was cleared); a control destroyed with its window open closes it
// as cancelled. Each control holds one opener, so it goes with the control.
class DistributionOpener {
 public:
  // Raised by Prepare while the window is open: 0x80040016, source "frmDistribution".
  static constexpr std::int32_t kAlreadyOpen = 22;
  static constexpr const char* kAlreadyOpenText = "The distribution window is already open";

  enum class Outcome { Accepted, Cancelled, ControlGone };

  explicit DistributionOpener(LibraryContext& context) : context_(context) {}
  ~DistributionOpener();
  DistributionOpener(const DistributionOpener&) = delete;
  DistributionOpener& operator=(const DistributionOpener&) = delete;

  // The window to prepare for the next opening.
  FrmDistribution& Prepare();
  // Shows the prepared window modally. ControlGone: the control was destroyed while it was
  // open, and the caller returns at once without touching anything of its own.
  Outcome Show();
  // Closes this control's open window as cancelled; nothing it holds is handed back.
  void Abandon();

 private:
  LibraryContext& context_;
  bool open_ = false;
  bool abandoned_ = false;
  platform::Lifetime lifetime_;
};

}  // namespace zenta
