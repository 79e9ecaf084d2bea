// The residue generator's memory: reference points of the next atom and where placed atoms are.
#pragma once

#include <string_view>
#include <vector>

#include "desk/molecule.h"

namespace orvane {

struct PlacedAtom {
  std::string_view Name;  // as in the residue table, without blanks
  Point At;
};

struct Generator {
  Point RefBonded;   // the new atom is bonded to it
  Point RefAngle;    // its line to RefBonded is one side of the angle
  Point RefTorsion;  // fixes the azimuth from which the torsion is counted
  Point NewAtom;     // the result

  Point PlaceOrigin;  // RefAngle before it is moved to the origin
  double PlaceAlpha = 0, PlaceBeta = 0, PlaceGamma = 0;  // turns of one placement, radians

  // The residue so far, at full precision: a record's cut coordinates never place another atom.
  std::vector<PlacedAtom> Placed;

  // Three picked points are copied here too; nothing reads them.
  Point PickedA, PickedB, PickedC;
};

}  // namespace orvane
