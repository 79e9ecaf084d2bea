// The angle of three points.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// The angle at PointB, between PointA and PointC, goes into AngleResult in degrees. Empties the
// readout; writes the new one while MeasureOn is 1. Points on one line fail.
void Angle3(Orvane_Desk& desk);

}  // namespace orvane
