#include "draw/atom_painter.h"

#include <gtest/gtest.h>
#include <set>

#include "draw/elements.h"
#include "draw/placed_atoms.h"

namespace orvane {
namespace {

struct AtomPainterTest : testing::Test, PlacedAtoms {
  std::string Painted() {
    PaintAtomFamily(desk);
    return Strokes();
  }
};

// Element colours as the strokes show them: 60, 60, 240 is #3c3cf0, 0, 240, 80 is #00f050,
// 240, 0, 0 is #f00000, 255, 20, 147 is #ff1493. Palette colour 7 is #c0c0c0.

TEST_F(AtomPainterTest, AnEmptyStoreIsWipedAndNothingIsDrawn) {
  desk.main.Picture1.Print("old");
  EXPECT_EQ(Painted(), "");
}

TEST_F(AtomPainterTest, OneAtomIsOneBallOrNothing) {
  Atom("  CA ", 10, 20);
  EXPECT_EQ(Painted(), "");

  desk.drawing.BallsOn = 1;
  EXPECT_EQ(Painted(), "Circle 10 20 4.85 #00f050 on #000000 w1\n");  // ball size 3 and 1.85
}

TEST_F(AtomPainterTest, EachHalfOfABondHasTheColourOfItsOwnEnd) {
  Atom("  N  ", 0, 0);
  Atom("  CA ", 10, 4);
  Bond(2, 1);

  EXPECT_EQ(Painted(),
            "Line 10 4 5 2 #00f050 w1\n"
            "Line 5 2 0 0 #3c3cf0 w1\n");
}

TEST_F(AtomPainterTest, EachBondIsFollowedByTheAtomOfItsNumber) {
  Atom("  N  ", 0, 0);
  Atom("  CA ", 10, 0);
  Atom("  CB ", 20, 0);
  Bond(2, 1);
  Bond(3, 2);
  desk.drawing.BallsOn = 1;

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #00f050 w1\n"
            "Line 5 0 0 0 #3c3cf0 w1\n"
            "Circle 0 0 4.54 #3c3cf0 on #000000 w1\n"
            "Line 20 0 15 0 #00f050 w1\n"
            "Line 15 0 10 0 #00f050 w1\n"
            "Circle 10 0 4.85 #00f050 on #000000 w1\n"
            "Circle 20 0 4.85 #00f050 on #000000 w1\n");
}

TEST_F(AtomPainterTest, BondsPastTheAtomsArePaintedUpToTwiceTheirNumber) {
  Atom("  N  ", 0, 0);
  Atom("  CA ", 10, 0);
  for (int bond = 0; bond < 5; ++bond) Bond(2, 1);

  PaintAtomFamily(desk);
  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), 8u);  // four bonds of two halves
}

TEST_F(AtomPainterTest, ACarbonylHasASecondLineTwoPixelsRightAndDown) {
  Atom("  C  ", 0, 0);
  Atom("  O  ", 10, 20);
  Bond(2, 1);

  EXPECT_EQ(Painted(),
            "Line 10 20 5 10 #f00000 w1\n"
            "Line 12 22 7 12 #f00000 w1\n"
            "Line 5 10 0 0 #00f050 w1\n"
            "Line 7 12 2 2 #00f050 w1\n");
  EXPECT_EQ(desk.drawing.HalfIsDouble, 1);
}

TEST_F(AtomPainterTest, ADoubleBondAlongTheDiagonalLiesOnItself) {
  Atom("  C  ", 0, 0);
  Atom("  O  ", 20, 20);
  Bond(2, 1);

  EXPECT_EQ(Painted(),
            "Line 20 20 10 10 #f00000 w1\n"
            "Line 22 22 12 12 #f00000 w1\n"
            "Line 10 10 0 0 #00f050 w1\n"
            "Line 12 12 2 2 #00f050 w1\n");
}

TEST_F(AtomPainterTest, AnOxygenThatIsTheSecondAtomIsNotDoubled) {
  Atom("  O  ", 0, 0);
  Atom("  C  ", 10, 0);
  Bond(2, 1);

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #00f050 w1\n"
            "Line 5 0 0 0 #f00000 w1\n");
}

