// A wire frame on whole pixels. Reached only when FastWire is 1, which no command sets; kept ready.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// One line for each bond, in the colour and width left on the surface. Point b is the place of the
// atom that has the number of bond b, so a bond may join points that are not filled yet and stand
// at 0, 0. Holds 1000 points; a number above that fails.
void PaintFastWire(Orvane_Desk& desk);

}  // namespace orvane
