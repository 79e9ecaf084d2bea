// Names on the map: which appear where, and which stay.

#include "ramachandran/map_names.h"

#include <gtest/gtest.h>
#include <map>

#include "desk_fixture.h"

namespace orvane {
namespace {

struct Hover : DeskAtWork, testing::Test {
  Hover() { desk.plot.Show(); }
  PlotWindow& plot = desk.plot;

  void PointAt(int area, float x, float y) {
    Move(desk, plot.Area[static_cast<std::size_t>(area)], 0, x, y);
  }
  bool Shows(MapName name) {
    const auto controls = ControlsOf(plot, name);
    for (const Control* control : controls) {
      EXPECT_EQ(control->Visible, controls.front()->Visible) << control->FullName();
    }
    return controls.front()->Visible;
  }
};

// The places of the marks, taken a second time from the map itself: name, area, and the first and
// last pixel that show it.
struct Mark {
  MapName Name;
  int Area, Left, Right, Top, Bottom;
};
constexpr Mark kMarks[] = {
    {MapName::Collagen, 0, 110, 115, 19, 24},  {MapName::Antiparallel, 0, 43, 53, 33, 42},
    {MapName::Parallel, 0, 58, 68, 48, 58},    {MapName::ThreeTenHelix, 1, 106, 111, 23, 29},
    {MapName::RightAlpha, 1, 88, 104, 38, 53}, {MapName::Extended, 1, 0, 6, 133, 138},
    {MapName::LeftAlpha, 3, 33, 44, 72, 82},
};

TEST_F(Hover, OverEveryPixelShowsJustTheNameOfTheMarkThere) {
  for (int area = 0; area < 4; ++area) {
    for (int y = 0; y < 139; ++y) {
      for (int x = 0; x < 141; ++x) {
        PointAt(area, static_cast<float>(x), static_cast<float>(y));
        for (const Mark& mark : kMarks) {
          const bool on_mark = mark.Area == area && x >= mark.Left && x <= mark.Right &&
                               y >= mark.Top && y <= mark.Bottom;
          ASSERT_EQ(Shows(mark.Name), on_mark)
              << "name " << static_cast<int>(mark.Name) << " at " << area << ": " << x << ", " << y;
        }
      }
    }
  }
}

TEST_F(Hover, AHalfPixelBeyondTheEdgeHidesTheCollagenHelix) {
  PointAt(0, 115, 24);
  EXPECT_TRUE(Shows(MapName::Collagen));
  PointAt(0, 115.5F, 24);
  EXPECT_FALSE(Shows(MapName::Collagen));
}

TEST_F(Hover, TheExtendedChainReactsInTheLowestLeftCorner) {
  PointAt(1, 0, 138);
  EXPECT_TRUE(Shows(MapName::Extended));
}

TEST_F(Hover, TheRightHandedHelixIsHiddenByTheEmptyAreaAndNotByTheUpperOne) {
  PointAt(1, 95, 45);
  PointAt(2, 10, 10);
  EXPECT_FALSE(Shows(MapName::RightAlpha));

  PointAt(1, 95, 45);
  PointAt(0, 1, 130);
  EXPECT_TRUE(Shows(MapName::RightAlpha));
}

TEST_F(Hover, ASheetNameStaysOnTheWayIntoTheLowerArea) {
  PointAt(0, 45, 35);
  PointAt(1, 50, 80);
  EXPECT_TRUE(Shows(MapName::Antiparallel));
  PointAt(0, 1, 1);
  EXPECT_FALSE(Shows(MapName::Antiparallel));
}

TEST_F(Hover, TheUpperRightAreaClearsTheCollagenHelix) {
  PointAt(0, 112, 22);
  PointAt(3, 1, 1);
  EXPECT_FALSE(Shows(MapName::Collagen));
}

TEST_F(Hover, TheFrameHidesTheExtendedChainOnly) {
  PointAt(1, 3, 135);
  for (Control* control : ControlsOf(plot, MapName::RightAlpha)) control->Visible = true;

  Move(desk, plot.RamPlt_H, 0, 1, 1);

  EXPECT_FALSE(Shows(MapName::Extended));
  EXPECT_TRUE(Shows(MapName::RightAlpha));
}

TEST_F(Hover, OfTheEmptyAreaNeverShowsAName) {
  for (const Mark& mark : kMarks) {
    PointAt(2, static_cast<float>(mark.Left), static_cast<float>(mark.Top));
    for (const Mark& other : kMarks) EXPECT_FALSE(Shows(other.Name));
  }
}

TEST_F(Hover, LeavesAGroupAloneWhoseFirstControlIsInTheWantedState) {
  PointAt(0, 45, 35);
  plot.b_sheet[4].Visible = false;

  PointAt(0, 46, 36);

  EXPECT_FALSE(plot.b_sheet[4].Visible);
}

}  // namespace
}  // namespace orvane
