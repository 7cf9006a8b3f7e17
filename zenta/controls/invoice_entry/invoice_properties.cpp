#include "zenta/controls/invoice_entry/invoice_properties.h"

#include <cstdint>

namespace zenta {
namespace {

// Colours travel as 32-bit integers; system colours have the top bit set.
Variant ColorValue(OleColor color) { return Variant(static_cast<std::int32_t>(color)); }

OleColor ReadColor(const platform::PropertyBag& bag, const char* key, OleColor fallback) {
  return static_cast<OleColor>(bag.Read(key, ColorValue(fallback)).ToLong());
}

}  // namespace

InvoiceProperties InvoiceProperties::Read(const platform::PropertyBag& bag) {
  const InvoiceProperties d;
  InvoiceProperties p;
  p.back_color = ReadColor(bag, "BackColor", d.back_color);
  p.enabled = bag.Read("Enabled", Variant(d.enabled)).ToBool();
  p.back_color_grid_header = ReadColor(bag, "BackColorGridHeader", d.back_color_grid_header);
  p.back_color_grid_footer = ReadColor(bag, "BackColorGridFooter", d.back_color_grid_footer);
  p.back_color_title = ReadColor(bag, "BackColorTitle", d.back_color_title);
  p.fore_color_grid_header = ReadColor(bag, "ForeColorGridHeader", d.fore_color_grid_header);
  p.fore_color_grid_footer = ReadColor(bag, "ForeColorGridFooter", d.fore_color_grid_footer);
  p.row_color_even = ReadColor(bag, "RowColorEven", d.row_color_even);
  p.row_color_odd = ReadColor(bag, "RowColorOdd", d.row_color_odd);
  p.default_gl_account = bag.Read("DefaultGLAccount", Variant(d.default_gl_account)).ToString();
  p.business_mode = bag.Read("BusinessMode", Variant(d.business_mode)).ToBool();
  return p;
}

void InvoiceProperties::Write(platform::PropertyBag& bag) const {
  const InvoiceProperties d;
  bag.Write("BackColor", ColorValue(back_color), ColorValue(d.back_color));
  bag.Write("Enabled", Variant(enabled), Variant(d.enabled));
  bag.Write("BackColorGridHeader", ColorValue(back_color_grid_header), ColorValue(d.back_color_grid_header));
  bag.Write("BackColorGridFooter", ColorValue(back_color_grid_footer), ColorValue(d.back_color_grid_footer));
  bag.Write("BackColorTitle", ColorValue(back_color_title), ColorValue(d.back_color_title));
  bag.Write("ForeColorGridHeader", ColorValue(fore_color_grid_header), ColorValue(d.fore_color_grid_header));
  bag.Write("ForeColorGridFooter", ColorValue(fore_color_grid_footer), ColorValue(d.fore_color_grid_footer));
  bag.Write("RowColorEven", ColorValue(row_color_even), ColorValue(d.row_color_even));
  bag.Write("RowColorOdd", ColorValue(row_color_odd), ColorValue(d.row_color_odd));
  bag.Write("DefaultGLAccount", Variant(default_gl_account), Variant(d.default_gl_account));
  bag.Write("BusinessMode", Variant(business_mode), Variant(d.business_mode));
}

}  // namespace zenta
