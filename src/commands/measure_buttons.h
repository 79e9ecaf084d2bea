// Distance, Angle and Torsion: they measure what the points hold, whatever was picked since.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Each turns the labels off, repaints, which wipes the tags of the picks, writes the readout and
// ends the pick cycle. A turn between the picks and the button has moved PointA; nothing checks for
// that.
void Bt3_Dts_Click(Orvane_Desk& desk);
void Bt3_Ang_Click(Orvane_Desk& desk);
void Bt3_Trg_Click(Orvane_Desk& desk);

void P_Dst_Show_Click(Orvane_Desk& desk);  // empties the readout

}  // namespace orvane
