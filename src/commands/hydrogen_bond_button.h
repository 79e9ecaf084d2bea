// Hydrogen bonds on or off. A load makes the list itself.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void Bt3_HBD_Click(Orvane_Desk& desk);

}  // namespace orvane
