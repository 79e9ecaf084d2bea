// The pointer over the picture: the left button picks, the right one picks and then turns.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Any button: keeps the place and the axis of the turn bar, and picks what lies under the pointer.
void Picture1_MouseDown(Orvane_Desk& desk, const Event& event);

// The right button alone turns, about x and then about y, painting twice. The angle grows with the
// distance from the press, whose place stays: a pointer held far out keeps turning fast.
void Picture1_MouseMove(Orvane_Desk& desk, const Event& event);

// Gives the turn bar its axis back.
void Picture1_MouseUp(Orvane_Desk& desk);

// Chooses the axis of the turn bar and of spinning.
void X_Tag_Click(Orvane_Desk& desk, const Event& event);

}  // namespace orvane
