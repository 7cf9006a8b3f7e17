#include "zenta/controls/invoice_entry/invoice_properties.h"

#include "zenta/entry/persisted_values.h"

namespace zenta {

InvoiceProperties InvoiceProperties::Read(const platform::PropertyBag& bag) {
  const InvoiceProperties d;
  InvoiceProperties p;
  p.back_color = entry::ReadColor(bag, "BackColor", d.back_color);
  p.enabled = entry::ReadFlag(bag, "Enabled", d.enabled);
  p.back_color_grid_header = entry::ReadColor(bag, "BackColorGridHeader", d.back_color_grid_header);
  p.back_color_grid_footer = entry::ReadColor(bag, "BackColorGridFooter", d.back_color_grid_footer);
  p.back_color_title = entry::ReadColor(bag, "BackColorTitle", d.back_color_title);
  p.fore_color_grid_header = entry::ReadColor(bag, "ForeColorGridHeader", d.fore_color_grid_header);
  p.fore_color_grid_footer = entry::ReadColor(bag, "ForeColorGridFooter", d.fore_color_grid_footer);
  p.row_color_even = entry::ReadColor(bag, "RowColorEven", d.row_color_even);
  p.row_color_odd = entry::ReadColor(bag, "RowColorOdd", d.row_color_odd);
  p.default_gl_account = entry::ReadText(bag, "DefaultGLAccount", d.default_gl_account);
  p.business_mode = entry::ReadFlag(bag, "BusinessMode", d.business_mode);
  return p;
}

void InvoiceProperties::Write(platform::PropertyBag& bag) const {
  const InvoiceProperties d;
  bag.Write("BackColor", entry::ColorVariant(back_color), entry::ColorVariant(d.back_color));
  bag.Write("Enabled", Variant(enabled), Variant(d.enabled));
  bag.Write("BackColorGridHeader", entry::ColorVariant(back_color_grid_header), entry::ColorVariant(d.back_color_grid_header));
  bag.Write("BackColorGridFooter", entry::ColorVariant(back_color_grid_footer), entry::ColorVariant(d.back_color_grid_footer));
  bag.Write("BackColorTitle", entry::ColorVariant(back_color_title), entry::ColorVariant(d.back_color_title));
  bag.Write("ForeColorGridHeader", entry::ColorVariant(fore_color_grid_header), entry::ColorVariant(d.fore_color_grid_header));
  bag.Write("ForeColorGridFooter", entry::ColorVariant(fore_color_grid_footer), entry::ColorVariant(d.fore_color_grid_footer));
  bag.Write("RowColorEven", entry::ColorVariant(row_color_even), entry::ColorVariant(d.row_color_even));
  bag.Write("RowColorOdd", entry::ColorVariant(row_color_odd), entry::ColorVariant(d.row_color_odd));
  bag.Write("DefaultGLAccount", Variant(default_gl_account), Variant(d.default_gl_account));
  bag.Write("BusinessMode", Variant(business_mode), Variant(d.business_mode));
}

}  // namespace zenta
