#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "stock/chain_checks.h"

namespace orvane {
namespace {

using testing::UnorderedElementsAre;

constexpr PeptideGeometry kHelix = {.NCAC = 110.0, .CACN = 116.2, .CACO = 120.8, .OCN = 123.0};

// Of the alpha carbon of a residue and the next three.
Screw ScrewFrom(const Structure& structure, int first) {
  const auto carbon = [&](int step) {
    return structure.At(structure.Atom(std::to_string(first + step) + " CA"));
  };
  return ScrewOf({carbon(0), carbon(1), carbon(2), carbon(3)});
}

void ExpectHelix(Structure& structure, int residues, const char* side) {
  ExpectPeptide(structure, 1, residues, side, kHelix);
  ExpectTorsions(structure, 1, residues, -57, -47, kTorsionSlack);
  for (int first = 1; first + 3 <= residues; ++first) {
    const Screw screw = ScrewFrom(structure, first);
    EXPECT_GE(screw.Rise, 1.50);
    EXPECT_LE(screw.Rise, 1.53);
    EXPECT_GE(360 / screw.Turn, 3.58);
    EXPECT_LE(360 / screw.Turn, 3.62);
  }
  for (const Pair& bond : structure.HydrogenBonds()) {
    const double length = structure.Length(bond.A, bond.B);
    EXPECT_GE(length, 2.80);
    EXPECT_LE(length, 3.05);
  }
  EXPECT_LT(structure.At(structure.Atom("1 N")).Y, structure.At(structure.Count()).Y)
      << "the N-terminus stands at the top, where y is small";
}

TEST(AlphaHelix, IsRegularAndRightHanded) {
  Structure helix(kProteins, "Alfa");
  ExpectHelix(helix, 12, "R");
}

TEST(AlphaHelix, EachNitrogenBindsTheOxygenFourResiduesBefore) {
  EXPECT_THAT(HydrogenBondNames(Structure(kProteins, "Alfa")),
              UnorderedElementsAre("5 N-1 O", "6 N-2 O", "7 N-3 O", "8 N-4 O", "9 N-5 O",
                                   "10 N-6 O", "11 N-7 O", "12 N-8 O"));
}

TEST(AlphaHelix, ThePolyalanineIsTheSameHelix) {
  Structure helix(kProteins, "Alfb");
  ExpectHelix(helix, 6, "CB");
}

TEST(AlphaHelix, ThePolyalanineHasTwoHydrogenBonds) {
  EXPECT_THAT(HydrogenBondNames(Structure(kProteins, "Alfb")),
              UnorderedElementsAre("5 N-1 O", "6 N-2 O"));
}

TEST(AlphaHelix, BothTextsHaveTheSameDistancesBetweenBackboneAtoms) {
  Structure plain(kProteins, "Alfa");
  Structure whole(kProteins, "Alfb");
  for (int number = 1; number <= 6; ++number) {
    for (const char* const name : {" N", " CA", " C", " O"}) {
      const std::string label = std::to_string(number) + name;
      EXPECT_NEAR(plain.Length(plain.Atom("1 N"), plain.Atom(label)),
                  whole.Length(whole.Atom("1 N"), whole.Atom(label)), 0.002)
          << label;
    }
  }
}

}  // namespace
}  // namespace orvane
