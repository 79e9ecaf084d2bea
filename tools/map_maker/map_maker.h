// Draws the three pictures of the Ramachandran map afresh: zones of allowed torsions and marks of
// known conformations, from outlines in pixels.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::maps {

inline constexpr int kMapSide = 140;  // pixels

// Picture 0 (phi below 0, psi above), 1 (both below) or 2 (both above), as 3 bytes a pixel.
std::vector<std::uint8_t> DrawMap(int index);

// The picture as the file that is kept: binary PPM.
std::string MapFile(int index);

}  // namespace orvane::maps
