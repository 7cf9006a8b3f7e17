#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/grid_widget.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/headless/user.h"

namespace zenta::testing {

// A host's screen with one payment control, the field after it, and the library's shared
// distribution window.
struct PaymentScreen {
  headless::Form form;
  headless::Host host{form};
  headless::User user{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};
  headless::Surface& surface = form.AddSurface("PaymentDetails1");
  PaymentDetails control{surface, host, context};
  headless::TextBoxWidget& next_field = form.AddHostField("txtNext");

  platform::Grid& Grid() { return control.Grid(); }
  platform::GridEngine& Engine() { return Grid().Engine(); }
  std::string Shown(int column) { return Engine().DisplayedText(0, column); }
  std::string CellText(int column) { return Engine().CellText(column); }

  FrmDistribution& Dialog() { return context.Distribution(); }
  platform::GridEngine& DialogEngine() { return Dialog().Grid().Engine(); }
  headless::Dialog& Window() { return dynamic_cast<headless::Dialog&>(Dialog().Surface()); }
  headless::ButtonWidget& Accept() { return Window().Get<headless::ButtonWidget>("cmdGLAccept"); }
  headless::ButtonWidget& Cancel() { return Window().Get<headless::ButtonWidget>("cmdGLCancel"); }

  // What the payer does in the distribution window when it next shows.
  void InDialog(std::function<void()> script) {
    form.ExpectDialog([script = std::move(script)](headless::Dialog&) { script(); });
  }

  // The payer clicks into the payment amount and types.
  void TypePayment(const std::string& keys) {
    user.ClickCell(Grid(), 0, PaymentDetails::kPayAmtColumn);
    user.Type(keys);
  }

  std::vector<std::string> Events() const { return host.EventNames(); }
  static Currency Money(const char* text) { return Currency::FromText(text); }

  static std::shared_ptr<clsDistributions> Lines(const std::vector<std::pair<std::string, const char*>>& lines) {
    auto distribution = std::make_shared<clsDistributions>();
    for (const auto& [account, amount] : lines) distribution->Add(Variant(), account, Money(amount));
    return distribution;
  }
};

}  // namespace zenta::testing
