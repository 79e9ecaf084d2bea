// The four bars beside the picture. A scroll event, while the thumb is held, runs the step alone,
// with a structure or without. A change event is a command like any other: it closes the panels,
// needs a structure, and refreshes the composed views.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

void ZoomBar_Scroll(Orvane_Desk& desk);
void ZoomBar_Change(Orvane_Desk& desk);
void VScroll1_Scroll(Orvane_Desk& desk);
void VScroll1_Change(Orvane_Desk& desk);
void X_TRANS_Scroll(Orvane_Desk& desk);
void X_TRANS_Change(Orvane_Desk& desk);
void Y_TRANS_Scroll(Orvane_Desk& desk);
void Y_TRANS_Change(Orvane_Desk& desk);

}  // namespace orvane
