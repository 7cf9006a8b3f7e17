#include "zenta/records/cls_distributions.h"

#include <algorithm>
#include <limits>
#include <span>

#include "zenta/core/host_error.h"
#include "zenta/core/utf8.h"

namespace zenta {

namespace {
constexpr const char* kSource = "clsDistributions";
}

std::string clsDistributions::FoldKey(const std::string& key) { return utf8::ToUpperAscii(key); }

clsDistributions::clsDistributions(const clsDistributions& other) : Object(other) {
  other.Materialize();
  elements_ = other.elements_;
  by_key_ = other.by_key_;
  key_of_ = other.key_of_;
}

clsDistributions& clsDistributions::operator=(const clsDistributions& other) {
  if (this != &other) *this = clsDistributions(other);
  return *this;
}

void clsDistributions::Materialize() const {
  if (!pending_) return;
  const std::size_t count = pending_->LineCount();
  if (count > 0) {
    // One block holds every line; each element keeps the block alive, as Add's do.
    auto block = std::make_shared<clsDistribution[]>(count);
    pending_->CopyLines(std::span<clsDistribution>(block.get(), count));
    std::vector<Element> elements;
    elements.reserve(count);
    for (std::size_t i = 0; i < count; ++i) elements.emplace_back(block, &block[i]);
    elements_ = std::move(elements);
  }
  pending_.reset();
}

clsDistributions::Element clsDistributions::Add(const Variant& ID, const std::string& GLAccount, Currency Amount,
                                                const std::string& sKey) {
  Append(ID, GLAccount, Amount, sKey);
  return elements_.back();
}

void clsDistributions::Append(const Variant& ID, const std::string& GLAccount, Currency Amount,
                              const std::string& sKey) {
  Materialize();
  std::string folded = FoldKey(sKey);
  if (!folded.empty() && by_key_.count(folded) != 0) throw HostError::KeyAlreadyAssociated(kSource);
  // Blocks double, so a collection built line by line allocates O(log n) times.
  if (spare_.used == spare_.size) Reserve(std::max<std::size_t>(4, elements_.size()));
  clsDistribution* element = &spare_.block[spare_.used++];
  element->ID = ID;
  element->GLAccount = GLAccount;
  element->Amount = Amount;
  elements_.emplace_back(spare_.block, element);
  if (!folded.empty()) {
    by_key_.emplace(folded, element);
    key_of_.emplace(element, std::move(folded));
  }
}

void clsDistributions::Reserve(std::size_t count) {
  Materialize();
  if (spare_.size - spare_.used >= count) return;
  elements_.reserve(elements_.size() + count);
  spare_.block = std::make_shared<clsDistribution[]>(count);
  spare_.size = count;
  spare_.used = 0;
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
  Materialize();
  return elements_[IndexOf(vntIndexKey)];
}

void clsDistributions::Remove(const Variant& vntIndexKey) {
  Materialize();
  std::size_t index = IndexOf(vntIndexKey);
  const auto keyed = key_of_.find(elements_[index].get());
  if (keyed != key_of_.end()) {
    by_key_.erase(keyed->second);
    key_of_.erase(keyed);
  }
  elements_.erase(elements_.begin() + static_cast<std::ptrdiff_t>(index));
}

void clsDistributions::Clear() {
  // The count goes through a 16-bit counter: past 32,767 it overflows before anything is removed.
  if (Count() > std::numeric_limits<std::int16_t>::max()) throw HostError::Overflow(kSource);
  pending_.reset();
  elements_.clear();
  by_key_.clear();
  key_of_.clear();
}

}  // namespace zenta
