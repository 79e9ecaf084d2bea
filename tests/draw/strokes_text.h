// A picture's strokes as text, one line each, for tests that say what a painter draws.
#pragma once

#include <string>

#include "raster/picture.h"

namespace orvane {

// "#rrggbb"
std::string ColourAsText(Colour colour);

// In call order, each with a line feed after it:
//   Line X1 Y1 X2 Y2 #rrggbb wN          and " dotted" for DrawStyle 2
//   Circle X Y RADIUS #fill on #outline wN      the fill is "empty" with FillStyle 1
//   Print X Y #rrggbb "text"
// Coordinates have as few digits as the 32-bit value needs.
std::string StrokesAsText(const Picture& picture);

}  // namespace orvane
