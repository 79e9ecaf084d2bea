#include "commands/pointer.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

struct PointerTest : testing::Test, DeskAtWork {
  // Box centre and pivot 0, 0, 0; extent 4, so an Angstrom is 45 pixels about 180, 180.
  PointerTest() {
    Load(desk, Record("N", -2, -1, -1) + Record("O", 2, -1, 1) + Record("N", -2, 1, -1) +
                   Record("O", 2, 1, 1));
  }

  PictureBox& surface = desk.main.Picture1;
  void Drag(float x1, float y1, float x2, float y2, int button = kRightButton) {
    Press(desk, surface, button, x1, y1);
    Move(desk, surface, button, x2, y2);
    Release(desk, surface, button, x2, y2);
  }
  double Between(int i, int j) const {
    const Molecule& m = desk.molecule;
    return std::hypot(m.CurX[i] - m.CurX[j], m.CurY[i] - m.CurY[j], m.CurZ[i] - m.CurZ[j]);
  }
};

TEST_F(PointerTest, APressWithNoAtomNearKeepsThePlaceAndTheAxisAndNothingElse) {
  desk.view.TurnAngle = 5;
  const auto before = surface.Image();
  Press(desk, surface, kLeftButton, 10.5f, 20);

  EXPECT_EQ(desk.view.PressX, 10.5f);
  EXPECT_EQ(desk.view.PressY, 20);
  EXPECT_EQ(desk.view.TurnAngle, 0);
  EXPECT_EQ(desk.view.SavedAxisX, 0);
  EXPECT_EQ(desk.view.SavedAxisY, 1);
  EXPECT_EQ(desk.view.SavedAxisZ, 0);
  EXPECT_EQ(desk.measure.PickState, 0);
  EXPECT_EQ(surface.Image(), before);
}

TEST_F(PointerTest, ALeftDragTurnsNothing) {
  Drag(100, 100, 300, 300, kLeftButton);

  EXPECT_EQ(desk.molecule.CurX[4], 2);
  EXPECT_EQ(desk.molecule.CurY[4], 1);
  EXPECT_EQ(desk.molecule.CurZ[4], 1);
}

TEST_F(PointerTest, OnlyTheRightButtonAloneTurns) {
  for (const int buttons : {0, kLeftButton | kRightButton, kMiddleButton, 6, 7}) {
    Drag(100, 100, 300, 300, buttons);
    EXPECT_EQ(desk.molecule.CurX[4], 2) << buttons;
  }
}

TEST_F(PointerTest, ASidewaysDragTurnsAboutYByTheDistanceFromThePress) {
  desk.molecule.PointB = {0, -5, 0};
  desk.molecule.PointA = {0, 5, 0};
  Drag(50, 60, 50 + 90, 60);

  // 90 of 360 pixels are a quarter of a width; 25 widths are a full turn: 3.6 degrees, from z to x.
  const double angle = 3.6 * std::acos(-1.0) / 180;
  EXPECT_NEAR(desk.molecule.CurX[4], 2 * std::cos(angle) + 1 * std::sin(angle), 1e-12);
  EXPECT_NEAR(desk.molecule.CurY[4], 1, 1e-12);
  EXPECT_NEAR(desk.molecule.CurZ[4], 1 * std::cos(angle) - 2 * std::sin(angle), 1e-12);
}

TEST_F(PointerTest, AnUpwardDragTurnsAboutX) {
  desk.molecule.PointB = {-5, -9, 0};
  desk.molecule.PointA = {5, 9, 0};
  Drag(50, 100, 50, 100 - 90);

  // The press lies 90 pixels below: +3.6 degrees about +x, from y to z.
  const double angle = 3.6 * std::acos(-1.0) / 180;
  EXPECT_NEAR(desk.molecule.CurX[4], 2, 1e-12);
  EXPECT_NEAR(desk.molecule.CurY[4], 1 * std::cos(angle) - 1 * std::sin(angle), 1e-12);
  EXPECT_NEAR(desk.molecule.CurZ[4], 1 * std::cos(angle) + 1 * std::sin(angle), 1e-12);
}

TEST_F(PointerTest, EachMovePaintsOnceForEachAxis) {
  Press(desk, surface, kRightButton, 10, 10);
  int wipes = 0;
  surface.Bind(EventKind::Change, [&](const Event&) { ++wipes; });
  Move(desk, surface, kRightButton, 20, 20);

  EXPECT_EQ(wipes, 2);
  EXPECT_EQ(desk.view.AxisX, 0);
  EXPECT_EQ(desk.view.AxisY, 1);
}

