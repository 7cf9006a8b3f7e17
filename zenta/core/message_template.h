#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zenta {

// Messages that carry figures ("Line 2: the account 9999 ...") are built from a template in
// which %1 to %9 stand for the figures, so that a translation can move the words around them.

// The template with each %n replaced by the n-th argument; a %n with no argument stays as is.
std::string FillTemplate(std::string_view templ, std::span<const std::string_view> args);
inline std::string FillTemplate(std::string_view templ, std::initializer_list<std::string_view> args) {
  return FillTemplate(templ, std::span<const std::string_view>(args.begin(), args.size()));
}

// The arguments that FillTemplate would need to turn `templ` into `text`, by position in the
// template (not by number), or nullopt when the text is not an instance of it. Each figure
// ends at the first place where the words after it follow.
std::optional<std::vector<std::string>> MatchTemplate(std::string_view templ, std::string_view text);

}  // namespace zenta
