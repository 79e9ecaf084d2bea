// The names on the map one after the other, by keys: each step is the pointer's move off one mark
// and onto the next.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// In the order of MapRules, and round again at the ends. The first step shows the first name, or
// backwards the last.
void ShowNextMapName(Orvane_Desk& desk);
void ShowPreviousMapName(Orvane_Desk& desk);

}  // namespace orvane
