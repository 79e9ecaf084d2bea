// From working coordinates to a picture: the projection, and the order of the painting passes.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Projects every atom to ScrX, ScrY, then paints. Runs after each change of the working
// coordinates. The projection is orthographic along z; y is not mirrored, so the picture is drawn
// y-down.
void RedrawView(Orvane_Desk& desk);

// The passes alone, over ScrX, ScrY as they stand: the painter of the family, then the planes. Each
// painter wipes by itself; if a chain wipes what it has just painted, that is intended.
void RepaintPasses(Orvane_Desk& desk);

}  // namespace orvane
