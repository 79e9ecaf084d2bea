#include "raster/gif_palette.h"

#include <limits>

namespace orvane {
namespace {

constexpr int Part(std::uint32_t word, int shift) { return static_cast<int>(word >> shift & 255u); }

// Squared; each channel is weighted roughly as the eye does it.
constexpr int Distance(std::uint32_t a, std::uint32_t b) {
  const int red = Part(a, 16) - Part(b, 16);
  const int green = Part(a, 8) - Part(b, 8);
  const int blue = Part(a, 0) - Part(b, 0);
  return 3 * red * red + 4 * green * green + 2 * blue * blue;
}

}  // namespace

std::uint8_t GifColours::Nearest(std::uint32_t word) const {
  int best = 0, least = std::numeric_limits<int>::max();
  for (int i = 0; i < palette_.Count; ++i) {
    const std::uint32_t candidate = palette_.Words[static_cast<std::size_t>(i)];
    const int green = Part(word, 8) - Part(candidate, 8);
    if (4 * green * green >= least) continue;  // green alone is too far off, as it usually is
    const int distance = Distance(word, candidate);
    if (distance < least) {
      least = distance;
      best = i;
    }
  }
  return static_cast<std::uint8_t>(best);
}

std::uint8_t GifColours::IndexOf(std::uint32_t word) {
  Known& known = known_[word * 2654435761u >> 20];
  if (known.Word != word) known = {word, Nearest(word)};
  return known.Index;
}

}  // namespace orvane