TEST_F(AtomPainterTest, AnOxygenOnSomethingOtherThanCarbonDoublesItsOwnHalfOnly) {
  Atom("  N  ", 0, 0);
  Atom("  O  ", 10, 0);
  Bond(2, 1);

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #f00000 w1\n"
            "Line 12 2 7 2 #f00000 w1\n"
            "Line 5 0 0 0 #3c3cf0 w1\n");
}

TEST_F(AtomPainterTest, AnOxygenWithANumberIsNotACarbonyl) {
  Atom("  C  ", 0, 0);
  for (const char* name : {"  O1 ", "  OG ", "  O5*"}) {
    desk.molecule.AtomCount = 1;
    desk.molecule.BondCount = 0;
    Atom(name, 10, 0);
    Bond(2, 1);
    EXPECT_EQ(Painted(),
              "Line 10 0 5 0 #f00000 w1\n"
              "Line 5 0 0 0 #00f050 w1\n")
        << name;
  }
}

TEST_F(AtomPainterTest, TwoHydrogensDrawNoLineButStillTheirHydrogenBond) {
  Atom("  H1 ", 0, 0);
  Atom("  H2 ", 10, 0);
  Bond(2, 1);
  EXPECT_EQ(Painted(), "");

  HBond(1, 2, 1);
  desk.drawing.HBondShown = 1;
  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #ffffff w1 dotted\n"
            "Line 5 0 0 0 #ffffff w1 dotted\n");
}

struct PairCase {
  const char* First;
  const char* Second;
  bool IsDrawn;
};

TEST_F(AtomPainterTest, FourPairsWithH4AreNotBondsAndTheirReversesAre) {
  const PairCase cases[] = {
      {"  H4 ", "  CB ", false}, {"  H4 ", "  C! ", false}, {"  C  ", "  H4 ", false},
      {"  H4 ", "  C  ", false}, {"  CB ", "  H4 ", true},  {"  C! ", "  H4 ", true},
      {"  H4 ", "  CA ", true},  {"  H41", "  CB ", true},  {"  H4 ", "  N  ", true},
  };
  for (const PairCase& row : cases) {
    desk.molecule.AtomCount = 0;
    desk.molecule.BondCount = 0;
    Atom(row.Second, 0, 0);
    Atom(row.First, 10, 0);
    Bond(2, 1);
    PaintAtomFamily(desk);
    EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), row.IsDrawn ? 2u : 0u)
        << row.First << " to " << row.Second;
  }
}

TEST_F(AtomPainterTest, ABondThatIsNotDrawnLeavesTheColourOfItsFirstAtom) {
  Atom("  CB ", 0, 0);
  Atom("  H4 ", 10, 0);
  Bond(2, 1);
  Painted();

  EXPECT_EQ(desk.drawing.LineColour, Rgb(255, 255, 255));
}

TEST_F(AtomPainterTest, AnUnknownElementKeepsTheColourBefore) {
  Atom("  X1 ", 0, 0);
  Atom("  X2 ", 10, 0);
  Bond(2, 1);
  desk.drawing.LineColour = Rgb(1, 2, 3);

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #010203 w1\n"
            "Line 5 0 0 0 #010203 w1\n");
}

TEST_F(AtomPainterTest, AfterABallAnUnknownElementIsLightGrey) {
  Atom("  X1 ", 0, 0);
  Atom("  CA ", 10, 0);
  Bond(1, 2);
  desk.drawing.BallsOn = 1;
  Painted();

  // The second painting begins with the unknown atom, and the first ended with a ball.
  EXPECT_TRUE(Painted().starts_with("Line 0 0 5 0 #c0c0c0 w1\n"));
}

TEST_F(AtomPainterTest, AnUnknownElementRepeatsTheBallBefore) {
  Atom("  O  ", 0, 0);
  Atom("  X  ", 10, 0);
  desk.drawing.BallsOn = 1;

  EXPECT_EQ(Painted(),
            "Circle 0 0 4.4 #f00000 on #000000 w1\n"
            "Circle 10 0 4.4 #f00000 on #000000 w1\n");
}

