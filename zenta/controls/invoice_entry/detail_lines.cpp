#include "zenta/controls/invoice_entry/detail_lines.h"

#include "zenta/core/utf8.h"

namespace zenta {
namespace {

bool RestBlank(std::u32string_view rest) { return rest.find_first_not_of(U' ') == std::u32string_view::npos; }

// Length in characters of the next line taken from `rest`: a cut never splits a character.
std::size_t NextCut(std::u32string_view rest) {
  if (rest.size() <= kDetailLineWidth) return rest.size();
  const char32_t after = rest[kDetailLineWidth];
  if (after == U' ' || after == U'-') return kDetailLineWidth;
  const std::u32string_view window = rest.substr(0, kDetailLineWidth);
  const std::size_t cut = window.find_last_of(U" -");
  return cut == std::u32string_view::npos ? kDetailLineWidth : cut + 1;
}

}  // namespace

std::vector<std::string> WrapDetailLines(std::string_view text) {
  const std::u32string characters = utf8::Decode(text);
  std::u32string_view rest = characters;
  std::vector<std::string> lines;
  while (!RestBlank(rest)) {
    const std::size_t cut = NextCut(rest);
    std::u32string line(rest.substr(0, cut));
    line.resize(kDetailLineWidth, U' ');
    lines.push_back(utf8::Encode(line));
    rest.remove_prefix(cut);
  }
  return lines;
}

int DetailLineCount(std::string_view text) {
  const std::u32string characters = utf8::Decode(text);
  std::u32string_view rest = characters;
  int count = 0;
  while (!RestBlank(rest)) {
    rest.remove_prefix(NextCut(rest));
    ++count;
  }
  return count;
}

}  // namespace zenta
