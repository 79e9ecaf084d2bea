// Handlers of the information windows: splash, overview, about.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void Front_Timer1_Tick(Orvane_Desk& desk);   // the next of ten frames, a protein beside DNA
void Front_Get_in_Click(Orvane_Desk& desk);  // on to the overview; the animation stops
void Front_Author_Click(Orvane_Desk& desk);  // a side trip; the splash stays behind, still running
void Content_Get_in_Click(Orvane_Desk& desk);  // on to the desk, in the middle of the screen
void Author_Get_in_Click(Orvane_Desk& desk);   // back to where it was opened from

void WatN_Click(Orvane_Desk& desk);
void Cprt_Click(Orvane_Desk& desk);
// Closed by its frame: no hidden window may be left as the only one. Until the desk has been
// reached, closing the way to it ends the program; later the overview goes back as Get_in does.
void Content_Close(Orvane_Desk& desk);
void EndProgram(Orvane_Desk& desk);

// Ends the program; nothing is asked and nothing is kept.
void ExitEntry_Click(Orvane_Desk& desk);

}  // namespace orvane
