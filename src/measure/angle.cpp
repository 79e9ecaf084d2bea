#include "measure/angle.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "measure/degrees.h"
#include "measure/readout.h"
#include "runtime/arithmetic.h"
#include "runtime/trigonometry.h"

namespace orvane {
namespace {

constexpr double kRightAngle = 1.5708;  // radians, rounded; kept as inexact as kMeasureDegrees

double Length(const Point& from, const Point& to) {
  const double dx = from.X - to.X, dy = from.Y - to.Y, dz = from.Z - to.Z;
  return std::sqrt(dy * dy + dx * dx + dz * dz);
}

}  // namespace

void Angle3(Orvane_Desk& desk) {
  const Molecule& molecule = desk.molecule;
  Measure& measure = desk.measure;
  const double ac = Length(molecule.PointA, measure.PointC);
  const double ab = Length(molecule.PointA, molecule.PointB);
  const double bc = Length(molecule.PointB, measure.PointC);

  const double c = Divide(bc * bc + ab * ab - ac * ac, (ab + ab) * bc);
  // Rounding can carry c past 1. The points then lie on one line all the same, and there is no
  // root.
  const double s = std::sqrt(std::max(1 - c * c, 0.0));
  measure.AngleResult = (ArcTangent(Divide(-c, s)) + kRightAngle) * kMeasureDegrees;

  EmptyReadout(desk);
  if (measure.MeasureOn != 1) return;
  const std::array<int, 3> atoms = {molecule.BondAtomA, molecule.BondAtomB, measure.PickAtomC};
  ShowReadout(desk, {.Atoms = atoms, .Value = measure.AngleResult, .Unit = " Deg "});
}

}  // namespace orvane
