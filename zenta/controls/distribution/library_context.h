#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "zenta/controls/distribution/frm_distribution.h"
#include "zenta/entry/gst_hst_settings.h"
#include "zenta/records/chart_of_accounts.h"
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

  // The host's chart of accounts, for completion and names in every account cell; none (the
  // default) leaves accounts free text. Strict: Accept refuses an account not in the chart.
  const std::shared_ptr<const ChartOfAccounts>& Chart() const { return chart_; }
  void SetChart(std::shared_ptr<const ChartOfAccounts> chart);
  bool StrictAccounts() const { return strict_accounts_; }
  void SetStrictAccounts(bool strict);
  // The payer's province or rate, from which the GST/HST of an amount is worked out.
  GstHstSettings& GstHst() { return gst_hst_; }
  const GstHstSettings& GstHst() const { return gst_hst_; }

 private:
  platform::HostServices& host_;
  DialogFactory factory_;
  std::unique_ptr<FrmDistribution> distribution_;
  std::string currency_code_{kHomeCurrency};
  std::shared_ptr<const ChartOfAccounts> chart_;
  bool strict_accounts_ = false;
  GstHstSettings gst_hst_;
};

}  // namespace zenta
