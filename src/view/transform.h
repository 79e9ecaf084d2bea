// Turning, zooming and shifting. Each step builds a fresh transform, applies it to the working
// coordinates in place and forgets it, so rounding adds up and 1.1 times 0.9 is 0.99; only
// ResetView goes back to the coordinates as read.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Builds RotM from axis and angle. TurnAngle is degrees on entry and radians afterwards. The axis
// runs from PointB to PointA in the live components alone. So what earlier operations left in the
// two points decides its sign and with it the sense of the turn. If it has no length there is no
// axis, and the matrix shrinks by the cosine instead of turning.
void BuildTurn(View& view, const Molecule& molecule);

// Applies RotM to PointA about the pivot.
void TurnPoint(Molecule& molecule, const View& view);

// Turns all atoms by TurnAngle degrees and redraws. Ends the pick cycle; leaves the last atom in
// PointA.
void RotateAll(Orvane_Desk& desk);

// Builds RotM from ZoomFactor.
void BuildZoom(View& view);

// One zoom step to ZoomNow, which is minus the value of ZoomBar: 1.1 towards a higher value, 0.9
// towards a lower, 1 onto the middle. Redraws.
void ZoomAll(Orvane_Desk& desk);

// One turn step to SpinNow, which is minus the value of VScroll1: 10 degrees up or down, the other
// way round when the same value comes again, and 0 at 0.
void SpinStep(Orvane_Desk& desk);

// Moves the picture by the whole value of the bar, not by its difference from the last, and paints
// without projecting.
void ShiftAllX(Orvane_Desk& desk);
void ShiftAllY(Orvane_Desk& desk);

}  // namespace orvane
