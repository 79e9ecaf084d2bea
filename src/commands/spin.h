// Spinning: the switch, the pace, and the tick.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void P_Auto_Rotate_Click(Orvane_Desk& desk);

// The bar gives the interval in milliseconds; it works with and without a structure.
void Rt_speed_Change(Orvane_Desk& desk);

// Pending events run first, inside the tick; they may stop the spin, or even tick again. Then comes
// one turn step by SpinNow as it stands: with SpinNow at 0 the picture stays still until the turn
// bar is moved.
void Timer1_Tick(Orvane_Desk& desk);

// A tick that failed would fail again at once, so the spin ends.
void Timer1_Failed(Orvane_Desk& desk);

}  // namespace orvane
