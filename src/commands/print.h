// Printing: the page is composed from what is on the screen, then printed as it stands.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// By SplitViewOn: 0 the surface, 1 the pair of views, 2 the plot window itself. A page that cannot
// be printed ends in a message; the main window is left unchanged.
void PrImg_Click(Orvane_Desk& desk);

}  // namespace orvane
