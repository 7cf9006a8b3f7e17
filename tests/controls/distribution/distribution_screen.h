#pragma once

#include <memory>
#include <string>
#include <vector>

#include "zenta/controls/distribution/library_context.h"
#include "zenta/platform/headless/button_widget.h"
#include "zenta/platform/headless/dialog.h"
#include "zenta/platform/headless/form.h"
#include "zenta/platform/headless/grid_widget.h"
#include "zenta/platform/headless/host.h"
#include "zenta/platform/headless/label_widget.h"
#include "zenta/platform/headless/surface.h"
#include "zenta/platform/headless/text_box_widget.h"
#include "zenta/platform/headless/user.h"

namespace zenta::testing {

// A caller's screen with the library's shared distribution window, prepared the way the
// invoice and payment controls prepare it.
struct DistributionScreen {
  headless::Form form;
  headless::Surface& surface = form.AddSurface("caller");
  platform::TextBox& caller_field = surface.AddTextBox({"txtCaller"});
  headless::Host host{form};
  headless::User user{form};
  LibraryContext context{host, [this] { return form.CreateDialog("frmDistribution"); }};

  struct Options {
    bool visible_invoice = false;
    bool fx = false;
    const char* rate = "0";
    const char* code = "";
  };

  FrmDistribution& Dialog() { return context.Distribution(); }
  headless::Dialog& Window() { return dynamic_cast<headless::Dialog&>(Dialog().Surface()); }
  platform::Grid& Grid() { return Dialog().Grid(); }
  platform::GridEngine& Engine() { return Grid().Engine(); }
  headless::ButtonWidget& Accept() { return Window().Get<headless::ButtonWidget>("cmdGLAccept"); }
  headless::ButtonWidget& Cancel() { return Window().Get<headless::ButtonWidget>("cmdGLCancel"); }
  platform::TextBox& PaymentFor() { return Window().Get<platform::TextBox>("txtPaymentFor"); }

  // Lines as the caller hands them over: account and amount (column 2) per row.
  std::shared_ptr<platform::Array2D> Prepare(const char* amount, const std::vector<std::vector<std::string>>& lines,
                                             Options options) {
    FrmDistribution& dialog = Dialog();
    dialog.SetVisibleInvoice(options.visible_invoice);
    dialog.SetIsFXPayment(options.fx);
    if (options.fx) {
      dialog.SetCurrencyRate(Currency::FromText(options.rate));
      dialog.SetFXCurrencyCode(options.code);
    }
    auto table = std::make_shared<platform::Array2D>(0, static_cast<int>(lines.size()) - 1, 0, 3);
    for (int row = 0; row < static_cast<int>(lines.size()); ++row) {
      const auto& line = lines[static_cast<std::size_t>(row)];
      for (std::size_t i = 0; i < line.size(); ++i) {
        if (!line[i].empty()) table->Set(row, static_cast<int>(i) + 1, Variant(line[i]));
      }
    }
    dialog.SetXTempDistribution(table);
    dialog.SetupForm();
    dialog.SetAmountToDistribute(Currency::FromText(amount));
    dialog.SetInvoiceNo("INV-1");
    dialog.SetPaymentFor(Variant("rent"));
    return table;
  }
  std::shared_ptr<platform::Array2D> Prepare(const char* amount, const std::vector<std::vector<std::string>>& lines) {
    return Prepare(amount, lines, Options{});
  }

  // Shows the window with what the payer does in it.
  void Show(std::function<void()> script) {
    form.ExpectDialog([script = std::move(script)](headless::Dialog&) { script(); });
    Dialog().Show();
  }

  std::string Shown(int row, int column) { return Engine().DisplayedText(row, column); }
  std::string FocusedName() const {
    auto* focused = form.Focused();
    return focused ? focused->Name() : std::string();
  }
};

}  // namespace zenta::testing
