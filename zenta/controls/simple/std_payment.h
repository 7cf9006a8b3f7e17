#pragma once

#include <span>
#include <memory>

#include "zenta/platform/field_value.h"
#include "zenta/controls/simple/amount_gst_pair.h"
#include "zenta/controls/simple/small_control.h"
#include "zenta/core/currency.h"

namespace zenta {

// One payment amount and, for a business payer, its GST/HST part. The payment amount is a
// single-precision float and the GST/HST a currency value, as hosts have always read them.
class StdPayment : public SmallControl {
 public:
  enum EventNumber { kLostFocusPaymentAmount = 1, kLostFocusGSTAmount = 2, kLostFocusAmount = 3 };

  // Typed events for C++ hosts; every event also reaches the host by number.
  class Events {
   public:
    virtual ~Events() = default;
    virtual void LostFocusPaymentAmount() {}
    virtual void LostFocusGSTAmount() {}
    virtual void LostFocusAmount() {}
  };

  static constexpr int kMinWidth = 1815;
  static constexpr int kMinHeight = 1200;

  // The public properties each child widget holds.
  static std::span<const platform::FieldValue> FieldValues() {
    static constexpr platform::FieldValue kValues[] = {
        {"txtPaymentAmount", "PaymentAmount"},
        {"txtPaymentAmount", "PaymentAmountCurrency"},
        {"txtPaymentAmount", "PaymentAmountEnabled"},
        {"txtGSTAmount", "GSTAmount"},
        {"txtGSTAmount", "GSTAmountEnabled"},
    };
    return kValues;
  }

  StdPayment(platform::ControlSurface& surface, platform::HostServices& host);

  void SetEventListener(Events* listener) { listener_ = listener; }

  // Both amounts to zero (not empty), then the focus to the payment amount, enabled or not.
  void Clear();
  void ShowBusinessMode();

  float PaymentAmount() const;
  void SetPaymentAmount(float value);
  // The payment amount exact, as typed or set: the one to book.
  Currency PaymentAmountCurrency() const;
  Currency GSTAmount() const;
  void SetGSTAmount(Currency value);
  bool PaymentAmountEnabled() const;
  void SetPaymentAmountEnabled(bool enabled);
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);
  void SetFocusPaymentAmount();
  void SetFocusGSTAmount();

 protected:
  void BusinessModeChanged() override { ShowBusinessMode(); }
  void Shown() override { ShowBusinessMode(); }
  std::span<const platform::FieldValue> Fields() const override { return FieldValues(); }

 private:
  struct Widgets {
    platform::NumberEdit& payment_amount;
    platform::NumberEdit& gst_amount;
    platform::Label& gst_label;
  };
  static Widgets Build(platform::ControlSurface& surface);

  Widgets w_;
  std::unique_ptr<AmountGstPair> pair_;
  Events* listener_ = nullptr;
};

}  // namespace zenta
