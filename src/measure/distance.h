// The distance of two points, and the readout of it.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// From PointA to PointB into DistResult, Angstrom. Empties the readout if anything stands in it, so
// a bond scan clears the last one; writes the new one while MeasureOn is 1.
void Distance(Orvane_Desk& desk);

}  // namespace orvane
