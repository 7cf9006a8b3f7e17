#include "zenta/entry/gst_hst_cell.h"

#include <optional>

#include "zenta/core/host_error.h"
#include "zenta/core/number_format.h"

namespace zenta::entry {

namespace {
std::optional<Currency> AmountIn(const Variant& value) {
  if (value.IsEmpty() || value.IsNull() || value.ToString().empty()) return std::nullopt;
  try {
    return value.ToCurrency();
  } catch (const HostError&) {
    return std::nullopt;  // text that is no number yet
  }
}
}  // namespace

bool GstHstCell::Fill(platform::GridEngine& engine, const GstHstSettings& settings, Date day,
                      platform::KeyDown& key) const {
  if (key.key_code != GstHstSettings::kFillKey || key.shift != platform::kNoShift) return false;
  if (engine.CurrentColumn() != gst_column || !engine.CurrentRow()) return false;
  const std::optional<Currency> amount = AmountIn(engine.CellValue(amount_column));
  if (!amount) return false;
  std::optional<Currency> tax;
  try {
    tax = settings.IncludedIn(*amount, day);
  } catch (const HostError&) {
    return false;
  }
  if (!tax) return false;
  if (!engine.IsEditing() && !engine.StartEdit()) return false;
  key.key_code = 0;
  engine.SetCellText(gst_column, FormatNumber(*tax, formats::kAmount));
  return true;
}

void GstHstCell::OfferFill(const GstHstSettings& settings, Date day, platform::CellActionArgs& action) const {
  if (!settings.RateOn(day)) return;
  action.key = GstHstSettings::kFillKey;
  action.tooltip = "Fill in the GST/HST included at the rate (F8)";
}

std::string GstHstCell::Hint(const platform::GridEngine& engine, int row, const GstHstSettings& settings,
                             Date day) const {
  const std::optional<Currency> amount = AmountIn(engine.StoredValue(row, amount_column));
  const std::optional<Currency> typed = AmountIn(engine.StoredValue(row, gst_column));
  if (!amount || !typed) return {};
  return settings.HintFor(*amount, *typed, day);
}

}  // namespace zenta::entry
