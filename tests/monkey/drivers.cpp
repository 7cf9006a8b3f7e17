#include <cmath>
#include <memory>

#include "tests/monkey/monkey.h"
#include "zenta/core/host_error.h"
#include "zenta/controls/payment_details/payment_details.h"
#include "zenta/controls/simple/govt_details.h"
#include "zenta/controls/simple/pmt_details.h"
#include "zenta/controls/simple/std_payment.h"
#include "zenta/platform/headless/memory_property_bag.h"

namespace zenta::monkey {

namespace {

constexpr int kOverflow = 6;
constexpr int kTypeMismatch = 13;
const int kBadDate = HostError::Object(Date::kOutOfRange, "", "").Number();
const int kBadRows = HostError::Object(20, "", "").Number();

Date RandomDate(Random& random) {
  // Mostly ordinary days, sometimes none, sometimes outside the years a field takes.
  switch (random() % 5) {
    case 0: return Date();
    case 1: return Date::FromDayNumber(static_cast<std::int32_t>(random()));
    default: return Date::FromDayNumber(40000 + static_cast<std::int32_t>(random() % 20000));
  }
}

float RandomSingle(Random& random) {
  switch (random() % 4) {
    case 0: return 3e38f;
    case 1: return std::nanf("");
    default: return static_cast<float>(random() % 10000000) / 100.0f;
  }
}

// A value read back is an amount a field can hold.
std::string AmountInRange(const char* what, Currency value) {
  if (value > Currency::FromInteger(1000000000000LL) || value < Currency::FromInteger(-1000000000000LL)) {
    return std::string(what) + " reads " + value.ToString() + ", more than a field can hold";
  }
  return {};
}

class StdPaymentDriver : public Driver {
 public:
  std::string Name() const override { return "StdPayment"; }
  void Create(World& world) override {
    control_ = std::make_unique<StdPayment>(world.surface, world.host);
    control_->ReadProperties(headless::MemoryPropertyBag());
  }
  std::string HostPut(Random& random) override {
    switch (random() % 5) {
      case 0: return Put([&] { control_->SetPaymentAmount(RandomSingle(random)); }, {kOverflow});
      case 1: return Put([&] { control_->SetGSTAmount(RandomAmount(random)); }, {kOverflow});
      case 2: return Put([&] { control_->SetBusinessMode(random() % 2 == 0); });
      case 3: return Put([&] { control_->SetPaymentAmountEnabled(random() % 3 != 0); });
      default: return Put([&] { control_->SetEnabled(random() % 4 != 0); });
    }
  }
  std::string Check() override {
    if (auto broken = AmountInRange("PaymentAmountCurrency", control_->PaymentAmountCurrency()); !broken.empty()) return broken;
    return AmountInRange("GSTAmount", control_->GSTAmount());
  }

 private:
  std::unique_ptr<StdPayment> control_;
};

class PmtDetailsDriver : public Driver {
 public:
  std::string Name() const override { return "PmtDetails"; }
  void Create(World& world) override {
    control_ = std::make_unique<PmtDetails>(world.surface, world.host);
    control_->ReadProperties(headless::MemoryPropertyBag());
  }
  std::string HostPut(Random& random) override {
    switch (random() % 6) {
      case 0: return Put([&] { control_->SetInvoiceDate(RandomDate(random)); }, {kBadDate});
      case 1: return Put([&] { control_->SetInvoiceNumber(RandomText(random, 40)); });
      case 2: return Put([&] { control_->SetInvoiceAmount(RandomSingle(random)); }, {kOverflow});
      case 3: return Put([&] { control_->SetGSTAmount(RandomSingle(random)); }, {kOverflow});
      case 4: return Put([&] { control_->SetBusinessMode(random() % 2 == 0); });
      default: return Put([&] { control_->SetInvoiceDateEnabled(random() % 3 != 0); });
    }
  }
  std::string Check() override {
    const Date date = control_->InvoiceDate();
    if (!date.IsZero() && !date.InRange()) return "InvoiceDate reads a day outside the years 100 to 9999";
    if (auto broken = AmountInRange("InvoiceAmountCurrency", control_->InvoiceAmountCurrency()); !broken.empty()) return broken;
    return AmountInRange("GSTAmountCurrency", control_->GSTAmountCurrency());
  }

