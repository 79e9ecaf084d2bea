// Draws the frames of the splash's animations, and the picture of the window about the program,
// with the program's own structures and painters.
#pragma once

#include <string>

namespace orvane {

std::string ProteinFramesAsBytes();  // the helix with balls
std::string DnaFramesAsBytes();      // the double strand in sticks
std::string AuthorFrameAsBytes();    // one frame, upright: alanine with large balls

}  // namespace orvane
