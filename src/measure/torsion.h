// The torsion of four points.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

enum class BackboneTorsion { Phi = 0, Psi = 1 };

// The torsion of PointA, PointB, PointC and PointD about the line from PointB to PointC goes into
// TorsionResult in degrees. The arctangent knows no quadrant, so the result lies between 90 and 180
// on either side, or is 0: a small torsion comes out near 180. The sign is reversed when the middle
// bond runs down along z. Empties the readout; writes the new one while MeasureOn is 1. Fails where
// a component that it divides by is zero.
void Torsion4(Orvane_Desk& desk);

// The stock helices show phi and psi below zero, the stock strands and sheets phi below and psi
// above it, as textbooks give them. Every other structure keeps the sign that was computed.
void FlipTorsionSign(Orvane_Desk& desk, BackboneTorsion kind);

}  // namespace orvane
