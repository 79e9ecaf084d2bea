#include "measure/hydrogen_bonds.h"

#include "core/loader.h"
#include "measure/distance.h"

namespace orvane {
namespace {

// Donor and acceptor count alike: either atom of the pair may bear either name. Angstrom, compared
// in 32 bits: over Above, up to and including UpTo.
struct BondingPair {
  std::string_view One, Other;
  float Above, UpTo;
};

// The hydrogen bonds of the base pairs G-C and A-T, between two-character names.
constexpr BondingPair kBasePairs[] = {
    {"N1", "N3", 2.0F, 3.3F},
    {"N6", "O4", 2.0F, 3.3F},
    {"N4", "O6", 2.0F, 3.3F},
    {"N2", "O2", 2.0F, 3.3F},
};
// Everywhere else any nitrogen with any oxygen, by the element's letter.
constexpr BondingPair kNitrogenOxygen = {"N", "O", 2.7F, 3.1F};

bool Names(const BondingPair& pair, std::string_view a, std::string_view b) {
  return (a == pair.One && b == pair.Other) || (a == pair.Other && b == pair.One);
}

// The row that the names of the pair match, if any. A mode that is neither 0 nor 1 matches nothing.
const BondingPair* RowFor(const NameField& a, const NameField& b, int nucleic_mode) {
  if (nucleic_mode == 1) {
    for (const BondingPair& pair : kBasePairs) {
      if (Names(pair, ShortName(a), ShortName(b))) return &pair;
    }
  }
  if (nucleic_mode == 0 && Names(kNitrogenOxygen, ElementLetter(a), ElementLetter(b))) {
    return &kNitrogenOxygen;
  }
  return nullptr;
}

}  // namespace

void FindHydrogenBonds(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  molecule.HBondCount = 0;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    molecule.PointA = {molecule.CurX[i], molecule.CurY[i], molecule.CurZ[i]};
    molecule.BondAtomA = i;
    for (int j = 1; j < i; ++j) {
      molecule.PointB = {molecule.CurX[j], molecule.CurY[j], molecule.CurZ[j]};
      molecule.BondAtomB = j;
      // The names first: the distance is worked out only for pairs that pass them.
      const BondingPair* row =
          RowFor(molecule.AtomName[i], molecule.AtomName[j], desk.drawing.NucleicMode);
      if (row == nullptr) continue;
      Distance(desk);
      const auto length = static_cast<float>(molecule.DistResult);
      if (length > row->Above && length <= row->UpTo) AppendHBond(molecule);
    }
  }
}

}  // namespace orvane
