// The picture of docs/colour-vision.md: seven atoms, one of each element, as four rows of screens.
#pragma once

#include "raster/picture.h"

namespace orvane::vision {

// One column for each eye. From the top: without the filter, the same simulated, with the filter,
// the same simulated.
Bitmap Sheet();

}  // namespace orvane::vision
