// Back to the start view.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Resets pose, sizes, spin and back colour. The drawing mode, labels, colours, hydrogen bonds, the
// axis, the pick cycle and BackgroundIndex stay. Timer1 goes on and finds AutoRotateOn at 0.
void Bt3_Reset_Click(Orvane_Desk& desk);

}  // namespace orvane