TEST_F(PointerTest, APointerHeldFarOutKeepsTurning) {
  desk.molecule.PointB = {0, -5, 0};
  desk.molecule.PointA = {0, 5, 0};
  Press(desk, surface, kRightButton, 50, 60);
  Move(desk, surface, kRightButton, 140, 60);
  Move(desk, surface, kRightButton, 140, 60);

  EXPECT_EQ(desk.view.PressX, 50);
  const double angle = 2 * 3.6 * std::acos(-1.0) / 180;
  EXPECT_NEAR(desk.molecule.CurX[4], 2 * std::cos(angle) + 1 * std::sin(angle), 1e-12);
}

TEST_F(PointerTest, AfterADragTheAxisOfTheBarIsTheOneBefore) {
  for (std::size_t tag = 0; tag < 3; ++tag) {
    Click(desk, desk.main.X_Tag[tag]);
    Drag(50, 50, 90, 90);
    EXPECT_EQ(desk.view.AxisX, tag == 0);
    EXPECT_EQ(desk.view.AxisY, tag == 1);
    EXPECT_EQ(desk.view.AxisZ, tag == 2);
  }
}

TEST_F(PointerTest, OfSeveralSavedAxesTheFirstStays) {
  desk.view.SavedAxisX = desk.view.SavedAxisY = desk.view.SavedAxisZ = 1;
  Release(desk, surface, kLeftButton, 0, 0);

  EXPECT_EQ(desk.view.AxisX, 1);
  EXPECT_EQ(desk.view.AxisY, 0);
  EXPECT_EQ(desk.view.AxisZ, 0);
}

TEST_F(PointerTest, ForAPressAnAxisOtherThan1IsNone) {
  desk.view.AxisY = 2;
  Press(desk, surface, kRightButton, 0, 0);

  EXPECT_EQ(desk.view.SavedAxisY, 0);
}

TEST_F(PointerTest, WithoutAStructureADragSilentlyTurnsNothing) {
  desk.molecule.MoleculeReady = 0;
  Drag(50, 50, 90, 90);

  EXPECT_EQ(desk.molecule.CurX[4], 2);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(PointerTest, OverThePictureThePointerIsACrossUnlessAPanelFloats) {
  for (Panel* panel : {&desk.main.P_Clr_Holder, &desk.main.V_RGB_H, &desk.main.P_Dir_Holder}) {
    desk.main.MousePointer = kPointerDefault;
    panel->Visible = true;
    Move(desk, surface, 0, 5, 5);
    EXPECT_EQ(desk.main.MousePointer, kPointerDefault) << panel->Name;
    panel->Visible = false;
  }
  Move(desk, surface, 0, 5, 5);
  EXPECT_EQ(desk.main.MousePointer, kPointerCross);
}

TEST_F(PointerTest, AnAxisTagIsPressedAndTheOthersAreRaised) {
  desk.main.P_Clr_Holder.Visible = true;
  Click(desk, desk.main.X_Tag[2]);

  EXPECT_EQ(desk.main.X_Tag[2].Style, (Look{1, 4}));
  EXPECT_EQ(desk.main.X_Tag[0].Style, (Look{2, 2}));
  EXPECT_EQ(desk.main.X_Tag[1].Style, (Look{2, 2}));
  EXPECT_EQ(desk.view.AxisZ, 1);
  EXPECT_FALSE(desk.main.P_Clr_Holder.Visible);
}

TEST_F(PointerTest, TenThousandDragsKeepTheDistancesOfTheAtoms) {
  // The presses miss the atoms, which lie within 111 pixels of the middle. A pick would move the
  // ends of the axis, and with both ends in one place the structure would shrink.
  std::mt19937 random(20);
  std::uniform_real_distribution<float> place(0, 360), margin(0, 60);
  for (int drag = 0; drag < 10000; ++drag) {
    Drag(margin(random), place(random), place(random), place(random));
  }

  const double size = std::hypot(4, 2, 2);  // from corner to corner of the box
  const Molecule& m = desk.molecule;
  for (int i = 1; i <= 4; ++i) {
    for (int j = 1; j < i; ++j) {
      const double as_read =
          std::hypot(m.AtomX[i] - m.AtomX[j], m.AtomY[i] - m.AtomY[j], m.AtomZ[i] - m.AtomZ[j]);
      EXPECT_NEAR(Between(i, j), as_read, 1e-9 * size);
    }
  }
}

}  // namespace
}  // namespace orvane
