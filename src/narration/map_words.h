// What a circle of the Ramachandran map stands for.
#pragma once

#include <string>

#include "desk/orvane_desk.h"

namespace orvane {

// Residue and torsions as surveyed, "Alanine 5: phi −123.0°, psi −133.4°", of the circle nearest to
// a point of an area, in the area's pixels and within `reach`. Circles that cover each other are
// all named, one to a line. Empty where there is no circle.
std::string MapWords(const Orvane_Desk& desk, const MapArea& area, float x, float y, float reach);

}  // namespace orvane
