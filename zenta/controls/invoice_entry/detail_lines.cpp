#include "zenta/controls/invoice_entry/detail_lines.h"

namespace zenta {
namespace {

bool RestBlank(std::string_view rest) { return rest.find_first_not_of(' ') == std::string_view::npos; }

// Length of the next line taken from `rest`.
std::size_t NextCut(std::string_view rest) {
  if (rest.size() <= kDetailLineWidth) return rest.size();
  const char after = rest[kDetailLineWidth];
  if (after == ' ' || after == '-') return kDetailLineWidth;
  const std::string_view window = rest.substr(0, kDetailLineWidth);
  const std::size_t cut = window.find_last_of(" -");
  return cut == std::string_view::npos ? kDetailLineWidth : cut + 1;
}

}  // namespace

std::vector<std::string> WrapDetailLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!RestBlank(text)) {
    const std::size_t cut = NextCut(text);
    std::string line(text.substr(0, cut));
    line.resize(kDetailLineWidth, ' ');
    lines.push_back(std::move(line));
    text.remove_prefix(cut);
  }
  return lines;
}

int DetailLineCount(std::string_view text) {
  int count = 0;
  while (!RestBlank(text)) {
    text.remove_prefix(NextCut(text));
    ++count;
  }
  return count;
}

}  // namespace zenta