 private:
  std::unique_ptr<PmtDetails> control_;
};

class GovtDetailsDriver : public Driver {
 public:
  std::string Name() const override { return "GovtDetails"; }
  void Create(World& world) override {
    control_ = std::make_unique<GovtDetails>(world.surface, world.host);
    control_->ReadProperties(headless::MemoryPropertyBag());
  }
  std::string HostPut(Random& random) override {
    switch (random() % 8) {
      case 0: return Put([&] { control_->SetPeriodFrom(RandomDate(random)); }, {kBadDate});
      case 1: return Put([&] { control_->SetDueDate(RandomDate(random)); }, {kBadDate});
      case 2: return Put([&] { control_->SetStatementOnly(Variant(static_cast<std::int32_t>(random() % 5) - 1)); }, {kOverflow});
      case 3: return Put([&] { control_->SetComments(RandomText(random, 60)); });
      case 4: return Put([&] { control_->SetAmount(Variant(RandomAmount(random))); }, {kOverflow});
      case 5: return Put([&] { control_->SetRows(static_cast<std::int16_t>(random() % 30)); }, {kBadRows});
      case 6: return Put([&] { control_->SetEnabled(random() % 4 != 0); });
      default:
        return Put([&] { control_->SetGridValues(static_cast<std::int16_t>(random() % 28), RandomText(random, 10)); },
                   {kBadRows});
    }
  }
  std::string Check() override {
    const std::int16_t rows = control_->GridNumberofRows();
    if (rows < 1 || rows > 26) return "GridNumberofRows reads " + std::to_string(rows);
    const Variant state = control_->StatementOnly();
    if (state.ToInteger() < 0 || state.ToInteger() > 2) return "StatementOnly reads " + state.ToString();
    return {};
  }

 private:
  std::unique_ptr<GovtDetails> control_;
};

class PaymentDetailsDriver : public Driver {
 public:
  std::string Name() const override { return "PaymentDetails"; }
  void Create(World& world) override {
    control_ = std::make_unique<PaymentDetails>(world.surface, world.host, world.context);
    control_->ReadProperties(headless::MemoryPropertyBag());
    control_->SetDefaultGLAccount("5100");
  }
  std::string HostPut(Random& random) override {
    switch (random() % 7) {
      case 0: return Put([&] { control_->SetPaymentAmount(RandomAmount(random)); }, {kOverflow});
      case 1: return Put([&] { control_->SetGST(RandomAmount(random)); }, {kOverflow});
      case 2: return Put([&] { control_->SetBusinessMode(random() % 2 == 0); });
      case 3: return Put([&] { control_->SetLockFields(random() % 2 == 0); });
      case 4: return Put([&] { control_->ShowDistribution(); });
      case 5: return Put([&] { control_->ClearPay(); });
      default:
        return Put([&] { control_->SetOtherCurrencyCode(Variant(std::string(random() % 2 ? "CAD" : "USD"))); });
    }
  }
  std::string Check() override {
    if (auto broken = AmountInRange("PaymentAmount", control_->PaymentAmount()); !broken.empty()) return broken;
    if (auto broken = AmountInRange("GST", control_->GST()); !broken.empty()) return broken;
    return AmountInRange("NetExpense", control_->NetExpense());
  }

 private:
  std::unique_ptr<PaymentDetails> control_;
};

}  // namespace

std::vector<std::unique_ptr<Driver>> AllDrivers() {
  std::vector<std::unique_ptr<Driver>> drivers;
  drivers.push_back(std::make_unique<StdPaymentDriver>());
  drivers.push_back(std::make_unique<PmtDetailsDriver>());
  drivers.push_back(std::make_unique<GovtDetailsDriver>());
  drivers.push_back(std::make_unique<PaymentDetailsDriver>());
  return drivers;
}

}  // namespace zenta::monkey
