// A colour is a whole number R + 256 G + 65536 B, and is compared as one.
#pragma once

#include <cstdint>

namespace orvane {

using Colour = std::uint32_t;

constexpr Colour Rgb(int red, int green, int blue) {
  return static_cast<Colour>(red) + 256u * static_cast<Colour>(green) +
         65536u * static_cast<Colour>(blue);
}
constexpr int Red(Colour colour) { return static_cast<int>(colour & 255u); }
constexpr int Green(Colour colour) { return static_cast<int>((colour >> 8) & 255u); }
constexpr int Blue(Colour colour) { return static_cast<int>((colour >> 16) & 255u); }

// The colours that the program asks for by their index in the classic palette of sixteen.
inline constexpr Colour kPalette0 = Rgb(0, 0, 0);
inline constexpr Colour kPalette3 = Rgb(0, 128, 128);
inline constexpr Colour kPalette7 = Rgb(192, 192, 192);
inline constexpr Colour kPalette14 = Rgb(255, 255, 0);
inline constexpr Colour kPalette15 = Rgb(255, 255, 255);

}  // namespace orvane
