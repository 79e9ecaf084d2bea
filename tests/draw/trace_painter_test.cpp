#include "draw/trace_painter.h"

#include <cmath>
#include <gtest/gtest.h>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

constexpr Colour kBlue = Rgb(0, 0, 255);

struct TracePainterTest : testing::Test, PlacedAtoms {
  TracePainterTest() { desk.colours.PenColour = kBlue; }

  // Two alpha carbons where the painter looks for a pair: first atom of bond 1, second of bond 7.
  // They are `apart` Angstrom from each other as read, whatever their places on the surface.
  void Pair(double apart, std::string_view first = "  CA ", std::string_view second = "  CA ") {
    const int a = Atom(first, 10, 20);
    const int b = Atom(second, 40, 30);
    desk.molecule.AtomX[b] = apart;
    desk.molecule.BondA[1] = a;
    desk.molecule.BondB[7] = b;
  }
  std::string Painted() {
    PaintTraceFamily(desk);
    return Strokes();
  }
};

TEST_F(TracePainterTest, AThinTraceIsOneLineTwoPixelsWide) {
  Pair(3.8);

  EXPECT_EQ(Painted(), "Line 10 20 40 30 #0000ff w2\n");
}

TEST_F(TracePainterTest, ARibbonIsFiveLinesFromOneSideToTheOther) {
  Pair(3.8);
  desk.drawing.RibbonOn = 1;

  EXPECT_EQ(Painted(),
            "Line 6 16 36 26 #0000ff w2\n"
            "Line 8 18 38 28 #0000ff w2\n"
            "Line 10 20 40 30 #0000ff w2\n"
            "Line 12 22 42 32 #0000ff w2\n"
            "Line 14 24 44 34 #0000ff w2\n");
}

TEST_F(TracePainterTest, ACartoonIsThreeBroadLines) {
  Pair(3.8);
  desk.drawing.CartoonOn = 1;

  EXPECT_EQ(Painted(),
            "Line 6 16 36 26 #0000ff w10\n"
            "Line 10 20 40 30 #0000ff w10\n"
            "Line 14 24 44 34 #0000ff w10\n");
}

TEST_F(TracePainterTest, TheRibbonWinsOverTheCartoon) {
  Pair(3.8);
  desk.drawing.RibbonOn = 1;
  const std::string ribbon = Painted();
  desk.drawing.CartoonOn = 1;

  EXPECT_EQ(Painted(), ribbon);
}

TEST_F(TracePainterTest, ARibbonAlongTheDiagonalLiesOnItself) {
  Pair(3.8);
  desk.molecule.ScrY[2] = 50;  // from 10, 20 to 40, 50
  desk.drawing.RibbonOn = 1;
  PaintTraceFamily(desk);

  const auto image = desk.main.Picture1.Image();
  ASSERT_EQ(image->Strokes.size(), 5u);
  for (const Stroke& line : image->Strokes) {
    EXPECT_EQ(line.Y1 - line.X1, 10);
    EXPECT_EQ(line.Y2 - line.X2, 10);
    EXPECT_EQ(line.Width, 2);
  }
}

TEST_F(TracePainterTest, AlphaCarbonsFourAngstromApartAreNotJoined) {
  Pair(4.0);
  EXPECT_EQ(Painted(), "");

  desk.molecule.AtomX[2] = std::nextafter(4.0, 0.0);
  EXPECT_EQ(Painted(), "Line 10 20 40 30 #0000ff w2\n");
}

TEST_F(TracePainterTest, TheDistanceIsTakenInAllThreeDirectionsAsRead) {
  Pair(2.0);
  desk.molecule.AtomY[2] = 2.0;
  desk.molecule.AtomZ[1] = 3.0;  // the root of 4 + 4 + 9 is 4.12
  EXPECT_EQ(Painted(), "");

  desk.molecule.AtomZ[1] = 2.0;  // the root of 12 is 3.46
  desk.molecule.CurX[2] = 500;   // a turned and zoomed view changes nothing
  EXPECT_EQ(Painted(), "Line 10 20 40 30 #0000ff w2\n");
}

