// The composed views: which is on, and what has to be restored afterwards.
#pragma once

#include "runtime/colour.h"
#include "runtime/int16.h"

namespace orvane {

// An axis selector saved during a composition.
struct AxisCells {
  int X = 0, Y = 0, Z = 0;
};

struct Stereo {
  int StereoOn = 0;
  int EnantiomerOn = 0;
  int EnantiomerPairOn = 0;  // 1: the D/L composition captures nothing
  int RedGreenOn = 0;
  Int16 SplitViewOn;  // 1 stereo or D/L, 2 the plot window is the subject; read by printing
  Int16 SavedBondWidth = 1, SavedPlaneWidth = 1;
  Colour SavedPenColour = 0;
  int SavedColourMode = 0;

  AxisCells PairCells;        // zero outside ComposeStereoPair
  AxisCells PairBCells;       // left filled by ComposeStereoPairB
  AxisCells RedGreenCells;    // zero outside ComposeRedGreen
  AxisCells EnantiomerCells;  // keep what they saved
};

}  // namespace orvane
