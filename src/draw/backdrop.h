// What the painters begin with.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Wipes Picture1 down to the chosen background picture, or to its plain back colour.
void ResetToBackground(Orvane_Desk& desk);

}  // namespace orvane
