// The plot window: opening it, the pointer over the map, closing it.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Opens the plot window over fresh pictures and surveys what is in the store, loaded or not. The
// plot window is the subject of printing from here on.
void ShowRamachandran(Orvane_Desk& desk);

// Closed by its frame the plot window only hides, and can be shown again.
void Ramachandran_Close(Orvane_Desk& desk);

void Area_MouseMove(Orvane_Desk& desk, const Event& event);
void RamPlt_H_MouseMove(Orvane_Desk& desk);  // clears "Fully extended chain" and nothing else

}  // namespace orvane
