#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

#include "look/dress.h"
#include "window_fixture.h"

namespace orvane {
namespace {

// The stops that can be reached now, in the order of their numbers.
std::vector<const Control*> OpenStops(const MainWindow& main) {
  std::vector<const Control*> stops;
  for (const Control* control : main.Controls) {
    if (control->Row.TabStop > 0 && control->IsOpenToUser()) stops.push_back(control);
  }
  std::ranges::sort(stops, {}, [](const Control* c) { return c->Row.TabStop; });
  return stops;
}

const Control* WithKeyboard(WindowAtWork& work) {
  for (const Control* control : work.main.Controls) {
    const ControlView* view = work.window.ViewOf(*control);
    if (view != nullptr && view->widget.hasFocus()) return control;
  }
  return nullptr;
}

void Tab(WindowAtWork& work) { QTest::keyClick(work.window.focusWidget(), Qt::Key_Tab); }

TEST(Focus, TheAminoAcidsHaveTheKeyboardAtTheStartAndNoRowIsChosen) {
  WindowAtWork work;

  EXPECT_EQ(WithKeyboard(work), &work.main.AA_Lst);
  EXPECT_EQ(work.main.AA_Lst.ListIndex, -1);
}

TEST(Focus, TabWalksAllStopsInTheirOrderAndComesRound) {
  WindowAtWork work;
  const auto stops = OpenStops(work.main);
  ASSERT_GT(stops.size(), 30U);

  for (const Control* stop : stops) {
    ASSERT_EQ(WithKeyboard(work), stop) << stop->FullName();
    Tab(work);
  }

  EXPECT_EQ(WithKeyboard(work), stops.front());
}

// The pixels that change when the keyboard arrives are those of the ring, and all are on its
// control.
TEST(Focus, TheRingIsVisibleAtEveryStopAndNowhereElse) {
  WindowAtWork work;
  work.window.focusWidget()->clearFocus();
  const QImage bare = work.Shot();
  for (const Control* stop : OpenStops(work.main)) {
    work.WidgetOf(*stop).setFocus();
    const QImage ringed = work.Shot();
    work.WidgetOf(*stop).clearFocus();

    QRect changed;
    for (int y = 0; y < bare.height(); ++y) {
      for (int x = 0; x < bare.width(); ++x) {
        if (bare.pixel(x, y) != ringed.pixel(x, y)) changed |= QRect(x, y, 1, 1);
      }
    }

    QRect own = work.ViewOf(*stop).Stand().Face;
    if (DressOf(*stop).Shape == DressShape::Tab)
      own = work.WidgetOf(*stop).geometry().united(own).adjusted(-70, -5, 0, 5);
    EXPECT_FALSE(changed.isEmpty()) << stop->FullName();
    EXPECT_TRUE(own.contains(changed)) << stop->FullName();
  }
}

TEST(Focus, SpaceAndEnterAreAClick) {
  WindowAtWork work;
  Heard clicks(work.main.Bt3_Dts, EventKind::Click);
  QWidget& button = work.WidgetOf(work.main.Bt3_Dts);
  button.setFocus();

  QTest::keyClick(&button, Qt::Key_Space);
  QTest::keyClick(&button, Qt::Key_Return);
  QTest::keyClick(&button, Qt::Key_Enter);

  EXPECT_EQ(clicks.Count, 3);
}

// The keys for sizes act on a press of the left button, so a key must cause one.
TEST(Focus, AKeyIsAPressOfTheLeftButtonToo) {
  WindowAtWork work;
  Heard presses(work.main.Sz_Balls[2], EventKind::Press);
  QWidget& key = work.WidgetOf(work.main.Sz_Balls[2]);
  key.setFocus();

  QTest::keyClick(&key, Qt::Key_Space);

  EXPECT_EQ(presses.Count, 1);
  EXPECT_EQ(presses.Last.Button, kLeftButton);
  EXPECT_EQ(presses.Last.Index, 2);
}

TEST(Focus, OnlyTheKeyThatHoldsAButtonClicksItWhenReleased) {
  WindowAtWork work;
  Heard clicks(work.main.Bt3_Dts, EventKind::Click);
  QWidget& button = work.WidgetOf(work.main.Bt3_Dts);
  button.setFocus();

  QTest::keyPress(&button, Qt::Key_Space);
  QTest::keyPress(&button, Qt::Key_Return);
  QTest::keyRelease(&button, Qt::Key_Return);
  QTest::keyClick(&button, Qt::Key_Shift);
  EXPECT_EQ(clicks.Count, 0);
  QTest::keyRelease(&button, Qt::Key_Space);

  EXPECT_EQ(clicks.Count, 1);
}

// Space goes down on the button, and comes up when the keyboard is elsewhere.
TEST(Focus, NoKeyHoldsAButtonOnceTheKeyboardHasLeftIt) {
  WindowAtWork work;
  Heard clicks(work.main.Bt3_Dts, EventKind::Click);
  QWidget& button = work.WidgetOf(work.main.Bt3_Dts);
  button.setFocus();
  const QImage before = work.Shot();
  QTest::keyPress(&button, Qt::Key_Space);
  EXPECT_NE(work.Shot(), before) << "it looks pressed";

  Tab(work);
  QWidget* next = work.window.focusWidget();
  ASSERT_NE(next, &button);
  QTest::keyRelease(next, Qt::Key_Space);
  QTest::keyPress(next, Qt::Key_Backtab, Qt::ShiftModifier);
  ASSERT_TRUE(button.hasFocus());
  EXPECT_EQ(work.Shot(), before);
  QTest::keyRelease(&button, Qt::Key_Backtab, Qt::ShiftModifier);
  QTest::keyRelease(&button, Qt::Key_Space);

  EXPECT_EQ(clicks.Count, 0);
}

TEST(Focus, AFloatingPanelTakesTheNextPlace) {
  WindowAtWork work;
  work.WidgetOf(work.main.Bt3_Reset).setFocus();

  work.main.V_RGB_H.Visible = true;
  Tab(work);
  EXPECT_EQ(WithKeyboard(work), &work.main.RGB_V[0]);
  for (int i = 0; i < 4; ++i) Tab(work);
  EXPECT_EQ(WithKeyboard(work), &work.main.X_TRANS);
}

TEST(Focus, ArrivingAtABarIsAnnounced) {
  WindowAtWork work;
  Heard comings(work.main.ZoomBar, EventKind::Focus);

  work.WidgetOf(work.main.ZoomBar).setFocus();

  EXPECT_EQ(comings.Count, 1);
}

}  // namespace
}  // namespace orvane