TEST_F(AtomPainterTest, ANameThatBeginsOneColumnEarlyIsReadFromItsSecondLetter) {
  Atom("  N  ", 0, 0);
  Atom(" HG11", 10, 0);  // G is where the element is read
  Bond(1, 2);
  desk.drawing.BallsOn = 1;

  EXPECT_EQ(Painted(),
            "Line 0 0 5 0 #3c3cf0 w1\n"
            "Line 5 0 10 0 #3c3cf0 w1\n"
            "Circle 0 0 4.54 #3c3cf0 on #000000 w1\n"
            "Circle 10 0 4.54 #3c3cf0 on #000000 w1\n");
}

TEST_F(AtomPainterTest, AnEmptyNameCountsAsUnknown) {
  Atom("", 0, 0);
  Atom("  N", 10, 0);
  Bond(1, 2);
  desk.drawing.LineColour = 0;

  EXPECT_EQ(Painted(),
            "Line 0 0 5 0 #000000 w1\n"
            "Line 5 0 10 0 #3c3cf0 w1\n");
}

TEST_F(AtomPainterTest, InOneColourHalvesAndBallsAreAlikeAndTheDoubleLineStays) {
  Atom("  C  ", 0, 0);
  Atom("  O  ", 10, 0);
  Bond(2, 1);
  desk.colours.ColourByElement = 0;
  desk.colours.PenColour = Rgb(9, 8, 7);
  desk.drawing.BallsOn = 1;

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #090807 w1\n"
            "Line 12 2 7 2 #090807 w1\n"
            "Line 5 0 0 0 #090807 w1\n"
            "Line 7 2 2 2 #090807 w1\n"
            "Circle 0 0 4.85 #090807 on #000000 w1\n"
            "Circle 10 0 4.4 #090807 on #000000 w1\n");
}

TEST_F(AtomPainterTest, OnWhiteTheLineOfAHydrogenIsBlackAndItsBallStaysWhite) {
  Atom("  N  ", 0, 0);
  Atom("  H  ", 10, 0);
  Bond(2, 1);
  desk.drawing.BallsOn = 1;
  desk.main.Picture1.SetBackColor(kPalette15);

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #000000 w1\n"
            "Line 5 0 0 0 #3c3cf0 w1\n"
            "Circle 0 0 4.54 #3c3cf0 on #000000 w1\n"
            "Circle 10 0 4.2 #ffffff on #000000 w1\n");
}

TEST_F(AtomPainterTest, AlmostWhiteIsNotWhite) {
  desk.drawing.DrawName = "  H  ";
  desk.main.Picture1.SetBackColor(Rgb(255, 255, 254));
  PickLineColour(desk);

  EXPECT_EQ(desk.drawing.LineColour, Rgb(255, 255, 255));
}

TEST_F(AtomPainterTest, BallOutlinesStayThinWhateverTheWidthOfBonds) {
  Atom("  N  ", 0, 0);
  Atom("  CA ", 10, 0);
  Bond(2, 1);
  desk.drawing.BallsOn = 1;
  desk.drawing.BondWidth = 6;
  desk.drawing.BallSize = 1;

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #00f050 w6\n"
            "Line 5 0 0 0 #3c3cf0 w6\n"
            "Circle 0 0 2.54 #3c3cf0 on #000000 w1\n"
            "Circle 10 0 2.85 #00f050 on #000000 w1\n");
}

TEST_F(AtomPainterTest, ALabelIsPrintedOnItsAtomUnderTheBall) {
  Atom("  CA ", 10.5, 20);
  desk.drawing.LabelsOn = 1;
  desk.drawing.BallsOn = 1;
  desk.colours.LabelColour = Rgb(255, 0, 0);

  EXPECT_EQ(Painted(),
            "Print 10.5 20 #ff0000 \"  CA \"\n"
            "Circle 10.5 20 4.85 #00f050 on #000000 w1\n");
  EXPECT_EQ(desk.main.Picture1.ForeColor, kPalette0);
}

TEST_F(AtomPainterTest, HydrogensAreLabelledToo) {
  Atom("  H  ", 1, 2);
  desk.drawing.LabelsOn = 1;

  EXPECT_EQ(Painted(), "Print 1 2 #ffffff \"  H  \"\n");
}

