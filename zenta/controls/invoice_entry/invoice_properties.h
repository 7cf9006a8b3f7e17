#pragma once

#include <string>

#include "zenta/core/ole_color.h"
#include "zenta/platform/property_bag.h"

namespace zenta {

// The eleven properties the invoice control keeps in the host's store, with their defaults.
struct InvoiceProperties {
  OleColor back_color = colors::kButtonFace;
  bool enabled = true;
  OleColor back_color_grid_header = colors::kTitleYellow;
  OleColor back_color_grid_footer = colors::kTitleYellow;
  OleColor back_color_title = colors::kTitleYellow;
  OleColor fore_color_grid_header = colors::kBlack;
  OleColor fore_color_grid_footer = colors::kBlack;
  OleColor row_color_even = Rgb(240, 240, 240);
  OleColor row_color_odd = Rgb(255, 255, 255);
  std::string default_gl_account;
  bool business_mode = false;

  // Keys in load order.
  static InvoiceProperties Read(const platform::PropertyBag& bag);
  void Write(platform::PropertyBag& bag) const;
};

}  // namespace zenta
