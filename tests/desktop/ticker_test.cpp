// The clock behind the timers of the desk. The tests check only what must hold at any speed.
#include "desktop/outside/ticker.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QElapsedTimer>
#include <QTest>

namespace orvane {
namespace {

TEST(Ticker, TicksUntilItIsStopped) {
  int ticks = 0;
  Ticker ticker([&] { ++ticks; });
  EXPECT_FALSE(ticker.IsActive());
  ticker.Start(1);
  EXPECT_TRUE(ticker.IsActive());
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 5; }));
  ticker.Stop();
  const int then = ticks;
  QTest::qWait(20);
  EXPECT_EQ(ticks, then);
  EXPECT_FALSE(ticker.IsActive());
}

TEST(Ticker, GoesOnAfterAStop) {
  int ticks = 0;
  Ticker ticker([&] { ++ticks; });
  ticker.Start(1);
  ticker.Stop();
  ticker.Start(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }));
}

TEST(Ticker, TakesAnotherIntervalWhileItRuns) {
  int ticks = 0;
  Ticker ticker([&] { ++ticks; });
  ticker.Start(3600 * 1000);
  QTest::qWait(5);
  EXPECT_EQ(ticks, 0);
  ticker.Start(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }));
}

TEST(Ticker, MayBeStoppedByItsOwnTick) {
  int ticks = 0;
  Ticker ticker([&] {
    ++ticks;
    ticker.Stop();
  });
  ticker.Start(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ticks >= 1; }));
  QTest::qWait(20);
  EXPECT_EQ(ticks, 1);
}

// A tick of the spin lets pending events run.
TEST(Ticker, NoTickBeginsInsideATick) {
  int ticks = 0, inside = 0, deepest = 0;
  Ticker ticker([&] {
    deepest = std::max(deepest, ++inside);
    QTest::qWait(5);
    --inside;
    ++ticks;
  });
  ticker.Start(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 3; }));
  EXPECT_EQ(deepest, 1);
}

// Ten beats pass during the first tick. One of them comes after it, and the rest are dropped. Beats
// of the time since then may have come as well, however long that was.
TEST(Ticker, MissedBeatsAreNotMadeUpFor) {
  constexpr int kInterval = 50;
  int ticks = 0;
  QElapsedTimer since;
  Ticker ticker([&] {
    if (++ticks > 1) return;
    QTest::qSleep(10 * kInterval);
    since.start();
  });
  ticker.Start(kInterval);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ticks >= 1; }));
  for (int i = 0; i < 20; ++i) QCoreApplication::processEvents();
  const qint64 fresh = since.elapsed() / kInterval + 1;
  EXPECT_LE(ticks, 1 + 1 + fresh);
}

// The system gives no more files, as to a program that has opened too many.
TEST(Ticker, TicksByTheToolkitsClockWhereTheSystemGivesNone) {
  rlimit before{};
  getrlimit(RLIMIT_NOFILE, &before);
  rlimit none = before;
  none.rlim_cur = 0;
  int ticks = 0;
  setrlimit(RLIMIT_NOFILE, &none);
  Ticker ticker([&] { ++ticks; });
  setrlimit(RLIMIT_NOFILE, &before);
  ticker.Start(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 5; }));
  ticker.Stop();
  const int then = ticks;
  QTest::qWait(20);
  EXPECT_EQ(ticks, then);
}

}  // namespace
}  // namespace orvane
