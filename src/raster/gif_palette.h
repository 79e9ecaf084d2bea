// The palette of a GIF file, and the nearest of its colours to any other.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "raster/canvas.h"

namespace orvane {

// Never a colour: it marks what a frame leaves as it was in the frame before.
inline constexpr std::uint8_t kGifUnchanged = 255;

// At most 255 colours; the rest is black.
struct GifPalette {
  std::array<std::uint32_t, 256> Words{};  // 0xFFRRGGBB
  int Count = 0;

  // A colour that is there already is not added again.
  constexpr void Add(Colour colour) {
    const std::uint32_t word = WordOf(colour);
    for (int i = 0; i < Count; ++i) {
      if (Words[static_cast<std::size_t>(i)] == word) return;
    }
    Words[static_cast<std::size_t>(Count++)] = word;
  }
};

// Finds the nearest colour of a palette, and remembers it: a picture has few colours, each many
// times.
class GifColours {
 public:
  explicit GifColours(const GifPalette& palette) : palette_(palette) {}

  std::uint8_t IndexOf(std::uint32_t word);

 private:
  struct Known {
    std::uint32_t Word = 0;  // 0: nothing yet, since every colour is opaque
    std::uint8_t Index = 0;
  };
  std::uint8_t Nearest(std::uint32_t word) const;

  const GifPalette& palette_;
  std::vector<Known> known_ = std::vector<Known>(4096);  // by hash of the colour
};

}  // namespace orvane
