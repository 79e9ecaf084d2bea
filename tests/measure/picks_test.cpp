#include "measure/picks.h"

#include <gtest/gtest.h>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

struct PicksTest : testing::Test, PlacedAtoms {
  // An atom on the surface, with its own position as read.
  int ReadAtom(std::string_view name, double x, double y) {
    const int i = Atom(name, x, y);
    desk.molecule.AtomX[i] = i + 0.25;
    desk.molecule.AtomY[i] = i + 0.5;
    desk.molecule.AtomZ[i] = i + 0.75;
    return i;
  }
  void PressAt(float x, float y, int button = kLeftButton) {
    Press(desk, desk.main.Picture1, button, x, y);
  }
  Measure& measure = desk.measure;
};

void ExpectPlaceOf(const Point& point, int atom) {
  EXPECT_EQ(point.X, atom + 0.25);
  EXPECT_EQ(point.Y, atom + 0.5);
  EXPECT_EQ(point.Z, atom + 0.75);
}

TEST_F(PicksTest, FourPicksFillFourPointsAndTheCycleBeginsAgain) {
  for (int i = 0; i < 5; ++i) ReadAtom("  CA ", 50 * i, 100);

  PressAt(0, 100);
  EXPECT_EQ(measure.PickState, 1);
  PressAt(50, 100);
  EXPECT_EQ(measure.PickState, 2);
  PressAt(100, 100);
  EXPECT_EQ(measure.PickState, 3);
  PressAt(150, 100);
  EXPECT_EQ(measure.PickState, 0);
  EXPECT_EQ(desk.molecule.BondAtomA, 1);
  EXPECT_EQ(desk.molecule.BondAtomB, 2);
  EXPECT_EQ(measure.PickAtomC, 3);
  EXPECT_EQ(measure.PickAtomD, 4);
  ExpectPlaceOf(desk.molecule.PointA, 1);
  ExpectPlaceOf(desk.molecule.PointB, 2);
  ExpectPlaceOf(measure.PointC, 3);
  ExpectPlaceOf(measure.PointD, 4);

  PressAt(200, 100);
  EXPECT_EQ(desk.molecule.BondAtomA, 5);
  ExpectPlaceOf(desk.molecule.PointA, 5);
}

TEST_F(PicksTest, TheThirdPickPassesOnTheThreePoints) {
  for (int i = 0; i < 3; ++i) ReadAtom("  CA ", 50 * i, 100);
  for (int i = 0; i < 3; ++i) PressAt(50.0f * static_cast<float>(i), 100);

  ExpectPlaceOf(desk.generator.PickedA, 1);
  ExpectPlaceOf(desk.generator.PickedB, 2);
  ExpectPlaceOf(desk.generator.PickedC, 3);
}

TEST_F(PicksTest, ThreeAtomsUnderOnePressTakeThreeStepsInTheOrderOfTheirNumbers) {
  ReadAtom("  CA ", 101, 100);
  ReadAtom("  CB ", 99, 102);
  ReadAtom("  CG ", 100, 98);
  PressAt(100, 100);

  EXPECT_EQ(measure.PickState, 3);
  EXPECT_EQ(desk.molecule.BondAtomA, 1);
  EXPECT_EQ(desk.molecule.BondAtomB, 2);
  EXPECT_EQ(measure.PickAtomC, 3);
}

struct ReachCase {
  double AtomX, AtomY;
  float X, Y;
  bool IsHit;
  const char* Why;
};

TEST_F(PicksTest, TheReachIsASquareOfThreePixelsToEachSide) {
  const ReachCase cases[] = {
      {100, 100, 97, 100, true, "three to the left"},
      {100, 100, 103, 103, true, "the corner of the square"},
      {100, 100, 96, 100, false, "four to the left"},
      {100, 100, 100, 104, false, "four below"},
      {103.9, 100, 100, 100, true, "the atom's place is rounded down to 103"},
      {96.9, 100, 100, 100, false, "rounded down to 96"},
      {100, 96.99, 100, 100, false, "down as well"},
      {-0.5, 100, 2, 100, true, "down below zero: -1 is three from 2"},
      {-0.5, 100, 2.5f, 100, false, "and the pointer is not rounded"},
      {100, 100, 102.5f, 100, true, "half a pixel inside"},
  };
  for (const ReachCase& row : cases) {
    desk.molecule.AtomCount = 0;
    measure.PickState = 0;
    ReadAtom("  CA ", row.AtomX, row.AtomY);
    PressAt(row.X, row.Y);
    EXPECT_EQ(measure.PickState, row.IsHit ? 1 : 0) << row.Why;
  }
}

TEST_F(PicksTest, TheBoundsOfTheSquareAreNarrowedTo32Bits) {
  // 16777220 - 3 = 16777217 has no 32-bit float. It lies half way between 16777216 and 16777218 and
  // goes to 16777216, whose mantissa is even. So the atom counts as near.
  ReadAtom("  CA ", 16777216, 100);
  PressAt(16777220, 100);

  EXPECT_EQ(measure.PickState, 1);
}

TEST_F(PicksTest, EachPickPrintsItsTagAtTheAtom) {
  ReadAtom("  CA ", 100.5, 100);
  ReadAtom("  O5*", 101, 100);
  desk.molecule.ResSeq[1] = 12;
  desk.molecule.ResSeq[2] = -3;
  PressAt(100, 100);

  EXPECT_EQ(Strokes(),
            "Print 100.5 100 #ffffff \"  CA  12  1 \"\n"
            "Print 101 100 #ffffff \"  O5*-3  2 \"\n");
  EXPECT_EQ(desk.main.Picture1.ForeColor, kPalette0);
}

TEST_F(PicksTest, AnyButtonPicks) {
  ReadAtom("  CA ", 100, 100);
  for (const int button : {kLeftButton, kRightButton, kMiddleButton}) PressAt(100, 100, button);

  EXPECT_EQ(measure.PickState, 3);
}

}  // namespace
}  // namespace orvane
