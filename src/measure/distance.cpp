#include "measure/distance.h"

#include <array>
#include <cmath>

#include "measure/readout.h"

namespace orvane {

void Distance(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  const double dx = molecule.PointA.X - molecule.PointB.X;
  const double dy = molecule.PointA.Y - molecule.PointB.Y;
  const double dz = molecule.PointA.Z - molecule.PointB.Z;
  molecule.DistResult = std::sqrt(dy * dy + dx * dx + dz * dz);

  EmptyReadout(desk);
  if (desk.measure.MeasureOn != 1) return;
  const std::array<int, 2> atoms = {molecule.BondAtomA, molecule.BondAtomB};
  ShowReadout(desk, {.Atoms = atoms, .Value = molecule.DistResult, .Unit = " Angs "});
}

}  // namespace orvane
