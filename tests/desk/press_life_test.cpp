#include "desk/press_life.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kSpace = 32, kEnter = 13;

// A button that keeps what comes to it.
struct ALifeOfAPress : testing::Test {
  DeskAtWork work;
  Control& button = work.desk.main.Bt3_Reset;
  PressLife life{work.desk, button};
  std::vector<std::string> heard;
  Event last;

  ALifeOfAPress() {
    const std::pair<EventKind, std::string> kinds[] = {{EventKind::Press, "press"},
                                                       {EventKind::Move, "move"},
                                                       {EventKind::Release, "release"},
                                                       {EventKind::Click, "click"}};
    for (const auto& [kind, name] : kinds) {
      button.Bind(kind, [this, name = name](const Event& event) {
        heard.push_back(name);
        last = event;
      });
    }
  }
};

TEST_F(ALifeOfAPress, EndsInAClickWhereTheLeftButtonIsLetGoOverTheControl) {
  life.ButtonDown(kLeftButton, 3, 4);
  EXPECT_TRUE(life.IsHeld());
  life.Moved(kLeftButton, 5, 6);
  life.ButtonUp(kLeftButton, 5, 6, true);

  EXPECT_THAT(heard, ElementsAre("press", "move", "release", "click"));
  EXPECT_FALSE(life.IsHeld());
}

TEST_F(ALifeOfAPress, EndsWithoutAClickBesideTheControl) {
  life.ButtonDown(kLeftButton, 3, 4);
  life.ButtonUp(kLeftButton, -9, 4, false);

  EXPECT_THAT(heard, ElementsAre("press", "release"));
  EXPECT_EQ(last.X, -9);
}

TEST_F(ALifeOfAPress, OfAnotherButtonHoldsNothingAndClicksNothing) {
  life.ButtonDown(kRightButton, 3, 4);
  EXPECT_FALSE(life.IsHeld());
  life.ButtonUp(kRightButton, 3, 4, true);

  EXPECT_THAT(heard, ElementsAre("press", "release"));
}

TEST_F(ALifeOfAPress, LosesItsClickToAnotherButtonThatComesDownMeanwhile) {
  life.ButtonDown(kLeftButton, 3, 4);
  life.ButtonDown(kRightButton, 3, 4);
  EXPECT_FALSE(life.IsHeld());
  life.ButtonUp(kRightButton, 3, 4, true);
  life.ButtonUp(kLeftButton, 3, 4, true);

  EXPECT_THAT(heard, ElementsAre("press", "press", "release", "release"));
}

TEST_F(ALifeOfAPress, DoesNotBeginOnAControlThatIsNotOpen) {
  button.Enabled = false;
  life.ButtonDown(kLeftButton, 3, 4);
  EXPECT_FALSE(life.IsHeld());
  button.Enabled = true;
  life.ButtonUp(kLeftButton, 3, 4, true);

  EXPECT_THAT(heard, ElementsAre("release"));
}

TEST_F(ALifeOfAPress, EndsInSilenceOnAControlThatWasClosedMeanwhile) {
  life.ButtonDown(kLeftButton, 3, 4);
  button.Visible = false;
  life.ButtonUp(kLeftButton, 3, 4, true);

  EXPECT_THAT(heard, ElementsAre("press"));
  EXPECT_FALSE(life.IsHeld());
}

TEST_F(ALifeOfAPress, LooksHeldNoMoreWhenItsHandlersRun) {
  bool held_in_release = true, held_in_click = true;
  button.Bind(EventKind::Release, [&](const Event&) { held_in_release = life.IsHeld(); });
  button.Bind(EventKind::Click, [&](const Event&) { held_in_click = life.IsHeld(); });

  life.ButtonDown(kLeftButton, 3, 4);
  life.ButtonUp(kLeftButton, 3, 4, true);

  EXPECT_FALSE(held_in_release);
  EXPECT_FALSE(held_in_click);
}

TEST_F(ALifeOfAPress, ByAKeyComesAllAtOnceWhenTheKeyIsLetGo) {
  life.KeyDown(kSpace);
  EXPECT_TRUE(life.IsHeld());
  EXPECT_THAT(heard, IsEmpty());
  EXPECT_TRUE(life.KeyUp(kSpace));

  EXPECT_THAT(heard, ElementsAre("press", "release", "click"));
  EXPECT_FALSE(life.IsHeld());
}

TEST_F(ALifeOfAPress, ByAKeyPassesASecondKeyBy) {
  life.KeyDown(kSpace);
  life.KeyDown(kEnter);
  EXPECT_FALSE(life.KeyUp(kEnter));
  EXPECT_TRUE(life.KeyUp(kSpace));

  EXPECT_THAT(heard, ElementsAre("press", "release", "click"));
}

TEST_F(ALifeOfAPress, ByAKeyEndsWhereTheKeyboardLeaves) {
  life.KeyDown(kSpace);
  life.KeyboardLeaves();
  EXPECT_FALSE(life.IsHeld());
  EXPECT_FALSE(life.KeyUp(kSpace));

  EXPECT_THAT(heard, IsEmpty());
}

// 600 by 300 twips are 40 by 20 pixels.
TEST_F(ALifeOfAPress, WithoutAPointerIsLivedInTheMiddle) {
  button.At = Place{0, 0, 600, 300};
  Event press;
  button.Bind(EventKind::Press, [&](const Event& event) { press = event; });

  PressAndClickInTheMiddle(work.desk, button);

  EXPECT_EQ(press.X, 20);
  EXPECT_EQ(press.Y, 10);
  EXPECT_EQ(press.Button, kLeftButton);
}

}  // namespace
}  // namespace orvane
