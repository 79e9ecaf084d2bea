#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "stock/chain_checks.h"

namespace orvane {
namespace {

using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

constexpr PeptideGeometry kStrand = {.NCAC = 115.0, .CACN = 115.5, .CACO = 123.0, .OCN = 121.5};

struct Run {
  int First, Last;  // residues
};
constexpr Run kParallel[] = {{47, 53}, {70, 75}, {110, 116}};
constexpr Run kAntiparallel[] = {{112, 118}, {139, 145}, {152, 158}};

void ExpectStrands(const char* row, std::span<const Run> runs) {
  Structure sheet(kProteins, row);
  for (const Run& run : runs) {
    ExpectPeptide(sheet, run.First, run.Last, "R", kStrand);
    ExpectTorsions(sheet, run.First, run.Last, -116.6, 113.0, kTorsionSlack);
  }
}

TEST(ParallelSheet, HasThreeFlatStrands) { ExpectStrands("PBS", kParallel); }

TEST(AntiparallelSheet, HasThreeFlatStrands) { ExpectStrands("APBS", kAntiparallel); }

// A residue gives its hydrogen to one residue of the next strand and takes one from the next but
// one.
TEST(ParallelSheet, IsHeldByTwelveHydrogenBonds) {
  EXPECT_THAT(HydrogenBondNames(Structure(kProteins, "PBS")),
              UnorderedElementsAre("71 N-47 O", "49 N-71 O", "73 N-49 O", "51 N-73 O", "75 N-51 O",
                                   "53 N-75 O", "48 N-110 O", "112 N-48 O", "50 N-112 O",
                                   "114 N-50 O", "52 N-114 O", "116 N-52 O"));
}

// Two bonds between every second pair of opposite residues.
TEST(AntiparallelSheet, IsHeldByFourteenHydrogenBonds) {
  std::vector<std::string> expected;
  for (const auto& [a, b] :
       {std::pair("139", "158"), std::pair("141", "156"), std::pair("143", "154"),
        std::pair("145", "152"), std::pair("140", "117"), std::pair("142", "115"),
        std::pair("144", "113")}) {
    expected.push_back(std::string(a) + " N-" + b + " O");
    expected.push_back(std::string(b) + " N-" + a + " O");
  }
  EXPECT_THAT(HydrogenBondNames(Structure(kProteins, "APBS")), UnorderedElementsAreArray(expected));
}

TEST(Sheets, HydrogenBondsAreOfOneLength) {
  for (const auto& [row, length] : {std::pair("PBS", 2.860), std::pair("APBS", 2.870)}) {
    Structure sheet(kProteins, row);
    for (const Pair& bond : sheet.HydrogenBonds()) {
      EXPECT_NEAR(sheet.Length(bond.A, bond.B), length, 0.002) << row;
    }
  }
}

// From strand to strand: from an alpha carbon to the one beside it.
TEST(ParallelSheet, StrandsAreNearlyFiveAngstromApart) {
  Structure sheet(kProteins, "PBS");
  for (int step = 0; step < 6; ++step) {
    const int middle = sheet.Atom(std::to_string(47 + step) + " CA");
    for (const int first : {70, 110}) {
      const double apart = sheet.Length(middle, sheet.Atom(std::to_string(first + step) + " CA"));
      EXPECT_GE(apart, 4.7);
      EXPECT_LE(apart, 5.0);
    }
  }
}

TEST(AntiparallelSheet, StrandsAreNearlyFiveAngstromApart) {
  Structure sheet(kProteins, "APBS");
  for (int step = 0; step < 7; ++step) {
    const int middle = sheet.Atom(std::to_string(139 + step) + " CA");
    for (const int last : {158, 118}) {
      const double apart = sheet.Length(middle, sheet.Atom(std::to_string(last - step) + " CA"));
      EXPECT_GE(apart, 4.7);
      EXPECT_LE(apart, 5.0);
    }
  }
}

// The direction of a strand from its first to its last alpha carbon.
Point Along(const Structure& sheet, const Run& run) {
  return Unit(Minus(sheet.At(sheet.Atom(std::to_string(run.Last) + " CA")),
                    sheet.At(sheet.Atom(std::to_string(run.First) + " CA"))));
}

TEST(Sheets, StrandsRunTheSameWayOrAgainstEachOther) {
  const Structure parallel(kProteins, "PBS");
  const Structure anti(kProteins, "APBS");
  const Point down = Along(parallel, kParallel[0]);
  EXPECT_GT(Dot(down, Along(parallel, kParallel[1])), 0.95);
  EXPECT_GT(Dot(down, Along(parallel, kParallel[2])), 0.95);
  const Point middle = Along(anti, kAntiparallel[1]);
  EXPECT_LT(Dot(middle, Along(anti, kAntiparallel[0])), -0.95);
  EXPECT_LT(Dot(middle, Along(anti, kAntiparallel[2])), -0.95);
}

TEST(Sheets, TheMiddleStrandStandsUprightBetweenTheOthers) {
  for (const auto& [row, middle, left, right] :
       {std::tuple("PBS", 50, 113, 73), std::tuple("APBS", 142, 115, 155)}) {
    const Structure sheet(kProteins, row);
    const auto x = [&](int number) {
      return sheet.At(sheet.Atom(std::to_string(number) + " CA")).X;
    };
    EXPECT_GT((x(middle) - x(left)) * (x(right) - x(middle)), 0) << row;
    EXPECT_GT(Along(sheet, {middle - 3, middle + 3}).Y, 0.85) << row;  // N-terminus at the top
  }
}

}  // namespace
}  // namespace orvane
