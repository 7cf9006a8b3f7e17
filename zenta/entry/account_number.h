#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zenta::entry {

// The longest G/L account number a distribution line keeps.
inline constexpr std::size_t kMaxAccountLength = 30;

inline constexpr const char* kAccountTooLong =
    "The General Ledger Account Number must not be more than 30 characters in length.";

// An account number as a distribution line keeps it, however it arrived (typed, pasted, read
// from a chart file): upper case, without the characters a payer cannot type.
std::string AccountNumberText(std::string_view text);

}  // namespace zenta::entry
