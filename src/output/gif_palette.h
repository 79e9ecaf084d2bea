// The 256 colours of every GIF file: one fixed palette, so that all frames of a recording share it
// and a colour that the program draws with is the same in the file.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace orvane {

// Never a colour: what a frame leaves as the frame before it.
inline constexpr std::uint8_t kGifUnchanged = 255;

// 0xFFRRGGBB words: the colours of pens, swatches and plot, then a cube through the spectrum.
const std::array<std::uint32_t, 256>& GifPalette();

// Finds the nearest colour of the palette, and remembers: a picture has few colours, many times.
class GifColours {
 public:
  std::uint8_t IndexOf(std::uint32_t word);

 private:
  struct Known {
    std::uint32_t Word = 0;  // 0: nothing yet, since every colour is opaque
    std::uint8_t Index = 0;
  };
  std::vector<Known> known_ = std::vector<Known>(4096);  // by hash of the colour
};

}  // namespace orvane
