#include <gtest/gtest.h>

#include "stock/chain_checks.h"

namespace orvane {
namespace {

constexpr PeptideGeometry kStrand = {.NCAC = 115.0, .CACN = 115.5, .CACO = 123.0, .OCN = 121.5};

void ExpectStrand(Structure& structure, int residues, const char* side) {
  ExpectPeptide(structure, 1, residues, side, kStrand);
  ExpectTorsions(structure, 1, residues, -119, 113, kTorsionSlack);
  // There are nearly two residues to a turn, so the next alpha carbon but one is twice the rise
  // away.
  for (int number = 1; number + 2 <= residues; ++number) {
    const double rise = structure.Length(structure.Atom(std::to_string(number) + " CA"),
                                         structure.Atom(std::to_string(number + 2) + " CA")) /
                        2;
    EXPECT_GE(rise, 3.25);
    EXPECT_LE(rise, 3.35);
  }
  EXPECT_LT(structure.At(structure.Atom("1 N")).Y, structure.At(structure.Count()).Y)
      << "the N-terminus stands at the top, where y is small";
}

TEST(BetaStrand, IsRegular) {
  Structure strand(kProteins, "Beta");
  ExpectStrand(strand, 6, "R");
}

TEST(BetaStrand, ThePolyalanineIsTheSameStrand) {
  Structure strand(kProteins, "Betb");
  ExpectStrand(strand, 5, "CB");
}

// The nearest pair, N and O of one residue, would be listed at 3.1.
TEST(BetaStrand, NoResidueBindsItself) {
  for (const char* const row : {"Beta", "Betb"}) {
    Structure strand(kProteins, row);
    EXPECT_EQ(strand.Store().HBondCount, 0);
    EXPECT_NEAR(strand.Length(strand.Atom("2 N"), strand.Atom("2 O")), 3.106, 0.003);
  }
}

}  // namespace
}  // namespace orvane
