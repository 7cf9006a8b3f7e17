#include "zenta/records/chart_of_accounts.h"

namespace zenta {

ChartOfAccounts::ChartOfAccounts(std::vector<GLAccount> accounts)
    : accounts_(std::move(accounts)), index_(accounts_) {}

const GLAccount* ChartOfAccounts::Find(std::string_view number) const {
  const int found = index_.FindNumber(number);
  return found < 0 ? nullptr : &accounts_[static_cast<std::size_t>(found)];
}

std::vector<const GLAccount*> ChartOfAccounts::Complete(std::string_view typed, std::size_t limit,
                                                        AccountIndex::Include include) const {
  std::vector<const GLAccount*> offers;
  for (int position : index_.Complete(typed, limit, include)) offers.push_back(&accounts_[static_cast<std::size_t>(position)]);
  return offers;
}

std::string ChartOfAccounts::Caption(const GLAccount& account) {
  return account.name.empty() ? account.number : account.number + " " + account.name;
}

}  // namespace zenta
