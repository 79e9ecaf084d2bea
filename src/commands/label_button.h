// The switch for atom names. The atom painter prints them.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Goes by LabelsOn and not by its caption: the measuring buttons turn labels off and leave the
// caption as it is. The red-green picture is not composed again.
void Bt3_Label_Click(Orvane_Desk& desk);

}  // namespace orvane
