// Draws the three pictures of the Ramachandran map from outlines in pixels: zones of allowed
// torsions and marks of known conformations.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::maps {

inline constexpr int kMapSide = 140;  // pixels

// Picture 0 (phi below 0, psi above), 1 (both below) or 2 (both above), with 3 bytes for each
// pixel.
std::vector<std::uint8_t> DrawMap(int index);

// The bytes of the file that is kept: a binary PPM.
std::string MapFile(int index);

}  // namespace orvane::maps
