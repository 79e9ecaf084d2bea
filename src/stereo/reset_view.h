// Back to the coordinates as read.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// The coordinates as read, and the four bars back. A bar that stood elsewhere runs its change
// event: VScroll1 so gives the molecule one step of turn.
void ResetView(Orvane_Desk& desk);

}  // namespace orvane
