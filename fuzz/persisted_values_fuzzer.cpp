// Any persisted values a host's store hands back, of any type, under the controls' keys: every
// control loads without an error, each refused value noted on the bag.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/controls/simple/govt_details.h"
#include "zenta/controls/simple/std_payment.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/memory_property_bag.h"
#include "zenta/platform/headless/surface.h"

namespace {

// Every key a control keeps: the small controls', PaymentDetails' and InvoiceEntry's.
const char* const kKeys[] = {"BackColor",           "Enabled",           "BackColorTitle",      "BusinessMode",
                             "LockFields",          "BackColorGridHeader", "BackColorGridFooter", "ForeColorGridHeader",
                             "ForeColorGridFooter", "RowColorEven",      "RowColorOdd",         "DefaultGLAccount"};

// Each input byte run becomes one value: a kind byte, then its payload.
zenta::Variant ValueFrom(const std::uint8_t*& data, std::size_t& size) {
  if (size == 0) return {};
  const std::uint8_t kind = *data++;
  --size;
  std::int64_t raw = 0;
  const std::size_t take = size < 8 ? size : 8;
  std::memcpy(&raw, data, take);
  const std::string text(reinterpret_cast<const char*>(data), take);
  data += take;
  size -= take;
  switch (kind % 6) {
    case 0: return zenta::Variant(static_cast<std::int16_t>(raw));
    case 1: return zenta::Variant(static_cast<std::int32_t>(raw));
    case 2: {
      double d = 0;
      std::memcpy(&d, &raw, sizeof d);
      return zenta::Variant(d);
    }
    case 3: return zenta::Variant(text);
    case 4: return zenta::Variant((raw & 1) != 0);
    default: return zenta::Variant(zenta::Currency::FromUnits(raw));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zenta::headless::MemoryPropertyBag bag;
  for (const char* key : kKeys) bag.Set(key, ValueFrom(data, size));
  zenta::headless::Form form;
  zenta::headless::Host host(form);
  zenta::LibraryContext context(host, [&form] { return form.CreateDialog("frmDistribution"); });
  zenta::StdPayment payment(form.AddSurface("StdPayment1", 4800, 6000), host);
  zenta::GovtDetails remittance(form.AddSurface("GovtDetails1", 4800, 6000), host);
  zenta::PaymentDetails details(form.AddSurface("PaymentDetails1", 4800, 6000), host, context);
  payment.ReadProperties(bag);
  remittance.ReadProperties(bag);
  zenta::InvoiceEntry invoices(form.AddSurface("InvoiceEntry1", 9060, 2415), host, context);
  details.ReadProperties(bag);
  invoices.ReadProperties(bag);
  // Each control reads each of its keys once: a key is refused at most once a control.
  if (bag.RefusedKeys().size() > 4 * std::size(kKeys)) std::abort();
  // What loaded is in force: a colour other than its default reaches the grid; the default is
  // left to the host's theme.
  const zenta::OleColor header = invoices.BackColorGridHeader();
  const auto drawn = invoices.grInvoices().Engine().Colors().header_back;
  if (header == zenta::InvoiceProperties().back_color_grid_header ? drawn.has_value() : drawn != header) std::abort();
  return 0;
}
