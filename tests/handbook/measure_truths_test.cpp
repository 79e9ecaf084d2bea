// docs/handbook/truths.md, "Measures" and "Bonds and hydrogen bonds": each number of the page.
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "core/records.h"
#include "handbook/student.h"

namespace orvane {
namespace {

constexpr std::string_view kPage = "docs/handbook/truths.md";

// What is left of a torsion without its quadrant: a size between 90 and 180, or 0.
double Folded(double torsion) {
  const double size = std::abs(torsion);
  return size < 90 ? 180 - size : size;
}

TEST(Truths, ATorsionIsShownBetween90And180) {
  // Every torsion of four successive atoms of the largest amino acid, whatever its true size.
  Student tryptophan(kAminoAcids, "TRP");
  for (int a = 1; a + 3 <= tryptophan.Count(); ++a) {
    const double shown = tryptophan.ShownTorsion(a, a + 1, a + 2, a + 3, 0);
    EXPECT_NEAR(std::abs(shown), Folded(tryptophan.Torsion(a, a + 1, a + 2, a + 3)), 0.01) << a;
  }
}

TEST(Truths, TheHelixReadsMinus123AndMinus133) {
  Student helix(kProteins, "Alfb");
  const std::vector<std::string> phi{"3 C", "4 N", "4 CA", "4 C"};
  const std::vector<std::string> psi{"4 N", "4 CA", "4 C", "5 N"};
  EXPECT_EQ(helix.Measure(phi).substr(0, 6), "PHI > ");
  EXPECT_NEAR(helix.Value(), -(180 - 57), 0.1);
  EXPECT_EQ(helix.Measure(psi).substr(0, 6), "PSI > ");
  EXPECT_NEAR(helix.Value(), -(180 - 47), 0.1);
  EXPECT_TRUE(Says(kPage, "the helix has phi -57 and psi -47 and reads `-123` and `-133`"));

  Student strand(kProteins, "Betb");
  strand.Measure({"2 C", "3 N", "3 CA", "3 C"});
  EXPECT_NEAR(strand.Value(), -119, 0.1);
  strand.Measure({"3 N", "3 CA", "3 C", "4 N"});
  EXPECT_NEAR(strand.Value(), 113, 0.1);
}

TEST(Truths, CisAndTransReadAlike) {
  Student dipeptide(kProteins, "PEP");
  const auto true_torsion = [&](const char* first) {
    return dipeptide.Torsion(dipeptide.Atom(first), dipeptide.Atom("1 C!"), dipeptide.Atom("2 N!"),
                             dipeptide.Atom("2 CA2"));
  };
  EXPECT_NEAR(std::abs(true_torsion("1 CA1")), 180, 0.1);
  EXPECT_NEAR(true_torsion("1 O!"), 0, 0.1);

  dipeptide.Measure({"1 CA1", "1 C!", "2 N!", "2 CA2"});
  EXPECT_NEAR(std::abs(dipeptide.Value()), 180, 0.1);
  EXPECT_TRUE(Says(kPage, "is trans, reads " + Quoted(dipeptide.Value(), 2)));
  dipeptide.Measure({"1 O!", "1 C!", "2 N!", "2 CA2"});
  EXPECT_NEAR(std::abs(dipeptide.Value()), 180, 0.1);
  EXPECT_TRUE(Says(kPage, "is cis, reads " + Quoted(dipeptide.Value(), 2)));

  // Across the bond is farther than along one side.
  dipeptide.Measure({"1 CA1", "2 CA2"});
  EXPECT_TRUE(Says(kPage, "CA1 to CA2 is " + Quoted(dipeptide.Value(), 2)));
  const double across = dipeptide.Value();
  dipeptide.Measure({"1 O!", "2 CA2"});
  EXPECT_TRUE(Says(kPage, "O! to CA2 is " + Quoted(dipeptide.Value(), 2)));
  EXPECT_GT(across, dipeptide.Value() + 0.5);
}

TEST(Truths, OtherSignsFollowTheMiddleBondAndNotTheHand) {
  // A torsion and its supplement differ by 180. Which of the two signs is shown depends on whether
  // the middle bond runs away from the eye, along z, or towards it.
  Student student(kAminoAcids, "LYS");
  int against = 0;
  for (int a = 1; a + 3 <= student.Count(); ++a) {
    const double torsion = student.Torsion(a, a + 1, a + 2, a + 3);
    const double shown = student.ShownTorsion(a, a + 1, a + 2, a + 3, 0);
    const bool away = student.At(a + 2).Z > student.At(a + 1).Z;
    const double apart = shown - (away ? torsion : -torsion);
    EXPECT_NEAR(std::remainder(apart, 180), 0, 0.01) << a;
    against += away ? 0 : 1;
  }
  EXPECT_GT(against, 0);
  EXPECT_LT(against, student.Count() - 3);
}

TEST(Truths, TheSixChainsHaveTheSignsOfATextbook) {
  for (const char* row : {"Alfa", "Alfb", "Beta", "Betb", "PBS", "APBS"}) {
    Student chain(kProteins, row);
    const std::vector<int> carbons = chain.Named("C");
    // In all six a residue begins N, CA, C.
    const int c = carbons[0], next = carbons[1];
    EXPECT_LT(chain.ShownTorsion(c, next - 2, next - 1, next, 0), 0) << row;
    const double psi = chain.ShownTorsion(c - 2, c - 1, c, next - 2, 1);
    EXPECT_EQ(psi < 0, std::string(row).starts_with("Alf")) << row << " " << psi;
    EXPECT_TRUE(Says(kPage, "`" + std::string(row) + "`"));
  }
}

TEST(Truths, PhiIsRecognisedByNamesInThisOrder) {
  Student helix(kProteins, "Alfb");
  EXPECT_EQ(helix.Measure({"4 C", "4 CA", "4 N", "3 C"}).substr(0, 6), "Tor > ");
  Student dipeptide(kProteins, "PEP");
  EXPECT_EQ(dipeptide.Measure({"1 C!", "2 N!", "2 CA2", "2 C"}).substr(0, 6), "Tor > ");
  // They need not be neighbours: C is of the first residue, the rest of the fourth.
  EXPECT_EQ(helix.Measure({"1 C", "4 N", "4 CA", "4 C"}).substr(0, 6), "PHI > ");
}

TEST(Truths, ATurnBetweenPressAndButtonSpoilsTheMeasure) {
  Student alanine(kAminoAcids, "ALA");
  const std::string right = alanine.Measure({"1 N", "1 CA"});
  EXPECT_TRUE(Says(kPage, "N to CA is " + Quoted(alanine.Value(), 2)));

  alanine.PressOn({"1 N", "1 CA"});
  StepBar(alanine.Desk(), alanine.Main().VScroll1, 11);
  // In place of N it measures the last atom, H7, where the turn has put it.
  const Molecule& store = alanine.Store();
  const int last = alanine.Count();
  const Point turned{store.CurX[last], store.CurY[last], store.CurZ[last]};
  const Point way = Minus(turned, alanine.At(alanine.Atom("1 CA")));
  Click(alanine.Desk(), alanine.Main().Bt3_Dts);
  EXPECT_NEAR(alanine.Value(), std::sqrt(Dot(way, way)), 0.005);
  EXPECT_TRUE(Says(kPage, "you read " + Quoted(alanine.Value(), 2)));
  // The names are those that were pressed.
  const std::string wrong = alanine.Main().P_Dst_Show.Caption;
  EXPECT_EQ(wrong.substr(0, wrong.find(':')), right.substr(0, right.find(':')));
}

TEST(Truths, TwoAtomsOfTheHelixCannotBePressedAlone) {
  const Student helix(kProteins, "Alfa");
  int hidden = 0;
  for (int atom = 1; atom <= helix.Count(); ++atom) hidden += helix.CanPressAlone(atom) ? 0 : 1;
  EXPECT_EQ(hidden, 2);
  EXPECT_EQ(helix.Count(), 60);
  EXPECT_TRUE(Says(kPage, "two of the sixty atoms cannot be pressed alone"));
}

TEST(Truths, AMeasureSwitchesTheNamesOffAndLeavesTheCaption) {
  Student alanine(kAminoAcids, "ALA");
  Click(alanine.Desk(), alanine.Main().Bt3_Label);
  alanine.Measure({"1 N", "1 CA"});
  EXPECT_EQ(alanine.Main().Bt3_Label.Caption.Get(), "Label On");
  EXPECT_EQ(alanine.Desk().drawing.LabelsOn, 0);
}

TEST(Truths, EveryAtomOfAnAminoAcidIsCalledGly1) {
  Student tryptophan(kAminoAcids, "TRP");
  for (int atom = 1; atom <= tryptophan.Count(); ++atom) {
    EXPECT_EQ(tryptophan.Store().ResName[atom], "GLY");
    EXPECT_EQ(tryptophan.Store().ResSeq[atom], 1);
  }
}

// Entries of the list of hydrogen bonds, row by row; rows that are not here have none.
TEST(Truths, HydrogenBondsAreCounted) {
  const std::map<std::string, int> counts{{"SER", 2},   {"PEP", 2},   {"Alfa", 8},
                                          {"Alfb", 2},  {"PBS", 12},  {"APBS", 14},
                                          {"S1DNA", 3}, {"S2DNA", 3}, {"DNA3", 13}};
  for (const Rows list : {kAminoAcids, kProteins, kNucleotides, kStrands}) {
    DeskAtWork work;
    for (std::size_t row = 0; row < (work.desk.main.*list).Rows.Get().size(); ++row) {
      SelectRow(work.desk, work.desk.main.*list, static_cast<int>(row));
      const std::string key = KeysOf(work.desk.main.*list)[row];
      const auto known = counts.find(key);
      const int otherwise = list == kAminoAcids ? 1 : 0;
      EXPECT_EQ(work.desk.molecule.HBondCount, known == counts.end() ? otherwise : known->second)
          << key;
    }
  }
  EXPECT_TRUE(Says(kPage, "`DNA3` shows 13, of which 7 join the strands and 6 run across a ring"));
  EXPECT_TRUE(Says(kPage, "`Alfa` shows 8, `Alfb` 2, `PBS` 12, `APBS` 14"));
}

TEST(Truths, SevenJoinTheStrandsAndSixRunAcrossARing) {
  const Student dna(kStrands, "DNA3");
  int between = 0, across = 0;
  for (const Pair& pair : dna.HydrogenBonds()) {
    const bool one_base = dna.Store().ResSeq[pair.A] == dna.Store().ResSeq[pair.B];
    ++(one_base ? across : between);
    if (one_base) {
      EXPECT_EQ((std::set<std::string>{dna.Name(pair.A), dna.Name(pair.B)}),
                (std::set<std::string>{"N1", "N3"}));
    }
  }
  EXPECT_EQ(between, 7);
  EXPECT_EQ(across, 6);
}

TEST(Truths, TheLengthsOfFalseHydrogenBondsAreAsThePageSays) {
  Student alanine(kAminoAcids, "ALA");
  alanine.Measure({"1 N", "1 O"});
  EXPECT_TRUE(Says(kPage, "N to O of the same residue, " + Quoted(alanine.Value(), 2)));
  Student serine(kAminoAcids, "SER");
  serine.Measure({"1 N", "1 OG"});
  EXPECT_TRUE(Says(kPage, "N to OG, " + Quoted(serine.Value(), 2)));
  Student dipeptide(kProteins, "PEP");
  for (const std::vector<std::string>& pair :
       {std::vector<std::string>{"1 N", "1 O!"}, {"2 N!", "2 O"}}) {
    dipeptide.Measure(pair);
    EXPECT_TRUE(Says(kPage, "shows two of " + Quoted(dipeptide.Value(), 2)));
  }
}

// Two atoms along x, and a third far away so that they are not the whole structure.
Molecule& Apart(DeskAtWork& work, const char* first, const char* second, double apart) {
  Load(work.desk, Record(first, 0, 0, 0) + Record(second, apart, 0, 0) + Record("R", 0, 9, 0));
  return work.desk.molecule;
}

TEST(Truths, TheLimitsAreThoseOfThePage) {
  DeskAtWork work;
  EXPECT_EQ(Apart(work, "C", "S", 1.85).BondCount, 1);
  EXPECT_EQ(Apart(work, "C", "S", 1.86).BondCount, 0);
  EXPECT_TRUE(Says(kPage, "A bond is a distance of 1.85 or less"));

  EXPECT_EQ(Apart(work, "N", "OG", 2.70).HBondCount, 0);
  EXPECT_EQ(Apart(work, "N", "OG", 2.71).HBondCount, 1);
  EXPECT_EQ(Apart(work, "N", "OG", 3.10).HBondCount, 1);
  EXPECT_EQ(Apart(work, "N", "OG", 3.11).HBondCount, 0);
  EXPECT_TRUE(Says(kPage, "any N and any O more than 2.7 and up to 3.1 apart"));

  work.desk.drawing.NucleicMode = 1;
  EXPECT_EQ(Apart(work, "N6", "O4", 2.00).HBondCount, 0);
  EXPECT_EQ(Apart(work, "N6", "O4", 2.01).HBondCount, 1);
  EXPECT_EQ(Apart(work, "N4", "O6", 3.30).HBondCount, 1);
  EXPECT_EQ(Apart(work, "N2", "O2", 3.31).HBondCount, 0);
  EXPECT_EQ(Apart(work, "N2", "O4", 3.00).HBondCount, 0);
  EXPECT_TRUE(Says(kPage, "N1-N3, N6-O4, N4-O6 and N2-O2 more than 2.0 and up to 3.3 apart"));
}

TEST(Truths, TheSpeckInTheCornerIsPaintedWhenTheListIsAtItsEnd) {
  Student alanine(kAminoAcids, "ALA");
  Click(alanine.Desk(), alanine.Main().Bt3_HBD);
  int specks = 0;
  for (const Stroke& line : alanine.Lines(alanine.Main().Picture1)) {
    if (line.X1 == 0 && line.Y1 == 0 && line.X2 == 0 && line.Y2 == 0) ++specks;
  }
  // Two halves for each bond whose number has no entry in the list.
  EXPECT_EQ(specks, 2 * (alanine.Store().BondCount - alanine.Store().HBondCount));
}

}  // namespace
}  // namespace orvane
