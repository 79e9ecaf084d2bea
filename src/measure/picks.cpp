#include "measure/picks.h"

#include "runtime/arithmetic.h"

namespace orvane {
namespace {

constexpr float kReach = 3;  // surface pixels to each side

// The bounds are worked out in the pointer's own 32 bits.
bool IsWithinReach(double place, float pointer) {
  const float low = pointer - kReach;
  const float high = pointer + kReach;
  const double pixel = RoundDown(place);
  return pixel >= low && pixel <= high;
}

// A blank or a minus in front, and a blank after it.
std::string PrintedNumber(int number) {
  return (number < 0 ? "" : " ") + std::to_string(number) + " ";
}

void PrintTag(Orvane_Desk& desk, int atom) {
  const Molecule& molecule = desk.molecule;
  PictureBox& surface = desk.main.Picture1;
  surface.CurrentX = molecule.ScrX[atom];
  surface.CurrentY = molecule.ScrY[atom];
  surface.ForeColor = kPalette15;
  surface.Print(std::string(molecule.AtomName[atom]) + PrintedNumber(molecule.ResSeq[atom]) +
                PrintedNumber(atom));
  surface.ForeColor = kPalette0;
}

}  // namespace

bool IsTakenAt(const Molecule& molecule, int atom, float x, float y) {
  return IsWithinReach(molecule.ScrX[atom], x) && IsWithinReach(molecule.ScrY[atom], y);
}

void PickAtomsAt(Orvane_Desk& desk, float x, float y) {
  const Molecule& molecule = desk.molecule;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    if (!IsTakenAt(molecule, i, x, y)) continue;
    PrintTag(desk, i);
    TakePick(desk, i);
  }
}

void BeginPicks(Orvane_Desk& desk) {
  desk.measure.PickState = 0;
  desk.walk.Picked = 0;  // what was said of the last pick no longer holds
}

void TakePick(Orvane_Desk& desk, int atom) {
  Molecule& molecule = desk.molecule;
  Measure& measure = desk.measure;
  const Point place{molecule.AtomX[atom], molecule.AtomY[atom], molecule.AtomZ[atom]};
  switch (measure.PickState) {
    case 0:
      molecule.PointA = place;
      molecule.BondAtomA = atom;
      break;
    case 1:
      molecule.PointB = place;
      molecule.BondAtomB = atom;
      break;
    case 2:
      measure.PointC = place;
      measure.PickAtomC = atom;
      desk.generator.PickedA = molecule.PointA;
      desk.generator.PickedB = molecule.PointB;
      desk.generator.PickedC = measure.PointC;
      break;
    case 3:
      measure.PointD = place;
      measure.PickAtomD = atom;
      break;
  }
  measure.PickState = (measure.PickState + 1) % 4;
}

}  // namespace orvane
