// Paints the picture again after what lies behind it has changed.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Runs the passes over ScrX, ScrY as they stand, then makes the composed views that are on. In the
// red-green view the painter of the family is left out, since the composition runs it in its own
// two colours.
void RepaintAll(Orvane_Desk& desk);

}  // namespace orvane
