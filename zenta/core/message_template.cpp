#include "zenta/core/message_template.h"

namespace zenta {

namespace {

bool IsPlaceholder(std::string_view text, std::size_t at) {
  return at + 1 < text.size() && text[at] == '%' && text[at + 1] >= '1' && text[at + 1] <= '9';
}

// The words between the placeholders: one more piece than there are placeholders.
std::vector<std::string_view> Pieces(std::string_view templ) {
  std::vector<std::string_view> pieces;
  std::size_t start = 0;
  for (std::size_t i = 0; i < templ.size(); ++i) {
    if (!IsPlaceholder(templ, i)) continue;
    pieces.push_back(templ.substr(start, i - start));
    start = i + 2;
    ++i;
  }
  pieces.push_back(templ.substr(start));
  return pieces;
}

}  // namespace

std::string FillTemplate(std::string_view templ, std::span<const std::string_view> args) {
  std::string text;
  text.reserve(templ.size());
  for (std::size_t i = 0; i < templ.size(); ++i) {
    const std::size_t n = IsPlaceholder(templ, i) ? static_cast<std::size_t>(templ[i + 1] - '1') : args.size();
    if (n < args.size()) {
      text += args[n];
      ++i;
    } else {
      text += templ[i];
    }
  }
  return text;
}

std::optional<std::vector<std::string>> MatchTemplate(std::string_view templ, std::string_view text) {
  const std::vector<std::string_view> pieces = Pieces(templ);
  const std::string_view first = pieces.front();
  const std::string_view last = pieces.back();
  if (pieces.size() == 1) return text == templ ? std::optional<std::vector<std::string>>(std::vector<std::string>{}) : std::nullopt;
  if (!text.starts_with(first) || !text.ends_with(last) || text.size() < first.size() + last.size()) return std::nullopt;
  std::vector<std::string> args;
  std::size_t at = first.size();
  const std::size_t end = text.size() - last.size();
  for (std::size_t p = 1; p + 1 < pieces.size(); ++p) {
    const std::size_t next = pieces[p].empty() ? at : text.find(pieces[p], at);
    if (next == std::string_view::npos || next > end) return std::nullopt;
    args.emplace_back(text.substr(at, next - at));
    at = next + pieces[p].size();
  }
  if (at > end) return std::nullopt;
  args.emplace_back(text.substr(at, end - at));
  return args;
}

}  // namespace zenta
