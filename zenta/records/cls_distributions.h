#pragma once

/// @file
/// clsDistributions, the G/L lines of one invoice or payment.

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "zenta/core/variant.h"
#include "zenta/records/cls_distribution.h"
#include "zenta/records/distribution_source.h"

namespace zenta {

/// An ordered collection of distribution lines, numbered from 1 in insertion order, each
/// optionally reachable by a unique text key (compared without regard to ASCII case). Elements
/// are shared: a line stays alive while the collection or any other holder references it.
///
/// Errors (HostError, source "clsDistributions"): a position outside 1..Count() or an unknown
/// key raises SubscriptOutOfRange (9) and a key already in use KeyAlreadyAssociated (457); the
/// collection is then unchanged. Clear() counts in 16 bits on purpose: more than 32,767
/// elements raise Overflow (6) and nothing is removed.
///
/// A collection made over a DistributionSource copies its lines in when one is first reached
/// (an element, iteration or a change), so a record whose lines are never read costs nothing per
/// line. Like the controls, a collection belongs to one thread.
class clsDistributions : public Object {
 public:
  /// A shared line.
  using Element = std::shared_ptr<clsDistribution>;

  /// An empty collection.
  clsDistributions() = default;
  /// A collection over lines kept elsewhere, copied in when one is first reached.
  explicit clsDistributions(std::shared_ptr<const DistributionSource> lines) : pending_(std::move(lines)) {}
  /// A copy shares the original's elements, as copying the held lines always did.
  clsDistributions(const clsDistributions& other);
  /// Shares `other`'s elements.
  clsDistributions& operator=(const clsDistributions& other);
  clsDistributions(clsDistributions&&) noexcept = default;             ///< Takes the lines over.
  clsDistributions& operator=(clsDistributions&&) noexcept = default;  ///< Takes the lines over.
  ~clsDistributions() override = default;

  /// Appends a line with `ID`, `GLAccount` and `Amount` (dollars), reachable by `sKey` when
  /// it is not empty, and returns it.
  Element Add(const Variant& ID, const std::string& GLAccount, Currency Amount,
              const std::string& sKey = std::string());
  /// Add() for a builder that does not keep the element.
  void Append(const Variant& ID, const std::string& GLAccount, Currency Amount, const std::string& sKey = std::string());
  /// Room for `count` more elements, so that adding them allocates nothing further.
  void Reserve(std::size_t count);
  /// The line at a position (any numeric variant, from 1) or with a key (text).
  Element Item(const Variant& vntIndexKey) const;
  /// How many lines the collection holds.
  std::int32_t Count() const {
    return static_cast<std::int32_t>(pending_ ? pending_->LineCount() : elements_.size());
  }
  /// Removes the line at a position (from 1) or with a key; the later lines move up.
  void Remove(const Variant& vntIndexKey);
  /// Removes every line.
  void Clear();

  /// The first line, for range-based for in position order.
  std::vector<Element>::const_iterator begin() const {
    Materialize();
    return elements_.begin();
  }
  /// Past the last line.
  std::vector<Element>::const_iterator end() const {
    Materialize();
    return elements_.end();
  }

 private:
  std::size_t IndexOf(const Variant& vntIndexKey) const;
  static std::string FoldKey(const std::string& key);
  // Copies the source's lines in as elements, once; reading a collection may do it.
  void Materialize() const;

  // Lines not copied in yet; while set, elements_ is empty.
  mutable std::shared_ptr<const DistributionSource> pending_;
  mutable std::vector<Element> elements_;
  // Elements are carved from shared blocks: one allocation serves many lines, and a block
  // lives while any of its elements is held. A copy of the collection starts without spare
  // room, so two collections never hand out the same slot.
  struct Spare {
    std::shared_ptr<clsDistribution[]> block;
    std::size_t size = 0;
    std::size_t used = 0;
    Spare() = default;
    Spare(const Spare&) {}
    Spare& operator=(const Spare&) { return *this; }
    Spare(Spare&& other) noexcept : block(std::move(other.block)), size(other.size), used(other.used) {
      other.size = other.used = 0;
    }
    Spare& operator=(Spare&& other) noexcept {
      block = std::move(other.block);
      size = std::exchange(other.size, 0);
      used = std::exchange(other.used, 0);
      return *this;
    }
  };
  Spare spare_;
  std::unordered_map<std::string, const clsDistribution*> by_key_;
  std::unordered_map<const clsDistribution*, std::string> key_of_;  // only the keyed elements
};

}  // namespace zenta