TEST_F(AtomPainterTest, AHydrogenBondIsDottedInTheColoursOfItsEnds) {
  Atom("  N  ", 0, 0);
  Atom("  O  ", 10, 0);
  Bond(2, 1);
  HBond(1, 2, 1);
  desk.drawing.HBondShown = 1;
  desk.drawing.BondWidth = 3;

  EXPECT_EQ(Painted(),
            "Line 10 0 5 0 #f00000 w3\n"
            "Line 12 2 7 2 #f00000 w3\n"
            "Line 5 0 0 0 #3c3cf0 w3\n"
            "Line 10 0 5 0 #f00000 w1 dotted\n"
            "Line 5 0 0 0 #3c3cf0 w1 dotted\n");
  EXPECT_EQ(desk.main.Picture1.DrawStyle, 0);
  EXPECT_EQ(desk.main.Picture1.DrawWidth, 1);
}

TEST_F(AtomPainterTest, WithoutHydrogenBondsEveryBondPaintsADotAtSlot0) {
  Atom("  N  ", 10, 10);
  Atom("  CA ", 20, 10);
  Bond(2, 1);
  Bond(2, 1);
  desk.drawing.HBondShown = 1;

  // Slot 0 has no name, so the dot keeps the colour of the second half, nitrogen's.
  const std::string bond_and_dot =
      "Line 20 10 15 10 #00f050 w1\n"
      "Line 15 10 10 10 #3c3cf0 w1\n"
      "Line 0 0 0 0 #3c3cf0 w1 dotted\n"
      "Line 0 0 0 0 #3c3cf0 w1 dotted\n";
  EXPECT_EQ(Painted(), bond_and_dot + bond_and_dot);
}

TEST_F(AtomPainterTest, AHydrogenBondNumberedAboveTheBondsIsNotPainted) {
  Atom("  N  ", 0, 0);
  Atom("  CA ", 10, 0);
  Atom("  O  ", 20, 0);
  Bond(2, 1);
  HBond(1, 3, 1);
  HBond(2, 3, 2);
  desk.drawing.HBondShown = 1;
  Painted();

  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), 4u);  // two halves, two dotted halves
}

TEST_F(AtomPainterTest, AnOverdrawPassKeepsWhatIsThere) {
  desk.main.Picture1.Circle(1, 2, 3);
  desk.drawing.OverdrawPass = 1;

  EXPECT_EQ(Painted(), "Circle 1 2 3 #000000 on #000000 w1\n");
}

TEST_F(AtomPainterTest, ABackgroundPictureIsPutBackFirst) {
  const auto picture = std::make_shared<const Bitmap>();
  desk.colours.BakImg[2] = picture;
  desk.colours.BackgroundIndex = 2;
  PaintAtomFamily(desk);
  EXPECT_EQ(desk.main.Picture1.Image()->Backdrop, picture);

  desk.colours.BackgroundIndex = -1;
  PaintAtomFamily(desk);
  EXPECT_EQ(desk.main.Picture1.Image()->Backdrop, nullptr);
}

TEST_F(AtomPainterTest, TwiceTheAtomsHasToFit16BitsOnceTheSurfaceIsWiped) {
  desk.molecule.AtomCount = 16383;
  EXPECT_NO_THROW(PaintAtomFamily(desk));

  desk.main.Picture1.Print("old");
  desk.molecule.AtomCount = 16384;
  EXPECT_THROW(PaintAtomFamily(desk), Failure);
  EXPECT_EQ(Strokes(), "");
}

TEST(Elements, EachLetterHasOneRow) {
  std::set<char> letters;
  for (const ElementRow& row : kElements) {
    EXPECT_TRUE(letters.insert(row.Letter).second) << row.Letter;
    EXPECT_GT(row.BallRadius, 1);
    EXPECT_LT(row.BallRadius, 2);
    EXPECT_EQ(FindElement(std::string(1, row.Letter) + "A"), &row);
  }
  EXPECT_EQ(letters, (std::set<char>{'N', 'C', 'O', 'S', 'P', 'H', 'R'}));
}

}  // namespace
}  // namespace orvane
