#include "ramachandran/map_walk.h"

#include <gtest/gtest.h>
#include <vector>

#include "desk_fixture.h"
#include "ramachandran/map_names.h"

namespace orvane {
namespace {

using enum MapName;

struct MapWalk : DeskAtWork, testing::Test {
  MapWalk() { desk.plot.Show(); }

  std::vector<MapName> Shown() {
    std::vector<MapName> shown;
    for (const MapName name :
         {Collagen, Antiparallel, Parallel, ThreeTenHelix, RightAlpha, Extended, LeftAlpha}) {
      if (ControlsOf(desk.plot, name).front()->Visible) shown.push_back(name);
    }
    return shown;
  }
};

TEST_F(MapWalk, ShowsEachNameAloneAndComesRound) {
  for (const MapName name : {Collagen, Antiparallel, Parallel, ThreeTenHelix, RightAlpha, Extended,
                             LeftAlpha, Collagen}) {
    ShowNextMapName(desk);
    EXPECT_EQ(Shown(), std::vector{name});
  }
}

TEST_F(MapWalk, GoesBackwardsFromTheLast) {
  for (const MapName name : {LeftAlpha, Extended, RightAlpha}) {
    ShowPreviousMapName(desk);
    EXPECT_EQ(Shown(), std::vector{name});
  }
}

TEST_F(MapWalk, GoesOnFromTheNameThatThePointerHasShown) {
  Move(desk, desk.plot.Area[1], 0, 96, 45);
  ASSERT_EQ(Shown(), std::vector{RightAlpha});
  ShowNextMapName(desk);
  EXPECT_EQ(Shown(), std::vector{Extended});
}

TEST_F(MapWalk, DoesNothingInAHiddenWindow) {
  desk.plot.Hide();
  ShowNextMapName(desk);
  EXPECT_TRUE(Shown().empty());
}

}  // namespace
}  // namespace orvane
