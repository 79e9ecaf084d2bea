// The floating panels' closing rule, and events that carry no more than it.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Closes the three floating panels. Nearly every handler begins with it: a handler that wants a
// panel to stay open must not call it. It is the click on BMusic, too.
void HidePanels(Orvane_Desk& desk);

// The top menus close the same three panels in an order of their own.
void TopMenu_Click(Orvane_Desk& desk);

// Any assignment of a picture, also of none, counts as a structure being there.
void Picture1_Change(Orvane_Desk& desk);

}  // namespace orvane
