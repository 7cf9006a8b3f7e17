#pragma once

#include <functional>
#include <string>
#include <vector>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/invoice_entry/invoice_entry.h"
#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/grid_widget.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/user.h"

namespace zenta::testing {

// A host's screen with one invoice list and the library's shared distribution window.
struct InvoiceScreen {
  headless::Form form;
  headless::Host host{form};
  headless::User user{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};
  headless::Surface& surface = form.AddSurface("InvoiceEntry1");
  InvoiceEntry control{surface, host, context};

  platform::Grid& Grid() { return control.grInvoices(); }
  platform::GridEngine& Engine() { return Grid().Engine(); }

  FrmDistribution& Dialog() { return context.Distribution(); }
  headless::Dialog& Window() { return dynamic_cast<headless::Dialog&>(Dialog().Surface()); }
  headless::ButtonWidget& Accept() { return Window().Get<headless::ButtonWidget>("cmdGLAccept"); }
  headless::ButtonWidget& Cancel() { return Window().Get<headless::ButtonWidget>("cmdGLCancel"); }

  void InDialog(std::function<void()> script) {
    form.ExpectDialog([script = std::move(script)](headless::Dialog&) { script(); });
  }

  std::vector<std::string> Events() const { return host.EventNames(); }

  static Currency Money(const char* text) { return Currency::FromText(text); }
  static Date Day(int y, int m, int d) { return *Date::FromYmd(y, m, d); }
};

}  // namespace zenta::testing
