// What the actions of a script do at the desk.
#include <gtest/gtest.h>

#include "replay/played.h"

namespace orvane {
namespace {

TEST(AtTheStart, TheSplashShowsAndTheMainWindowIsOutOfReach) {
  Session session;
  EXPECT_EQ(session.Do("bar Rt_speed 50\nclick X_Tag(0)\nclick WatN"), "");
  EXPECT_EQ(session.Desk().front.Visible, true);
  EXPECT_EQ(session.Desk().main.Visible, false);
  EXPECT_EQ(session.Desk().main.Rt_speed.Value, 200);
  EXPECT_EQ(session.Desk().view.AxisX, 0);
}

TEST(Force, ReachesControlsOfAHiddenWindow) {
  Session session;
  session.Do("force bar Rt_speed 50\nforce click X_Tag(0)");
  EXPECT_EQ(session.Desk().main.Rt_speed.Value, 50);
  EXPECT_EQ(session.Desk().view.AxisX, 1);
}

TEST(Enter, IsTheTwoClicksThatLeadToTheMainWindow) {
  Session session;
  EXPECT_EQ(session.Do("enter"), kEntered);
  EXPECT_EQ(session.Do("enter"), "");  // both windows are closed, so nothing can be clicked
  EXPECT_EQ(Session().Do("click Orvane_Front.Get_in\nclick Content.Get_in"), kEntered);
}

TEST(AClick, InsideAHiddenContainerDoesNothing) {
  Session session;
  session.Do("enter\ntype RGB_V(0) 12");
  EXPECT_EQ(session.Desk().main.RGB_V[0].Text, std::string("0"));
  session.Desk().main.V_RGB_H.Visible = true;
  session.Do("type RGB_V(0) 12");
  EXPECT_EQ(session.Desk().main.RGB_V[0].Text, std::string("12"));
}

TEST(AClick, OnAnEntryOfADisabledMenuDoesNothing) {
  Session session;
  EXPECT_EQ(session.Do("enter\nclick StMsc"), kEntered);  // BMusic is not offered
  EXPECT_EQ(session.Do("force click StMsc"), "sound stop\nsound close\n");
}

TEST(ABar, IsClippedToItsRange) {
  Session session;
  session.Do("enter\nbar Rt_speed 0");
  EXPECT_EQ(session.Desk().main.Rt_speed.Value, 1);
  session.Do("bar Rt_speed 99999999999999999999");
  EXPECT_EQ(session.Desk().main.Rt_speed.Value, 400);
  session.Do("bar ZoomBar -99999999999999999999");
  EXPECT_EQ(session.Desk().main.ZoomBar.Value, -100);
}

// With nothing loaded, a change of the zoom beeps, so the beeps count the change events.
TEST(ABar, ChangesOnlyIfItsValueDoes) {
  Session session;
  session.Do("enter");
  EXPECT_EQ(session.Do("bar ZoomBar 5"), "beep\n");
  EXPECT_EQ(session.Do("bar ZoomBar 5"), "");
}

TEST(ADrop, IsAChangeEventEvenAtTheSameValue) {
  Session session;
  session.Do("enter");
  EXPECT_EQ(session.Do("drop ZoomBar"), "beep\n");
}

TEST(ADrag, SetsTheValueWithoutAChangeEvent) {
  Session session;
  session.Do("enter\ndrag Rt_speed 7");
  EXPECT_EQ(session.Desk().main.Rt_speed.Value, 7);
  EXPECT_EQ(session.Desk().main.Timer1.Interval, 200);  // follows the change event
  session.Do("drop Rt_speed");
  EXPECT_EQ(session.Desk().main.Timer1.Interval, 7);
}

TEST(ASelection, GoesByTheRowAndMinusOneLeavesNone) {
  Session session;
  session.Do("enter");
  session.Desk().main.DNA_Lst.Rows = {"one", "two"};
  session.Do("select DNA_Lst 1");
  EXPECT_EQ(session.Desk().main.DNA_Lst.ListIndex, 1);
  session.Do("select DNA_Lst -1");
  EXPECT_EQ(session.Desk().main.DNA_Lst.ListIndex, -1);
}

TEST(APress, ComesWithItsPlaceInPixels) {
  Session session;
  session.Do("enter\npress Picture1 2 100.5 -3");
  EXPECT_EQ(session.Desk().view.PressX, 100.5F);
  EXPECT_EQ(session.Desk().view.PressY, -3.0F);
  session.Do("move Picture1 0 10 10\nrelease Picture1 2 10 10");
  EXPECT_EQ(session.Desk().view.PressX, 100.5F);
}

TEST(AClick, IsTheClickAloneAndNotThePress) {
  Session session;
  session.Do("enter");
  session.Desk().molecule.MoleculeReady = 1;
  session.Do("click Sz_Balls(0)");
  EXPECT_EQ(session.Desk().drawing.BallSize, 3);
}

TEST(AText, IsTheRestOfTheLine) {
  Session session;
  session.Do("force type RGB_V(1)  1  2 ");
  EXPECT_EQ(session.Desk().main.RGB_V[1].Text, std::string(" 1  2 "));
  session.Do("force type RGB_V(1) ");
  EXPECT_EQ(session.Desk().main.RGB_V[1].Text, std::string(""));
  session.Do("force type RGB_V(1) 7\nforce type RGB_V(1)");
  EXPECT_EQ(session.Desk().main.RGB_V[1].Text, std::string(""));
}

TEST(ATick, ComesOnlyWhileTheTimerIsEnabled) {
  Session session;
  session.Do("tick Orvane_Front.Timer1");
  EXPECT_EQ(session.Desk().shell.FrontFrame, 1);
  session.Do("enter\ntick Orvane_Front.Timer1");  // leaving the splash stops its timer
  EXPECT_EQ(session.Desk().shell.FrontFrame, 1);
  session.Do("force tick Orvane_Front.Timer1");
  EXPECT_EQ(session.Desk().shell.FrontFrame, 2);
}

TEST(ATick, ComesWithItsWindowHidden) {
  Session session;
  session.Desk().front.Visible = false;
  session.Do("tick Orvane_Front.Timer1");
  EXPECT_EQ(session.Desk().shell.FrontFrame, 1);
}

TEST(Answers, QueueUpAndThenBoxesAreCancelled) {
  Session session;
  session.Do("enter\nanswer ab\nanswer\nanswer c d");
  const std::string ask = "ask \"Type in file name\" \"Output BMP format\"\n";
  EXPECT_EQ(session.Do("click S_bmp"), ask + "save BMP \"ab.bmp\" Picture1\n");
  EXPECT_EQ(session.Do("click S_bmp"), ask);  // an empty reply is a cancelled box
  EXPECT_EQ(session.Do("click S_bmp"), ask + "save BMP \"c d.bmp\" Picture1\n");
  EXPECT_EQ(session.Do("click S_bmp"), ask);
}

TEST(Restart, PutsEverythingBackAndPrintsNothing) {
  Session session;
  session.Do("enter\nbar Rt_speed 50\nanswer ab\nno-printer\nsound-fails 7\nforce click PMSC1");

  EXPECT_EQ(session.Do("sound-fails 7\nrestart"), "");

  EXPECT_EQ(session.Desk().main.Visible, false);
  EXPECT_EQ(session.Desk().front.Visible, true);
  EXPECT_EQ(session.Desk().main.Rt_speed.Value, 200);
  EXPECT_EQ(session.Do("force click S_bmp"),
            "ask \"Type in file name\" \"Output BMP format\"\n");  // the reply is gone
  EXPECT_EQ(session.Do("force click PrImg"), "picture Form_Print.Image1\nprint Form_Print\n");
  EXPECT_EQ(session.Do("force click PMSC1"),
            "sound open \"./3d_pdb\\\\sounds\\\\music1.wav\"\nsound play\n");
  EXPECT_EQ(session.Do("enter"), kEntered);
}

TEST(Restart, GivesADeskThatIsTracedToo) {
  Session session(true);
  session.Do("restart");
  session.stream.str("");
  session.Desk().main.Picture1.ResetSurface();
  EXPECT_EQ(session.stream.str(), "surface Picture none\n");
}

}  // namespace
}  // namespace orvane
