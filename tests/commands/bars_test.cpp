#include "commands/bars.h"

#include <cmath>
#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

const double kStep = 10 * std::acos(-1.0) / 180;

// The first two atoms lie opposite the last two, so box centre and pivot are 0, 0, 0.
struct BarsTest : testing::Test, DeskAtWork {
  BarsTest() {
    Load(desk, Record("N", -2, -1, -1) + Record("O", 2, -1, 1) + Record("N", -2, 1, -1) +
                   Record("O", 2, 1, 1));
    PointUp();
  }

  // Makes the axis of the next turn run up along y, with PointA above PointB.
  void PointUp() {
    desk.molecule.PointB = {0, -5, 0};
    desk.molecule.PointA = {0, 5, 0};
  }
  double FromPivot(int i) const {
    return std::hypot(desk.molecule.CurX[i], desk.molecule.CurY[i], desk.molecule.CurZ[i]);
  }
  // The angle about y by which the last atom has turned since it was read: positive from z towards
  // x.
  double Turned() const {
    const Molecule& m = desk.molecule;
    return std::atan2(m.CurX[4], m.CurZ[4]) - std::atan2(m.AtomX[4], m.AtomZ[4]);
  }
  double TurnTo(int value) {
    const double before = Turned();
    StepBar(desk, desk.main.VScroll1, value);
    return Turned() - before;
  }
  int PixelsBy(ScrollBar& bar, int value) {
    const bool sideways = &bar == &desk.main.X_TRANS;
    const double before = sideways ? desk.molecule.ScrX[1] : desk.molecule.ScrY[1];
    StepBar(desk, bar, value);
    const double after = sideways ? desk.molecule.ScrX[1] : desk.molecule.ScrY[1];
    return static_cast<int>(after - before);
  }
};

TEST_F(BarsTest, ZoomFactorsFollowTheDirectionOfTheStep) {
  std::vector<double> factors;
  for (const int value : {5, 10, 5, 0}) {
    StepBar(desk, desk.main.ZoomBar, value);
    factors.push_back(desk.view.ZoomFactor);
  }

  EXPECT_EQ(factors, (std::vector<double>{1.1, 1.1, 0.9, 1.0}));
}

TEST_F(BarsTest, BelowTheMiddleAStepAwayShrinks) {
  std::vector<double> factors;
  for (const int value : {-5, -10, -5, 0}) {
    StepBar(desk, desk.main.ZoomBar, value);
    factors.push_back(desk.view.ZoomFactor);
  }

  EXPECT_EQ(factors, (std::vector<double>{0.9, 0.9, 1.1, 1.0}));
}

TEST_F(BarsTest, ZoomInAndOutDoesNotReturnToTheSameSize) {
  const double size = FromPivot(1);
  StepBar(desk, desk.main.ZoomBar, 5);
  StepBar(desk, desk.main.ZoomBar, 10);
  const double larger = FromPivot(1);
  StepBar(desk, desk.main.ZoomBar, 5);

  EXPECT_NEAR(larger, size * 1.1 * 1.1, 1e-12);
  EXPECT_NEAR(FromPivot(1), larger * 0.9, 1e-12);

  desk.main.ZoomBar.SetValue(10);  // one step up and one down: 0.99
  desk.main.ZoomBar.SetValue(5);
  EXPECT_NEAR(FromPivot(1), larger * 0.9 * 0.99, 1e-12);
}

TEST_F(BarsTest, AZoomOutAndBackToTheMiddleEndsLarger) {
  const double size = FromPivot(1);
  StepBar(desk, desk.main.ZoomBar, 1);
  StepBar(desk, desk.main.ZoomBar, 0);

  EXPECT_NEAR(FromPivot(1), size * 1.1, 1e-12);
}

TEST_F(BarsTest, APageStepZoomsAsMuchAsALine) {
  const double size = FromPivot(1);
  StepBar(desk, desk.main.ZoomBar, 100);

  EXPECT_NEAR(FromPivot(1), size * 1.1, 1e-12);
}

TEST_F(BarsTest, AZoomKeepsThePivotInItsPlace) {
  StepBar(desk, desk.main.ZoomBar, 5);

  EXPECT_EQ(desk.molecule.ScrX[1] + desk.molecule.ScrX[4], 360);
  EXPECT_NEAR(desk.molecule.CurX[2] / desk.molecule.AtomX[2], 1.1, 1e-15);
}

TEST_F(BarsTest, AStepUpTurnsByTenDegreesAndAStepDownBack) {
  EXPECT_NEAR(TurnTo(10), kStep, 1e-12);
  EXPECT_NEAR(TurnTo(46), kStep, 1e-12);
  EXPECT_NEAR(TurnTo(45), -kStep, 1e-12);
  EXPECT_NEAR(TurnTo(9), -kStep, 1e-12);
}

TEST_F(BarsTest, ThirtySixStepsAreAFullCircle) {
  for (int step = 1; step <= 35; ++step) StepBar(desk, desk.main.VScroll1, 1 + 10 * step);
  StepBar(desk, desk.main.VScroll1, 352);

  EXPECT_NEAR(desk.molecule.CurX[4], 2, 1e-12);
  EXPECT_NEAR(desk.molecule.CurZ[4], 1, 1e-12);
}

