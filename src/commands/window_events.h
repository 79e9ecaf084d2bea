// Events of the main window that stand for themselves: clicks that only close panels, the pointer's
// shape, and the size that the window goes back to.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void HidePanels_Click(Orvane_Desk& desk);

// The top menus close the same three panels in an order of their own.
void TopMenu_Click(Orvane_Desk& desk);

// Any assignment of a picture, also of none, counts as a structure being there.
void Picture1_Change(Orvane_Desk& desk);

// The cross belongs to the picture alone: whatever lies around it gives the pointer its default
// shape back. Any other shape stays.
void DropCross(Orvane_Desk& desk);

// In its normal state the window goes back to its fixed size and place after each resize.
// Maximised, the whole desk is shown larger.
void Orvane_Desk_Resize(Orvane_Desk& desk);

}  // namespace orvane
