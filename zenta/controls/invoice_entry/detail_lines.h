#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zenta {

// An invoice number or description cut into the 27-character lines of a printed remittance:
// a cut falls after the last blank or hyphen that keeps a line within 27 characters, unless
// the line ends exactly at one; every line is padded to 27. Blank text needs no line.
inline constexpr std::size_t kDetailLineWidth = 27;
std::vector<std::string> WrapDetailLines(std::string_view text);
int DetailLineCount(std::string_view text);

}  // namespace zenta
