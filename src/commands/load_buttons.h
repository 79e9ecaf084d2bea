// The two buttons beside the lists.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// "Get Molecule": the start of a selection, with an empty surface. The atoms stay in the store, but
// every command beeps until the next selection.
void Bt_Blt_AA_Click(Orvane_Desk& desk);

// "Load AA": loads the last text again, with the view as it is. The button stands at the right
// edge of the window and every selection hides it, so hardly anybody meets it.
void Bt_M_Ld_Click(Orvane_Desk& desk);

}  // namespace orvane
