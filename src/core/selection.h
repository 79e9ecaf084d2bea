// What every selection clears before it loads another structure.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Run by each list handler, and by the generator for each atom, before the text is set: the bond
// tables go back to 0, the spin stops, the lists show. Leaves MoleculeReady at 0.
void PrepareSelection(Orvane_Desk& desk);

// Its two halves.
void EndWithTheLastStructure(Orvane_Desk& desk);
void AwaitTheNext(Orvane_Desk& desk);

}  // namespace orvane
