// The fixed place of the main window.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// In its normal state the window goes back to its fixed size and place after each resize.
// Maximised, the whole desk is shown larger.
void Orvane_Desk_Resize(Orvane_Desk& desk);

}  // namespace orvane
