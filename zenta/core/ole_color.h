#pragma once

#include <cstdint>

namespace zenta {

// A 32-bit OLE colour: 0x00BBGGRR, or, with the top bit set, the index of a system colour.
using OleColor = std::uint32_t;

constexpr OleColor Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return static_cast<OleColor>(red) | (static_cast<OleColor>(green) << 8) |
         (static_cast<OleColor>(blue) << 16);
}
constexpr bool IsSystemColor(OleColor color) { return (color & 0x80000000u) != 0; }
constexpr int SystemColorIndex(OleColor color) { return static_cast<int>(color & 0xFFu); }
constexpr OleColor SystemColor(int index) { return 0x80000000u | static_cast<OleColor>(index); }
constexpr std::uint8_t RedOf(OleColor color) { return static_cast<std::uint8_t>(color & 0xFF); }
constexpr std::uint8_t GreenOf(OleColor color) { return static_cast<std::uint8_t>((color >> 8) & 0xFF); }
constexpr std::uint8_t BlueOf(OleColor color) { return static_cast<std::uint8_t>((color >> 16) & 0xFF); }

namespace colors {
inline constexpr OleColor kWindowBackground = SystemColor(5);
inline constexpr OleColor kButtonFace = SystemColor(15);
inline constexpr OleColor k3DLight = SystemColor(22);
inline constexpr OleColor kTitleBlue = Rgb(0, 121, 193);
inline constexpr OleColor kTitleYellow = Rgb(226, 229, 90);
inline constexpr OleColor kBlack = 0;
}  // namespace colors

}  // namespace zenta
