// Takes the molecule text to the store and the first picture. The loader knows no chemistry:
// whatever lies within bonding distance is bonded.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Angstrom. Longer than every bond of the stock structures and shorter than the distance of second
// neighbours; the same for every pair of elements.
inline constexpr float kBondLimit = 1.85F;

// Parses MolText, finds the bonds and the hydrogen bonds, fits the box and draws. The view, the
// modes and the colours stay as they are. The caller sets MoleculeReady. Leaves 2 in BondAtomB.
void LoadMolecule(Orvane_Desk& desk);

// Rebuilds the list of bonds from the as-read coordinates, so that it never depends on the view.
void FindBonds(Orvane_Desk& desk);

// Appends the pair BondAtomA, BondAtomB.
void AppendBond(Molecule& molecule);

// Turns the box into the fit scale and the pivot; from here on MinX, MinY, MinZ hold its centre.
// A box without extent fails.
void FitBox(Molecule& molecule);

}  // namespace orvane
