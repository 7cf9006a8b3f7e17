#include "zenta/platform/key_script.h"

#include <stdexcept>
#include <string>

namespace zenta::platform {

std::vector<KeyDown> ParseKeyScript(std::string_view keys) {
  std::vector<KeyDown> parsed;
  std::size_t pos = 0;
  while (pos < keys.size()) {
    int shift = kNoShift;
    if (keys[pos] == '+') {
      shift = kShift;
      ++pos;
    }
    std::size_t close = keys.find('}', pos);
    if (pos >= keys.size() || keys[pos] != '{' || close == std::string_view::npos) {
      throw std::invalid_argument("keystrokes not understood: " + std::string(keys));
    }
    std::string_view name = keys.substr(pos + 1, close - pos - 1);
    int code = name == "TAB" ? keys::kTab : name == "ENTER" ? keys::kEnter : 0;
    if (code == 0) throw std::invalid_argument("keystroke not understood: {" + std::string(name) + "}");
    parsed.push_back(KeyDown{code, shift});
    pos = close + 1;
  }
  return parsed;
}

}  // namespace zenta::platform
