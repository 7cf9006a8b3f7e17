#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "zenta/core/currency.h"
#include "zenta/platform/event_channel.h"
#include "zenta/platform/host_services.h"

namespace zenta {

// The five events of the invoice control, raised to the host by number and then to an optional
// typed listener. In/out arguments go to the host first; the listener sees (and may change) the
// host's answer, and the value on return decides.
class InvoiceEvents {
 public:
  enum Number {
    kRecalculate = 1,
    kFirstDistributionEntered = 2,
    kDistributionEntered = 3,
    kCheckDuplicateInvoices = 4,
    kValidateInvoiceAmountLimit = 5,
  };

  class Listener {
   public:
    virtual ~Listener() = default;
    virtual void Recalculate() {}
    virtual void FirstDistributionEntered(std::int16_t& /*TheRow*/) {}
    virtual void DistributionEntered(std::int16_t& /*TheRow*/) {}
    virtual void CheckDuplicateInvoices(std::string& /*strInvoiceNo*/, bool& /*bolCancel*/) {}
    virtual void ValidateInvoiceAmountLimit(Currency& /*curInvoiceAmount*/, bool& /*bolCancel*/) {}
  };

  explicit InvoiceEvents(platform::HostServices& host) : channel_(host) {}

  void SetListener(Listener* listener) { listener_ = listener; }

  // Each returns whether the control survived its handlers.
  bool Recalculate();
  bool FirstDistributionEntered(std::int16_t& TheRow);
  bool DistributionEntered(std::int16_t& TheRow);
  // Each returns bolCancel as the host and listener left it; none when they destroyed the
  // control.
  std::optional<bool> CheckDuplicateInvoices(std::string& strInvoiceNo);
  std::optional<bool> ValidateInvoiceAmountLimit(Currency& curInvoiceAmount);

 private:
  bool RaiseRow(Number number, const char* name, std::int16_t& TheRow, void (Listener::*typed)(std::int16_t&));

  platform::EventChannel channel_;
  Listener* listener_ = nullptr;
};

}  // namespace zenta
