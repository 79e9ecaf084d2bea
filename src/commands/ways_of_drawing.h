// How the structure is drawn: the entries of "Draw in" and "Peptide Bond", and the two buttons that
// switch between ways.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// Each entry sets the mode fields of its row, paints, and composes what its row says. Without a
// structure the first three do nothing at all; they do not even beep.
void D_Wf_Click(Orvane_Desk& desk);
void M_Stk_Click(Orvane_Desk& desk);
void D_StB_Click(Orvane_Desk& desk);
void D_Ca_Click(Orvane_Desk& desk);
void M_Rbn_Click(Orvane_Desk& desk);
void Cartn_Click(Orvane_Desk& desk);
void OPB_Click(Orvane_Desk& desk);
void PPB_SB_Click(Orvane_Desk& desk);

// Wire frame or balls; the caption names what a click will show. Paints the atom family whatever
// DrawFamily is, and does not change DrawFamily.
void Bt_BlS_Click(Orvane_Desk& desk);

// Atoms or trace; the caption says which is on. Leaves RibbonOn and CartoonOn alone, so that the
// trace comes back as it was last drawn.
void Bt_CA_Trace_Click(Orvane_Desk& desk);

}  // namespace orvane
