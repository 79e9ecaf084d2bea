// Draws the five background pictures by rule: dark, quiet, and with no edge that could pass for a
// bond.
#pragma once

#include <string>

#include "raster/picture.h"

namespace orvane::backgrounds {

// Picture `index`, 0 to 4, in the order of the menu.
Bitmap DrawBackground(int index);

// The bytes of the file that is kept: a GIF in the picture's own shades. Empty if there are more
// than the 256 shades that such a file can hold.
std::string BackgroundFile(int index);

}  // namespace orvane::backgrounds
