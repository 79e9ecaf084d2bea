#include <cmath>
#include <gtest/gtest.h>

#include "draw/atom_painter.h"
#include "draw/placed_atoms.h"
#include "draw/trace_painter.h"
#include "narration/atom_words.h"
#include "narration/chosen_row.h"

namespace orvane {
namespace {

constexpr float kReach = 4;

struct AtomAtTest : testing::Test, PlacedAtoms {
  MainWindow& main = desk.main;
  const Molecule& molecule = desk.molecule;

  int At(double x, double y, float reach = kReach) const {
    return AtomAt(desk, static_cast<float>(x), static_cast<float>(y), reach);
  }
  int AtAtom(int i) const { return At(molecule.ScrX[i], molecule.ScrY[i]); }
  // The place of atom i in a half of a split view, to half a pixel. The halves are square.
  int AtPlace(const ImageBox& half, double x, double y) const {
    const double pixels = half.At.Get().Width / 15.0;
    const double scale = pixels / kSurfacePixels;
    return AtomAt(desk, half, static_cast<float>(x * scale), static_cast<float>(y * scale), 1);
  }
  void PaintBalls() {
    desk.drawing.BallsOn = 1;
    PaintAtomFamily(desk);
  }
};

TEST_F(AtomAtTest, NothingIsFoundOnAnEmptySurface) {
  EXPECT_EQ(At(0, 0), 0);
  EXPECT_EQ(At(180, 180, 1000), 0);
}

// A ball of carbon: size 3, radius 1.85 and half of its outline make 5.35.
TEST_F(AtomAtTest, ABallCountsToItsOutlineAndTheReachBeyondItOnlyIfWider) {
  Atom("  CA ", 100, 100);
  PaintBalls();
  EXPECT_EQ(At(105.3, 100), 1);
  EXPECT_EQ(At(105.4, 100), 0);
  EXPECT_EQ(At(105.4, 100, 6), 1);
}

TEST_F(AtomAtTest, OfTwoBallsTheOneDrawnLaterLiesInFront) {
  Atom("  CA ", 100, 100);
  Atom("  CB ", 103, 100);
  PaintBalls();
  EXPECT_EQ(At(100, 100), 2);  // 3 pixels from the second one's middle
  EXPECT_EQ(At(96, 100), 1);   // 7 pixels from it
}

TEST_F(AtomAtTest, WithoutBallsTheNearestEndOfALineCounts) {
  Atom("  CA ", 100, 100);
  Atom("  CB ", 106, 100);
  Bond(2, 1);
  PaintAtomFamily(desk);
  EXPECT_EQ(At(102, 100), 1);
  EXPECT_EQ(At(104, 101), 2);
  EXPECT_EQ(At(100, 105), 0);  // out of reach of both
}

TEST_F(AtomAtTest, NoAtomIsFoundAtTheMiddleOfABond) {
  Atom("  CA ", 100, 100);
  Atom("  CB ", 140, 100);
  Bond(2, 1);
  PaintAtomFamily(desk);
  EXPECT_EQ(At(120, 100), 0);
}

// An atom that has neither bond nor ball is not drawn at all.
TEST_F(AtomAtTest, AnAtomThatIsNotDrawnIsNotFound) {
  Atom("  CA ", 100, 100);
  PaintAtomFamily(desk);
  EXPECT_EQ(At(100, 100), 0);
}

TEST_F(AtomAtTest, ItsLabelShowsAnAtom) {
  Atom("  CA ", 100, 100);
  desk.drawing.LabelsOn = 1;
  PaintAtomFamily(desk);
  EXPECT_EQ(At(101, 101), 1);
}

TEST_F(AtomAtTest, OfTwoAtomsInOnePlaceTheLaterIsNamed) {
  Atom("  CA ", 100, 100);
  Atom("  CA ", 100, 100);
  PaintBalls();
  EXPECT_EQ(At(100, 100), 2);
}

TEST_F(AtomAtTest, ATraceShowsAlphaCarbonsOnly) {
  Choose(*this, main.Pro_Lst, "Alfa");
  Click(desk, main.D_Ca);
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    const int found = At(molecule.ScrX[i], molecule.ScrY[i], 0.5F);
    const bool is_alpha_carbon = ShortName(molecule.AtomName[i]) == "CA";
    EXPECT_EQ(found != 0, is_alpha_carbon) << i;
  }
}

// Alanine's atoms, turned, zoomed and shifted: the search finds each where it now is, or an atom
// whose ball was painted over its middle.
TEST_F(AtomAtTest, EveryBallIsFoundWhereverTheViewHasTakenIt) {
  Choose(*this, main.AA_Lst, "ALA");
  Click(desk, main.D_StB);
  StepBar(desk, main.VScroll1, 41);
  StepBar(desk, main.ZoomBar, 5);
  StepBar(desk, main.X_TRANS, 10);
  StepBar(desk, main.Y_TRANS, -15);
  int in_front = 0;
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    const int found = AtAtom(i);
    EXPECT_GE(found, i);  // a ball hides those before it
    if (found == i) ++in_front;
  }
  EXPECT_GT(in_front, molecule.AtomCount / 2);
}

