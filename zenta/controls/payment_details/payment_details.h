#pragma once

#include <span>
#include <memory>
#include <optional>
#include <string>

#include "zenta/platform/field_value.h"
#include "zenta/controls/distribution/distribution_opener.h"
#include "zenta/controls/distribution/library_context.h"
#include "zenta/controls/payment_details/payment_events.h"
#include "zenta/controls/payment_details/payment_properties.h"
#include "zenta/core/currency.h"
#include "zenta/core/variant.h"
#include "zenta/entry/gst_hst_cell.h"
#include "zenta/platform/control_surface.h"
#include "zenta/platform/grid.h"
#include "zenta/platform/host_services.h"
#include "zenta/platform/property_bag.h"
#include "zenta/records/cls_distributions.h"

namespace zenta {

// One payment as a payer states it: a single-row grid (grdPaymentAmount) holding the payment
// amount, the refundable GST/HST, the net expense, a "View Dist" button and what the payment is
// for, plus the payment's G/L lines, split in the shared distribution window. All amounts live
// in the grid's one-row array and nowhere else. A business payer states GST/HST and splits the
// net expense; a private payer splits the payment. The host may lock the two amount cells and
// may veto typed amounts through events.
class PaymentDetails {
 public:
  using Events = PaymentEvents::Listener;

  enum Column { kPayAmtColumn = 0, kGSTColumn = 1, kNetExpenseColumn = 2, kViewDistColumn = 3, kPaymentForColumn = 4 };
  static constexpr int kColumnCount = 5;

  static constexpr int kMinWidth = 2670;
  static constexpr int kMinHeight = 615;

  // The public properties each child widget holds.
  static std::span<const platform::FieldValue> FieldValues() {
    static constexpr platform::FieldValue kValues[] = {
        {"grdPaymentAmount", "PaymentAmount"},
        {"grdPaymentAmount", "GST"},
        {"grdPaymentAmount", "NetExpense"},
        {"grdPaymentAmount", "PaymentFor"},
    };
    return kValues;
  }

  PaymentDetails(platform::ControlSurface& surface, platform::HostServices& host, LibraryContext& context);
  ~PaymentDetails();
  PaymentDetails(const PaymentDetails&) = delete;
  PaymentDetails& operator=(const PaymentDetails&) = delete;

  void SetEventListener(Events* listener) { events_.SetListener(listener); }

  // The payment's accepted G/L lines; none until a distribution is accepted or the host sets
  // one. ClearPay drops it.
  const std::shared_ptr<clsDistributions>& PayDistribution() const { return pay_distribution_; }
  void SetPayDistribution(std::shared_ptr<clsDistributions> distribution);
  // Changing the mode lays the grid out again and empties the payment.
  bool BusinessMode() const { return properties_.business_mode; }
  void SetBusinessMode(bool on);
  void ShowBusinessMode();
  // Amounts set by the host are taken as they are (never read as cents); the net expense
  // follows.
  Currency PaymentAmount() const;
  void SetPaymentAmount(Currency value);
  Currency GST() const;
  void SetGST(Currency value);
  Currency NetExpense() const;
  // Opens the distribution window for this payment; on acceptance its lines replace
  // PayDistribution. Raises 0x80040016 while the window is open for any control.
  void ShowDistribution();
  const std::string& DefaultGLAccount() const { return default_gl_account_; }
  void SetDefaultGLAccount(std::string account) {
    default_gl_account_ = std::move(account);
    host_.ValueChanged("DefaultGLAccount");
  }
  // One empty payment row and no distribution; mode, lock and default account stay. A window
  // open for this payment closes as cancelled.
  void ClearPay();
  bool Enabled() const;
  void SetEnabled(bool enabled);
  Variant PaymentFor() const;
  bool LockFields() const { return properties_.lock_fields; }
  void SetLockFields(bool locked);
  // Whether the payment may be accepted; InvalidReason gets the first problem found, or "".
  bool IsDataValid(std::string& InvalidReason);
  // Sets the library's shared currency code; the layout follows at the next ShowBusinessMode.
  void SetOtherCurrencyCode(const Variant& code);

  // Persistence: defaults, or the two stored keys, then layout, empty row and lock in that
  // order.
  void InitProperties();
  void ReadProperties(const platform::PropertyBag& bag);
  void WriteProperties(platform::PropertyBag& bag) const { properties_.Write(bag); }

  platform::Grid& Grid() { return grid_; }
  const platform::Grid& Grid() const { return grid_; }

 private:
  void BuildColumns();
  void WireGrid();
  void ApplyProperties();
  void ApplyLockFields();

  // Cells of the payment row.
  std::string CellText(int column) const;
  bool CellEmpty(int column) const { return CellText(column).empty(); }
  Currency CellAmount(int column) const;
  // An amount as a host reads it: what the cell will hold once the payer leaves it.
  Currency HostAmount(int column) const;
  std::optional<Currency> TypedAmount(int column) const;
  Currency StoredAmount(int column) const;
  void SetCell(int column, const Variant& value);
  bool HomeCurrency() const;

  void CalculateNetExpense();
  bool CheckPaymentValues(std::string& reason);
  bool CheckAmountCell(int column);
  // Each returns false when a handler destroyed the control.
  bool CheckedDistribution();
  bool ShowDistributionSteps(FrmDistribution& dialog);
  void ViewDistClicked();
  void OpenFromButton();
  void OpenFromKeyboard();
  void PostToSelf(void (PaymentDetails::*action)());

  void OnBeforeColEdit(platform::BeforeColEditArgs& args);
  void OnBeforeColUpdate(platform::BeforeColUpdateArgs& args);
  void OnKeyDown(platform::KeyDown& key);
  // The GST/HST fill key and quiet hint of the payment row.
  static entry::GstHstCell TaxCell();
  void OnKeyPress(platform::CellKeyPressArgs& args);

  platform::ControlSurface& surface_;
  platform::HostServices& host_;
  LibraryContext& context_;
  PaymentEvents events_;
  platform::Grid& grid_;
  PaymentProperties properties_;
  std::string default_gl_account_;
  std::shared_ptr<clsDistributions> pay_distribution_;
  std::shared_ptr<platform::Array2D> row_;
  bool distribution_accepted_ = false;
  // Last, so an open window closes before anything else of the control goes.
  DistributionOpener opener_{context_};
  platform::Lifetime lifetime_;
};

}  // namespace zenta
