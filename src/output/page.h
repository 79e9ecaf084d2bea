// The printed page, composed from what is on the screen.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// The pair of views, under the names of the two forms while mirror forms are shown.
void ComposePair(Orvane_Desk& desk);

void ComposeSurface(Orvane_Desk& desk);

}  // namespace orvane
