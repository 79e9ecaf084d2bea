// The four toggles of the split views. Their captions hold their state and are compared as exact
// strings; the literals differ from one command to the next on purpose. "Sterio Off" is no slip,
// and "D / L Nst" is not the "D/L Nst" that Bt3_D_L_Str looks for, so its first click after
// Bt3_Isomers only clears the view.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void Bt3_Sterio_Click(Orvane_Desk& desk);   // the stereo pair; makes a structure count as present
void Bt3_Isomers_Click(Orvane_Desk& desk);  // the structure beside its mirror form
void Bt3_D_L_Str_Click(
    Orvane_Desk& desk);                    // both panels; leaves BondWidth at 2 and the panels open
void R_G_Stereo_Click(Orvane_Desk& desk);  // red and green on the one surface

}  // namespace orvane
