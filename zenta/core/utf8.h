#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zenta::utf8 {

// Text is UTF-8 throughout; lengths and filters count code points. Malformed bytes decode as
// U+FFFD, one per byte, so nothing is silently lost or crashes.
std::u32string Decode(std::string_view text);
std::string Encode(std::u32string_view code_points);
std::string Encode(char32_t code_point);
std::size_t Length(std::string_view text);
// The first `count` code points.
std::string Left(std::string_view text, std::size_t count);
// Removes the last code point, looking at no more than its own bytes: Backspace costs the same
// however long the text is.
void DropLast(std::string& text);
// ASCII-only case mapping; other code points pass unchanged.
std::string ToUpperAscii(std::string_view text);
// Blanks (U+0020) removed from both ends.
std::string_view Trim(std::string_view text);

}  // namespace zenta::utf8
