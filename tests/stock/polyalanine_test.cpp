// The two chains that have their hydrogens, ALFB and BETB, and the order of their bond lists, on
// which the plane painter relies.

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "draw/plane_painter.h"
#include "stock/chain_checks.h"

namespace orvane {
namespace {

struct Chain {
  const char* Row;
  int Residues;  // without the copy
};
constexpr Chain kChains[] = {{"Alfb", 6}, {"Betb", 5}};

TEST(Polyalanine, HydrogensAreAtTheirLengths) {
  for (const Chain& chain : kChains) {
    Structure structure(kProteins, chain.Row);
    for (int number = 1; number <= chain.Residues; ++number) {
      SCOPED_TRACE(std::string(chain.Row) + " " + std::to_string(number));
      const auto atom = [&](const char* name) {
        return structure.Atom(std::to_string(number) + " " + name);
      };
      EXPECT_NEAR(structure.Length(atom("H1"), atom("N")), 1.01, kLengthSlack);
      for (const char* const name : {"H5", "H6", "H7"}) {
        EXPECT_NEAR(structure.Length(atom(name), atom("CB")), 1.09, kLengthSlack);
        EXPECT_NEAR(structure.Angle(atom(name), atom("CB"), atom("CA")), 109.5, 0.3);
      }
      // Staggered against the nitrogen.
      const auto over = [&](const char* name) {
        return structure.Torsion(atom("N"), atom("CA"), atom("CB"), atom(name));
      };
      EXPECT_NEAR(std::abs(over("H5")), 180, 0.5);
      EXPECT_NEAR(over("H6"), 60, 0.5);
      EXPECT_NEAR(over("H7"), -60, 0.5);
    }
  }
}

TEST(Polyalanine, TheAmideHydrogenLiesInThePeptidePlane) {
  for (const Chain& chain : kChains) {
    Structure structure(kProteins, chain.Row);
    for (int number = 2; number <= chain.Residues; ++number) {
      const std::string here = std::to_string(number);
      const std::string before = std::to_string(number - 1);
      const int n = structure.Atom(here + " N"), h = structure.Atom(here + " H1");
      const int c = structure.Atom(before + " C"), ca = structure.Atom(here + " CA");
      EXPECT_NEAR(structure.Angle(c, n, h), 119.2, 0.3);
      EXPECT_NEAR(structure.Angle(h, n, ca), 119.1, 0.3);
      EXPECT_NEAR(std::abs(structure.Torsion(structure.Atom(before + " O"), c, n, h)), 180, 1.0);
    }
  }
}

// H4 is drawn in towards C, so that the list of bonds has one more entry. It is still apart from
// everything else.
TEST(Polyalanine, H4IsDrawnInAndTouchesNothingElse) {
  for (const Chain& chain : kChains) {
    Structure structure(kProteins, chain.Row);
    for (int number = 1; number <= chain.Residues; ++number) {
      const std::string here = std::to_string(number);
      const int h4 = structure.Atom(here + " H4");
      const int ca = structure.Atom(here + " CA"), c = structure.Atom(here + " C");
      EXPECT_NEAR(structure.Length(h4, ca), 0.900, kLengthSlack);
      EXPECT_NEAR(structure.Length(h4, c), 1.845, kLengthSlack);
      EXPECT_NEAR(structure.Angle(c, ca, h4), 95.6, 0.3);
      for (int other = 1; other <= structure.Count(); ++other) {
        const double length = structure.Length(h4, other);
        if (length == 0 || structure.Label(other) == here + " CA" ||
            structure.Label(other) == here + " C") {
          continue;
        }
        EXPECT_GT(length, 1.95) << chain.Row << " " << here << " to " << structure.Label(other);
      }
    }
  }
}

// One residue's entries in the order of the list; ' marks the next residue. The last pair is the
// peptide bond, which begins the entries of the next residue.
constexpr const char* kEntries[] = {"CA-N",  "C-CA",  "O-C",   "CB-CA", "H1-N",  "H4-CA", "H4-C",
                                    "H5-CB", "H6-CB", "H6-H5", "H7-CB", "H7-H5", "H7-H6", "N'-C"};

TEST(Polyalanine, FourteenEntriesLeadFromOneResidueToTheNext) {
  for (const Chain& chain : kChains) {
    const Structure structure(kProteins, chain.Row);
    const std::vector<Pair> bonds = structure.Bonds();
    const std::size_t entries = 14u * static_cast<unsigned>(chain.Residues) - 1;  // no last N'-C
    ASSERT_GE(bonds.size(), entries);
    for (std::size_t b = 0; b < entries; ++b) {
      const int residue = 1 + static_cast<int>(b / 14);
      const bool next = structure.Store().ResSeq[bonds[b].A] == residue + 1;
      EXPECT_EQ(structure.Name(bonds[b].A) + (next ? "'-" : "-") + structure.Name(bonds[b].B),
                kEntries[b % 14])
          << chain.Row << " " << b;
      EXPECT_EQ(structure.Store().ResSeq[bonds[b].B], residue);
    }
  }
}

TEST(Polyalanine, TheListHasNothingButThoseEntries) {
  // Six residues of fourteen, without the peptide bond after the last one.
  EXPECT_EQ(Structure(kProteins, "Alfb").Bonds().size(), 6u * 14 - 1);
  // Five residues have 69. The copy adds its own 13, each of them once more from copy to residue
  // and from residue to copy, and the bond to residue 4.
  EXPECT_EQ(Structure(kProteins, "Betb").Bonds().size(), 69u + 13 + 26 + 1);
}

// "2 N-1 C", the higher residue first, for each line of the picture.
std::vector<std::string> PlaneLines(const char* row) {
  Structure structure(kProteins, row);
  structure.Desk().drawing.PlanesOnly = 1;
  PaintPlanes(structure.Desk());
  std::vector<std::string> names;
  for (const AtomLine& line : structure.Lines()) {
    EXPECT_TRUE(line.From != 0 && line.To != 0);
    names.push_back(structure.Label(line.From) + "-" + structure.Label(line.To));
  }
  return names;
}

// The lines of the peptide group between residues k and k + 1.
std::set<std::string> GroupLines(int k) {
  const std::string here = std::to_string(k), next = std::to_string(k + 1);
  return {here + " C-" + next + " N", here + " O-" + here + " CA", here + " O-" + next + " CA",
          next + " H1-" + next + " CA", here + " CA-" + next + " H1"};
}

TEST(Polyalanine, EveryPeptideGroupOfTheHelixShowsItsPlane) {
  const std::vector<std::string> lines = PlaneLines("Alfb");
  EXPECT_EQ(lines.size(), 27u);
  std::set<std::string> expected;
  for (int k = 1; k <= 5; ++k) expected.merge(GroupLines(k));
  // The last oxygen and the first amide hydrogen have no second residue, but one line each.
  expected.insert({"6 O-6 CA", "1 H1-1 CA"});
  EXPECT_EQ(std::set<std::string>(lines.begin(), lines.end()), expected);
}

TEST(Polyalanine, EveryPeptideGroupOfTheStrandShowsItsPlane) {
  const std::vector<std::string> lines = PlaneLines("Betb");
  EXPECT_EQ(lines.size(), 25u);
  std::set<std::string> expected;
  for (int k = 1; k <= 4; ++k) expected.merge(GroupLines(k));
  expected.insert({"5 O-5 CA", "1 H1-1 CA"});
  EXPECT_EQ(expected.size(), 22u);
  // Three lines end at the copy of the last residue and lie on lines of the residue under it. The
  // third is drawn the other way round.
  expected.insert("5 CA-5 H1");
  EXPECT_EQ(std::set<std::string>(lines.begin(), lines.end()), expected);
}

TEST(Polyalanine, TheLastResidueOfTheStrandLiesOnItself) {
  const Structure strand(kProteins, "Betb");
  const std::string& text = strand.Store().MolText;
  EXPECT_EQ(text.substr(40 * 55, 10 * 55), text.substr(50 * 55));
  for (int i = 41; i <= 50; ++i) {
    EXPECT_EQ(strand.At(i).X, strand.At(i + 10).X);
    EXPECT_EQ(strand.At(i).Y, strand.At(i + 10).Y);
    EXPECT_EQ(strand.At(i).Z, strand.At(i + 10).Z);
  }
}

}  // namespace
}  // namespace orvane
