// Bases, nucleosides and single nucleotides.

#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "stock/nucleic_checks.h"
#include "stock_maker/table.h"

namespace orvane {
namespace {

using testing::UnorderedElementsAreArray;

struct Family {
  char Letter;
  const char *Base, *Nucleoside, *Nucleotide;  // rows of the list
  int Number;                                  // of the nucleotide
};
constexpr std::array<Family, 4> kFamilies = {{
    {'A', "dA", "As", "A ", 7},
    {'C', "dC", "Cs", "C ", 6},
    {'G', "dG", "Gs", "G ", 3},
    {'T', "dT", "Ts", "T ", 4},
}};

std::vector<std::string> Joined(std::vector<std::string> a, const std::vector<std::string>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// Every distance between two atoms of `part` is the same in `whole`.
void ExpectSameShape(Structure& part, Structure& whole, double slack) {
  const std::string there = std::to_string(whole.Store().ResSeq[1]) + " ";
  for (int i = 1; i <= part.Count(); ++i) {
    for (int j = 1; j < i; ++j) {
      EXPECT_NEAR(part.Length(i, j),
                  whole.Length(whole.Atom(there + part.Name(i)), whole.Atom(there + part.Name(j))),
                  slack)
          << part.Name(i) << " " << part.Name(j);
    }
  }
}

TEST(Bases, HaveTheirBonds) {
  for (const Family& family : kFamilies) {
    EXPECT_THAT(Structure(kNucleotides, family.Base).BondNames(),
                UnorderedElementsAreArray(BondsOfBase(family.Letter)));
  }
}

TEST(Bases, ArePlanar) {
  for (const Family& family : kFamilies) {
    const Structure base(kNucleotides, family.Base);
    std::vector<int> atoms;
    for (int i = 1; i <= base.Count(); ++i) atoms.push_back(i);
    EXPECT_LE(LargestDistanceFromPlane(base, atoms), 0.002) << family.Letter;
  }
}

TEST(Bases, HaveTheShapesOfTheStandardBases) {
  stock_maker::Table table;
  stock_maker::ReadTableFile(table, ORVANE_SOURCE_DIR "/tools/stock_maker/tables",
                             "base_frames.tsv");
  for (const Family& family : kFamilies) {
    Structure base(kNucleotides, family.Base);
    int compared = 0;
    for (const stock_maker::Row& a : table.rows) {
      for (const stock_maker::Row& b : table.rows) {
        const std::string &first = Field(a, "atom"), &second = Field(b, "atom");
        if (Field(a, "base").front() != family.Letter || Field(b, "base") != Field(a, "base") ||
            first == "C1*" || second == "C1*" || first >= second) {
          continue;
        }
        EXPECT_NEAR(base.Length(base.Atom("1 " + first), base.Atom("1 " + second)),
                    std::hypot(Number(a, "x") - Number(b, "x"), Number(a, "y") - Number(b, "y")),
                    0.003)
            << family.Letter << " " << first << " " << second;
        ++compared;
      }
    }
    EXPECT_EQ(compared, base.Count() * (base.Count() - 1) / 2);
  }
}

// O6 and N7 of guanine are close to the window of hydrogen bonds, which ends at 3.1.
TEST(Bases, GuanineBindsNothingInItself) {
  Structure guanine(kNucleotides, "dG");
  EXPECT_EQ(guanine.Store().HBondCount, 0);
  EXPECT_NEAR(guanine.Length(guanine.Atom("1 O6"), guanine.Atom("1 N7")), 3.103, 0.002);
}

TEST(Nucleosides, AreASugarAndTheBase) {
  for (const Family& family : kFamilies) {
    SCOPED_TRACE(family.Nucleoside);
    Structure nucleoside(kNucleotides, family.Nucleoside);
    Structure base(kNucleotides, family.Base);
    EXPECT_THAT(
        nucleoside.BondNames(),
        UnorderedElementsAreArray(Joined(BondsOfBase(family.Letter), BondsOfSugar(family.Letter))));
    ExpectSameShape(base, nucleoside, 0.002);
    ExpectDeoxyribose(nucleoside, 1, family.Letter);
  }
}

TEST(Nucleotides, AreThePhosphateAndTheNucleoside) {
  for (const Family& family : kFamilies) {
    SCOPED_TRACE(family.Nucleotide);
    Structure nucleotide(kNucleotides, family.Nucleotide);
    Structure nucleoside(kNucleotides, family.Nucleoside);
    EXPECT_THAT(nucleotide.BondNames(),
                UnorderedElementsAreArray(
                    Joined(Joined(BondsOfBase(family.Letter), BondsOfSugar(family.Letter)),
                           WordsOf("O1P-P O2P-P O3P-P O5*-P"))));
    ExpectSameShape(nucleoside, nucleotide, 0.002);
    ExpectDeoxyribose(nucleotide, family.Number, family.Letter);
  }
}

// M. Kowiel et al. (2016): Angstrom and degrees.
TEST(Nucleotides, EndInAMonophosphate) {
  for (const Family& family : kFamilies) {
    SCOPED_TRACE(family.Nucleotide);
    Structure nucleotide(kNucleotides, family.Nucleotide);
    const auto atom = [&](const char* name) {
      return nucleotide.Atom(std::to_string(family.Number) + " " + name);
    };
    const int p = atom("P"), o5 = atom("O5*"), c5 = atom("C5*");
    EXPECT_NEAR(nucleotide.Length(p, o5), 1.622, 0.002);
    EXPECT_NEAR(nucleotide.Angle(c5, o5, p), 119.0, 0.2);
    EXPECT_NEAR(nucleotide.Torsion(p, o5, c5, atom("C4*")), 178, 1.0);
    constexpr struct {
      const char* Name;
      double Angle, Torsion;
    } kOxygens[] = {{"O1P", 102.8, 180}, {"O2P", 107.4, 60}, {"O3P", 107.4, -60}};
    for (const auto& oxygen : kOxygens) {
      EXPECT_NEAR(nucleotide.Length(p, atom(oxygen.Name)), 1.514, 0.002);
      EXPECT_NEAR(nucleotide.Angle(o5, p, atom(oxygen.Name)), oxygen.Angle, 0.2);
      EXPECT_NEAR(std::abs(nucleotide.Torsion(c5, o5, p, atom(oxygen.Name))),
                  std::abs(oxygen.Torsion), 0.2);
    }
    EXPECT_GT(nucleotide.Torsion(c5, o5, p, atom("O2P")), 0);
    EXPECT_LT(nucleotide.Torsion(c5, o5, p, atom("O3P")), 0);
    for (const auto& [a, b] :
         {std::pair("O1P", "O2P"), std::pair("O1P", "O3P"), std::pair("O2P", "O3P")}) {
      const double angle = nucleotide.Angle(atom(a), p, atom(b));
      EXPECT_GE(angle, 111.4);
      EXPECT_LE(angle, 113.6);
    }
  }
}

}  // namespace
}  // namespace orvane
