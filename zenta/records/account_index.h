#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "zenta/records/gl_account.h"

namespace zenta {

// Sorted keys over a list of accounts: every number, and every word of every name, upper-cased.
// A prefix is found by binary search, so a lookup costs a logarithm of the list plus the
// matches it returns, at any size of chart.
class AccountIndex {
 public:
  AccountIndex() = default;
  explicit AccountIndex(const std::vector<GLAccount>& accounts);

  // The account whose number is `number` (blanks around it and case ignored), or -1.
  int FindNumber(std::string_view number) const;
  // Payers are offered active accounts only; a chart browser shows the inactive ones too.
  enum class Include { kActive, kInactiveToo };

  // Active accounts whose number starts with `typed`, then those with a name word starting with
  // each word of `typed` ("trav" finds "6200 Travel", "off sup" finds "Office supplies"), each
  // once, at most `limit`. Positions in the list the index was built from.
  std::vector<int> Complete(std::string_view typed, std::size_t limit, Include include = Include::kActive) const;

  // ASCII upper case, blanks around removed: how numbers and words are compared.
  static std::string Key(std::string_view text);

 private:
  using Entry = std::pair<std::string, int>;
  static std::vector<Entry>::const_iterator FirstWithPrefix(const std::vector<Entry>& keys, std::string_view prefix);

  std::vector<Entry> numbers_;
  std::vector<Entry> words_;
  std::vector<std::vector<std::string>> name_words_;
  std::vector<bool> active_;
};

}  // namespace zenta
