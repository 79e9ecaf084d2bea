#include "measure/hydrogen_bonds.h"

#include <span>

#include "measure/distance.h"

namespace orvane {
namespace {

// Donor and acceptor are treated alike: either atom of the pair may have either name. Lengths in
// Angstrom, compared in 32 bits: over Above, up to and including UpTo.
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
constexpr BondingPair kNitrogenOxygen[] = {{"N", "O", 2.7F, 3.1F}};

// What an atom looks for in the others: a name has at most one partner.
struct Partner {
  std::string_view Name;
  const BondingPair* Row = nullptr;  // nullptr: none
};

Partner PartnerIn(std::span<const BondingPair> table, std::string_view name) {
  for (const BondingPair& row : table) {
    if (name == row.One) return {row.Other, &row};
    if (name == row.Other) return {row.One, &row};
  }
  return {};
}

// How many characters of a name the table of a mode compares; a mode that is neither 0 nor 1 has no
// table.
std::size_t CutWidth(int nucleic_mode) { return nucleic_mode == 1 ? 2 : 1; }

Partner PartnerOf(const NameField& name, int nucleic_mode) {
  if (nucleic_mode == 1) return PartnerIn(kBasePairs, ShortName(name));
  if (nucleic_mode == 0) return PartnerIn(kNitrogenOxygen, ElementLetter(name));
  return {};
}

}  // namespace

void AppendHBond(Molecule& molecule) {
  const int h = molecule.HBondCount + 1;
  molecule.HBondA[h] = molecule.AtomSerial[molecule.BondAtomA];
  molecule.HBondB[h] = molecule.AtomSerial[molecule.BondAtomB];
  molecule.HBondCount = h;
}

void FindHydrogenBonds(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  const int mode = desk.drawing.NucleicMode;
  molecule.HBondCount = 0;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    molecule.PointA = {molecule.CurX[i], molecule.CurY[i], molecule.CurZ[i]};
    molecule.BondAtomA = i;
    // The names first: the distance is worked out only for pairs that pass them.
    const Partner partner = PartnerOf(molecule.AtomName[i], mode);
    for (int j = 1; j < i; ++j) {
      molecule.PointB = {molecule.CurX[j], molecule.CurY[j], molecule.CurZ[j]};
      molecule.BondAtomB = j;
      if (partner.Row == nullptr) continue;
      if (NameCut(molecule.AtomName[j], CutWidth(mode)) != partner.Name) continue;
      Distance(desk);
      const auto length = static_cast<float>(molecule.DistResult);
      if (length > partner.Row->Above && length <= partner.Row->UpTo) AppendHBond(molecule);
    }
  }
}

}  // namespace orvane