TEST_F(AtomAtTest, TheOldPlaceIsEmptyAfterAShift) {
  Choose(*this, main.AA_Lst, "GLY");
  Click(desk, main.D_StB);
  const double x = molecule.ScrX[1], y = molecule.ScrY[1];
  ASSERT_EQ(At(x, y), 1);
  for (int value = 10; value <= 60; value += 10) StepBar(desk, main.Y_TRANS, value);
  EXPECT_NE(At(x, y), 1);
  EXPECT_EQ(AtAtom(1), 1);
}

// What is left in the store after the surface was cleared is not in the picture.
TEST_F(AtomAtTest, AClearedPictureHasNoAtoms) {
  Choose(*this, main.AA_Lst, "GLY");
  ASSERT_EQ(AtAtom(1), 1);
  Click(desk, main.Bt_Blt_AA);
  EXPECT_GT(molecule.AtomCount, 0);
  EXPECT_EQ(AtAtom(1), 0);
}

TEST_F(AtomAtTest, AskingChangesNothingOnTheSurface) {
  Choose(*this, main.AA_Lst, "ALA");
  const std::string before = Strokes();
  AtAtom(2);
  EXPECT_EQ(Strokes(), before);
}

// Red-green: the green picture lies at the atoms' own places.
TEST_F(AtomAtTest, InARedGreenPictureTheGreenAtomsAreFound) {
  Choose(*this, main.AA_Lst, "GLY");
  Click(desk, main.R_G_Stereo);
  EXPECT_EQ(AtAtom(1), 1);
}

// The place of atom i on a half, by the outline of its ball: in ball and stick each atom has one
// circle, in the order of their numbers.
std::vector<const Stroke*> Balls(const Picture& picture) {
  std::vector<const Stroke*> balls;
  for (const Stroke& stroke : picture.Strokes) {
    if (stroke.Kind == StrokeKind::Circle) balls.push_back(&stroke);
  }
  return balls;
}

TEST_F(AtomAtTest, BothHalvesOfAStereoPairShowTheAtoms) {
  Choose(*this, main.AA_Lst, "ALA");
  Click(desk, main.D_StB);
  Click(desk, main.Bt3_Sterio);
  ASSERT_TRUE(main.P_Sterio.Visible);
  for (const ImageBox* half : {&main.L_Img, &main.R_Img}) {
    const auto balls = Balls(*half->Shown());
    ASSERT_EQ(balls.size(), 13U);
    for (std::size_t i = 0; i < balls.size(); ++i) {
      // The last circle that covers the middle of this one.
      std::size_t front = i;
      for (std::size_t j = i; j < balls.size(); ++j) {
        const double away = std::hypot(balls[j]->X1 - balls[i]->X1, balls[j]->Y1 - balls[i]->Y1);
        if (away < balls[j]->X2) front = j;
      }
      EXPECT_EQ(AtPlace(*half, balls[i]->X1, balls[i]->Y1), static_cast<int>(front) + 1);
    }
  }
}

TEST_F(AtomAtTest, TheMirrorFormShowsTheAtomsToo) {
  Choose(*this, main.AA_Lst, "ALA");
  Click(desk, main.D_StB);
  Click(desk, main.Bt3_Isomers);
  const auto balls = Balls(*main.R_Img.Shown());
  ASSERT_EQ(balls.size(), 13U);
  EXPECT_EQ(AtPlace(main.R_Img, balls[12]->X1, balls[12]->Y1), 13);
}

// A half keeps its picture when the surface is drawn on. Nobody can then say what the half shows.
TEST_F(AtomAtTest, AHalfThatShowsAnotherPictureNamesNothing) {
  EXPECT_EQ(AtPlace(main.L_Img, 180, 180), 0);  // none yet
  Choose(*this, main.AA_Lst, "ASP");
  Click(desk, main.Bt3_Sterio);
  Click(desk, main.Bt3_Sterio);
  const double x = molecule.ScrX[1], y = molecule.ScrY[1];
  Choose(*this, main.AA_Lst, "ASN");
  EXPECT_EQ(AtPlace(main.L_Img, x, y), 0);
}

}  // namespace
}  // namespace orvane
