// The residue generator's memory: reference points of the next atom and where placed atoms are.
#pragma once

#include "core/molecule.h"

namespace orvane {

struct Generator {
  Point RefBonded;   // the new atom hangs on it
  Point RefAngle;    // with RefBonded the axis along which the angle is laid off
  Point RefTorsion;  // fixes the azimuth from which the torsion is counted
  Point NewAtom;     // the result

  Point PlaceOrigin;  // RefAngle before it is moved to the origin
  double PlaceAlpha = 0, PlaceBeta = 0, PlaceGamma = 0;  // turns of one placement, radians

  // Working points, rebound as a side chain grows; WorkCB is stale until CB is placed.
  Point WorkC, WorkCA, WorkN, WorkO, WorkCB, WorkCD, WorkNE;
  Point CopyN, CopyCA, CopyCB;  // never rebound: references of the alanine methyl group

  // Three picked points come here too and find no further reader.
  Point PickedA, PickedB, PickedC;
};

}  // namespace orvane
