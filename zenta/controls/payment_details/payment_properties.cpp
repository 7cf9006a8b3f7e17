#include "zenta/controls/payment_details/payment_properties.h"

#include "zenta/entry/persisted_values.h"

namespace zenta {

namespace {

constexpr const char* kBusinessMode = "BusinessMode";
constexpr const char* kLockFields = "LockFields";

}  // namespace

PaymentProperties PaymentProperties::Read(const platform::PropertyBag& bag) {
  PaymentProperties read;
  read.business_mode = entry::ReadFlag(bag, kBusinessMode, false);
  read.lock_fields = entry::ReadFlag(bag, kLockFields, false);
  return read;
}

void PaymentProperties::Write(platform::PropertyBag& bag) const {
  bag.Write(kBusinessMode, Variant(business_mode), Variant(false));
  bag.Write(kLockFields, Variant(lock_fields), Variant(false));
}

}  // namespace zenta
