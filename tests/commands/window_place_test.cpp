#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {
namespace {

constexpr Place kFixed{525, 15, 8505, 7275};
constexpr Place kDragged{900, 700, 12000, 9000};

TEST(Geometry, AResizedDeskGoesBackToItsFixedSizeAndPlace) {
  DeskAtWork work;

  Resize(work.desk, work.desk.main, kDragged, WindowState::Normal);

  EXPECT_EQ(work.desk.main.At.Get(), kFixed);
}

TEST(Geometry, AMaximisedDeskKeepsTheSizeOfTheScreen) {
  DeskAtWork work;

  Resize(work.desk, work.desk.main, kDragged, WindowState::Maximised);

  EXPECT_EQ(work.desk.main.At.Get(), kDragged);
}

TEST(Geometry, AMinimisedDeskIsLeftAlone) {
  DeskAtWork work;

  Resize(work.desk, work.desk.main, kDragged, WindowState::Minimised);

  EXPECT_EQ(work.desk.main.At.Get(), kDragged);
}

TEST(Geometry, TheFixedPlaceComesBackAfterTheMaximisedState) {
  DeskAtWork work;
  Resize(work.desk, work.desk.main, kDragged, WindowState::Maximised);

  Resize(work.desk, work.desk.main, {0, 0, 9000, 8000}, WindowState::Normal);

  EXPECT_EQ(work.desk.main.At.Get(), kFixed);
}

TEST(Geometry, ResizesOfTheOtherWindowsAreTheirOwn) {
  DeskAtWork work;

  Resize(work.desk, work.desk.content, kDragged, WindowState::Normal);

  EXPECT_EQ(work.desk.content.At.Get(), kDragged);
  EXPECT_EQ(work.desk.main.At.Get(), kFixed);
}

}  // namespace
}  // namespace orvane
