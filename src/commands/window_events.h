// Events of the main window that are no commands: clicks that only close panels, the pointer's
// shape, and the size that the window goes back to.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void HidePanels_Click(Orvane_Desk& desk);

// The top menus close the same three panels in a different order.
void TopMenu_Click(Orvane_Desk& desk);

// Any assignment of a picture, even of none, makes a structure count as present.
void Picture1_Change(Orvane_Desk& desk);

// The cross belongs to the picture alone: whatever lies around it restores the pointer's default
// shape. Any other shape stays.
void DropCross(Orvane_Desk& desk);

// In its normal state the window goes back to its fixed size and place after each resize.
// Maximised, the whole desk is shown larger.
void Orvane_Desk_Resize(Orvane_Desk& desk);

}  // namespace orvane
