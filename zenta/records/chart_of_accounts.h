#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "zenta/records/account_index.h"
#include "zenta/records/gl_account.h"

namespace zenta {

// A host's G/L accounts, supplied once and shared by every control of the thread. Immutable
// after construction: a host with a changed list builds a new chart. Lookups go through an
// index, so a chart of thousands of accounts answers while the payer types.
class ChartOfAccounts {
 public:
  ChartOfAccounts() = default;
  explicit ChartOfAccounts(std::vector<GLAccount> accounts);

  const std::vector<GLAccount>& Accounts() const { return accounts_; }
  std::size_t Size() const { return accounts_.size(); }
  bool Empty() const { return accounts_.empty(); }

  // The account numbered `number` (case and surrounding blanks ignored), or nullptr.
  const GLAccount* Find(std::string_view number) const;
  // Active accounts offered for what the payer has typed so far; see AccountIndex::Complete.
  std::vector<const GLAccount*> Complete(std::string_view typed, std::size_t limit = kOfferLimit,
                                         AccountIndex::Include include = AccountIndex::Include::kActive) const;
  // "6200 TRAVEL": how an account is offered and named beside its number.
  static std::string Caption(const GLAccount& account);

  static constexpr std::size_t kOfferLimit = 8;

 private:
  std::vector<GLAccount> accounts_;
  AccountIndex index_;
};

}  // namespace zenta
