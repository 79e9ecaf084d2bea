// Builds an amino acid on its frame, atom by atom: each is computed, written into MolText as one
// more record and loaded, so that the residue grows on the screen.
#pragma once

#include <string_view>
#include <vector>

#include "desk/orvane_desk.h"
#include "stock/residue_table.h"

namespace orvane {

// The rows of the residue table for that key ("TRP"), in order of placement.
std::vector<Placement> PlacementsOf(std::string_view key);

// Places the atoms of those rows on the frame that is loaded. An empty key changes nothing.
void GenerateResidue(Orvane_Desk& desk, std::string_view key);

// Computes one atom from RefBonded, RefAngle and RefTorsion, which it overwrites, into NewAtom;
// appends its record and loads. Degrees and Angstrom; `name` has three characters, "H2 ".
void PlaceAtom(Orvane_Desk& desk, double torsion, double angle, double length,
               std::string_view name);

}  // namespace orvane
