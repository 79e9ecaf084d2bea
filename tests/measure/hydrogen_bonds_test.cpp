#include "measure/hydrogen_bonds.h"

#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

// How many hydrogen bonds two atoms this far apart have. The position is set directly and not by
// the columns of a record, so that it meets the edge of a window to the last bit.
int Found(std::string_view one, std::string_view other, double length, int nucleic_mode) {
  DeskAtWork work;
  work.desk.drawing.NucleicMode = nucleic_mode;
  Load(work.desk, Record(one, 0, 0, 0) + Record(other, 5, 0, 0));
  work.desk.molecule.CurX[2] = length;
  FindHydrogenBonds(work.desk);
  return work.desk.molecule.HBondCount;
}

TEST(HydrogenBonds, ANitrogenAndAnOxygenInTheWindowHaveOneInEitherOrder) {
  EXPECT_EQ(Found("N", "O", 2.9, 0), 1);
  EXPECT_EQ(Found("O", "N", 2.9, 0), 1);
  EXPECT_EQ(Found("NE2", "OD1", 2.9, 0), 1);  // side chains count like the backbone
}

TEST(HydrogenBonds, OtherPairsHaveNone) {
  EXPECT_EQ(Found("O", "O", 2.9, 0), 0);
  EXPECT_EQ(Found("N", "N", 2.9, 0), 0);
  EXPECT_EQ(Found("C", "O", 2.9, 0), 0);
}

TEST(HydrogenBonds, TheWindowIsOpenBelowAndClosedAbove) {
  EXPECT_EQ(Found("N", "O", 2.7F, 0), 0);
  EXPECT_EQ(Found("N", "O", 3.1F, 0), 1);
  EXPECT_EQ(Found("N", "O", 2.71, 0), 1);
  EXPECT_EQ(Found("N", "O", 3.11, 0), 0);
}

TEST(HydrogenBonds, TheDistanceIsComparedIn32Bits) {
  // 2.7 and 3.1 in 64 bits lie next to their 32-bit values and round to them.
  EXPECT_EQ(Found("N", "O", 2.7, 0), 0);
  EXPECT_EQ(Found("N", "O", 3.1, 0), 1);
  EXPECT_EQ(Found("N", "O", 3.1F + 1e-8, 0), 1);
}

TEST(HydrogenBonds, BasePairsGoByTwoCharactersInEitherOrder) {
  for (const auto& [one, other] :
       {std::pair{"N1", "N3"}, {"N6", "O4"}, {"N4", "O6"}, {"N2", "O2"}}) {
    EXPECT_EQ(Found(one, other, 2.9, 1), 1) << one << other;
    EXPECT_EQ(Found(other, one, 2.9, 1), 1) << other << one;
    EXPECT_EQ(Found(one, other, 2.0F, 1), 0) << one << other;
    EXPECT_EQ(Found(one, other, 3.3F, 1), 1) << one << other;
    EXPECT_EQ(Found(one, other, 3.31, 1), 0) << one << other;
  }
}

TEST(HydrogenBonds, NamesOutsideTheBasePairTableHaveNone) {
  EXPECT_EQ(Found("N", "O", 2.9, 1), 0);
  EXPECT_EQ(Found("N1", "N1", 2.9, 1), 0);
  EXPECT_EQ(Found("O2", "O4", 2.9, 1), 0);
  EXPECT_EQ(Found("N6", "O6", 2.9, 1), 0);
}

TEST(HydrogenBonds, OnlyTheFirstTwoCharactersOfABaseNameCount) {
  EXPECT_EQ(Found("O2*", "N2", 2.9, 1), 1);  // an oxygen of the sugar counts too
}

TEST(HydrogenBonds, AnyOtherModeKnowsNone) {
  EXPECT_EQ(Found("N", "O", 2.9, 2), 0);
  EXPECT_EQ(Found("N1", "N3", 2.9, 2), 0);
}

TEST(HydrogenBonds, AreListedByTheLaterAtomAndThenTheEarlier) {
  DeskAtWork work;
  // Oxygens 1 and 2, nitrogens 3 and 4, each nitrogen 2.9 from both: a rhombus of side 2.9.
  Load(work.desk, Record("O", 0, 2, 0) + Record("O", 0, -2, 0) + Record("N", 2.1, 0, 0) +
                      Record("N", -2.1, 0, 0));

  const Molecule& molecule = work.desk.molecule;
  const int expected[][2] = {{3, 1}, {3, 2}, {4, 1}, {4, 2}};
  ASSERT_EQ(molecule.HBondCount, 4);
  for (int h = 1; h <= 4; ++h) {
    EXPECT_EQ(molecule.HBondA[h], expected[h - 1][0]);
    EXPECT_EQ(molecule.HBondB[h], expected[h - 1][1]);
  }
}

TEST(HydrogenBonds, LeaveThePointsOfTheLastPairBehind) {
  DeskAtWork work;
  Load(work.desk, Record("C", 1, 0, 0) + Record("C", 5, 0, 0) + Record("C", 9, 0, 0));
  EXPECT_EQ(work.desk.molecule.PointA.X, 9);
  EXPECT_EQ(work.desk.molecule.PointB.X, 5);
  EXPECT_EQ(work.desk.molecule.BondAtomA, 3);
}

TEST(HydrogenBonds, OneAtomHasNoneAndLeavesPointB) {
  DeskAtWork work;
  work.desk.molecule.PointB = {7, 8, 9};
  EXPECT_THROW(Load(work.desk, Record("N", 0, 0, 0)), Failure);  // a box with no extent

  EXPECT_EQ(work.desk.molecule.HBondCount, 0);
  EXPECT_EQ(work.desk.molecule.PointB.X, 7);
  EXPECT_EQ(work.desk.molecule.PointB.Y, 8);
  EXPECT_EQ(work.desk.molecule.PointB.Z, 9);
}

TEST(HydrogenBonds, Number30001HasNoSlot) {
  DeskAtWork work;
  Load(work.desk, Record("N", 0, 0, 0) + Record("O", 2.9, 0, 0));
  work.desk.molecule.HBondCount = kLastSlot;
  EXPECT_THROW(AppendHBond(work.desk.molecule), Failure);
  EXPECT_EQ(work.desk.molecule.HBondCount, kLastSlot);
}

TEST(HydrogenBonds, AQualifyingPairClearsTheReadout) {
  DeskAtWork work;
  Load(work.desk, Record("N", 0, 0, 0) + Record("O", 2.9, 0, 0));
  work.desk.main.P_Dst_Show.Caption = "old";
  FindHydrogenBonds(work.desk);
  EXPECT_EQ(work.desk.main.P_Dst_Show.Caption, "");

  Load(work.desk, Record("C", 0, 0, 0) + Record("O", 2.9, 0, 0));
  work.desk.main.P_Dst_Show.Caption = "old";
  FindHydrogenBonds(work.desk);  // no pair has the right names, so no distance is worked out
  EXPECT_EQ(work.desk.main.P_Dst_Show.Caption, "old");
}

}  // namespace
}  // namespace orvane
