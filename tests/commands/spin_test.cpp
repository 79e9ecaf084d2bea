#include "commands/spin.h"

#include <cmath>
#include <gtest/gtest.h>

#include "commands/reset.h"
#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

const double kStep = 10 * std::acos(-1.0) / 180;

struct SpinTest : testing::Test, DeskAtWork {
  SpinTest() {
    Load(desk, Record("N", -2, -1, -1) + Record("O", 2, -1, 1) + Record("N", -2, 1, -1) +
                   Record("O", 2, 1, 1));
    desk.molecule.PointB = {0, -5, 0};
    desk.molecule.PointA = {0, 5, 0};
  }
  double Turned() const {
    const Molecule& m = desk.molecule;
    return std::atan2(m.CurX[4], m.CurZ[4]) - std::atan2(m.AtomX[4], m.AtomZ[4]);
  }
  void StartSpin() { Click(desk, desk.main.P_Auto_Rotate); }
  Timer& timer = desk.main.Timer1;
};

TEST_F(SpinTest, TheSwitchTurnsTheTimerOnAndOff) {
  EXPECT_FALSE(timer.Enabled);
  desk.main.P_Dir_Holder.Visible = true;
  StartSpin();
  EXPECT_TRUE(timer.Enabled);
  EXPECT_EQ(desk.view.AutoRotateOn, 1);
  EXPECT_EQ(desk.main.P_Auto_Rotate.Style, (Look{1, 2}));
  EXPECT_FALSE(desk.main.P_Dir_Holder.Visible);

  Click(desk, desk.main.P_Auto_Rotate);
  EXPECT_FALSE(timer.Enabled);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_EQ(desk.main.P_Auto_Rotate.Style, (Look{0, 3}));
}

TEST_F(SpinTest, TheSwitchBeepsWithoutAStructure) {
  desk.molecule.MoleculeReady = 0;
  StartSpin();

  EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_FALSE(timer.Enabled);
}

TEST_F(SpinTest, TheSpinKeepsTheDirectionOfTheLastStep) {
  StepBar(desk, desk.main.VScroll1, 50);
  StepBar(desk, desk.main.VScroll1, 40);  // the last step went down
  const double before = Turned();
  StartSpin();
  for (int tick = 0; tick < 3; ++tick) Tick(desk, timer);
  EXPECT_NEAR(Turned() - before, -3 * kStep, 1e-12);

  StepBar(desk, desk.main.VScroll1, 50);
  const double turned_up = Turned();
  for (int tick = 0; tick < 3; ++tick) Tick(desk, timer);
  EXPECT_NEAR(Turned() - turned_up, 3 * kStep, 1e-12);
}

TEST_F(SpinTest, WithTheTurnBarUntouchedTheSpinStandsStill) {
  StartSpin();
  Tick(desk, timer);

  EXPECT_EQ(Turned(), 0);
}

TEST_F(SpinTest, ARecordingMovesTheBarOffItsStart) {
  desk.recording.GifRecording = -1;
  desk.recording.GifFrame = 1;
  StartSpin();
  EXPECT_EQ(desk.main.VScroll1.Value, 2);
  EXPECT_NE(desk.view.SpinNow, 0);

  Click(desk, desk.main.P_Auto_Rotate);
  desk.recording.GifRecording = 0;
  desk.main.VScroll1.Value = 1;
  StartSpin();
  EXPECT_EQ(desk.main.VScroll1.Value, 1);
}

TEST_F(SpinTest, ARecordingLeavesABarElsewhereAlone) {
  desk.recording.GifRecording = -1;
  desk.main.VScroll1.Value = 30;
  StartSpin();

  EXPECT_EQ(desk.main.VScroll1.Value, 30);
  EXPECT_EQ(Turned(), 0);
}

