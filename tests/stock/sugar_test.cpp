// Phosphate, ribose and deoxyribose.

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "stock/nucleic_checks.h"

namespace orvane {
namespace {

using testing::UnorderedElementsAreArray;

constexpr double kLength = 0.002;  // Angstrom: three decimals, and the rounding of the tables
constexpr double kAngle = 0.2;     // degrees

struct Arm {
  const char* Atoms;  // two for a length, three for an angle, four for a torsion
  double Value;
};

void ExpectArms(Structure& structure, std::span<const Arm> arms) {
  for (const Arm& arm : arms) {
    std::vector<int> at;
    for (const std::string& name : WordsOf(arm.Atoms)) at.push_back(structure.Atom("1 " + name));
    if (at.size() == 2) {
      EXPECT_NEAR(structure.Length(at[0], at[1]), arm.Value, kLength) << arm.Atoms;
    } else if (at.size() == 3) {
      EXPECT_NEAR(structure.Angle(at[0], at[1], at[2]), arm.Value, kAngle) << arm.Atoms;
    } else {
      EXPECT_NEAR(structure.Torsion(at[0], at[1], at[2], at[3]), arm.Value, kAngle) << arm.Atoms;
    }
  }
}

TEST(Phosphate, HasTwoBareOxygensAndTwoWithHydrogen) {
  Structure phosphate(kNucleotides, "PHS");
  EXPECT_THAT(phosphate.BondNames(),
              UnorderedElementsAreArray(WordsOf("OP1-P OP2-P OP3-P OP4-P HP3-OP3 HP4-OP4")));
  constexpr Arm kArms[] = {
      {"P OP1", 1.51},      {"P OP2", 1.51},      {"P OP3", 1.57},       {"P OP4", 1.57},
      {"OP3 HP3", 0.98},    {"OP4 HP4", 0.98},    {"OP1 P OP2", 115},    {"OP3 P OP4", 106},
      {"OP1 P OP3", 108.9}, {"OP1 P OP4", 108.9}, {"OP2 P OP3", 108.9},  {"OP2 P OP4", 108.9},
      {"P OP3 HP3", 113},   {"P OP4 HP4", 113},   {"HP3 OP3 P OP4", 80}, {"HP4 OP4 P OP3", 80},
  };
  ExpectArms(phosphate, kArms);
}

// The list ends with the hydroxyl hydrogen of O4, a second H4.
constexpr const char* kRiboseBonds =
    "C4-O1 C1-O1 C1-C2 C1-H1A C1-H1B C2-C3 C2-O2 C2-H2A H2B-O2 C3-C4 C3-O3 C3-H3A H3B-O3 C4-C5 "
    "C4-H4 C5-O4 C5-H5A C5-H5B H4-O4";
constexpr const char* kDeoxyriboseBonds =
    "C4-O1 C1-O1 C1-C2 C1-H1A C1-H1B C2-C3 C2-H2A C2-H2B C3-C4 C3-O3 C3-H3A H3B-O3 C4-C5 C4-H4 "
    "C5-O4 C5-H5A C5-H5B H4-O4";

TEST(Sugars, EveryValenceCloses) {
  EXPECT_THAT(Structure(kNucleotides, "RIB").BondNames(),
              UnorderedElementsAreArray(WordsOf(kRiboseBonds)));
  EXPECT_THAT(Structure(kNucleotides, "DRB").BondNames(),
              UnorderedElementsAreArray(WordsOf(kDeoxyriboseBonds)));
}

TEST(Sugars, TheTwoContactsAreHydrogensOfOneCarbon) {
  for (const char* const row : {"RIB", "DRB"}) {
    Structure sugar(kNucleotides, row);
    std::vector<std::string> contacts;
    for (const Pair& bond : sugar.Bonds()) {
      if (sugar.IsContact(bond)) contacts.push_back(sugar.Name(bond.B) + "-" + sugar.Name(bond.A));
    }
    EXPECT_THAT(contacts, testing::ElementsAre("H1A-H1B", "H5A-H5B")) << row;
  }
}

TEST(Ribose, HasTheLengthsAnglesAndTorsionsOfC2Endo) {
  Structure ribose(kNucleotides, "RIB");
  constexpr Arm kArms[] = {
      {"C1 C2", 1.526},       {"C2 C3", 1.525},      {"C3 C4", 1.527},       {"C4 O1", 1.454},
      {"O1 C1", 1.415},       {"C3 O3", 1.427},      {"C4 C5", 1.509},       {"C5 O4", 1.424},
      {"C2 O2", 1.412},       {"O2 H2B", 0.97},      {"O3 H3B", 0.97},       {"C1 H1A", 1.09},
      {"C1 H1B", 1.09},       {"C2 H2A", 1.09},      {"C3 H3A", 1.09},       {"C4 H4", 1.09},
      {"C5 H5A", 1.09},       {"C5 H5B", 1.09},      {"C2 C3 C4", 102.6},    {"C3 C4 O1", 106.1},
      {"C4 O1 C1", 109.7},    {"C1 C2 O2", 111.8},   {"C3 C2 O2", 114.6},    {"C2 C3 O3", 109.5},
      {"C4 C3 O3", 109.4},    {"C3 C4 C5", 115.2},   {"O1 C4 C5", 109.1},    {"C4 C5 O4", 111.7},
      {"C4 O1 C1 C2", -22.7}, {"O1 C1 C2 C3", 36.7}, {"C1 C2 C3 C4", -36.0}, {"C2 C3 C4 O1", 23.8},
      {"C3 C4 O1 C1", -0.9},  {"O4 C5 C4 C3", 54},
  };
  ExpectArms(ribose, kArms);
  EXPECT_NEAR(ribose.Length(ribose.Atom("1 O4"), ribose.Count()), 0.97, kLength);
  EXPECT_NEAR(ribose.Torsion(ribose.Atom("1 O2"), ribose.Atom("1 C2"), ribose.Atom("1 C3"),
                             ribose.Atom("1 O3")),
              -40, 0.5);  // published to the degree
  // To close the ring, these two are a little off their means, 105.8 and 101.5.
  EXPECT_NEAR(ribose.Angle(ribose.Atom("1 O1"), ribose.Atom("1 C1"), ribose.Atom("1 C2")), 105.8,
              0.5);
  EXPECT_NEAR(ribose.Angle(ribose.Atom("1 C1"), ribose.Atom("1 C2"), ribose.Atom("1 C3")), 101.5,
              0.5);
  const Pucker pucker = PuckerOf(ribose, "1 ", "O1 C1 C2 C3 C4");
  EXPECT_NEAR(pucker.Phase, 163, 1.0);
  EXPECT_NEAR(pucker.Amplitude, 38, 1.0);
}

TEST(Sugars, EveryCarbonHasTheHandOfTheDSeries) {
  for (const char* const row : {"RIB", "DRB"}) {
    const Structure sugar(kNucleotides, row);
    const auto hand = [&](const char* centre, const char* a, const char* b, const char* c) {
      const auto at = [&](const char* name) { return sugar.Atom(std::string("1 ") + name); };
      return sugar.Hand(at(centre), at(a), at(b), at(c));
    };
    EXPECT_LT(hand("C3", "C2", "C4", "O3"), -1.0) << row;
    EXPECT_GT(hand("C4", "C3", "O1", "C5"), 1.0) << row;
    EXPECT_LT(hand("C2", "C1", "C3", row[0] == 'R' ? "O2" : "H2B"), -1.0) << row;
  }
}

// C5 is on the face where a base would be, the oxygens are on the other.
TEST(Sugars, H1BIsOnTheFaceOfTheBase) {
  const Structure ribose(kNucleotides, "RIB");
  const auto at = [&](const char* name) {
    return ribose.At(ribose.Atom(std::string("1 ") + name));
  };
  const Point up = Cross(Minus(at("C1"), at("O1")), Minus(at("C4"), at("O1")));
  const auto above = [&](const char* name, const char* on) {
    return Dot(Minus(at(name), at(on)), up);
  };
  const double side = above("H1B", "C1");
  EXPECT_GT(side * above("C5", "C4"), 0);
  EXPECT_LT(side * above("H1A", "C1"), 0);
  EXPECT_LT(side * above("O2", "C2"), 0);
  EXPECT_LT(side * above("O3", "C3"), 0);
}

TEST(Deoxyribose, IsRiboseWithAHydrogenInThePlaceOfO2) {
  const Structure ribose(kNucleotides, "RIB");
  Structure deoxyribose(kNucleotides, "DRB");
  // Ribose has O2 as its seventh atom and H2B as its eighth; the rest keeps its order.
  for (int i = 1; i <= deoxyribose.Count(); ++i) {
    const int same = i <= 7 ? i : i + 1;
    EXPECT_EQ(deoxyribose.At(i).X, ribose.At(same).X) << i;
    EXPECT_EQ(deoxyribose.At(i).Y, ribose.At(same).Y) << i;
    EXPECT_EQ(deoxyribose.At(i).Z, ribose.At(same).Z) << i;
  }
  EXPECT_EQ(deoxyribose.Name(7), "H2B");
  EXPECT_NEAR(deoxyribose.Length(deoxyribose.Atom("1 C2"), 7), 1.412, kLength);
  EXPECT_NEAR(deoxyribose.Length(deoxyribose.Atom("1 H2A"), 7), 1.956, 0.003);
}

}  // namespace
}  // namespace orvane
