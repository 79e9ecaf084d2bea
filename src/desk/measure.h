// Picked atoms and the last measures.
#pragma once

#include <array>

#include "desk/molecule.h"
#include "runtime/int16.h"

namespace orvane {

struct Measure {
  int PickState = 0;     // atoms taken in the pick cycle: 0, 1, 2, 3, 0
  Point PointC, PointD;  // third and fourth pick; the first two are the store's scratch points
  Int16 PickAtomC, PickAtomD;
  int MeasureOn = 0;         // 1 only while a measure button runs: then they write the readout
  double AngleResult = 0;    // degrees
  double TorsionResult = 0;  // degrees
  std::array<Point, 3> TorsionFrame;  // turned in place by Torsion4, zeroed at its end
};

}  // namespace orvane
