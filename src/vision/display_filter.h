// Shows each colour as one that a given eye can tell from the others. The elements of
// draw/elements.h have a colour of their own for each eye; a hue between them is mixed from its two
// neighbours. Greys stay as they are, and a shade, a tint or an edge that is mixed with a grey
// becomes the same shade, tint or edge of the new colour.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "desk/stereo.h"
#include "runtime/colour.h"
#include "vision/eye.h"

namespace orvane {

// CIEDE2000 between any two of the seven elements, as the eye sees them through the filter, is
// never less than this. Without the filter the least is 1.4.
inline constexpr double kLeastDifference = 20;

// What the filter makes of an element's colour, for each eye in the order of kEyes. H is white.
struct ShownElement {
  char Letter;
  std::array<Colour, 3> Ink;
};
inline constexpr std::size_t kHuedElements = 6;
extern const std::array<ShownElement, kHuedElements> kShownElements;

class DisplayFilter {
 public:
  explicit DisplayFilter(Eye eye);

  Colour Shown(Colour colour) const;

  // Pixels 0xFFRRGGBB; each is replaced by what is shown for it.
  void Apply(std::uint32_t* words, std::size_t count);

 private:
  // A hue and the colour of full chroma that is shown for it, 0 to 1 for each channel.
  struct Stop {
    double Hue;  // 0 to 6, red at 0
    std::array<double, 3> Ink;
  };
  struct Kept {
    std::uint32_t Word = 0, Shown = 0;
  };

  std::array<double, 3> InkAt(double hue) const;

  std::vector<Stop> stops_;  // by hue, from below 0 to above 6
  std::vector<Kept> kept_;   // pixels met before: a picture has few colours
};

// The red-green picture is made for glasses of exactly these colours, so no filter may touch it.
inline bool IsForGlasses(const Stereo& stereo) { return stereo.RedGreenOn == 1; }

}  // namespace orvane
