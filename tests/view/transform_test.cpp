#include "view/transform.h"

#include <cmath>
#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

const double kPi = std::acos(-1.0);

// Box centre and pivot 1, 1, 1; extent 2, so FitScale is 0.5. The atoms are too far apart for
// bonds.
std::string TwoCorners() { return Record("N", 0, 0, 0) + Record("O", 2, 2, 2); }

struct TransformTest : testing::Test, DeskAtWork {
  TransformTest() { Load(desk, TwoCorners()); }

  // The axis points up along y.
  void PointUp() {
    desk.molecule.PointB = {0, 0, 0};
    desk.molecule.PointA = {0, 1, 0};
  }
};

TEST_F(TransformTest, ATurnAboutYGoesFromZTowardsX) {
  PointUp();
  desk.view.TurnAngle = 90;
  RotateAll(desk);

  // Atom 2 is at (1, 1, 1) from the pivot; a right-handed quarter turn about +y sends x to -z
  // and z to x.
  EXPECT_NEAR(desk.molecule.CurX[2], 2, 1e-12);
  EXPECT_NEAR(desk.molecule.CurY[2], 2, 1e-12);
  EXPECT_NEAR(desk.molecule.CurZ[2], 0, 1e-12);
}

TEST_F(TransformTest, TheSenseOfATurnIsThatOfPointAOverPointB) {
  desk.molecule.PointB = {0, 7, 0};
  desk.molecule.PointA = {0, 3, 0};  // downward: the quarter turn goes the other way round
  desk.view.TurnAngle = 90;
  RotateAll(desk);

  EXPECT_NEAR(desk.molecule.CurX[2], 0, 1e-12);
  EXPECT_NEAR(desk.molecule.CurZ[2], 2, 1e-12);
}

struct AxisCase {
  int X, Y, Z;
  Point End;  // of atom 2 after a quarter turn, from the pivot
};

TEST_F(TransformTest, EachAxisTurnsRightHanded) {
  const AxisCase cases[] = {
      {1, 0, 0, {1, -1, 1}},  // y to z, z to -y
      {0, 1, 0, {1, 1, -1}},  // z to x, x to -z
      {0, 0, 1, {-1, 1, 1}},  // x to y, y to -x
  };
  for (const AxisCase& row : cases) {
    Load(desk, TwoCorners());
    desk.molecule.PointB = {0, 0, 0};
    desk.molecule.PointA = {5, 5, 5};
    desk.view.AxisX = row.X;
    desk.view.AxisY = row.Y;
    desk.view.AxisZ = row.Z;
    desk.view.TurnAngle = 90;
    RotateAll(desk);
    EXPECT_NEAR(desk.molecule.CurX[2] - 1, row.End.X, 1e-12);
    EXPECT_NEAR(desk.molecule.CurY[2] - 1, row.End.Y, 1e-12);
    EXPECT_NEAR(desk.molecule.CurZ[2] - 1, row.End.Z, 1e-12);
  }
}

TEST_F(TransformTest, AnAxisWithTwoLiveComponentsIsNormalised) {
  desk.molecule.PointB = {0, 0, 0};
  desk.molecule.PointA = {3, 3, 9};
  desk.view.AxisX = 1;
  desk.view.AxisY = 1;
  desk.view.TurnAngle = 180;
  RotateAll(desk);

  // Half a turn about the diagonal of x and y exchanges them and flips z.
  EXPECT_NEAR(desk.molecule.CurX[2] - 1, 1, 1e-12);
  EXPECT_NEAR(desk.molecule.CurY[2] - 1, 1, 1e-12);
  EXPECT_NEAR(desk.molecule.CurZ[2] - 1, -1, 1e-12);
}

TEST_F(TransformTest, WithoutAnAxisATurnShrinksByItsCosine) {
  desk.molecule.PointB = {0, 4, 0};
  desk.molecule.PointA = {9, 4, 9};  // equal in y, the live component
  desk.view.TurnAngle = 10;
  RotateAll(desk);

  const double shrunk = std::cos(10 * kPi / 180);
  EXPECT_NEAR(desk.molecule.CurX[2], 1 + shrunk, 1e-15);
  EXPECT_NEAR(desk.molecule.CurY[2], 1 + shrunk, 1e-15);
  EXPECT_NEAR(desk.molecule.CurZ[2], 1 + shrunk, 1e-15);
}

TEST_F(TransformTest, ATurnLeavesItsAngleInRadiansAndItsLastAtomInPointA) {
  PointUp();
  desk.view.TurnAngle = 180;
  RotateAll(desk);

  EXPECT_NEAR(desk.view.TurnAngle, kPi, 1e-15);
  EXPECT_EQ(desk.molecule.PointA.X, desk.molecule.CurX[2]);
  EXPECT_EQ(desk.molecule.PointA.Y, desk.molecule.CurY[2]);
  EXPECT_EQ(desk.molecule.PointA.Z, desk.molecule.CurZ[2]);
}

TEST_F(TransformTest, ATurnEndsThePickCycleAndAZoomDoesNot) {
  desk.measure.PickState = 2;
  desk.view.ZoomNow = -5;
  ZoomAll(desk);
  EXPECT_EQ(desk.measure.PickState, 2);

  desk.view.TurnAngle = 0;
  RotateAll(desk);
  EXPECT_EQ(desk.measure.PickState, 0);
}

TEST_F(TransformTest, ATurnLeavesTheCoordinatesAsReadAlone) {
  PointUp();
  desk.view.TurnAngle = 33;
  RotateAll(desk);

  EXPECT_EQ(desk.molecule.AtomX[2], 2);
  EXPECT_EQ(desk.molecule.AtomZ[2], 2);
}

TEST_F(TransformTest, AZoomIsADiagonalAndLeavesTheFourthRowAlone) {
  desk.view.RotM[3][3] = 7;
  desk.view.RotM[0][3] = 8;
  desk.view.RotM[1][2] = 9;
  desk.view.ZoomFactor = 1.1;
  BuildZoom(desk.view);

  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      EXPECT_EQ(desk.view.RotM[row][column], row == column ? 1.1 : 0.0);
    }
  }
  EXPECT_EQ(desk.view.RotM[3][3], 7);
  EXPECT_EQ(desk.view.RotM[0][3], 8);
}

TEST_F(TransformTest, RowsAreSummedColumnOneFirst) {
  // Summed from the left, 1e17 - 1e17 + 1 is 1; any order that adds the 1 to 1e17 loses it.
  desk.molecule.PivotX = desk.molecule.PivotY = desk.molecule.PivotZ = 0;
  desk.molecule.PointA = {1, 1, 1};
  desk.view.RotM[0][1] = 1e17;
  desk.view.RotM[0][0] = -1e17;
  desk.view.RotM[0][2] = 1;
  TurnPoint(desk.molecule, desk.view);

  EXPECT_EQ(desk.molecule.PointA.X, 1);
}

}  // namespace
}  // namespace orvane
