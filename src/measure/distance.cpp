#include "measure/distance.h"

#include <cmath>

namespace orvane {

void Distance(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  const double dx = molecule.PointA.X - molecule.PointB.X;
  const double dy = molecule.PointA.Y - molecule.PointB.Y;
  const double dz = molecule.PointA.Z - molecule.PointB.Z;
  molecule.DistResult = std::sqrt(dy * dy + dx * dx + dz * dz);

  auto& readout = desk.main.P_Dst_Show.Caption;
  if (!readout.Get().empty()) readout = "";
}

}  // namespace orvane
