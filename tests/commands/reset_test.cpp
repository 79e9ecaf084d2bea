#include "commands/reset.h"

#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

struct ResetTest : testing::Test, DeskAtWork {
  ResetTest() { Load(desk, Record("N", -2, -1, -1) + Record("O", 2, 1, 1)); }
  void Reset() { Click(desk, desk.main.Bt3_Reset); }
};

TEST_F(ResetTest, WithoutAStructureItBeepsAndLeavesThePanels) {
  desk.molecule.MoleculeReady = 0;
  desk.drawing.BondWidth = 4;
  desk.main.P_Clr_Holder.Visible = true;
  Reset();

  EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
  EXPECT_EQ(desk.drawing.BondWidth, 4);
  EXPECT_TRUE(desk.main.P_Clr_Holder.Visible);
}

TEST_F(ResetTest, SizesBarsAndShiftsGoBack) {
  desk.drawing.BallSize = 6;
  desk.drawing.BondWidth = 5;
  desk.drawing.PlaneWidth = 4;
  desk.view.SurfOffX = 3;
  for (ScrollBar* bar :
       {&desk.main.ZoomBar, &desk.main.VScroll1, &desk.main.X_TRANS, &desk.main.Y_TRANS}) {
    StepBar(desk, *bar, 20);
  }
  StepBar(desk, desk.main.Rt_speed, 7);
  Reset();

  EXPECT_EQ(desk.drawing.BallSize, 3);
  EXPECT_EQ(desk.drawing.BondWidth, 1);
  EXPECT_EQ(desk.drawing.PlaneWidth, 1);
  EXPECT_EQ(desk.main.ZoomBar.Value, 0);
  EXPECT_EQ(desk.main.VScroll1.Value, 1);
  EXPECT_EQ(desk.main.X_TRANS.Value, 0);
  EXPECT_EQ(desk.main.Y_TRANS.Value, 0);
  EXPECT_EQ(desk.main.Rt_speed.Value, 200);
  EXPECT_EQ(desk.main.Timer1.Interval, 200);
  EXPECT_EQ(desk.view.PanX, 0);
  EXPECT_EQ(desk.view.PanY, 0);
  EXPECT_EQ(desk.view.SurfOffX, 0);
}

TEST_F(ResetTest, TheIntervalFollowsASpeedBarThatIsStillHeld) {
  StepBar(desk, desk.main.Rt_speed, 50);
  DragBar(desk, desk.main.Rt_speed, 200);
  Reset();

  EXPECT_EQ(desk.main.Timer1.Interval, 200);
}

TEST_F(ResetTest, TheZoomGoesBackAndRemembersItsLastStep) {
  StepBar(desk, desk.main.ZoomBar, 5);
  StepBar(desk, desk.main.ZoomBar, 10);
  Reset();

  EXPECT_EQ(desk.molecule.CurX[2], 2);
  EXPECT_EQ(desk.molecule.ScrX[2], 270);
  EXPECT_EQ(desk.view.ZoomFactor, 1.0);
}

TEST_F(ResetTest, TheBackgroundTurnsBlackButAPictureStays) {
  desk.colours.BakImg[1] = std::make_shared<const Bitmap>();
  desk.colours.BackgroundIndex = 1;
  desk.main.Picture1.SetBackColor(kPalette15);
  Reset();

  EXPECT_EQ(desk.main.Picture1.PlainColour(), kPalette0);
  EXPECT_EQ(desk.colours.BackgroundIndex, 1);
  EXPECT_EQ(desk.main.Picture1.Image()->Backdrop, desk.colours.BakImg[1]);
}

TEST_F(ResetTest, ModesColoursTheAxisAndThePickCycleStay) {
  desk.drawing.BallsOn = 1;
  desk.drawing.LabelsOn = 1;
  desk.drawing.HBondShown = 1;
  desk.colours.PenColour = Rgb(1, 2, 3);
  desk.colours.ColourByElement = 0;
  desk.measure.PickState = 2;
  Click(desk, desk.main.X_Tag[2]);
  Reset();

  EXPECT_EQ(desk.drawing.BallsOn, 1);
  EXPECT_EQ(desk.drawing.LabelsOn, 1);
  EXPECT_EQ(desk.drawing.HBondShown, 1);
  EXPECT_EQ(desk.colours.PenColour, Rgb(1, 2, 3));
  EXPECT_EQ(desk.colours.ColourByElement, 0);
  EXPECT_EQ(desk.measure.PickState, 2);
  EXPECT_EQ(desk.view.AxisZ, 1);
}

TEST_F(ResetTest, ATurnBarElsewhereLeavesTheMoleculeTurnedByOneStep) {
  StepBar(desk, desk.main.VScroll1, 50);
  desk.molecule.PointB = {0, -5, 0};
  desk.molecule.PointA = {0, 5, 0};
  Reset();
  EXPECT_LT(desk.molecule.CurX[2], 2);  // down to 1: from x towards z, away from 2
  Reset();

  EXPECT_EQ(desk.molecule.CurX[2], 2);
}

}  // namespace
}  // namespace orvane
