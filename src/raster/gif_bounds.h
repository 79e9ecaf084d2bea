// How much a GIF file claims to hold, seen from its headers alone.
#pragma once

#include <span>

namespace orvane {

// The most pixels of a screen, and of all frames together: more than a recording of the largest
// screen has. A broken file may claim any number, and the library makes room for all of them before
// it checks that they are there.
inline constexpr long kMostScreenPixels = 1L << 26;
inline constexpr long kMostFramePixels = 1L << 29;

// Also false when the blocks do not follow each other to the end mark, or a frame leaves the
// screen.
bool IsWithinBounds(std::span<const unsigned char> gif);

}  // namespace orvane
