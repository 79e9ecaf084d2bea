#include "output/gif_palette.h"

#include <limits>

#include "draw/canvas.h"
#include "draw/elements.h"
#include "shell/swatches.h"

namespace orvane {
namespace {

struct Palette {
  std::array<std::uint32_t, 256> Words{};  // 0xFFRRGGBB; the rest is black
  int Count = 0;

  constexpr void Add(Colour colour) {
    const std::uint32_t word = WordOf(colour);
    for (int i = 0; i < Count; ++i) {
      if (Words[static_cast<std::size_t>(i)] == word) return;
    }
    Words[static_cast<std::size_t>(Count++)] = word;
  }
};

// The cube has six steps an axis.
consteval Palette MakePalette() {
  Palette palette;
  palette.Add(kPalette0);
  for (const ElementRow& row : kElements) palette.Add(row.Ink);
  for (const Swatch& swatch : kSwatches) palette.Add(swatch.Face);
  for (const Colour colour : {kPalette3, kPalette7, kPalette14, kPalette15}) palette.Add(colour);
  // Grounds of the plot's areas, and of the panel that holds a pair of views.
  for (const Colour colour : {Rgb(249, 137, 121), Rgb(255, 159, 159), Rgb(255, 206, 206),
                              Rgb(34, 48, 59), Rgb(58, 75, 88)}) {
    palette.Add(colour);
  }
  for (int step = 0; step < 6 * 6 * 6; ++step) {
    palette.Add(Rgb(step / 36 * 51, step / 6 % 6 * 51, step % 6 * 51));
  }
  return palette;
}
constexpr Palette kPalette = MakePalette();
static_assert(kPalette.Count <= kGifUnchanged);

constexpr int Part(std::uint32_t word, int shift) { return static_cast<int>(word >> shift & 255u); }

// Squared, each channel weighed roughly as the eye does.
constexpr int Distance(std::uint32_t a, std::uint32_t b) {
  const int red = Part(a, 16) - Part(b, 16);
  const int green = Part(a, 8) - Part(b, 8);
  const int blue = Part(a, 0) - Part(b, 0);
  return 3 * red * red + 4 * green * green + 2 * blue * blue;
}

std::uint8_t Nearest(std::uint32_t word) {
  int best = 0, least = std::numeric_limits<int>::max();
  for (int i = 0; i < kPalette.Count; ++i) {
    const int distance = Distance(word, kPalette.Words[static_cast<std::size_t>(i)]);
    if (distance < least) {
      least = distance;
      best = i;
    }
  }
  return static_cast<std::uint8_t>(best);
}

}  // namespace

const std::array<std::uint32_t, 256>& GifPalette() { return kPalette.Words; }

std::uint8_t GifColours::IndexOf(std::uint32_t word) {
  Known& known = known_[word * 2654435761u >> 20];
  if (known.Word != word) known = {word, Nearest(word)};
  return known.Index;
}

}  // namespace orvane
