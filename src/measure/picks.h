// The pick cycle: up to four atoms pressed on, one after the other.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Whether a press at that place takes the atom: it lies in the square of 7 pixels around the
// pointer.
bool IsTakenAt(const Molecule& molecule, int atom, float x, float y);

// Takes every atom for which IsTakenAt holds, in the order of their numbers, and prints its tag at
// the atom: name, residue number, atom number. Of atoms that lie on top of each other, each uses up
// a step of the cycle. The tags stay until the next repaint.
void PickAtomsAt(Orvane_Desk& desk, float x, float y);

// The next atom taken is the first again, as after a turn or a measurement. The points already
// taken stay.
void BeginPicks(Orvane_Desk& desk);

// One step of the cycle 0, 1, 2, 3, 0: the atom's place as read becomes the next of the four
// points.
void TakePick(Orvane_Desk& desk, int atom);

}  // namespace orvane
