#include "zenta/entry/account_number.h"

#include "zenta/core/utf8.h"
#include "zenta/entry/text_filters.h"

namespace zenta::entry {

std::string AccountNumberText(std::string_view text) { return utf8::ToUpperAscii(StripInvalidChars(text)); }

}  // namespace zenta::entry
