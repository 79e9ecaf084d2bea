// The load of the main window: every start value of the desk, in order.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Leaves the main window hidden.
void Orvane_Desk_Load(Orvane_Desk& desk);

}  // namespace orvane
