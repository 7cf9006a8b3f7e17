#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "zenta/controls/distribution/account_chart.h"
#include "zenta/controls/distribution/account_completion.h"
#include "zenta/controls/distribution/distribution_model.h"
#include "zenta/core/currency.h"
#include "zenta/core/variant.h"
#include "zenta/entry/undo_history.h"
#include "zenta/platform/button.h"
#include "zenta/platform/dialog_surface.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/host_services.h"
#include "zenta/platform/label.h"
#include "zenta/platform/text_box.h"

namespace zenta {

// The modal G/L distribution window: one amount split over account lines, accepted only when
// the lines add up to it exactly. Callers share one instance (see LibraryContext), prepare it
// through the members below in their order, call Show(), and read Chosen and the line table
// afterwards. The window is laid out wide for a foreign-currency payment and narrowed once for
// a plain one. Every rule lives in DistributionModel; this class wires the window's widgets and
// grid notifications to it.
class FrmDistribution {
 public:
  using LineTable = std::shared_ptr<platform::Array2D>;

  FrmDistribution(platform::HostServices& host, std::unique_ptr<platform::DialogSurface> surface);
  ~FrmDistribution();
  FrmDistribution(const FrmDistribution&) = delete;
  FrmDistribution& operator=(const FrmDistribution&) = delete;

  // The amount column's total as a currency, or empty when a cell did not read as a number.
  Variant CalculateDistAmounts();
  // Red negatives, the grid bound to the current table, totals.
  void SetupForm();
  bool Chosen() const { return model_.Chosen(); }
  Currency AmountToDistribute() const { return model_.AmountToDistribute(); }
  void SetAmountToDistribute(Currency curAmount);
  // Accepted for the callers' sake; nothing is kept or shown.
  void SetInvoiceNo(const std::string& /*strInvoiceNo*/) {}
  const LineTable& XTempDistribution() const { return model_.Table(); }
  void SetXTempDistribution(LineTable table) { model_.SetTable(std::move(table)); }
  Variant PaymentFor() const;
  void SetPaymentFor(const Variant& vntPaymentFor);
  void SetVisibleInvoice(bool visible) { model_.SetVisibleInvoice(visible); }
  std::int16_t DistributionCount() const { return model_.DistributionCount(); }
  // The host's currency rate is exact at four decimals; a control hands over its exact rate.
  void SetCurrencyRate(Currency rate) { model_.SetCurrencyRate(Rate::FromCurrency(rate)); }
  void SetCurrencyRate(const Rate& rate) { model_.SetCurrencyRate(rate); }
  bool IsFXPayment() const { return model_.IsFXPayment(); }
  void SetIsFXPayment(bool fx);
  void SetFXPayment();
  const std::string& FXCurrencyCode() const { return model_.FXCurrencyCode(); }
  void SetFXCurrencyCode(const std::string& code);

  // The host's chart of accounts (none: accounts are free text) and whether Accept refuses a
  // line whose account the chart does not hold or holds inactive.
  void SetChart(std::shared_ptr<const ChartOfAccounts> chart);
  void SetStrictAccounts(bool strict) { accounts_.SetStrict(strict); }
  const AccountChart& Accounts() const { return accounts_; }

  // Shows the window modally; returns once accept or cancel has hidden it.
  void Show();
  // Ends an open showing as the Cancel button does, for a caller that can no longer take the
  // lines.
  void CloseAsCancelled() { OnCancel(); }
  void Move(int left, int top) { surface_->Move(left, top); }
  // Lines pasted from a spreadsheet (Ctrl+V, Shift+Insert), and undo and redo of a paste, a
  // stored line or a deleted one (Ctrl+Z, Ctrl+Y or Ctrl+Shift+Z) within one showing.
  void PasteText(const std::string& text);
  bool Undo();
  bool Redo();

  // For callers that style the grid or propose a first line.
  platform::Grid& Grid() { return grid_; }
  platform::DialogSurface& Surface() { return *surface_; }
  const DistributionModel& Model() const { return model_; }

 private:
  void WireGrid();
  // Footers, the amount to distribute and what remains of it.
  void ShowTotals();
  void FocusGrid();
  void FocusAccept();
  void KeepOffDeleteColumn();
  void Inform(const std::string& text);
  // Totals, then the remainder line kept up to date after `changed_row` was stored or deleted.
  void AfterLinesChanged(std::optional<int> changed_row);
  void OnBeforeColUpdate(platform::BeforeColUpdateArgs& args);
  void OnAfterColUpdate(int column);
  void OnAfterUpdate();
  void OnKeyDown(platform::KeyDown& key);
  void LeaveAccountColumn(platform::KeyDown& key);
  void OnNewRowRequest();
  void OnActivate();
  void OnAccept();
  bool RefusedByChart();
  void OnCancel();
  // The current line's account named in the footer area.
  void ShowAccountName();
  void PutAccount(const std::string& number);

  platform::HostServices& host_;
  std::unique_ptr<platform::DialogSurface> surface_;
  DistributionModel model_;
  platform::Grid& grid_;
  platform::TextBox& payment_for_;
  platform::Button& accept_;
  platform::Button& cancel_;
  platform::Widget& frame_;
  platform::Widget& shape_;
  platform::Label& amount_label_;
  platform::Label& remaining_label_;
  platform::Label& account_name_;
  AccountChart accounts_;
  AccountCompletion completion_{grid_, accounts_};
  std::optional<int> deleting_row_;
  // The lines before the payer's step that is under way, and the steps taken.
  std::optional<platform::Array2D> lines_before_;
  entry::UndoHistory history_;
  void RecordLines(platform::Array2D before);
  bool RunEditCommand(platform::KeyDown& key);
};

}  // namespace zenta
