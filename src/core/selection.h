// Between the wish for another structure and the picture: what every selection clears first, and
// the two buttons beside the lists.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Run by each list handler, and by the generator for each atom, before the text is set: the bond
// tables go back to 0, the spin stops, the lists show. Leaves MoleculeReady at 0.
void PrepareSelection(Orvane_Desk& desk);

// "Get  Molecule": the same with an empty surface. The atoms stay in the store, but every command
// beeps until the next selection.
void Bt_Blt_AA_Click(Orvane_Desk& desk);

// "Load AA": the last text once more, with the view as it is. The button stands at the right rim of
// the window and every selection hides it, so that hardly anybody meets it.
void Bt_M_Ld_Click(Orvane_Desk& desk);

}  // namespace orvane
