#include "controls/scroll_bar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/small_window.h"

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A bar from -80 to 80 at 0, and a list of what happened to it.
struct WatchedBar {
  SmallWindow window;
  ScrollBar& bar = window.Bar;
  std::vector<std::string> events;

  WatchedBar() {
    bar.Bind(EventKind::Change, [this](const Event&) { Keep("change"); });
    bar.Bind(EventKind::Scroll, [this](const Event&) { Keep("scroll"); });
  }
  void Keep(const std::string& kind) { events.push_back(kind + " " + std::to_string(bar.Value)); }
};

TEST(ScrollBar, ItsSetterRunsTheChangeBeforeItReturns) {
  WatchedBar watched;
  watched.bar.SetValue(5);
  EXPECT_THAT(watched.events, ElementsAre("change 5"));
}

TEST(ScrollBar, SettingTheValueThatItHasChangesNothing) {
  WatchedBar watched;
  watched.bar.SetValue(0);
  EXPECT_THAT(watched.events, IsEmpty());
}

TEST(ScrollBar, AChangeInsideAChangeRunsAtOnce) {
  WatchedBar watched;
  watched.bar.Bind(EventKind::Change, [&](const Event&) {
    if (watched.bar.Value == 80) watched.bar.SetValue(1);
    watched.Keep("after");
  });
  watched.bar.SetValue(80);

  EXPECT_THAT(watched.events, ElementsAre("change 80", "change 1", "after 1", "after 1"));
}

TEST(ScrollBar, AStepIsOneChangeAndStaysInTheRange) {
  WatchedBar watched;
  watched.bar.StepTo(90);
  EXPECT_EQ(watched.bar.Value, 80);
  watched.bar.StepTo(85);  // already at its end
  watched.bar.StepTo(-100);

  EXPECT_THAT(watched.events, ElementsAre("change 80", "change -80"));
}

TEST(ScrollBar, ADragScrollsAndItsEndIsOneMoreChangeAtTheSameValue) {
  WatchedBar watched;
  watched.bar.DragTo(10);
  watched.bar.DragTo(20);
  watched.bar.Drop();

  EXPECT_THAT(watched.events, ElementsAre("scroll 10", "scroll 20", "change 20"));
}

TEST(ScrollBar, ItsWatcherHearsOfTheValueBeforeTheChangeRuns) {
  WatchedBar watched;
  Listener listener;
  watched.window.Watcher = &listener;
  std::size_t heard_before = 0;
  watched.bar.Bind(EventKind::Change, [&](const Event&) { heard_before = listener.Heard.size(); });
  watched.bar.SetValue(5);

  EXPECT_EQ(heard_before, 1u);
  EXPECT_THAT(listener.Heard, ElementsAre("Small.Bar value"));
}

}  // namespace
}  // namespace orvane
