// The factor by which angles and torsions become degrees.
#pragma once

namespace orvane {

// Degrees to a radian, a little above 180 / pi. Kept inexact: readouts and the torsion survey share
// it, and an exact one would move values at the edge of a region.
inline constexpr double kMeasureDegrees = 57.29588295131;

}  // namespace orvane
