// Draws the frames of the splash's animations with the program's own structures and painters.
#pragma once

#include <string>

namespace orvane {

std::string ProteinFramesAsBytes();  // the helix with balls
std::string DnaFramesAsBytes();      // the double strand in sticks

}  // namespace orvane
