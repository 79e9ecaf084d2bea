// The colour panel: what a swatch sets, and which colours are refused because they would vanish.
#pragma once

#include "desk/orvane_desk.h"

namespace orvane {

// What the panel is open for.
inline constexpr int kLabelTarget = 0, kMoleculeTarget = 1, kPlaneTarget = 2, kBackgroundTarget = 3;

// Refuses, with a message, a swatch that has the colour of the background. Leaves the answer in
// ColourRefused.
void SwatchClash(Orvane_Desk& desk, int index);

// Gives the colour of swatch `index` to what ColourTarget names, and paints.
void ApplySwatch(Orvane_Desk& desk, int index);

// A swatch acts when a button goes down on it, any button; the click that follows closes the panel,
// even when the colour was refused.
void P_Clr_MouseDown(Orvane_Desk& desk, const Event& event);
void P_Clr_Click(Orvane_Desk& desk);

// The entries that open the panel. For the molecule the first swatch means element colours, and
// says so.
void MlClr_Click(Orvane_Desk& desk);
void LbClr_Click(Orvane_Desk& desk);
void PbClr_Click(Orvane_Desk& desk);
void ClPlt_Click(Orvane_Desk& desk);

}  // namespace orvane
