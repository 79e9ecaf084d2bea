#include "stock_check/hydrogen_bonds.h"

#include <cmath>

#include "stock_check/geometry.h"

namespace orvane::stock_check {

namespace {

// Charges of 0.42 on C and O, 0.20 on N and H, in units of the electron's; with distances in
// Angstrom, 332 turns them into kcal/mol.
constexpr double kStrength = 0.42 * 0.20 * 332;
constexpr double kNitrogenToHydrogen = 1.01;

}  // namespace

std::vector<PeptideBond> BondsByEnergy(const StockRow& chain) {
  std::vector<PeptideBond> bonds;
  for (const int giver : chain.Residues()) {
    const int n = chain.Find(giver, "N");
    const int c_before = chain.Find(giver - 1, "C"), o_before = chain.Find(giver - 1, "O");
    if (c_before < 0) continue;
    const Point away = Unit(Minus(chain.At(c_before), chain.At(o_before)));
    const Point h = Plus(chain.At(n), Times(kNitrogenToHydrogen, away));
    for (const int taker : chain.Residues()) {
      if (taker == giver || taker == giver - 1) continue;
      const int c = chain.Find(taker, "C"), o = chain.Find(taker, "O");
      const double energy = kStrength * (1 / chain.Apart(o, n) + 1 / Apart(chain.At(c), h) -
                                         1 / Apart(chain.At(o), h) - 1 / chain.Apart(c, n));
      const double near = Apart(h, chain.At(o));
      if (energy >= kBondEnergy || near > kFarthestHydrogen) continue;
      bonds.push_back(
          {n, o, energy, chain.Apart(n, o), near, AngleAt(chain.At(n), h, chain.At(o))});
    }
  }
  return bonds;
}

std::vector<AtomPair> ListedAtCutEnds(const StockRow& chain) {
  std::vector<AtomPair> pairs;
  for (const AtomPair& pair : chain.HydrogenBonds) {
    const int n = chain.Element(pair.A) == 'N' ? pair.A : pair.B;
    if (chain.Find(chain.Residue(n) - 1, "C") < 0) pairs.push_back(pair);
  }
  return pairs;
}

}  // namespace orvane::stock_check
