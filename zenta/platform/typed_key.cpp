#include "zenta/platform/typed_key.h"

#include <string_view>

namespace zenta::platform {

namespace {
constexpr int kPacket = 231;

struct Punctuation {
  char plain;
  char shifted;
  int key_code;
};

// US layout: each key's plain and shifted character.
constexpr Punctuation kPunctuation[] = {
    {';', ':', 186}, {'=', '+', 187}, {',', '<', 188}, {'-', '_', 189}, {'.', '>', 190}, {'/', '?', 191},
    {'`', '~', 192}, {'[', '{', 219}, {'\\', '|', 220}, {']', '}', 221}, {'\'', '"', 222},
};
constexpr std::string_view kShiftedDigits = ")!@#$%^&*(";
}  // namespace

platform::KeyDown KeyDownFor(char32_t character) {
  if (character >= U'a' && character <= U'z') return {static_cast<int>(character - U'a' + U'A'), platform::kNoShift};
  if (character >= U'A' && character <= U'Z') return {static_cast<int>(character), platform::kShift};
  if ((character >= U'0' && character <= U'9') || character == U' ') return {static_cast<int>(character), platform::kNoShift};
  if (character > 127) return {kPacket, platform::kNoShift};
  const char ascii = static_cast<char>(character);
  if (auto digit = kShiftedDigits.find(ascii); digit != std::string_view::npos) {
    return {static_cast<int>('0' + digit), platform::kShift};
  }
  for (const Punctuation& key : kPunctuation) {
    if (key.plain == ascii) return {key.key_code, platform::kNoShift};
    if (key.shifted == ascii) return {key.key_code, platform::kShift};
  }
  return {kPacket, platform::kNoShift};
}

}  // namespace zenta::platform
