// Hydrogen bonds on or off. The list itself is made by a load.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void Bt3_HBD_Click(Orvane_Desk& desk);

}  // namespace orvane
