#pragma once

#include <string>

#include "zenta/core/date.h"
#include "zenta/entry/gst_hst_settings.h"
#include "zenta/platform/grid_engine.h"

namespace zenta::entry {

// The GST/HST cell of a grid row beside its tax-included amount, as every control with one
// treats it once the host has set a province or rate.
struct GstHstCell {
  int amount_column = 0;
  int gst_column = 0;

  // The fill key in the GST/HST cell opens its edit holding the tax included in the row's
  // amount; leaving the cell then checks it as if typed. Consumes the key when it filled.
  bool Fill(platform::GridEngine& engine, const GstHstSettings& settings, Date day, platform::KeyDown& key) const;
  // The small button that stands for the fill key, offered while a rate applies.
  void OfferFill(const GstHstSettings& settings, Date day, platform::CellActionArgs& action) const;
  // The quiet note on row `row`'s GST/HST cell when it is more than a cent from what the rate
  // gives; "" otherwise.
  std::string Hint(const platform::GridEngine& engine, int row, const GstHstSettings& settings, Date day) const;
};

}  // namespace zenta::entry
