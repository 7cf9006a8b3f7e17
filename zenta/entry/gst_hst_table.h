#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zenta/core/date.h"
#include "zenta/core/rate.h"

namespace zenta {

// GST/HST rates by province or territory, each from its effective date until the next entry of
// the same province. Provinces are named by their two-letter postal codes ("ON", "NS", "YT").
// The library ships Canada(); a host whose rates changed after a release replaces the table.
class GstHstTable {
 public:
  struct Entry {
    std::string province;
    Date effective;
    Rate rate;
  };

  GstHstTable() = default;
  explicit GstHstTable(std::vector<Entry> entries);

  // The rates in force since 2008-01-01, when the GST became 5 %.
  static const GstHstTable& Canada();

  // The rate charged in `province` on `day`; nullopt for a province not in the table or a day
  // before its first entry. The code is read case-insensitively, blanks around it ignored.
  std::optional<Rate> RateOn(std::string_view province, Date day) const;
  bool HasProvince(std::string_view province) const;
  const std::vector<Entry>& Entries() const { return entries_; }
  // Every province in the table, in alphabetical order.
  std::vector<std::string> Provinces() const;

  // Trimmed and upper-cased, as entries are kept.
  static std::string NormalisedCode(std::string_view province);

 private:
  std::vector<Entry> entries_;  // by province, then effective date
};

}  // namespace zenta
