#include <gtest/gtest.h>

#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "window_fixture.h"

namespace orvane {
namespace {

// Runs once the box is open; the box waits for it.
void WhenABoxIsUp(const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(50, [act] {
    if (QWidget* box = QApplication::activeModalWidget()) act(*box);
  });
}

TEST(Platform, AMessageHasTheProgramsTitleAndItsExactTextAndClosesByEscape) {
  QtPlatform platform;
  QString title, text;
  WhenABoxIsUp([&](QWidget& box) {
    title = box.windowTitle();
    text = dynamic_cast<QMessageBox&>(box).text();
    QTest::keyClick(&box, Qt::Key_Escape);
  });

  platform.MessageBox("One line\nand <b>another</b>");

  EXPECT_EQ(title, "Orvane");
  EXPECT_EQ(text, "One line\nand <b>another</b>");
}

TEST(Platform, AnInputBoxGivesTheTextAndNothingWhenItIsCancelled) {
  QtPlatform platform;
  QString title;
  WhenABoxIsUp([&](QWidget& box) {
    title = box.windowTitle();
    QTest::keyClicks(box.findChild<QLineEdit*>(), "abc");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(platform.InputBox("Name?", "Save"), "abc");
  EXPECT_EQ(title, "Save");

  WhenABoxIsUp([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(platform.InputBox("Name?", "Save"), "");
}

TEST(Platform, NoTimerTicksWhileABoxIsUp) {
  WindowAtWork work;
  Heard ticks(work.main.Timer1, EventKind::Tick);
  work.main.Timer1.Interval = 1;
  work.main.Timer1.Enabled = true;
  int before = 0, after = 0;
  WhenABoxIsUp([&](QWidget& box) {
    before = ticks.Count;
    QTest::qWait(100);
    after = ticks.Count;
    QTest::keyClick(&box, Qt::Key_Escape);
  });

  work.platform.QtPlatform::MessageBox("Wait");
  work.main.Timer1.Enabled = false;

  EXPECT_EQ(before, after);
}

TEST(Platform, ATimerTicksAtItsIntervalWhileItIsEnabled) {
  WindowAtWork work;
  Heard ticks(work.main.Timer1, EventKind::Tick);

  work.main.Timer1.Interval = 5;
  work.main.Timer1.Enabled = true;
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks.Count >= 3; }, 2000));
  work.main.Timer1.Enabled = false;
  const int stopped = ticks.Count;
  QTest::qWait(50);

  EXPECT_EQ(ticks.Count, stopped);
}

TEST(Platform, TicksGoOnWhileTheMainWindowIsHidden) {
  WindowAtWork work;
  Heard ticks(work.main.Timer1, EventKind::Tick);
  work.main.Timer1.Interval = 5;
  work.main.Timer1.Enabled = true;

  work.main.Hide();

  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks.Count >= 2; }, 2000));
  work.main.Timer1.Enabled = false;
}

}  // namespace
}  // namespace orvane
