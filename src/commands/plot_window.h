// The plot window: opening it, the pointer over the map, closing it.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Opens the plot window with fresh pictures and surveys what is in the store, loaded or not. From
// here on the plot window is what is printed.
void ShowRamachandran(Orvane_Desk& desk);

// Closed by its frame, the plot window only hides and can be shown again.
void Ramachandran_Close(Orvane_Desk& desk);

void Area_MouseMove(Orvane_Desk& desk, const Event& event);
void RamPlt_H_MouseMove(Orvane_Desk& desk);  // clears "Fully extended chain" and nothing else

}  // namespace orvane
