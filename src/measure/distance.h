// The distance between two points, and its readout.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// The distance from PointA to PointB goes into DistResult in Angstrom. Empties the readout if there
// is anything in it, so a bond scan clears the last one; writes the new one while MeasureOn is 1.
void Distance(Orvane_Desk& desk);

}  // namespace orvane
