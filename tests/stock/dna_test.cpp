#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <numbers>

#include "stock/nucleic_checks.h"

namespace orvane {
namespace {

using testing::UnorderedElementsAreArray;

struct Nucleotide {
  int Number;
  char Base;
};
// Each strand from its 5' end to its 3' end.
constexpr Nucleotide kFirst[] = {{2, 'A'}, {3, 'G'}, {4, 'T'}};
constexpr Nucleotide kSecond[] = {{18, 'A'}, {19, 'C'}, {20, 'T'}};
constexpr std::pair<int, int> kPairs[] = {{2, 20}, {3, 19}, {4, 18}};

std::string LabelOf(int number, const char* name) { return std::to_string(number) + " " + name; }

// Turn and rise from level to level of one strand. The bend in the path of an atom through the
// three levels points at the axis. O3* of the first and of the second strand, which are about a
// right angle apart, give its direction.
struct Screw {
  double Turn = 0;  // degrees, positive for a right-handed helix
  double Rise = 0;  // Angstrom
};
Screw ScrewOf(const Structure& structure, std::span<const Nucleotide> strand) {
  const auto at = [&](std::span<const Nucleotide> of, int level) {
    return structure.At(structure.Atom(LabelOf(of[static_cast<std::size_t>(level)].Number, "O3*")));
  };
  const auto bend = [&](std::span<const Nucleotide> of) {
    return Minus(Minus(at(of, 2), at(of, 1)), Minus(at(of, 1), at(of, 0)));
  };
  Point axis = Unit(Cross(bend(kFirst), bend(kSecond)));
  const auto across = [&](const Point& step) {  // without its part along the axis
    const double along = Dot(step, axis);
    return Minus(step, {along * axis.X, along * axis.Y, along * axis.Z});
  };
  const Point low = Minus(at(strand, 1), at(strand, 0));
  const Point high = Minus(at(strand, 2), at(strand, 1));
  if (Dot(low, axis) < 0) axis = {-axis.X, -axis.Y, -axis.Z};
  const double sine = Dot(Cross(across(low), across(high)), axis);
  return {std::atan2(sine, Dot(across(low), across(high))) * 180 / std::numbers::pi,
          Dot(low, axis)};
}

TEST(Dna, EachStrandIsAScrewOfTenNucleotides) {
  const Structure dna(kStrands, "DNA3");
  for (const std::span<const Nucleotide> strand :
       {std::span<const Nucleotide>(kFirst), std::span<const Nucleotide>(kSecond)}) {
    const Screw screw = ScrewOf(dna, strand);
    EXPECT_NEAR(screw.Turn, 36.0, 0.1);
    EXPECT_NEAR(screw.Rise, 3.38, 0.005);
  }
}

TEST(Dna, StrandsAreLinkedFromO3ToTheNextPhosphorus) {
  Structure dna(kStrands, "DNA3");
  for (const std::span<const Nucleotide> strand :
       {std::span<const Nucleotide>(kFirst), std::span<const Nucleotide>(kSecond)}) {
    for (std::size_t i = 0; i + 1 < strand.size(); ++i) {
      const int here = strand[i].Number, next = strand[i + 1].Number;
      const auto at = [&](const char* name) { return dna.Atom(LabelOf(here, name)); };
      const auto after = [&](const char* name) { return dna.Atom(LabelOf(next, name)); };
      // G. Parkinson et al. (1996).
      EXPECT_NEAR(dna.Length(at("O3*"), after("P")), 1.607, 0.004);
      EXPECT_NEAR(dna.Angle(at("O3*"), after("P"), after("O5*")), 104.0, 1.0);
      EXPECT_NEAR(dna.Angle(at("C3*"), at("O3*"), after("P")), 119.7, 1.0);
      EXPECT_NEAR(dna.Torsion(at("O3*"), after("P"), after("O5*"), after("C5*")), -54, 1.0);
      EXPECT_NEAR(std::abs(dna.Torsion(at("C4*"), at("C3*"), at("O3*"), after("P"))), 179, 1.0);
      EXPECT_NEAR(dna.Torsion(at("C3*"), at("O3*"), after("P"), after("O5*")), -110, 1.0);
      EXPECT_NEAR(dna.Length(at("P"), after("P")), 6.82, 0.01);
      // Which of the two free oxygens is the first one.
      const double hand = dna.Hand(after("P"), at("O3*"), after("O5*"), after("O1P"));
      EXPECT_NEAR(hand, 3.2, 0.2);
      EXPECT_LT(dna.Hand(after("P"), at("O3*"), after("O5*"), after("O2P")), -2.0);
      for (const char* const free : {"O1P", "O2P"}) {
        for (const int bridge : {at("O3*"), after("O5*")}) {
          const double angle = dna.Angle(bridge, after("P"), after(free));
          EXPECT_GE(angle, 105.2 - 1.0);
          EXPECT_LE(angle, 110.7 + 1.0);
        }
      }
    }
  }
}

TEST(Dna, EveryNucleotideHasThePublishedGeometry) {
  Structure dna(kStrands, "DNA3");
  for (const std::span<const Nucleotide> strand :
       {std::span<const Nucleotide>(kFirst), std::span<const Nucleotide>(kSecond)}) {
    for (const Nucleotide& nucleotide : strand) {
      SCOPED_TRACE(nucleotide.Number);
      ExpectDeoxyribose(dna, nucleotide.Number, nucleotide.Base);
      const auto at = [&](const char* name) { return dna.Atom(LabelOf(nucleotide.Number, name)); };
      EXPECT_NEAR(dna.Length(at("P"), at("O1P")), 1.485, 0.004);
      EXPECT_NEAR(dna.Length(at("P"), at("O2P")), 1.485, 0.004);
      EXPECT_NEAR(dna.Length(at("P"), at("O5*")), 1.593, 0.004);
      EXPECT_NEAR(dna.Angle(at("O1P"), at("P"), at("O2P")), 119.6, 1.0);
      EXPECT_NEAR(dna.Angle(at("P"), at("O5*"), at("C5*")), 120.9, 1.0);
      EXPECT_NEAR(dna.Torsion(at("P"), at("O5*"), at("C5*"), at("C4*")), 178, 1.0);
    }
  }
}

TEST(Dna, HasTheBondsOfItsNucleotidesAndFourLinks) {
  std::vector<std::string> expected;
  for (const char base : {'A', 'G', 'T', 'A', 'C', 'T'}) {
    for (const auto& names :
         {BondsOfBase(base), BondsOfSugar(base), WordsOf("O1P-P O2P-P O5*-P")}) {
      expected.insert(expected.end(), names.begin(), names.end());
    }
  }
  expected.insert(expected.end(), 4, "O3*-P");
  EXPECT_THAT(Structure(kStrands, "DNA3").BondNames(), UnorderedElementsAreArray(expected));
}

// Hydrogen-bond entries as "2 N6-20 O4", the first strand or the nitrogen first, with their
// lengths.
std::map<std::string, double> EntriesOf(const char* row) {
  Structure dna(kStrands, row);
  std::map<std::string, double> entries;
  for (const Pair& bond : dna.HydrogenBonds()) {
    entries[dna.Label(bond.B) + "-" + dna.Label(bond.A)] = dna.Length(bond.A, bond.B);
  }
  return entries;
}

TEST(Dna, BasePairsAreHeldByTwoAndThreeHydrogenBonds) {
  // N1 and N3 of one ring always count as a pair, since only names and distance matter.
  const std::map<std::string, double> expected = {
      {"2 N6-20 O4", 2.94},  {"2 N1-20 N3", 2.92}, {"3 O6-19 N4", 2.89},  {"3 N1-19 N3", 2.93},
      {"3 N2-19 O2", 2.82},  {"4 O4-18 N6", 2.94}, {"4 N3-18 N1", 2.92},  {"2 N1-2 N3", 2.41},
      {"18 N1-18 N3", 2.41}, {"3 N1-3 N3", 2.38},  {"19 N1-19 N3", 2.37}, {"4 N1-4 N3", 2.31},
      {"20 N1-20 N3", 2.31},
  };
  const std::map<std::string, double> found = EntriesOf("DNA3");
  ASSERT_EQ(found.size(), expected.size());
  for (const auto& [entry, length] : expected) {
    ASSERT_TRUE(found.contains(entry)) << entry;
    EXPECT_NEAR(found.at(entry), length, 0.006) << entry;
  }
}

TEST(Dna, TheNearestFalsePairStaysOutside) {
  Structure dna(kStrands, "DNA3");
  EXPECT_NEAR(dna.Length(dna.Atom("3 N2"), dna.Atom("4 O2")), 3.34, 0.006);  // the limit is 3.3
}

TEST(Dna, ASingleStrandHasNoPairsExceptThoseInItsRings) {
  const auto first = EntriesOf("S1DNA");
  EXPECT_EQ(first.size(), 3u);
  for (const char* const ring : {"2 N1-2 N3", "3 N1-3 N3", "4 N1-4 N3"}) {
    EXPECT_TRUE(first.contains(ring)) << ring;
  }
  const auto second = EntriesOf("S2DNA");
  EXPECT_EQ(second.size(), 3u);
  for (const char* const ring : {"18 N1-18 N3", "19 N1-19 N3", "20 N1-20 N3"}) {
    EXPECT_TRUE(second.contains(ring)) << ring;
  }
}

TEST(Dna, TheDoubleStrandIsTheTwoStrandsOneAfterTheOther) {
  EXPECT_EQ(
      Structure(kStrands, "DNA3").Store().MolText,
      Structure(kStrands, "S1DNA").Store().MolText + Structure(kStrands, "S2DNA").Store().MolText);
}

TEST(Dna, NucleotidesHaveTheirNumbersOfAtoms) {
  const Structure dna(kStrands, "DNA3");
  std::map<int, int> atoms;
  for (int i = 1; i <= dna.Count(); ++i) ++atoms[dna.Store().ResSeq[i]];
  EXPECT_EQ(atoms, (std::map<int, int>{{2, 21}, {3, 22}, {4, 20}, {18, 21}, {19, 19}, {20, 20}}));
}

TEST(Dna, PairedSugarsAreAllTheSameDistanceApart) {
  Structure dna(kStrands, "DNA3");
  for (const auto& [a, b] : kPairs) {
    EXPECT_NEAR(dna.Length(dna.Atom(LabelOf(a, "C1*")), dna.Atom(LabelOf(b, "C1*"))), 10.73, 0.01);
  }
}

TEST(Dna, IsUprightWithTheFirstStrandsBeginningAtTheTop) {
  const Structure dna(kStrands, "DNA3");
  const auto y = [&](int number) { return dna.At(dna.Atom(LabelOf(number, "C1*"))).Y; };
  // y grows downward: level by level, the first strand down and the second one up.
  EXPECT_LT(y(2) + y(20), y(3) + y(19));
  EXPECT_LT(y(3) + y(19), y(4) + y(18));
}

}  // namespace
}  // namespace orvane
