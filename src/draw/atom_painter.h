// Wire frame, sticks and ball-and-stick: one painter with different widths, and with balls on or
// off.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Sets LineColour for the atom in DrawName. An unknown element leaves it as it stands.
void PickLineColour(Orvane_Desk& desk);

// Sets the surface's FillColor and BallRadius for the atom in DrawName. An unknown element leaves
// both, so it repeats the last ball.
void PickBallStyle(Orvane_Desk& desk);

// Two dotted half lines, each in the colour of its own end. Looks at no count: a number above the
// hydrogen bonds found paints what the slots hold, and zeros paint a dot at the place of slot 0.
// Leaves DrawWidth at 1.
void PaintHBond(Orvane_Desk& desk, int n);

// Wipes to the background, then paints bond 1, atom 1, bond 2, atom 2 and so on: a ball hides only
// what was painted before it, and that is all the depth there is.
void PaintAtomFamily(Orvane_Desk& desk);

}  // namespace orvane
