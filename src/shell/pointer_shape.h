// The pointer's shape away from the picture.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// The cross belongs to the picture alone: whatever lies around it takes the default shape back. Any
// other shape stays.
void DropCross(Orvane_Desk& desk);

}  // namespace orvane
