#include <gtest/gtest.h>

#include "desktop/widgets/bar_widget.h"
#include "window_fixture.h"

namespace orvane {
namespace {

// ZoomBar is horizontal: -100 to 100, both steps 5, starting at 0.
struct BarAtWork : WindowAtWork {
  ScrollBar& bar = main.ZoomBar;
  BarWidget& widget = dynamic_cast<BarWidget&>(WidgetOf(main.ZoomBar));
  Heard changes{main.ZoomBar, EventKind::Change};
  Heard scrolls{main.ZoomBar, EventKind::Scroll};

  void ClickAt(int x) { QTest::mouseClick(&widget, Qt::LeftButton, {}, {x, 8}); }
  int End() const { return widget.width(); }
};

TEST(Bars, AnArrowIsASmallStepAndOneChange) {
  BarAtWork work;

  work.ClickAt(work.End() - 5);
  EXPECT_EQ(work.bar.Value, 5);
  work.ClickAt(5);

  EXPECT_EQ(work.bar.Value, 0);
  EXPECT_EQ(work.changes.Count, 2);
  EXPECT_EQ(work.scrolls.Count, 0);
}

// X_TRANS steps by 5 at its arrows and by 10 in its page area.
TEST(Bars, ThePageAreaIsALargeStep) {
  WindowAtWork work;
  QWidget& widget = work.WidgetOf(work.main.X_TRANS);

  QTest::mouseClick(&widget, Qt::LeftButton, {}, {widget.width() - 20, 8});
  EXPECT_EQ(work.main.X_TRANS.Value, 10);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {20, 8});
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {20, 8});

  EXPECT_EQ(work.main.X_TRANS.Value, -10);
}

TEST(Bars, TheThumbScrollsWhileItIsHeldAndChangesWhenItIsReleased) {
  BarAtWork work;
  const QPoint thumb = work.widget.ThumbInWidget().center().toPoint();

  QTest::mousePress(&work.widget, Qt::LeftButton, {}, thumb);
  QTest::mouseMove(&work.widget, thumb + QPoint(10, 0));
  QTest::mouseMove(&work.widget, thumb + QPoint(20, 0));
  EXPECT_GE(work.scrolls.Count, 2);
  EXPECT_EQ(work.changes.Count, 0);
  QTest::mouseRelease(&work.widget, Qt::LeftButton, {}, thumb + QPoint(20, 0));

  EXPECT_EQ(work.changes.Count, 1);
  EXPECT_GT(work.bar.Value, 0);
}

TEST(Bars, TheThumbReachesBothEndsOfTheRange) {
  BarAtWork work;
  const QPoint thumb = work.widget.ThumbInWidget().center().toPoint();

  QTest::mousePress(&work.widget, Qt::LeftButton, {}, thumb);
  QTest::mouseMove(&work.widget, QPoint(500, 8));
  EXPECT_EQ(work.bar.Value, 100);
  QTest::mouseMove(&work.widget, QPoint(-500, 8));
  EXPECT_EQ(work.bar.Value, -100);
  QTest::mouseRelease(&work.widget, Qt::LeftButton, {}, QPoint(-500, 8));
}

TEST(Bars, KeysAndWheelMoveIt) {
  BarAtWork work;
  work.widget.setFocus();

  QTest::keyClick(&work.widget, Qt::Key_Right);
  EXPECT_EQ(work.bar.Value, 5);
  QTest::keyClick(&work.widget, Qt::Key_End);
  EXPECT_EQ(work.bar.Value, 100);
  QTest::keyClick(&work.widget, Qt::Key_Home);
  EXPECT_EQ(work.bar.Value, -100);
  QTest::keyClick(&work.widget, Qt::Key_PageDown);
  EXPECT_EQ(work.bar.Value, -95);
  work.TurnWheel(work.widget, work.widget.rect().center(), 120);
  EXPECT_EQ(work.bar.Value, -100);
}

