#pragma once

#include <string>

namespace zenta {

// One account of a host's chart of accounts: what a payer types into an account cell
// (`number`), what it is called, and whether new lines may still use it.
struct GLAccount {
  std::string number;
  std::string name;
  bool active = true;
};

}  // namespace zenta
