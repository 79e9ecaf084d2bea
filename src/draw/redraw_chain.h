// From the working coordinates to the picture.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Projects every atom onto the surface, along z, and paints. y grows downward on the surface and is
// not mirrored.
void RedrawView(Orvane_Desk& desk);

}  // namespace orvane
