// From the splash to the desk, and what happens when the user closes a window by its frame.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QScreen>

#include "desktop/widgets/row_list.h"
#include "program_fixture.h"

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TheStart, ShowsTheSplashInTheMiddleOfTheScreenAndNothingElse) {
  ProgramAtWork program;
  WindowWidget& splash = program.WindowOf(program.desk.front);

  EXPECT_TRUE(splash.isVisible());
  EXPECT_FALSE(program.IsOnView(program.desk.main));
  EXPECT_FALSE(program.IsOnView(program.desk.content));
  EXPECT_EQ(splash.size(), QSize(480, 320));
  const QPoint off =
      splash.frameGeometry().center() - splash.screen()->availableGeometry().center();
  EXPECT_LE(off.manhattanLength(), 2);
}

TEST(TheStart, ClicksLeadFromTheSplashToADrawnMolecule) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;

  program.ClickOn(desk.front.Get_in);
  EXPECT_FALSE(program.IsOnView(desk.front));
  EXPECT_TRUE(program.IsOnView(desk.content));
  program.ClickOn(desk.content.Get_in);
  EXPECT_FALSE(program.IsOnView(desk.content));
  EXPECT_TRUE(program.IsOnView(desk.main));

  auto& list = dynamic_cast<RowList&>(program.WidgetOf(desk.main.Pro_Lst));
  QTest::mouseClick(&list, Qt::LeftButton, {}, list.RowMiddle(1));

  EXPECT_GT(desk.molecule.AtomCount, 0);
  const QImage shot =
      program.WidgetOf(desk.main.Picture1).grab().toImage().convertToFormat(QImage::Format_RGB32);
  int lit = 0;
  for (int y = 0; y < shot.height(); ++y) {
    for (int x = 0; x < shot.width(); ++x) lit += shot.pixel(x, y) != 0xFF000000;
  }
  EXPECT_GT(lit, 500);  // the helix; an empty surface is black all over
}

TEST(TheStart, EnterAloneLeadsToTheDesk) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  const auto enter = [&](Window& window) {
    program.WaitFor(window);
    QWidget* keyboard = program.WindowOf(window).focusWidget();
    ASSERT_NE(keyboard, nullptr);
    QTest::keyClick(keyboard, Qt::Key_Return);
  };

  enter(desk.front);
  enter(desk.content);

  EXPECT_TRUE(program.IsOnView(desk.main));
}

TEST(TheStart, TheAuthorIsASideTripAndTheAnimationGoesOnBehindIt) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;

  program.ClickOn(desk.front.Author);
  EXPECT_TRUE(program.IsOnView(desk.author));
  EXPECT_TRUE(program.IsOnView(desk.front));
  const int frame = desk.shell.FrontFrame;
  EXPECT_TRUE(QTest::qWaitFor([&] { return desk.shell.FrontFrame != frame; }, 2000));

  program.ClickOn(desk.author.Get_in);
  EXPECT_FALSE(program.IsOnView(desk.author));
  EXPECT_TRUE(program.IsOnView(desk.front));
  EXPECT_FALSE(program.IsOnView(desk.main));
}

TEST(ClosingAWindow, TheSplashEndsTheProgram) {
  ProgramAtWork program;

  program.WindowOf(program.desk.front).close();

  EXPECT_THAT(program.platform.Effects, ElementsAre("end"));
}

TEST(ClosingAWindow, TheOverviewOnTheWayInEndsTheProgram) {
  ProgramAtWork program;
  program.ClickOn(program.desk.front.Get_in);

  program.WindowOf(program.desk.content).close();

  EXPECT_THAT(program.platform.Effects, ElementsAre("end"));
}

TEST(ClosingAWindow, TheOverviewFromTheMenuLeadsBackToTheDesk) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  program.GoToTheDesk();
  Click(desk, desk.main.WatN);
  EXPECT_FALSE(program.IsOnView(desk.main));

  program.WindowOf(desk.content).close();

  EXPECT_THAT(program.platform.Effects, IsEmpty());
  EXPECT_FALSE(program.IsOnView(desk.content));
  EXPECT_TRUE(program.IsOnView(desk.main));
}

TEST(ClosingAWindow, TheAuthorsLeadsBackToWhereItWasOpened) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  program.ClickOn(desk.front.Author);
  program.WindowOf(desk.author).close();
  EXPECT_FALSE(program.IsOnView(desk.author));
  EXPECT_TRUE(program.IsOnView(desk.front));

  program.GoToTheDesk();
  Click(desk, desk.main.Cprt);
  program.WindowOf(desk.author).close();
  EXPECT_TRUE(program.IsOnView(desk.main));
  EXPECT_THAT(program.platform.Effects, IsEmpty());
}

TEST(ClosingAWindow, ThePlotOnlyHidesAndTheDeskKnows) {
  ProgramAtWork program;
  Orvane_Desk& desk = program.desk;
  program.GoToTheDesk();
  desk.plot.Show();
  EXPECT_TRUE(program.IsOnView(desk.plot));

  program.WindowOf(desk.plot).close();

  EXPECT_FALSE(desk.plot.Visible);
  EXPECT_FALSE(program.IsOnView(desk.plot));
  EXPECT_THAT(program.platform.Effects, IsEmpty());
}

TEST(ClosingAWindow, TheDeskEndsTheProgramWithThePlotStillUp) {
  ProgramAtWork program;
  program.GoToTheDesk();
  program.desk.plot.Show();

  program.WindowOf(program.desk.main).close();

  EXPECT_THAT(program.platform.Effects, ElementsAre("end"));
}

}  // namespace
}  // namespace orvane
