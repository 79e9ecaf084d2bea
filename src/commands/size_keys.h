// The six keys for ball size, bond width and width of the plane lines.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Only the left button steps. The picture is painted again even when nothing has changed.
void Sz_Balls_MouseDown(Orvane_Desk& desk, const Event& event);

}  // namespace orvane
