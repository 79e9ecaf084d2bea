// How much a GIF file claims to hold, seen from its headers alone.
#pragma once

#include <span>

namespace orvane {

// Pixels of a screen, and of all frames together: beyond what a recording of the largest screen
// has. A broken file may claim any number, and the library makes room for all of them before it
// looks whether they are there.
inline constexpr long kMostScreenPixels = 1L << 26;
inline constexpr long kMostFramePixels = 1L << 29;

// False too when the blocks do not follow each other to the end mark, or a frame leaves the screen.
bool IsWithinBounds(std::span<const unsigned char> gif);

}  // namespace orvane
