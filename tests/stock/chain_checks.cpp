#include "stock/chain_checks.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace orvane {

namespace {

struct Residue {
  int N, CA, C, O;
};

Residue ResidueOf(const Structure& structure, int number) {
  const std::string residue = std::to_string(number);
  return {structure.Atom(residue + " N"), structure.Atom(residue + " CA"),
          structure.Atom(residue + " C"), structure.Atom(residue + " O")};
}

}  // namespace

void ExpectPeptide(Structure& structure, int first, int last, const char* side,
                   const PeptideGeometry& geometry) {
  for (int number = first; number <= last; ++number) {
    SCOPED_TRACE("residue " + std::to_string(number));
    const Residue here = ResidueOf(structure, number);
    EXPECT_NEAR(structure.Length(here.N, here.CA), kNCA, kLengthSlack);
    EXPECT_NEAR(structure.Length(here.CA, here.C), kCAC, kLengthSlack);
    EXPECT_NEAR(structure.Length(here.C, here.O), kCO, kLengthSlack);
    EXPECT_NEAR(structure.Angle(here.N, here.CA, here.C), geometry.NCAC, kAngleSlack);
    EXPECT_NEAR(structure.Angle(here.CA, here.C, here.O), geometry.CACO, kAngleSlack);

    const auto sides = structure.Named(side);
    const auto own = std::find_if(sides.begin(), sides.end(), [&](int atom) {
      return structure.Store().ResSeq[atom] == number;
    });
    if (own != sides.end()) {  // glycine has none
      const bool whole = std::string_view(side) == "R";
      EXPECT_NEAR(structure.Length(here.CA, *own), whole ? kCAR : kCACB, kLengthSlack);
      EXPECT_NEAR(structure.Angle(here.N, here.CA, *own), 110.4, 1.5);
      EXPECT_NEAR(structure.Angle(here.C, here.CA, *own), 110.5, 1.5);
      const double hand = structure.Hand(here.CA, here.N, here.C, *own);  // of an L residue
      EXPECT_GT(hand, 2.3);
      EXPECT_LT(hand, 2.6);
    }

    if (number == last) continue;
    const Residue next = ResidueOf(structure, number + 1);
    EXPECT_NEAR(structure.Length(here.C, next.N), kCN, kLengthSlack);
    EXPECT_NEAR(structure.Angle(here.CA, here.C, next.N), geometry.CACN, kAngleSlack);
    EXPECT_NEAR(structure.Angle(here.O, here.C, next.N), geometry.OCN, kAngleSlack);
    EXPECT_NEAR(structure.Angle(here.C, next.N, next.CA), kCNCA, kAngleSlack);
    EXPECT_NEAR(std::abs(structure.Torsion(here.CA, here.C, next.N, next.CA)), 180, 0.3);
    EXPECT_NEAR(structure.Length(here.CA, next.CA), 3.80, 0.02);
  }
}

void ExpectTorsions(const Structure& structure, int first, int last, double phi, double psi,
                    double slack) {
  for (int number = first; number < last; ++number) {
    const Residue here = ResidueOf(structure, number);
    const Residue next = ResidueOf(structure, number + 1);
    EXPECT_NEAR(structure.Torsion(here.N, here.CA, here.C, next.N), psi, slack)
        << "psi of " << number;
    EXPECT_NEAR(structure.Torsion(here.C, next.N, next.CA, next.C), phi, slack)
        << "phi of " << number + 1;
  }
}

std::vector<std::string> HydrogenBondNames(const Structure& structure) {
  std::vector<std::string> names;
  for (const Pair& bond : structure.HydrogenBonds()) {
    const bool nitrogen_first = structure.Name(bond.A).front() == 'N';
    names.push_back(structure.Label(nitrogen_first ? bond.A : bond.B) + "-" +
                    structure.Label(nitrogen_first ? bond.B : bond.A));
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace orvane
