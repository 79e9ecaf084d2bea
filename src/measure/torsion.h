// The torsion of four points.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

enum class BackboneTorsion { Phi = 0, Psi = 1 };

// PointA, PointB, PointC, PointD about the line from PointB to PointC, into TorsionResult, degrees.
// The arctangent knows no quadrant, so the result lies between 90 and 180 to either side, or is 0:
// a torsion of small size comes out near 180. Its sign turns round when the middle bond runs down
// along z. Empties the readout; writes the new one while MeasureOn is 1. A vector without the
// component that is divided by fails.
void Torsion4(Orvane_Desk& desk);

// The stock helices show phi and psi below zero, the stock strands and sheets psi above it, as the
// textbooks have them. Every other structure keeps the sign that was computed.
void FlipTorsionSign(Orvane_Desk& desk, BackboneTorsion kind);

}  // namespace orvane
