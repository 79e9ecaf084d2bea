// How an atom of a built amino acid was placed: from which atom, at what length, angle and torsion.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// "1.5 Å from CA, angle CB–CA–C 110.0°, torsion CB–CA–C–O 65.0°", and on a line of its own
// "(entered as 69.98° and 295.04°)". Angle and torsion are those of the atoms as they stand; a
// torsion is positive where the far end is turned clockwise. The generator counts both without
// regard to the direction of its axis, so an entry of its table may have the other sign, lack a
// half turn or be the rest to 180 degrees. Where it differs from the atoms, it is given as well.
// "(no bond)" follows a length across a branch or a ring. The atoms of the frame are not placed,
// and the words say so. Empty for anything but a residue that was built here.
std::string RecipeWords(const Orvane_Desk& desk, int atom);

}  // namespace orvane