TEST_F(TracePainterTest, MarkedAlphaCarbonsCountAndOtherCarbonsDoNot) {
  Pair(3.8, "  CA1", "  CA2");
  EXPECT_EQ(Painted(), "Line 10 20 40 30 #0000ff w2\n");

  desk.molecule.AtomName[1] = "  CB ";
  EXPECT_EQ(Painted(), "");
  desk.molecule.AtomName[1] = "  CA ";
  desk.molecule.AtomName[2] = "  C  ";
  EXPECT_EQ(Painted(), "");
}

TEST_F(TracePainterTest, AnAlphaCarbonThatMeetsItselfIsADot) {
  Atom("  CA ", 10, 20);
  desk.molecule.BondA[1] = 1;
  desk.molecule.BondB[7] = 1;

  EXPECT_EQ(Painted(), "Line 10 20 10 20 #0000ff w2\n");
}

TEST_F(TracePainterTest, BondsAreReadUpToTheNumberOfAtoms) {
  Pair(3.8);
  desk.molecule.BondA[2] = 2;
  desk.molecule.BondB[8] = 1;
  desk.molecule.BondA[3] = 1;  // bond 3 of two atoms
  desk.molecule.BondB[9] = 2;

  EXPECT_EQ(Painted(),
            "Line 10 20 40 30 #0000ff w2\n"
            "Line 40 30 10 20 #0000ff w2\n");
}

TEST_F(TracePainterTest, NoAlphaCarbonsAreAnEmptyPictureOnTheBackground) {
  Atom("  N  ", 0, 0);
  Atom("  O  ", 10, 0);
  Bond(2, 1);
  desk.main.Picture1.Print("old");

  EXPECT_EQ(Painted(), "");
}

TEST_F(TracePainterTest, HydrogenBondsOfLowerNumbersLieUnderASegment) {
  Pair(3.8);
  HBond(1, 1, 2);
  HBond(2, 2, 1);
  desk.colours.ColourByElement = 0;
  desk.drawing.HBondShown = 1;

  EXPECT_EQ(Painted(),
            "Line 10 20 25 25 #0000ff w1 dotted\n"
            "Line 25 25 40 30 #0000ff w1 dotted\n"
            "Line 10 20 40 30 #0000ff w2\n"
            "Line 40 30 25 25 #0000ff w1 dotted\n"
            "Line 25 25 10 20 #0000ff w1 dotted\n");
}

TEST_F(TracePainterTest, ElementColoursBallsLabelsAndWidthsMeanNothingHere) {
  desk.colours.PenColour = Colours().PenColour;
  Pair(3.8);
  desk.colours.ColourByElement = 1;
  desk.drawing.BallsOn = 1;
  desk.drawing.LabelsOn = 1;
  desk.drawing.BondWidth = 6;

  EXPECT_EQ(Painted(), "Line 10 20 40 30 #c0c0c0 w2\n");  // palette colour 7
}

TEST_F(TracePainterTest, ItWipesInAnOverdrawPassToo) {
  desk.main.Picture1.Print("old");
  desk.drawing.OverdrawPass = 1;

  EXPECT_EQ(Painted(), "");
}

TEST_F(TracePainterTest, TheBackgroundPictureLiesBehind) {
  desk.colours.BackgroundIndex = 3;
  PaintTraceFamily(desk);

  ASSERT_NE(desk.main.Picture1.Image()->Backdrop, nullptr);
  EXPECT_EQ(desk.main.Picture1.Image()->Backdrop, desk.colours.BakImg[3]);
}

TEST_F(TracePainterTest, TheBondListEndsAt29994Atoms) {
  desk.molecule.AtomCount = 29994;  // 29994 + 6 = 30000
  EXPECT_NO_THROW(PaintTraceFamily(desk));

  desk.molecule.AtomCount = 29995;
  EXPECT_THROW(PaintTraceFamily(desk), Failure);
}

}  // namespace
}  // namespace orvane