// X_TRANS steps by 5 and by 10.
TEST(Bars, ArrowKeysAreSmallStepsAndPageKeysLargeOnes) {
  WindowAtWork work;
  const ScrollBar& bar = work.main.X_TRANS;
  QWidget& widget = work.WidgetOf(bar);
  widget.setFocus();

  QTest::keyClick(&widget, Qt::Key_PageDown);
  EXPECT_EQ(bar.Value, 10);
  QTest::keyClick(&widget, Qt::Key_Left);
  EXPECT_EQ(bar.Value, 5);
  QTest::keyClick(&widget, Qt::Key_PageUp);
  EXPECT_EQ(bar.Value, -5);
  QTest::keyClick(&widget, Qt::Key_Down);
  EXPECT_EQ(bar.Value, 0);
  QTest::keyClick(&widget, Qt::Key_Up);
  EXPECT_EQ(bar.Value, -5);
}

TEST(Bars, ATouchpadTurnsByPartsOfANotch) {
  BarAtWork work;
  const QPoint at = work.widget.rect().center();

  for (int part = 0; part < 3; ++part) work.TurnWheel(work.widget, at, -30);
  EXPECT_EQ(work.bar.Value, 0);
  work.TurnWheel(work.widget, at, -30);
  EXPECT_EQ(work.bar.Value, 5);
  work.TurnWheel(work.widget, at, -90);
  work.TurnWheel(work.widget, at, 30);  // back again: the part of a notch is forgotten
  work.TurnWheel(work.widget, at, -90);
  EXPECT_EQ(work.bar.Value, 5);
}

TEST(Bars, AnArrowThatIsHeldStepsOnUntilItIsReleased) {
  BarAtWork work;
  const QPoint arrow(work.End() - 5, 8);

  QTest::mousePress(&work.widget, Qt::LeftButton, {}, arrow);
  EXPECT_EQ(work.bar.Value, 5);
  ASSERT_TRUE(QTest::qWaitFor([&] { return work.bar.Value >= 20; }));
  QTest::mouseRelease(&work.widget, Qt::LeftButton, {}, arrow);
  const int reached = work.bar.Value;
  QTest::qWait(200);  // more than three repeats

  EXPECT_EQ(work.bar.Value, reached);
  EXPECT_EQ(work.changes.Count, reached / 5);
}

TEST(Bars, APageThatIsHeldStopsWithTheThumbUnderThePointer) {
  BarAtWork work;
  const double start = work.widget.ThumbInWidget().right();
  const QPoint at(static_cast<int>(start) + 20, 8);

  QTest::mousePress(&work.widget, Qt::LeftButton, {}, at);
  ASSERT_TRUE(QTest::qWaitFor([&] { return work.widget.ThumbInWidget().contains(at); }));
  const int reached = work.bar.Value;
  QTest::qWait(200);

  EXPECT_EQ(work.bar.Value, reached);
  EXPECT_LT(reached, 100);
  QTest::mouseRelease(&work.widget, Qt::LeftButton, {}, at);
}

TEST(Bars, AStepAtTheEndOfTheRangeChangesNothing) {
  BarAtWork work;
  work.bar.SetValue(100);
  const int before = work.changes.Count;

  work.ClickAt(work.End() - 5);

  EXPECT_EQ(work.bar.Value, 100);
  EXPECT_EQ(work.changes.Count, before);
}

TEST(Bars, ThumbFollowsAValueSetFromCode) {
  BarAtWork work;
  const double before = work.widget.ThumbInWidget().left();

  work.bar.SetValue(50);

  EXPECT_GT(work.widget.ThumbInWidget().left(), before + 10);
  EXPECT_EQ(work.widget.value(), 50);
}

TEST(Bars, AScreenReaderSetsItThroughTheBar) {
  BarAtWork work;

  work.widget.setValue(35);

  EXPECT_EQ(work.bar.Value, 35);
  EXPECT_EQ(work.changes.Count, 1);
}

}  // namespace
}  // namespace orvane
