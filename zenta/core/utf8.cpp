#include "zenta/core/utf8.h"

#include <algorithm>

namespace zenta::utf8 {

namespace {
constexpr char32_t kReplacement = 0xFFFD;

// Decodes one code point at `pos`, advancing it; malformed input yields U+FFFD for one byte.
char32_t Next(std::string_view text, std::size_t& pos) {
  auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  unsigned char lead = byte(pos);
  if (lead < 0x80) {
    ++pos;
    return lead;
  }
  // C0, C1 and F5 to FF never start a sequence.
  int length = 0;
  if (lead >= 0xC2 && lead <= 0xDF) length = 2;
  else if (lead >= 0xE0 && lead <= 0xEF) length = 3;
  else if (lead >= 0xF0 && lead <= 0xF4) length = 4;
  if (length == 0 || pos + static_cast<std::size_t>(length) > text.size()) {
    ++pos;
    return kReplacement;
  }
  char32_t cp = lead & (0x7F >> length);
  for (int i = 1; i < length; ++i) {
    unsigned char cont = byte(pos + static_cast<std::size_t>(i));
    if ((cont & 0xC0) != 0x80) {
      ++pos;
      return kReplacement;
    }
    cp = (cp << 6) | (cont & 0x3F);
  }
  bool overlong = (length == 3 && cp < 0x800) || (length == 4 && cp < 0x10000);
  if (overlong || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
    ++pos;
    return kReplacement;
  }
  pos += static_cast<std::size_t>(length);
  return cp;
}
}  // namespace

std::u32string Decode(std::string_view text) {
  std::u32string out;
  out.reserve(text.size());
  for (std::size_t pos = 0; pos < text.size();) out.push_back(Next(text, pos));
  return out;
}

std::string Encode(char32_t cp) {
  std::string out;
  if (cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) cp = kReplacement;
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
  return out;
}

std::string Encode(std::u32string_view code_points) {
  std::string out;
  out.reserve(code_points.size());
  for (char32_t cp : code_points) out += Encode(cp);
  return out;
}

std::size_t Length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t pos = 0; pos < text.size(); ++count) Next(text, pos);
  return count;
}

std::string Left(std::string_view text, std::size_t count) {
  std::size_t pos = 0;
  for (std::size_t n = 0; n < count && pos < text.size(); ++n) Next(text, pos);
  return std::string(text.substr(0, pos));
}

void DropLast(std::string& text) {
  // A code point takes at most four bytes; it starts where the rest decodes as one.
  constexpr std::size_t kLongest = 4;
  const std::string_view view(text);
  for (std::size_t start = text.size() - std::min(kLongest, text.size()); start < text.size(); ++start) {
    if (Length(view.substr(start)) == 1) {
      text.erase(start);
      return;
    }
  }
}

std::string ToUpperAscii(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return out;
}

std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

}  // namespace zenta::utf8
