#include "stereo/reset_view.h"

#include <cmath>
#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"
#include "view/transform.h"

namespace orvane {
namespace {

const double kPi = std::acos(-1.0);

// Two corners of a cube. Box centre and pivot 1, 1, 1; extent 2, so FitScale is 0.5.
struct ResetViewTest : testing::Test, DeskAtWork {
  ResetViewTest() { Load(desk, Record("N", 0, 0, 0) + Record("O", 2, 2, 2)); }

  double FromPivot(int i) const {
    return std::hypot(desk.molecule.CurX[i] - 1, desk.molecule.CurY[i] - 1,
                      desk.molecule.CurZ[i] - 1);
  }
  // The axis points up along y.
  void PointUp() {
    desk.molecule.PointB = {0, 0, 0};
    desk.molecule.PointA = {0, 1, 0};
  }
};

TEST_F(ResetViewTest, CopiesTheCoordinatesAsReadBack) {
  PointUp();
  desk.view.TurnAngle = 33;
  RotateAll(desk);
  ResetView(desk);

  EXPECT_EQ(desk.molecule.CurX[1], 0);
  EXPECT_EQ(desk.molecule.CurZ[2], 2);
  EXPECT_EQ(FromPivot(1), std::hypot(1, 1, 1));
  EXPECT_EQ(desk.molecule.ScrX[2], 270);  // (2 - 1) x 0.5 x 180 + 180
}

TEST_F(ResetViewTest, WithTheTurnBarElsewhereTurnsByOneStep) {
  desk.main.VScroll1.Value = 10;
  PointUp();
  const Point before{desk.molecule.CurX[2], desk.molecule.CurY[2], desk.molecule.CurZ[2]};
  ResetView(desk);

  EXPECT_EQ(desk.main.VScroll1.Value, 1);
  EXPECT_NEAR(desk.molecule.CurY[2], before.Y, 1e-12);
  EXPECT_GT(std::abs(desk.molecule.CurX[2] - before.X), 0.1);
  // Atom 2 is root 2 from the axis; a step of 10 degrees moves it by a chord of 2 r sin 5.
  EXPECT_NEAR(std::hypot(desk.molecule.CurX[2] - before.X, desk.molecule.CurZ[2] - before.Z),
              2 * std::sqrt(2.0) * std::sin(5 * kPi / 180), 1e-12);
}

TEST_F(ResetViewTest, WithTheTurnBarInPlaceTurnsNothing) {
  PointUp();
  ResetView(desk);

  EXPECT_EQ(desk.molecule.CurX[2], 2);
  EXPECT_EQ(desk.molecule.CurZ[2], 2);
}

TEST_F(ResetViewTest, SetsTheBarsInOrder) {
  desk.main.ZoomBar.Value = 5;
  desk.main.VScroll1.Value = 9;
  desk.main.X_TRANS.Value = 5;
  desk.main.Y_TRANS.Value = 5;
  std::vector<std::string> order;
  for (ScrollBar* bar :
       {&desk.main.Y_TRANS, &desk.main.X_TRANS, &desk.main.VScroll1, &desk.main.ZoomBar}) {
    bar->Bind(EventKind::Change, [&order, bar](const Event&) { order.push_back(bar->Name); });
  }
  ResetView(desk);

  EXPECT_EQ(order, (std::vector<std::string>{"ZoomBar", "VScroll1", "X_TRANS", "Y_TRANS"}));
}

}  // namespace
}  // namespace orvane
