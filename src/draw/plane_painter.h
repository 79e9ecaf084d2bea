// The planes of the peptide bonds, in outline.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Paints the planes in PlaneColour over what is on the surface, or alone with PlanesOnly. Leaves
// the last seen marked atoms in PlaneH, PlaneO, PlaneCA1 and PlaneCA2, and FillStyle at 0.
void PaintPlanes(Orvane_Desk& desk);

}  // namespace orvane
