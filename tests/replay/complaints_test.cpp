// Lines that are not actions.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "replay/played.h"

namespace orvane {
namespace {

using ::testing::StartsWith;

TEST(ABadLine, IsNamedByItsNumberAndEndsTheScript) {
  const Played played = Play(
      "# a remark and a blank line count as lines\n"
      "\n"
      "enter\n"
      "dance Bt3_Reset\n"
      "click WatN\n");

  EXPECT_EQ(played.ExitCode, 2);
  EXPECT_EQ(played.Lines, kEntered);
  EXPECT_EQ(played.Errors, "error: line 4: there is no action \"dance\"\n");
}

TEST(AScript, ReadToItsEndExitsWithNothingToComplainOf) {
  const Played played = Play("enter\n# the last line needs no line end\nclick WatN");
  EXPECT_EQ(played.ExitCode, 0);
  EXPECT_EQ(played.Lines, std::string(kEntered) + "hide Orvane_Desk\nshow Content\n");
  EXPECT_EQ(played.Errors, "");
}

TEST(AnEmptyScript, IsPlayed) {
  EXPECT_EQ(Play("").ExitCode, 0);
  EXPECT_EQ(Play("").Lines, "");
}

TEST(WhatComesAfterTheEnd, IsNotEvenRead) {
  const Played played = Play("enter\nclick ExitEntry\nnonsense\n");
  EXPECT_EQ(played.ExitCode, 0);
  EXPECT_EQ(played.Lines, std::string(kEntered) + "end\n");
  EXPECT_EQ(played.Errors, "");
}

class NoAction : public ::testing::TestWithParam<const char*> {};

TEST_P(NoAction, IsRefused) {
  Session session;
  EXPECT_NE(session.Complaint(GetParam()), "");
  EXPECT_EQ(session.stream.str(), "");
}

INSTANTIATE_TEST_SUITE_P(Words, NoAction,
                         ::testing::Values("Click Bt3_Reset",   // actions are in small letters
                                           "click",             // no control
                                           "click  Bt3_Reset",  // two blanks
                                           " click Bt3_Reset", "click Bt3_Reset ",
                                           "click\tBt3_Reset", "click Bt3_Reset Bt3_Label",
                                           "enter now", "restart 1", "printer on", "force",
                                           "force ", "force force click Bt3_Reset", "tick",
                                           "drop ZoomBar 5", "no_printer", "click # Bt3_Reset"));

INSTANTIATE_TEST_SUITE_P(Controls, NoAction,
                         ::testing::Values("click Nobody", "click bt3_reset", "click X_Tag",
                                           "click X_Tag(3)", "click X_Tag(01)", "click X_Tag(1",
                                           "click Orvane_Desk.Bt3_Reset",  // no prefix of its own
                                           "click Get_in", "click Content.", "click .Get_in",
                                           "click Nowhere.Get_in", "click (0)"));

INSTANTIATE_TEST_SUITE_P(Kinds, NoAction,
                         ::testing::Values("select Bt3_Reset 1", "select ZoomBar 1", "bar AA_Lst 1",
                                           "bar Bt3_Reset 1", "drag Timer1 1", "drop P_Clr(0)",
                                           "type Bt3_Reset x", "type AA_Lst x", "key ZoomBar 13",
                                           "tick Bt3_Reset", "tick RGB_V(0)", "click ZoomBar",
                                           "click AA_Lst", "click Timer1", "press Timer1 1 0 0",
                                           "doubleclick Timer1"));

INSTANTIATE_TEST_SUITE_P(
    Numbers, NoAction,
    ::testing::Values("select AA_Lst", "select AA_Lst ", "select AA_Lst one", "select AA_Lst 1.0",
                      "select AA_Lst 1 2", "bar ZoomBar", "bar ZoomBar x", "bar ZoomBar 1e2",
                      "bar ZoomBar 0x10", "bar ZoomBar 5x", "bar ZoomBar --5", "bar ZoomBar -",
                      "drag ZoomBar 1,5", "key RGB_V(0)", "key RGB_V(0) Enter", "sound-fails",
                      "sound-fails many", "press Picture1 1 10", "press Picture1 1",
                      "press Picture1", "press Picture1 1 10 10 10", "press Picture1 1 x 10",
                      "press Picture1 1 10 nan", "press Picture1 1 inf 10",
                      "press Picture1 1 1e99 10", "press Picture1 0 10 10",
                      "press Picture1 3 10 10", "release Picture1 0 10 10", "move Picture1 8 10 10",
                      "move Picture1 -1 10 10", "move Picture1 1.5 1 1"));

INSTANTIATE_TEST_SUITE_P(Dumps, NoAction,
                         ::testing::Values("dump everything", "dump ", "dump  atoms",
                                           "dump atoms bonds", "Dump"));

TEST(ANulByte, IsNotAnAction) {
  Session session;
  using namespace std::string_view_literals;
  EXPECT_NE(session.Complaint("click Bt3_Reset\0"sv), "");
  EXPECT_NE(session.Complaint("\0"sv), "");
}

TEST(ABadLine, SaysWhatDoesNotFit) {
  Session session;
  EXPECT_THAT(session.Complaint("click Nobody"), StartsWith("there is no control \"Nobody\""));
  EXPECT_EQ(session.Complaint("select Bt3_Reset 1"), "\"Bt3_Reset\" is no control to select");
  EXPECT_EQ(session.Complaint("bar ZoomBar x"), "\"x\" is no whole number");
  EXPECT_EQ(session.Complaint("press Picture1 3 1 1"), "\"3\" is no pointer button");
  EXPECT_EQ(session.Complaint("dump all"), "there is no dump of \"all\"");
}

class SaysNothingLine : public ::testing::TestWithParam<const char*> {};

TEST_P(SaysNothingLine, IsSkipped) {
  Session session;
  EXPECT_EQ(session.Complaint(GetParam()), "");
  EXPECT_EQ(session.stream.str(), "");
}

INSTANTIATE_TEST_SUITE_P(Lines, SaysNothingLine,
                         ::testing::Values("", "   ", "\t", "\r", "# enter", "#", "#\r"));

TEST(LinesFromWindows, ArePlayedWithoutTheirReturn) {
  Session session;
  session.Do("enter\r\nforce type RGB_V(0) 12\r");
  EXPECT_EQ(session.Desk().main.Visible, true);
  EXPECT_EQ(session.Desk().main.RGB_V[0].Text, std::string("12"));
}

}  // namespace
}  // namespace orvane
