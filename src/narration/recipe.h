// How an atom of a built amino acid was placed: on which atom, at what length, angle and torsion.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// "1.5 Å from CA, angle CB–CA–C 110.0°, torsion CB–CA–C–O 65.0°", and on a line of its own
// "(entered as 69.98° and 295.04°)".
// Angle and torsion are those of the atoms as they stand, a torsion positive where the far end is
// turned clockwise. The generator counts both without regard to which way its axis runs, so an
// entry of its table may have the other sense, lack a half turn or complete 180 degrees; where it
// says something else than the atoms, it is told too. "(no bond)" follows a length across a branch
// or a ring. The atoms of the frame are not placed, and say so. Empty for anything but a residue
// that was built here.
std::string RecipeWords(const Orvane_Desk& desk, int atom);

}  // namespace orvane