TEST_F(BarsTest, AValueThatComesAgainTurnsBack) {
  StepBar(desk, desk.main.VScroll1, 50);
  const double before = Turned();
  DragBar(desk, desk.main.VScroll1, 60);
  EXPECT_NEAR(Turned() - before, kStep, 1e-12);
  DropBar(desk, desk.main.VScroll1);  // the thumb is released at the same value

  EXPECT_NEAR(Turned(), before, 1e-12);
}

TEST_F(BarsTest, AtValue0NothingTurns) {
  EXPECT_NEAR(TurnTo(0), 0, 1e-12);
  EXPECT_EQ(desk.view.TurnAngle, 0);
}

TEST_F(BarsTest, TheEndOfTheTurnBarWrapsWithAStepInside) {
  StepBar(desk, desk.main.VScroll1, 350);
  const double before = Turned();
  StepBar(desk, desk.main.VScroll1, 360);

  // The inner step goes down from 350 to 1 and turns by -10. Then the same value comes again:
  // another -10.
  EXPECT_EQ(desk.main.VScroll1.Value, 1);
  EXPECT_EQ(desk.view.SpinNow, -1);
  EXPECT_EQ(desk.view.SpinPrev, -1);
  EXPECT_NEAR(Turned() - before, -2 * kStep, 1e-12);
}

TEST_F(BarsTest, TheWrapWithoutAStructureBeepsInsideAndTurnsUp) {
  desk.molecule.MoleculeReady = 0;
  desk.view.SpinPrev = -350;
  DragBar(desk, desk.main.VScroll1, 360);

  // The inner change is refused, so SpinNow is still the -360 of the scroll.
  EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
  EXPECT_EQ(desk.view.SpinPrev, 360);
  EXPECT_NEAR(Turned(), kStep, 1e-12);
}

TEST_F(BarsTest, AShiftIsTheWholeValueOfTheBar) {
  const auto shifts = [&](ScrollBar& bar) {
    std::vector<int> pixels;
    for (const int value : {5, 10, 5, 0}) pixels.push_back(PixelsBy(bar, value));
    return pixels;
  };
  EXPECT_EQ(shifts(desk.main.X_TRANS), (std::vector<int>{5, 10, -5, 0}));
  EXPECT_EQ(shifts(desk.main.Y_TRANS), (std::vector<int>{5, 10, -5, 0}));
  EXPECT_EQ(desk.view.PanX, 10);
  EXPECT_EQ(desk.view.PanY, 10);
}

TEST_F(BarsTest, BelowTheMiddleAShiftBackGoesRight) {
  EXPECT_EQ(PixelsBy(desk.main.X_TRANS, -10), -10);
  EXPECT_EQ(PixelsBy(desk.main.X_TRANS, -5), 5);
}

TEST_F(BarsTest, AShiftLastsThroughTheNextProjection) {
  StepBar(desk, desk.main.X_TRANS, 5);
  const double shifted = desk.molecule.ScrX[1];
  StepBar(desk, desk.main.ZoomBar, 0);
  desk.view.ZoomNow = 0;
  ZoomBar_Scroll(desk);

  EXPECT_NEAR(desk.molecule.ScrX[1], shifted, 1e-12);
}

TEST_F(BarsTest, ASumOfShiftsThatLeaves16BitsFailsOnceTheAtomsHaveMoved) {
  desk.view.PanX = 32760;
  const double before = desk.molecule.ScrX[1];
  StepBar(desk, desk.main.X_TRANS, 10);

  EXPECT_EQ(desk.view.PanX, 32760);
  EXPECT_EQ(desk.molecule.ScrX[1], before + 10);
  EXPECT_EQ(desk.view.XShiftPrev, 0);
  ASSERT_EQ(platform.Effects.size(), 1u);
  EXPECT_TRUE(platform.Effects[0].starts_with("failure Move left and right"))
      << platform.Effects[0];
}

TEST_F(BarsTest, AChangeWithoutAStructureBeepsAndClosesThePanels) {
  desk.molecule.MoleculeReady = 0;
  for (ScrollBar* bar :
       {&desk.main.ZoomBar, &desk.main.VScroll1, &desk.main.X_TRANS, &desk.main.Y_TRANS}) {
    platform.Effects.clear();
    desk.main.V_RGB_H.Visible = true;
    StepBar(desk, *bar, 20);
    EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"}) << bar->Name;
    EXPECT_FALSE(desk.main.V_RGB_H.Visible) << bar->Name;
  }
  EXPECT_EQ(desk.view.PanX, 0);
  EXPECT_EQ(Turned(), 0);
}

TEST_F(BarsTest, ADragHasNoGuardAndLeavesThePanelsOpen) {
  desk.molecule.MoleculeReady = 0;
  desk.main.V_RGB_H.Visible = true;
  DragBar(desk, desk.main.X_TRANS, 10);
  DragBar(desk, desk.main.Y_TRANS, -20);

  EXPECT_EQ(desk.view.PanX, 10);
  EXPECT_EQ(desk.view.PanY, -20);
  EXPECT_TRUE(desk.main.V_RGB_H.Visible);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(BarsTest, ALoadLeavesTheStepsOfTheBarsAsTheyAre) {
  StepBar(desk, desk.main.ZoomBar, 10);
  StepBar(desk, desk.main.X_TRANS, 10);
  Load(desk, Record("N", 0, 0, 0) + Record("O", 2, 2, 2));

  EXPECT_EQ(desk.view.ZoomPrev, 10);
  EXPECT_EQ(desk.view.XShiftPrev, 10);
  EXPECT_EQ(desk.view.PanX, 10);
}

}  // namespace
}  // namespace orvane
