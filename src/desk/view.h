// How the structure is turned, scaled and shifted. There is no view matrix: each step changes the
// working coordinates in place and is forgotten.
#pragma once

#include "runtime/int16.h"

namespace orvane {

struct View {
  // RotM[r][c] acts on a column vector; only the upper left 3 by 3 block is used.
  double RotM[4][4] = {};
  double TurnAngle = 0;  // degrees on entry to BuildTurn, radians after it
  double ZoomFactor = 0;
  double ZoomNow = 0, ZoomPrev = 0;
  Int16 SpinNow, SpinPrev;
  Int16 XShiftNow, XShiftPrev, YShiftNow, YShiftPrev;
  Int16 PanX, PanY;                   // sum of all shifts, surface pixels
  double SurfOffX = 0, SurfOffY = 0;  // always 0; kept as a term of the projection
  Int16 HalfW, HalfH;                 // half of the surface's inner size, set once at start
  Int16 AxisX, AxisY, AxisZ;          // 1 = live component of the axis; normally exactly one

  // The pointer.
  float PressX = 0, PressY = 0;                        // last press on Picture1
  int SavedAxisX = 0, SavedAxisY = 0, SavedAxisZ = 0;  // the axis as it stood at the press
  Int16 AutoRotateOn;                                  // 1 while spinning
};

}  // namespace orvane
