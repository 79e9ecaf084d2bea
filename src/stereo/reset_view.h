// Back to the coordinates as read.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Restores the coordinates as read and sets the four bars back. A bar that stood elsewhere runs its
// change event, so VScroll1 gives the molecule one step of turn.
void ResetView(Orvane_Desk& desk);

}  // namespace orvane
