// Hydrogen bonds: pairs of atoms whose names match a small table and whose distance lies in a
// window. It does not look at hydrogen atoms, angles or residues.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Fills the list from the working coordinates, which at a load are still the as-read ones. Leaves
// PointA at the last atom and PointB at the last but one; a later turn takes its sense from them.
void FindHydrogenBonds(Orvane_Desk& desk);

// Appends the pair BondAtomA, BondAtomB.
void AppendHBond(Molecule& molecule);

}  // namespace orvane
