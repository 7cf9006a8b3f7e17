#include "zenta/controls/payment_details/payment_properties.h"

#include "zenta/core/host_error.h"

namespace zenta {

namespace {

constexpr const char* kBusinessMode = "BusinessMode";
constexpr const char* kLockFields = "LockFields";

// A stored value that is no boolean leaves that key at its default.
bool ReadFlag(const platform::PropertyBag& bag, const char* key) {
  try {
    return bag.Read(key, Variant(false)).ToBool();
  } catch (const HostError&) {
    return false;
  }
}

}  // namespace

PaymentProperties PaymentProperties::Read(const platform::PropertyBag& bag) {
  PaymentProperties read;
  read.business_mode = ReadFlag(bag, kBusinessMode);
  read.lock_fields = ReadFlag(bag, kLockFields);
  return read;
}

void PaymentProperties::Write(platform::PropertyBag& bag) const {
  bag.Write(kBusinessMode, Variant(business_mode), Variant(false));
  bag.Write(kLockFields, Variant(lock_fields), Variant(false));
}

}  // namespace zenta
