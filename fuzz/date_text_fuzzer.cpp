// Any text typed into a date field through its "____/__/__" mask, then the field left: the
// field ends holding a real date or none, and the host reads it without an error.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "zenta/controls/simple/pmt_details.h"
#include "zenta/core/date.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/memory_property_bag.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (auto date = zenta::Date::Parse(text)) {
    if (date->ToText() != text) std::abort();
  }
  zenta::headless::Form form;
  zenta::headless::Surface& surface = form.AddSurface("control", 4800, 6000);
  zenta::headless::Host host(form);
  zenta::PmtDetails control(surface, host);
  control.ReadProperties(zenta::headless::MemoryPropertyBag());
  zenta::headless::User user(form);
  form.Show();
  for (int i = 0; i < 4; ++i) host.ExpectMessage(zenta::platform::MessageResult::Ok);
  control.SetFocusInvoiceDate();
  user.Type(text);
  user.PressTab();
  const zenta::Date read = control.InvoiceDate();
  if (!read.IsZero() && !read.InRange()) std::abort();
  return 0;
}
