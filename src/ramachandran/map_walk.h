// Shows the names on the map one after the other, by keys: each step acts as a move of the pointer
// off one mark and onto the next.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// In the order of MapRules, starting over at the ends. The first step shows the first name, or the
// last when it goes backwards.
void ShowNextMapName(Orvane_Desk& desk);
void ShowPreviousMapName(Orvane_Desk& desk);

}  // namespace orvane
