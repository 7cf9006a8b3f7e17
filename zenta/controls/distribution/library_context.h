#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "zenta/controls/distribution/frm_distribution.h"
#include "zenta/platform/dialog_surface.h"
#include "zenta/platform/host_services.h"

namespace zenta {

// What the controls of one user-interface thread share: the one distribution window, made on
// first use and kept so every field keeps its last value between callers, and the currency
// code of the whole library ("CAD" until a control sets another). Hosts make one per thread
// and hand it to every grid control, as they hand over host services.
class LibraryContext {
 public:
  using DialogFactory = std::function<std::unique_ptr<platform::DialogSurface>()>;

  LibraryContext(platform::HostServices& host, DialogFactory factory);
  ~LibraryContext();
  LibraryContext(const LibraryContext&) = delete;
  LibraryContext& operator=(const LibraryContext&) = delete;

  FrmDistribution& Distribution();
  bool HasDistribution() const { return distribution_ != nullptr; }

  const std::string& CurrencyCode() const { return currency_code_; }
  void SetCurrencyCode(std::string code) { currency_code_ = std::move(code); }
  // A code that, trimmed, is empty or is exactly "CAD" means Canadian dollars.
  static bool IsHomeCurrency(std::string_view code);

  static constexpr std::string_view kHomeCurrency = "CAD";

 private:
  platform::HostServices& host_;
  DialogFactory factory_;
  std::unique_ptr<FrmDistribution> distribution_;
  std::string currency_code_{kHomeCurrency};
};

}  // namespace zenta
