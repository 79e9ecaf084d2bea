#include "controls/control.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/every_column.h"
#include "controls/small_window.h"

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Control, BeginsAsItsRowSays) {
  SmallWindow window;
  EXPECT_EQ(window.Key.Caption, "Key");
  EXPECT_EQ(window.Frame.At.Get(), (Place{15, 30, 45, 60}));
  EXPECT_EQ(window.Key.Parent, &window.Frame);
  EXPECT_EQ(window.Frame.Parent, nullptr);
  EXPECT_EQ(window.Field.Text, "0");
  EXPECT_EQ(window.Caption, "A small window");
}

TEST(Control, ReadsEachColumnOfItsRow) {
  MadeUpWindow window;
  EXPECT_EQ(window.Caption, "Made up");
  EXPECT_EQ(window.Third.Parent, &window.Holder);
  EXPECT_EQ(window.Third.Caption, "&Odd words");
  EXPECT_EQ(window.Third.At.Get(), (Place{75, 90, 1050, 300}));
  EXPECT_EQ(window.Sunk.Style.Get(), (Look{1, 4}));
  EXPECT_FALSE(window.Hidden.Visible);
  EXPECT_FALSE(window.Second.Enabled);
  EXPECT_EQ(SpokenName(window.Bar), "An odd bar");
  EXPECT_EQ(RoleOf(window.Word), SpokenRole::Heading);
  EXPECT_EQ(window.Bar.Value, 5);
  window.Bar.StepTo(-1000);
  EXPECT_EQ(window.Bar.Value, -7);
  window.Bar.StepTo(1000);
  EXPECT_EQ(window.Bar.Value, 90);
  EXPECT_EQ(window.Bar.Range.SmallStep, 3);
  EXPECT_EQ(window.Bar.Range.LargeStep, 11);
  EXPECT_EQ(window.Clock.Interval, 37);
}

TEST(Control, WithoutARowIsRefusedWhenTheWindowIsMade) {
  SmallWindow window;
  EXPECT_THROW(Button(window, "Nobody"), std::logic_error);
}

TEST(Control, OfAnArrayKnowsItsIndex) {
  SmallWindow window;
  EXPECT_EQ(window.Tag[1].Name, "Tag");
  EXPECT_EQ(window.Tag[1].Index, 1);
  EXPECT_EQ(window.Tag[1].Caption, "Y");
  EXPECT_EQ(window.Tag[1].FullName(), "Small.Tag(1)");
  EXPECT_EQ(window.Key.Index, 0);
}

TEST(Control, IsFoundByItsName) {
  SmallWindow window;
  EXPECT_EQ(window.Find("Tag(1)"), &window.Tag[1]);
  EXPECT_EQ(window.Find("Bar"), &window.Bar);
  EXPECT_EQ(window.Find("Tag"), nullptr);
}

TEST(Watcher, HearsOfAChangeAfterItWasMade) {
  SmallWindow window;
  Listener listener;
  window.Watcher = &listener;
  window.Key.Caption = "Lock";
  window.Key.Enabled = false;
  window.Frame.Visible = false;
  window.Tag[0].SetTop(300);

  EXPECT_THAT(listener.Heard, ElementsAre("Small.Key caption Lock", "Small.Key disabled",
                                          "Small.Frame hidden", "Small.Tag(0) place"));
}

TEST(Watcher, HearsNothingOfAValueThatDoesNotChange) {
  SmallWindow window;
  Listener listener;
  window.Watcher = &listener;
  window.Key.Caption = "Key";
  window.Key.Visible = true;

  EXPECT_THAT(listener.Heard, IsEmpty());
}

TEST(Watcher, HearsOfAPictureEachTimeItIsGiven) {
  SmallWindow window;
  Listener listener;
  window.Watcher = &listener;
  window.Image.SetPicture(nullptr);
  window.Image.SetPicture(nullptr);

  EXPECT_THAT(listener.Heard, ElementsAre("Small.Image picture", "Small.Image picture"));
}

TEST(Watcher, HearsWhenAWindowComesToTheFront) {
  SmallWindow window;
  window.Visible = false;
  Listener listener;
  window.Watcher = &listener;
  window.Show();

  EXPECT_THAT(listener.Heard, ElementsAre("Small.Small shown", "Small.Small front"));
}

TEST(Control, SetTopMovesNothingElse) {
  SmallWindow window;
  window.Frame.SetTop(300);
  EXPECT_EQ(window.Frame.At.Get(), (Place{15, 300, 45, 60}));
}

TEST(Control, IsOpenToTheUserOnlyIfAllThatHoldsItIs) {
  SmallWindow window;
  EXPECT_TRUE(window.Key.IsOpenToUser());

  window.Frame.Visible = false;
  EXPECT_FALSE(window.Key.IsOpenToUser());
  window.Frame.Visible = true;
  window.Frame.Enabled = false;
  EXPECT_FALSE(window.Key.IsOpenToUser());
  window.Frame.Enabled = true;
  window.Key.Enabled = false;
  EXPECT_FALSE(window.Key.IsOpenToUser());
  window.Key.Enabled = true;
  window.Visible = false;
  EXPECT_FALSE(window.Key.IsOpenToUser());
}

TEST(Control, AMenuEntryIsShutByEveryMenuAboveIt) {
  SmallWindow window;
  EXPECT_TRUE(window.Leaf.IsOpenToUser());
  window.Top.Enabled = false;
  EXPECT_FALSE(window.Leaf.IsOpenToUser());
  EXPECT_FALSE(window.Sub.IsOpenToUser());
  EXPECT_TRUE(window.Key.IsOpenToUser());
}

TEST(Control, RunsTheHandlersOfAnEventInTheOrderOfTheirBinding) {
  SmallWindow window;
  std::string ran;
  window.Key.Bind(EventKind::Click, [&](const Event&) { ran += "a"; });
  window.Key.Bind(EventKind::Press, [&](const Event&) { ran += "p"; });
  window.Key.Bind(EventKind::Click, [&](const Event&) { ran += "b"; });
  window.Key.Raise({.Kind = EventKind::Click});

  EXPECT_EQ(ran, "ab");
  EXPECT_TRUE(window.Key.Handles(EventKind::Press));
  EXPECT_FALSE(window.Key.Handles(EventKind::Move));
}

TEST(Control, AnEventCarriesTheIndexOfItsElement) {
  SmallWindow window;
  int index = -1;
  window.Tag[1].Bind(EventKind::Click, [&](const Event& event) { index = event.Index; });
  window.Tag[1].Raise({.Kind = EventKind::Click});

  EXPECT_EQ(index, 1);
}

TEST(List, GivesTheTextOfTheChosenRow) {
  SmallWindow window;
  EXPECT_EQ(window.Rows.Text(), "");
  window.Rows.Rows = std::vector<std::string>{"one", "two"};
  EXPECT_EQ(window.Rows.Text(), "");
  window.Rows.ListIndex = 1;
  EXPECT_EQ(window.Rows.Text(), "two");
  window.Rows.ListIndex = 2;
  EXPECT_EQ(window.Rows.Text(), "");
}

TEST(Caption, SaysOnByItsLastWord) {
  for (const char* on : {"Stereo On", "Ca-trace ON", "D / L On", "D/L Str"}) {
    EXPECT_TRUE(CaptionSaysOn(on)) << on;
  }
  for (const char* off : {"Stereo Off", "Ca-trace OFF", "D / L Off", "D/L Nst", "", "On and off"}) {
    EXPECT_FALSE(CaptionSaysOn(off)) << off;
  }
}

}  // namespace
}  // namespace orvane
