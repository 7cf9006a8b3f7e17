#pragma once

#include <span>
#include <memory>
#include <string>

#include "zenta/platform/field_value.h"
#include "zenta/controls/simple/amount_gst_pair.h"
#include "zenta/controls/simple/small_control.h"
#include "zenta/core/currency.h"
#include "zenta/core/date.h"

namespace zenta {

// One payment against a single invoice: its date, number or description, amount and, for a
// business payer, GST/HST. Typed invoice numbers are upper-cased as they are typed; numbers
// set by the host are kept as given.
class PmtDetails : public SmallControl {
 public:
  enum EventNumber { kLostFocusInvoiceAmount = 1, kLostFocusGSTAmount = 2, kLostFocusAmount = 3 };

  class Events {
   public:
    virtual ~Events() = default;
    virtual void LostFocusInvoiceAmount() {}
    virtual void LostFocusGSTAmount() {}
    virtual void LostFocusAmount() {}
  };

  static constexpr int kMinWidth = 1815;
  static constexpr int kMinHeight = 2500;

  // The public properties each child widget holds.
  static std::span<const platform::FieldValue> FieldValues() {
    static constexpr platform::FieldValue kValues[] = {
        {"dtInvoiceDate", "InvoiceDate"},
        {"dtInvoiceDate", "InvoiceDateEnabled"},
        {"txtInvoiceNo", "InvoiceNumber"},
        {"txtInvoiceNo", "InvoiceNumberEnabled"},
        {"txtInvoiceAmount", "InvoiceAmount"},
        {"txtInvoiceAmount", "InvoiceAmountCurrency"},
        {"txtInvoiceAmount", "InvoiceAmountEnabled"},
        {"txtGSTAmount", "GSTAmount"},
        {"txtGSTAmount", "GSTAmountCurrency"},
        {"txtGSTAmount", "GSTAmountEnabled"},
    };
    return kValues;
  }

  PmtDetails(platform::ControlSurface& surface, platform::HostServices& host);

  void SetEventListener(Events* listener) { listener_ = listener; }

  // Date, number and amounts emptied, then the focus to the date, enabled or not.
  void Clear();
  void ShowBusinessMode();

  Date InvoiceDate() const;
  void SetInvoiceDate(Date value);
  std::string InvoiceNumber() const;
  void SetInvoiceNumber(const std::string& value);
  float InvoiceAmount() const;
  void SetInvoiceAmount(float value);
  float GSTAmount() const;
  void SetGSTAmount(float value);
  // The two amounts exact, as typed or set: the ones to book.
  Currency InvoiceAmountCurrency() const;
  Currency GSTAmountCurrency() const;

  bool InvoiceDateEnabled() const;
  void SetInvoiceDateEnabled(bool enabled);
  bool InvoiceNumberEnabled() const;
  void SetInvoiceNumberEnabled(bool enabled);
  bool InvoiceAmountEnabled() const;
  void SetInvoiceAmountEnabled(bool enabled);
  bool GSTAmountEnabled() const;
  void SetGSTAmountEnabled(bool enabled);

  void SetFocusInvoiceDate();
  void SetFocusInvoiceNumber();
  void SetFocusInvoiceAmount();
  void SetFocusGSTAmount();

 protected:
  void ApplyTitleColor() override;
  void BusinessModeChanged() override { ShowBusinessMode(); }
  std::span<const platform::FieldValue> Fields() const override { return FieldValues(); }

 private:
  struct Widgets {
    platform::DateEdit& invoice_date;
    platform::TextBox& invoice_no;
    platform::NumberEdit& invoice_amount;
    platform::NumberEdit& gst_amount;
    platform::Label& gst_label;
  };
  static Widgets Build(platform::ControlSurface& surface);

  Widgets w_;
  std::unique_ptr<AmountGstPair> pair_;
  Events* listener_ = nullptr;
};

}  // namespace zenta