TEST_F(SpinTest, TheSpeedBarGivesTheIntervalWithAndWithoutAStructure) {
  EXPECT_EQ(timer.Interval, 200);
  desk.molecule.MoleculeReady = 0;
  desk.main.P_Clr_Holder.Visible = true;
  StepBar(desk, desk.main.Rt_speed, 1);

  EXPECT_EQ(timer.Interval, 1);
  EXPECT_TRUE(desk.main.P_Clr_Holder.Visible);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(SpinTest, AClickThatWaitsIsHandledInsideTheTickAndStopsIt) {
  StepBar(desk, desk.main.VScroll1, 50);
  StartSpin();
  const double before = Turned();
  platform.PendingEvents = [&] {
    platform.PendingEvents = nullptr;
    Click(desk, desk.main.P_Auto_Rotate);
  };
  Tick(desk, timer);

  EXPECT_EQ(Turned(), before);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
}

TEST_F(SpinTest, ATickMayNestInATick) {
  StepBar(desk, desk.main.VScroll1, 50);
  StartSpin();
  const double before = Turned();
  platform.PendingEvents = [&] {
    platform.PendingEvents = nullptr;
    Tick(desk, timer);
  };
  Tick(desk, timer);

  EXPECT_NEAR(Turned() - before, 2 * kStep, 1e-12);
}

TEST_F(SpinTest, ALoadInsideATickIsTurnedByTheTick) {
  StepBar(desk, desk.main.VScroll1, 50);
  StartSpin();
  platform.PendingEvents = [&] {
    platform.PendingEvents = nullptr;
    Load(desk, Record("N", 0, 0, 0) + Record("C", 4, 0, 3));
    desk.molecule.PointB = {0, -5, 0};
    desk.molecule.PointA = {0, 5, 0};
  };
  Tick(desk, timer);

  // From the pivot 2, 0, 1.5 the second atom stands at 2, 0, 1.5.
  EXPECT_EQ(desk.molecule.AtomCount, 2);
  EXPECT_NEAR(desk.molecule.CurX[2], 2 + 2 * std::cos(kStep) + 1.5 * std::sin(kStep), 1e-12);
}

TEST_F(SpinTest, AFailureInsideATickShowsOneBoxAndStopsTheSpin) {
  StepBar(desk, desk.main.VScroll1, 50);
  StartSpin();
  desk.molecule.AtomCount = 30001;  // one past the slots
  Tick(desk, timer);
  Tick(desk, timer);

  ASSERT_EQ(platform.Effects.size(), 1u);
  EXPECT_TRUE(platform.Effects[0].starts_with("failure ")) << platform.Effects[0];
  EXPECT_FALSE(timer.Enabled);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_EQ(desk.main.P_Auto_Rotate.Style, (Look{0, 3}));
}

TEST_F(SpinTest, AFailureOfAClickInsideATickDoesNotStopTheSpin) {
  StepBar(desk, desk.main.VScroll1, 50);
  StartSpin();
  const double before = Turned();
  platform.PendingEvents = [&] {
    platform.PendingEvents = nullptr;
    desk.molecule.PointA = desk.molecule.PointB = desk.measure.PointC = {1, 2, 3};
    Click(desk, desk.main.Bt3_Ang);
    desk.molecule.PointB = {0, -5, 0};
    desk.molecule.PointA = {0, 5, 0};
  };
  Tick(desk, timer);

  EXPECT_EQ(platform.Effects.size(), 1u);
  EXPECT_NEAR(Turned() - before, kStep, 1e-12);
  EXPECT_EQ(desk.view.AutoRotateOn, 1);
}

TEST_F(SpinTest, AResetDuringSpinningStopsItAndLeavesTheTimerRunning) {
  StepBar(desk, desk.main.VScroll1, 50);
  StartSpin();
  Click(desk, desk.main.Bt3_Reset);

  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_TRUE(timer.Enabled);
  EXPECT_EQ(desk.main.P_Auto_Rotate.Style, (Look{0, 3}));
  const double before = Turned();
  Tick(desk, timer);
  EXPECT_EQ(Turned(), before);
}

TEST_F(SpinTest, AfterAResetWithTheBarInPlaceTheSpinStandsStill) {
  desk.view.SpinNow = -30;
  Click(desk, desk.main.Bt3_Reset);
  StartSpin();
  Tick(desk, timer);

  EXPECT_EQ(desk.view.SpinNow, 0);
  EXPECT_EQ(Turned(), 0);
}

}  // namespace
}  // namespace orvane
