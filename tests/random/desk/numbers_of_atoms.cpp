#include "random/desk/numbers_of_atoms.h"

#include <algorithm>

namespace orvane {
namespace {

struct Bounds {
  const char* Name;
  int Value, High;
};

std::string OutsideBounds(const Orvane_Desk& desk, int atoms) {
  const auto& [molecule, walk, measure, survey, drawing] =
      std::tie(desk.molecule, desk.walk, desk.measure, desk.survey, desk.drawing);
  // Every load sets the second of a pair to 2, however few atoms there are. A survey, a third or
  // fourth pick and the marks of the planes outlive the structure in which they were made.
  // A walk that began at another structure keeps its number and is on no atom.
  const int walked = walk.Load == molecule.Loads ? atoms : kMostAtoms;
  // clang-format off
  const Bounds rows[] = {
      {"the atom of the walk",    walk.Number,              walked},
      {"the pick of the walk",    walk.Picked,              walk.Number == 0 ? 0 : walked},
      {"the count of the walk",   walk.Taken,               walk.Number == 0 ? 0 : walked},
      {"the order of the walk",   walk.Order,               walk.Number == 0 ? 0 : 4},
      {"BondAtomA",               molecule.BondAtomA,       atoms},
      {"BondAtomB",               molecule.BondAtomB,       std::max(atoms, 2)},
      {"PickAtomC",               measure.PickAtomC,        kMostAtoms},
      {"PickAtomD",               measure.PickAtomD,        kMostAtoms},
      {"SurveyAtom",              survey.SurveyAtom,        kMostAtoms},
      {"PlotIndex",               survey.PlotIndex,         500},
      {"PlaneIndex",              drawing.PlaneIndex,       2 * kMostAtoms + 1},
      {"PlaneH",                  drawing.PlaneH,           kMostAtoms},
      {"PlaneO",                  drawing.PlaneO,           kMostAtoms},
      {"PlaneCA1",                drawing.PlaneCA1,         kMostAtoms},
      {"PlaneCA2",                drawing.PlaneCA2,         kMostAtoms},
  };
  // clang-format on
  for (const Bounds& row : rows) {
    if (row.Value < 0 || row.Value > row.High) {
      return std::string(row.Name) + " is " + std::to_string(row.Value);
    }
  }
  return "";
}

// A cleared table has zeros up to the previous count of atoms.
std::string WrongPair(const char* kind, int number, int later, int earlier, int atoms) {
  const bool is_cleared = later == 0 && earlier == 0;
  if (is_cleared || (earlier >= 1 && later > earlier && later <= atoms)) return "";
  return std::string(kind) + " " + std::to_string(number) + " joins " + std::to_string(later) +
         " and " + std::to_string(earlier);
}

std::string WrongBond(const Molecule& molecule, int atoms) {
  for (int b = 1; b <= molecule.BondCount; ++b) {
    std::string wrong = WrongPair("bond", b, molecule.BondA[b], molecule.BondB[b], atoms);
    if (!wrong.empty()) return wrong;
    if (molecule.BondSerial[b] != b) return "a bond has another number than its place";
  }
  for (int h = 1; h <= molecule.HBondCount; ++h) {
    std::string wrong =
        WrongPair("hydrogen bond", h, molecule.HBondA[h], molecule.HBondB[h], atoms);
    if (!wrong.empty()) return wrong;
  }
  return "";
}

std::string WrongSerial(const Molecule& molecule) {
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    if (molecule.AtomSerial[i] != i) return "an atom has another number than its place";
  }
  return "";
}

}  // namespace

std::string WrongNumberOfAnAtom(const Orvane_Desk& desk, bool whole) {
  const int atoms = whole ? int{desk.molecule.AtomCount} : kMostAtoms;
  std::string wrong = OutsideBounds(desk, atoms);
  if (wrong.empty()) wrong = WrongSerial(desk.molecule);
  if (wrong.empty()) wrong = WrongBond(desk.molecule, atoms);
  return wrong;
}

}  // namespace orvane
