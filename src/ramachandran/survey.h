// The survey of the backbone torsions and its marks on the map. It walks the atoms and steps a
// fixed distance in the list to the neighbours of each alpha carbon, without looking at their
// names, so it suits only the stock backbone texts. Positions are relative to the middle of the
// whole set; the angle itself chooses only the quarter of the map.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Whether the survey has a row for an atom: the rows come in the order of these atoms.
bool IsSurveyed(const Molecule& molecule, int atom);

// Fills the lists and draws on the areas. The last row counts in the ranges but is not plotted. The
// last psi reads atoms beyond AtomCount: whatever an earlier, longer structure left there. Leaves
// PointA to PointD and PickAtomD changed.
void TorsionSurvey(Orvane_Desk& desk);

}  // namespace orvane
