#include <gtest/gtest.h>

#include "window_fixture.h"

namespace orvane {
namespace {

TEST(Pointer, APressOnThePictureIsGivenInPixelsOfTheSurface) {
  WindowAtWork work;
  Heard presses(work.main.Picture1, EventKind::Press);
  Heard releases(work.main.Picture1, EventKind::Release);
  QWidget& picture = work.WidgetOf(work.main.Picture1);

  QTest::mouseClick(&picture, Qt::RightButton, {}, {120, 250});

  EXPECT_EQ(presses.Count, 1);
  EXPECT_EQ(presses.Last.Button, kRightButton);
  EXPECT_FLOAT_EQ(presses.Last.X, 120);
  EXPECT_FLOAT_EQ(presses.Last.Y, 250);
  EXPECT_EQ(releases.Count, 1);
}

TEST(Pointer, ADragSaysWhichButtonsAreHeld) {
  WindowAtWork work;
  Heard moves(work.main.Picture1, EventKind::Move);
  QWidget& picture = work.WidgetOf(work.main.Picture1);

  QMouseEvent drag(QEvent::MouseMove, QPointF(40, 50), picture.mapToGlobal(QPointF(40, 50)),
                   Qt::NoButton, Qt::LeftButton | Qt::RightButton, {});
  QApplication::sendEvent(&picture, &drag);

  EXPECT_EQ(moves.Last.Button, kLeftButton + kRightButton);
  EXPECT_FLOAT_EQ(moves.Last.X, 40);
}

TEST(Pointer, AClickNeedsBothEndsOnTheControl) {
  WindowAtWork work;
  Heard clicks(work.main.Bt3_Dts, EventKind::Click);
  QWidget& button = work.WidgetOf(work.main.Bt3_Dts);

  QTest::mousePress(&button, Qt::LeftButton, {}, {10, 10});
  QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 200});
  EXPECT_EQ(clicks.Count, 0);
  work.ClickOn(work.main.Bt3_Dts);

  EXPECT_EQ(clicks.Count, 1);
}

TEST(Pointer, OnlyTheLeftButtonClicks) {
  WindowAtWork work;
  Heard clicks(work.main.Bt3_Dts, EventKind::Click);

  QTest::mouseClick(&work.WidgetOf(work.main.Bt3_Dts), Qt::RightButton, {}, {10, 10});

  EXPECT_EQ(clicks.Count, 0);
}

// The right button is let go while the left one is held.
TEST(Pointer, ReleasingAnotherButtonDoesNotClickForTheLeft) {
  WindowAtWork work;
  for (const Control* control : std::initializer_list<const Control*>{
           &work.main.Bt3_Dts, &work.main.Picture1, &work.main.Bt_M_Ld}) {
    Heard clicks(*work.desk.FindControl(control->FullName()), EventKind::Click);
    QWidget& widget = work.WidgetOf(*control);
    const QPoint at = work.Middle(*control);

    QTest::mousePress(&widget, Qt::RightButton, {}, at);
    QTest::mousePress(&widget, Qt::LeftButton, {}, at);
    QTest::mouseRelease(&widget, Qt::RightButton, {}, at);
    EXPECT_EQ(clicks.Count, 0) << control->FullName();
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, at);
    EXPECT_EQ(clicks.Count, 1) << control->FullName();
  }
}

TEST(Pointer, ADisabledButtonHearsNothing) {
  WindowAtWork work;
  Heard clicks(work.main.Bt3_Isomers, EventKind::Click);

  work.ClickOn(work.main.Bt3_Isomers);

  EXPECT_EQ(clicks.Count, 0);
}

TEST(Pointer, EnteringAControlIsReportedOnce) {
  WindowAtWork work;
  Heard comings(work.main.Bt3_Reset, EventKind::Enter);
  QWidget& reset = work.WidgetOf(work.main.Bt3_Reset);

  work.PointAt(reset, {5, 5});
  work.PointAt(reset, {9, 9});

  EXPECT_EQ(comings.Count, 1);
}

// From a button onto the bare ground round it: the toolkit sees no coming there, the desk does.
TEST(Pointer, EnteringTheGroundIsReportedForTheWindow) {
  WindowAtWork work;
  Heard comings(work.main, EventKind::Enter);
  work.PointAt(work.WidgetOf(work.main.Bt3_Reset), {5, 5});
  const int before = comings.Count;

  work.PointAt(work.window.Desk(), {2, 300});

  EXPECT_EQ(comings.Count, before + 1);
}

TEST(Pointer, TheCrossOverThePictureIsDroppedOverAList) {
  WindowAtWork work;
  work.main.MousePointer = kPointerCross;
  EXPECT_EQ(work.window.cursor().shape(), Qt::CrossCursor);

  work.PointAt(work.WidgetOf(work.main.AA_Lst), {9, 9});

  EXPECT_EQ(work.window.cursor().shape(), Qt::ArrowCursor);
}

TEST(Pointer, AnOrnamentLetsTheClickThrough) {
  WindowAtWork work;
  QWidget& line = work.WidgetOf(work.main.Line6);

  EXPECT_TRUE(line.testAttribute(Qt::WA_TransparentForMouseEvents));
  EXPECT_EQ(line.focusPolicy(), Qt::NoFocus);
}

TEST(Pointer, TheTabsCaptionAppearsUnderIt) {
  WindowAtWork work;
  QWidget& tab = work.WidgetOf(work.main.Bt_M_Ld);
  Heard clicks(work.main.Bt_M_Ld, EventKind::Click);
  EXPECT_EQ(tab.width(), 7);

  work.PointAt(tab, {3, 10});
  ASSERT_GE(tab.width(), 69);  // 1035 twips
  QTest::mouseClick(&tab, Qt::LeftButton, {}, tab.rect().center());

  EXPECT_EQ(clicks.Count, 1);
}

}  // namespace
}  // namespace orvane
