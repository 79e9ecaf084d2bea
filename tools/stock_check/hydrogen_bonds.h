// Hydrogen bonds of a peptide chain by their energy, by the method of W. Kabsch and C. Sander
// (1983): from the positions of N, H, C and O, so that the direction counts. The program itself
// uses only names and a distance.
#pragma once

#include <vector>

#include "stock_check/stock_row.h"

namespace orvane::stock_check {

struct PeptideBond {
  int Nitrogen = 0, Oxygen = 0;  // places in the row's atoms
  double Energy = 0;             // kcal/mol
  double NitrogenToOxygen = 0;   // Angstrom
  double HydrogenToOxygen = 0;
  double AtHydrogen = 0;  // the angle N-H..O, degrees
};

inline constexpr double kBondEnergy = -0.5;  // kcal/mol: anything below is a bond
// In a stretched strand N and the O two residues before also come just below that, although O is
// 3.6 from the hydrogen and nearly at a right angle. A bond brings them nearer.
inline constexpr double kFarthestHydrogen = 2.5;  // Angstrom

// The hydrogen of a peptide nitrogen, opposite the C=O before it. A residue at a cut end has none.
std::vector<PeptideBond> BondsByEnergy(const StockRow& chain);
// Pairs of the program's list whose nitrogen is at a cut end, so that no hydrogen can be placed.
std::vector<AtomPair> ListedAtCutEnds(const StockRow& chain);

}  // namespace orvane::stock_check
