// The trace family: a protein's backbone as the chain of its alpha carbons.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Wipes the surface, then joins alpha carbon to alpha carbon, all in PenColour: by a ribbon with
// RibbonOn, by a cartoon with CartoonOn, else by a thin line. Paints the hydrogen bonds 1 to
// AtomCount on the way, when they are shown.
void PaintTraceFamily(Orvane_Desk& desk);

}  // namespace orvane
