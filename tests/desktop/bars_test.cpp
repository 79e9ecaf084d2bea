#include <gtest/gtest.h>

#include "desktop/bar_widget.h"
#include "window_fixture.h"

namespace orvane {
namespace {

// ZoomBar lies: -100 to 100, both steps 5, from 0.
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

TEST(Bars, TheThumbScrollsWhileItIsHeldAndChangesWhenItIsLetGo) {
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
  const QPointF at = work.widget.rect().center();
  QWheelEvent away(at, work.widget.mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, {},
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&work.widget, &away);
  EXPECT_EQ(work.bar.Value, -100);
}

TEST(Bars, AStepAtTheEndOfTheRangeIsNoChange) {
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
