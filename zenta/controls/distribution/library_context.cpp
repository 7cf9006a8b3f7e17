#include "zenta/controls/distribution/library_context.h"

#include <stdexcept>

#include "zenta/core/utf8.h"

namespace zenta {

LibraryContext::LibraryContext(platform::HostServices& host, DialogFactory factory)
    : host_(host), factory_(std::move(factory)) {
  if (!factory_) throw std::invalid_argument("LibraryContext needs a dialog factory");
}

LibraryContext::~LibraryContext() = default;

FrmDistribution& LibraryContext::Distribution() {
  if (!distribution_) {
    auto surface = factory_();
    if (!surface) throw std::runtime_error("the dialog factory made no window");
    distribution_ = std::make_unique<FrmDistribution>(host_, std::move(surface));
    if (chart_) distribution_->SetChart(chart_);
    distribution_->SetStrictAccounts(strict_accounts_);
  }
  return *distribution_;
}

void LibraryContext::SetChart(std::shared_ptr<const ChartOfAccounts> chart) {
  chart_ = std::move(chart);
  if (distribution_) distribution_->SetChart(chart_);
}

void LibraryContext::SetStrictAccounts(bool strict) {
  strict_accounts_ = strict;
  if (distribution_) distribution_->SetStrictAccounts(strict);
}

bool LibraryContext::IsHomeCurrency(std::string_view code) {
  const std::string_view trimmed = utf8::Trim(code);
  return trimmed.empty() || code == kHomeCurrency;
}

}  // namespace zenta
