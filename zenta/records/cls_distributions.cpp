#include "zenta/records/cls_distributions.h"

#include <limits>

#include "zenta/core/host_error.h"
#include "zenta/core/utf8.h"

namespace zenta {

namespace {
constexpr const char* kSource = "clsDistributions";
}

std::string clsDistributions::FoldKey(const std::string& key) { return utf8::ToUpperAscii(key); }

clsDistributions::Element clsDistributions::Add(const Variant& ID, const std::string& GLAccount, Currency Amount,
                                                const std::string& sKey) {
  std::string folded = FoldKey(sKey);
  if (!folded.empty() && by_key_.count(folded) != 0) throw HostError::KeyAlreadyAssociated(kSource);
  auto element = std::make_shared<clsDistribution>();
  element->ID = ID;
  element->GLAccount = GLAccount;
  element->Amount = Amount;
  elements_.push_back(element);
  keys_.push_back(folded);
  if (!folded.empty()) by_key_.emplace(folded, element.get());
  return element;
}

std::size_t clsDistributions::IndexOf(const Variant& vntIndexKey) const {
  if (vntIndexKey.GetType() == Variant::Type::String) {
    auto found = by_key_.find(FoldKey(vntIndexKey.ToString()));
    if (found == by_key_.end()) throw HostError::SubscriptOutOfRange(kSource);
    for (std::size_t i = 0; i < elements_.size(); ++i) {
      if (elements_[i].get() == found->second) return i;
    }
    throw HostError::SubscriptOutOfRange(kSource);
  }
  std::int32_t position;
  try {
    position = vntIndexKey.ToLong();
  } catch (const HostError&) {
    throw HostError::SubscriptOutOfRange(kSource);
  }
  if (position < 1 || position > Count()) throw HostError::SubscriptOutOfRange(kSource);
  return static_cast<std::size_t>(position - 1);
}

clsDistributions::Element clsDistributions::Item(const Variant& vntIndexKey) const {
  return elements_[IndexOf(vntIndexKey)];
}

void clsDistributions::Remove(const Variant& vntIndexKey) {
  std::size_t index = IndexOf(vntIndexKey);
  if (!keys_[index].empty()) by_key_.erase(keys_[index]);
  elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(index));
  keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(index));
}

void clsDistributions::Clear() {
  // The count goes through a 16-bit counter: past 32,767 it overflows before anything is removed.
  if (Count() > std::numeric_limits<std::int16_t>::max()) throw HostError::Overflow(kSource);
  elements_.clear();
  keys_.clear();
  by_key_.clear();
}

}  // namespace zenta
