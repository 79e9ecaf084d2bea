// The four lists of stock structures: the way from a click on a row to the picture.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// A click on a row sets the menus for this kind of structure and its text, loads it, and ends as
// Reset does. The drawing mode and the colours stay. Without a chosen row the key is empty and fits
// nothing: AA_Lst then loads nothing, the others load the previous text again.
void AA_Lst_Click(Orvane_Desk& desk);
void Pro_Lst_Click(Orvane_Desk& desk);
void Nuc_Lst_Click(Orvane_Desk& desk);
void DNA_Lst_Click(Orvane_Desk& desk);

}  // namespace orvane
