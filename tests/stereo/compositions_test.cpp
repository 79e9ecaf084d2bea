// The composed views: what each image holds, and what a composition does not change.

#include "stereo/compositions.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "core/records.h"
#include "desk_fixture.h"
#include "draw/redraw_chain.h"
#include "draw/strokes_text.h"

namespace orvane {
namespace {

// Two bonded carbons and an oxygen. None of their differences is zero; the box is x 0 to 2, y 0 to
// 2, z 0 to 1.
std::string SmallStructure() {
  return Record("C1", 0.0, 0.0, 0.0) + Record("C2", 1.0, 1.0, 0.5) + Record("O3", 2.0, 2.0, 1.0);
}

struct Compositions : DeskAtWork, testing::Test {
  Compositions() { Load(desk, SmallStructure()); }
  Molecule& atoms = desk.molecule;
};

std::vector<Stroke> StrokesOf(const ImageBox& image) {
  return image.Shown() ? image.Shown()->Strokes : std::vector<Stroke>();
}

std::vector<Stroke> StrokesOf(const PictureBox& box) { return box.Image()->Strokes; }

TEST_F(Compositions, TheLeftImageIsTheUnturnedView) {
  RedrawView(desk);
  const std::vector<Stroke> plain = StrokesOf(desk.main.Picture1);

  ComposeStereoPair(desk);

  EXPECT_EQ(StrokesOf(desk.main.L_Img), plain);
}

TEST_F(Compositions, TheRightImageIsTurnedByNineDegreesAboutTheVerticalAxis) {
  ComposeStereoPair(desk);

  // The first stroke of both images begins at atom 2 of the first bond, (2, 1). Its place from the
  // pivot (1, 1, 0.5) is (0, 0, 0), so the test takes the second bond, from atom 3 to atom 2. Atom
  // 3 lies at (1, 1, 0.5) from the pivot. About y: x' = cos 9 * 1 +- sin 9 * 0.5, with the sign of
  // PointA.y - PointB.y, which after the load is atom 3 minus atom 2: 1 > 0, so plus.
  const double angle = 9.0 * std::numbers::pi / 180.0;
  const double turned_x = std::cos(angle) * 1.0 + std::sin(angle) * 0.5;
  // The largest extent is 2 and half the surface 180: 90 pixels an Angstrom, with the pivot at 180.
  const auto& right = StrokesOf(desk.main.R_Img);
  ASSERT_EQ(right.size(), 4U);  // two bonds of two halves each
  EXPECT_NEAR(right[2].X1, 180.0 + 90.0 * turned_x, 1e-3);
  EXPECT_NEAR(right[2].Y1, 180.0 + 90.0 * 1.0, 1e-3);
}

TEST_F(Compositions, TheSurfaceEndsWithTheUnturnedView) {
  RedrawView(desk);
  const std::vector<Stroke> plain = StrokesOf(desk.main.Picture1);

  ComposeStereoPair(desk);

  const std::vector<Stroke> after = StrokesOf(desk.main.Picture1);
  ASSERT_EQ(after.size(), plain.size());
  for (std::size_t i = 0; i < plain.size(); ++i) {
    EXPECT_NEAR(after[i].X1, plain[i].X1, 1e-3);
    EXPECT_NEAR(after[i].Y2, plain[i].Y2, 1e-3);
  }
}

TEST_F(Compositions, TheMirrorFormIsTheHalfTurn) {
  ComposeEnantiomerPair(desk);

  // A half turn sends x to the other side of the pivot at 180 and leaves y.
  const auto& left = StrokesOf(desk.main.L_Img);
  const auto& right = StrokesOf(desk.main.R_Img);
  ASSERT_EQ(left.size(), right.size());
  for (std::size_t i = 0; i < left.size(); ++i) {
    EXPECT_NEAR(right[i].X1, 360.0 - left[i].X1, 1e-3);
    EXPECT_NEAR(right[i].Y1, left[i].Y1, 1e-3);
  }
}

TEST_F(Compositions, ImagesStayWhileTheSecondToggleIsOn) {
  ComposeStereoPair(desk);
  const auto left = desk.main.L_Img.Shown();
  const auto right = desk.main.R_Img.Shown();
  desk.stereo.EnantiomerPairOn = 1;

  ComposeEnantiomerPair(desk);

  EXPECT_EQ(desk.main.L_Img.Shown(), left);
  EXPECT_EQ(desk.main.R_Img.Shown(), right);
}

TEST_F(Compositions, RedGoesUnderGreen) {
  desk.colours.ColourByElement = 0;
  desk.main.Picture1.ResetSurface();

  ComposeRedGreen(desk);

  const auto strokes = StrokesOf(desk.main.Picture1);
  ASSERT_EQ(strokes.size(), 8U);  // four half bonds in each colour
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(strokes[i].Ink, Rgb(255, 0, 0));
  for (std::size_t i = 4; i < 8; ++i) EXPECT_EQ(strokes[i].Ink, Rgb(0, 255, 0));
}

TEST_F(Compositions, RedGreenKeepsWhatTheSurfaceHeld) {
  desk.colours.ColourByElement = 0;
  desk.main.Picture1.ResetSurface();
  desk.main.Picture1.Line(1, 2, 3, 4, Rgb(9, 9, 9));

  ComposeRedGreen(desk);

  EXPECT_EQ(StrokesOf(desk.main.Picture1).front().Ink, Rgb(9, 9, 9));
}

TEST_F(Compositions, TheTraceFamilyEndsGreenAlone) {
  // Two alpha carbons 3.8 apart that the pairing of the trace finds: BondA of entry 1 and BondB of
  // entry 7.
  desk.drawing.DrawFamily = 1;
  atoms.AtomName[1] = "  CA ";
  atoms.AtomName[2] = "  CA ";
  atoms.BondA[1] = 2;
  atoms.BondB[7] = 1;

  ComposeRedGreen(desk);

  const auto strokes = StrokesOf(desk.main.Picture1);
  ASSERT_FALSE(strokes.empty());
  for (const Stroke& stroke : strokes) EXPECT_EQ(stroke.Ink, Rgb(0, 255, 0));
}

TEST_F(Compositions, PenColourIsLeftGreen) {
  ComposeRedGreen(desk);
  EXPECT_EQ(desk.colours.PenColour, Rgb(0, 255, 0));
  EXPECT_EQ(desk.drawing.OverdrawPass, 0);
}

TEST_F(Compositions, EachHalfOfTheEnantiomersIsARedGreenPicture) {
  desk.stereo.RedGreenOn = 1;
  desk.colours.ColourByElement = 0;
  desk.colours.PenColour = Rgb(0, 255, 0);

  ComposeEnantiomerPair(desk);

  // A repaint in green, then red and green again: three times four half bonds.
  EXPECT_EQ(StrokesOf(desk.main.L_Img).size(), 12U);
  EXPECT_EQ(StrokesOf(desk.main.R_Img).size(), 12U);
  // The surface ends with the plain view.
  EXPECT_EQ(StrokesOf(desk.main.Picture1).size(), 4U);
}

using Composition = void (*)(Orvane_Desk&);

struct EveryComposition : Compositions, testing::WithParamInterface<Composition> {};

TEST_P(EveryComposition, LeavesTheAxisSelectorAsItWas) {
  desk.view.AxisX = 0;
  desk.view.AxisY = 0;
  desk.view.AxisZ = 1;
  GetParam()(desk);
  EXPECT_EQ(desk.view.AxisX, 0);
  EXPECT_EQ(desk.view.AxisY, 0);
  EXPECT_EQ(desk.view.AxisZ, 1);
}

TEST_P(EveryComposition, EndsAnyPickCycle) {
  desk.measure.PickState = 2;
  GetParam()(desk);
  EXPECT_EQ(desk.measure.PickState, 0);
}

TEST_P(EveryComposition, GivesTheCoordinatesBackUpToRounding) {
  for (int run = 0; run < 10'000; ++run) GetParam()(desk);
  // There are two turns in a run, each exact to a few units in the last place of numbers near 1. If
  // all erred to one side, 1e-16 times 20,000 steps could add up to 1e-11.
  double drift = 0;
  for (int i = 1; i <= atoms.AtomCount; ++i) {
    drift = std::max({drift, std::fabs(atoms.CurX[i] - atoms.AtomX[i]),
                      std::fabs(atoms.CurY[i] - atoms.AtomY[i]),
                      std::fabs(atoms.CurZ[i] - atoms.AtomZ[i])});
  }
  RecordProperty("drift", std::to_string(drift));
  EXPECT_LT(drift, 1e-10);
}

TEST_P(EveryComposition, WithNoStructureShowsTheEmptySurface) {
  DeskAtWork empty;
  GetParam()(empty.desk);
  EXPECT_TRUE(StrokesOf(empty.desk.main.Picture1).empty());
}

INSTANTIATE_TEST_SUITE_P(Views, EveryComposition,
                         testing::Values(ComposeStereoPair, ComposeStereoPairB,
                                         ComposeEnantiomerPair, ComposeRedGreen));

TEST_F(Compositions, CellsAreZeroOutsideOrKeptAsEachSays) {
  desk.view.AxisX = 1;
  desk.view.AxisY = 0;
  ComposeStereoPair(desk);
  ComposeStereoPairB(desk);
  ComposeRedGreen(desk);
  ComposeEnantiomerPair(desk);

  EXPECT_EQ(desk.stereo.PairCells.X, 0);
  EXPECT_EQ(desk.stereo.RedGreenCells.X, 0);
  EXPECT_EQ(desk.stereo.PairBCells.X, 1);
  EXPECT_EQ(desk.stereo.EnantiomerCells.X, 1);
  EXPECT_EQ(desk.stereo.EnantiomerCells.Y, 0);
}

TEST_F(Compositions, TheSecondPairStaysEmptyThroughEveryToggle) {
  for (int round = 0; round < 3; ++round) {
    Click(desk, desk.main.Bt3_Sterio);
    Click(desk, desk.main.Bt3_Isomers, Reach::Forced);
    Click(desk, desk.main.Bt3_D_L_Str);
  }
  EXPECT_EQ(desk.main.L_Img_b.Shown(), nullptr);
  EXPECT_EQ(desk.main.R_Img_b.Shown(), nullptr);
}

TEST_F(Compositions, AFailureInsideGivesAxisAndOverdrawBack) {
  // Planes overflow their run counter at the 32768th run, in the first repaint of a composition
  // that turns.
  desk.drawing.PeptideOn = 1;
  desk.drawing.PlanePaintCount = 32767;
  desk.view.AxisX = 1;
  desk.view.AxisY = 0;

  Click(desk, desk.main.R_G_Stereo);

  ASSERT_EQ(platform.Effects.size(), 1U);
  EXPECT_TRUE(platform.Effects[0].starts_with("failure "));
  EXPECT_EQ(desk.drawing.OverdrawPass, 0);
  EXPECT_EQ(desk.view.AxisX, 1);
  EXPECT_EQ(desk.view.AxisY, 0);
  EXPECT_EQ(desk.stereo.RedGreenCells.X, 0);
}

TEST_F(Compositions, AFailureInsideLeavesNoCellsOfThePairFilled) {
  // The first repaint is run 32767 of the plane painter; the next, which is turned, overflows.
  desk.drawing.PeptideOn = 1;
  desk.drawing.PlanePaintCount = 32766;
  desk.view.AxisX = 1;
  desk.view.AxisY = 0;

  Click(desk, desk.main.Bt3_Sterio);

  ASSERT_FALSE(platform.Effects.empty());
  ASSERT_TRUE(platform.Effects.back().starts_with("failure "));
  EXPECT_EQ(desk.stereo.PairCells.X, 0);
  EXPECT_EQ(desk.view.AxisX, 1);
}

TEST_F(Compositions, RedGreenOnTheSecondToggleRunsOnTheHiddenSurfaceAlone) {
  Click(desk, desk.main.Bt3_Isomers, Reach::Forced);  // gives both images a picture
  Click(desk, desk.main.Bt3_D_L_Str);                 // the off branch, by its caption
  Click(desk, desk.main.R_G_Stereo);
  const auto left = desk.main.L_Img.Shown();
  const auto right = desk.main.R_Img.Shown();
  platform.Effects.clear();

  Click(desk, desk.main.Bt3_D_L_Str);

  ASSERT_EQ(desk.stereo.EnantiomerPairOn, 1);
  EXPECT_FALSE(desk.main.Picture1.IsOpenToUser());
  EXPECT_EQ(desk.main.L_Img.Shown(), left);
  EXPECT_EQ(desk.main.R_Img.Shown(), right);
  EXPECT_EQ(desk.colours.PenColour, Rgb(0, 255, 0));
}

}  // namespace
}  // namespace orvane
