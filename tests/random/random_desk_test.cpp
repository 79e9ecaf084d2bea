// A user without a plan: a hundred thousand actions, and after each a check of what must always
// hold.
#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>

#include "random/desk/apart.h"
#include "random/desk/life.h"
#include "random/desk/moves.h"
#include "random/desk/script.h"
#include "random/desk/shrink.h"

namespace orvane {
namespace {

constexpr int kActions = 100000;
constexpr int kLife = 4000;

TEST(ARandomDesk, DoesNotBreakInAHundredThousandActions) {
  int played = 0;
  for (std::uint64_t seed = 1; played < kActions; ++seed) {
    Sitting session;
    const Life life = PlayLife(session, seed, kLife, nullptr);
    ASSERT_EQ(life.Wrong, "") << "orvane-random-desk --life " << kLife << " --seed " << seed
                              << " leaves a script of it";
    ASSERT_GT(life.Actions, 0);
    played += life.Actions;
  }
}

TEST(ARandomDesk, PlaysTheSameFromTheSameSeed) {
  const auto lines_of = [](std::uint64_t seed) {
    std::vector<std::string> lines;
    Sitting session;
    PlayLife(session, seed, 300, [&](std::string_view line) { lines.emplace_back(line); });
    return lines;
  };
  EXPECT_EQ(lines_of(7), lines_of(7));
  EXPECT_NE(lines_of(7), lines_of(8));
}

TEST(ARandomDesk, ReadsEveryPictureAfterEachLineOfAScript) {
  Sitting session;
  ASSERT_EQ(PlayRandomLine(session, "enter"), "");
  auto picture = std::make_shared<Picture>();
  picture->Texts.emplace_back("of no stroke");
  session.Desk().main.L_Img.SetPicture(picture);
  const Life life = PlayLines(session, std::vector<std::string>{"dump"});
  EXPECT_EQ(life.Wrong, "L_Img holds texts that no stroke prints");
}

// A release restores what was saved. Only at the start was nothing saved.
TEST(ARandomDesk, LosesItsAxisOnlyWhereNoneWasSaved) {
  Sitting session;
  LastSeen last;
  const auto wrong_after = [&](const char* line) {
    EXPECT_EQ(PlayRandomLine(session, line), "");
    return WhatIsWrong(session, last, false);
  };
  EXPECT_EQ(wrong_after("enter"), "");
  EXPECT_EQ(wrong_after("release Picture1 1 5 5"), "");
  EXPECT_EQ(session.Desk().view.AxisY, 0);
  EXPECT_EQ(wrong_after("click X_Tag(2)"), "");
  EXPECT_EQ(wrong_after("press Picture1 1 5 5"), "");
  session.Desk().view.AxisZ = 0;
  EXPECT_EQ(wrong_after("move Picture1 0 5 5"), "no axis is live, and one is saved");
}

TEST(ARandomDesk, PlaysWhatNestsInsideATick) {
  Sitting session;
  for (const char* line : {"enter", "select Pro_Lst 1", "click P_Auto_Rotate",
                           "#nest click Bt3_Label", "#nest click P_Auto_Rotate"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  EXPECT_EQ(session.Desk().drawing.LabelsOn, 0);
  ASSERT_EQ(PlayRandomLine(session, "tick Timer1"), "");
  EXPECT_EQ(session.Desk().drawing.LabelsOn, 1);
  EXPECT_EQ(session.Desk().view.AutoRotateOn, 0);
}

TEST(ARandomDesk, ReportsALineThatIsNotAnActionEvenInsideATick) {
  Sitting session;
  for (const char* line : {"enter", "select Pro_Lst 1", "click P_Auto_Rotate",
                           "#nest click Nowhere", "#nest click Bt3_Label"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  EXPECT_EQ(PlayRandomLine(session, "tick Timer1"),
            "\"click Nowhere\" that nests in it: there is no control \"Nowhere\"");
  EXPECT_EQ(session.Desk().drawing.LabelsOn, 1);
  EXPECT_EQ(PlayRandomLine(session, "tick Timer1"), "");
  EXPECT_NE(PlayRandomLine(session, "#enter Nowhere"), "");
}

// What a life never does is not tested.
TEST(ARandomDesk, MakesEveryMoveOfItsLanguage) {
  const char* const moves[] = {
      "#nest",
      "#save-fails",
      "#saves",
      "#enter AA_Lst",
      "#focus ZoomBar",
      "#resize",
      "#look",
      "#close Author_",
      "#close Orvane_Des",
      "#close Ramachandran",
      "#close Cont",
      "#folder Dir",
      "#choose File1",
      "doubleclick File1",
      "#walk next",
      "#walk pick",
      "#map next",
      "#map previous",
      "click Picture1",
      "force click PMSC9",
      "force click StMsc",
      "force click OpMfL",
      "restart",
      "click ExitEntry",
      "sound-fails",
  };
  std::map<std::string, int> made;
  for (std::uint64_t seed = 1; seed <= 40; ++seed) {
    Sitting session;
    PlayLife(session, seed, 1500, [&](std::string_view line) {
      for (const char* move : moves) made[move] += line.starts_with(move) ? 1 : 0;
    });
  }
  for (const char* move : moves) EXPECT_GT(made[move], 0) << move;
}

TEST(ARandomDesk, WalksAndPicksByKeys) {
  Sitting session;
  LastSeen last;
  for (const char* line : {"enter", "select Pro_Lst 1", "#walk last", "#walk pick"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
    ASSERT_EQ(WhatIsWrong(session, last, true), "") << line;
  }
  EXPECT_EQ(session.Desk().walk.Number, session.Desk().molecule.AtomCount);
  EXPECT_NE(session.Desk().walk.Picked, 0);
}

TEST(ARandomDesk, ChoosesAndPlaysAFile) {
  Sitting session;
  for (const char* line : {"enter", "force click OpMfL", "#folder Drive1 /a b",
                           "#choose File1 c d.wav", "doubleclick File1"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  EXPECT_EQ(session.Desk().shell.SoundPath, "/a b/c d.wav");
  EXPECT_FALSE(session.Desk().main.P_Dir_Holder.Visible);
}

TEST(ARandomDesk, ClosesAWindowThatShows) {
  Sitting session;
  for (const char* line : {"enter", "#close Author_frm"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  EXPECT_TRUE(session.Desk().main.Visible);
  EXPECT_FALSE(session.player.platform->Ended);
  EXPECT_EQ(PlayRandomLine(session, "#close Orvane_Desk"), "");
  EXPECT_TRUE(session.player.platform->Ended);
}

TEST(ARandomDesk, RemovesTheHourglassWhenASaveFails) {
  Sitting session;
  LastSeen last;
  for (const char* line : {"enter", "#save-fails", "answer abc", "click S_bmp"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  EXPECT_EQ(session.failures.Counts.size(), 1U);
  EXPECT_EQ(WhatIsWrong(session, last, true), "");
}

// 1.1 to the power of 7500 is beyond 1.8e308, and 0.9 to that power is below all numbers but 0. On
// either half of the bar, each release of the thumb is one more step the same way.
TEST(ARandomDesk, GoesOnWhereTheZoomRunsOutOfNumbers) {
  for (const char* start : {"bar ZoomBar 50", "bar ZoomBar -50"}) {
    Sitting session;
    LastSeen last;
    const auto play = [&](const char* line) {
      ASSERT_EQ(PlayRandomLine(session, line), "");
      ASSERT_EQ(WhatIsWrong(session, last, true), "") << line;
    };
    for (const char* line : {"enter", "select Pro_Lst 1", start}) play(line);
    for (int step = 0; step < 7500; ++step) PlayRandomLine(session, "drop ZoomBar");
    const double size = std::abs(session.Desk().molecule.CurX[1]);
    EXPECT_FALSE(size > 1e-300 && size < 1e300) << size;
    last.InRange = false;
    for (const char* line : {"click Bt3_Label",
                             "click D_StB",
                             "#look 1",
                             "click Bt3_Sterio",
                             "#look 2",
                             "click Bt3_Sterio",
                             "click R_G_Stereo",
                             "click D_Ca",
                             "#look 1",
                             "click M_Rbn",
                             "#look 1",
                             "click Cartn",
                             "#look 1",
                             "click OPB",
                             "#look 1",
                             "press Picture1 1 9 9",
                             "move Picture1 2 50 60",
                             "release Picture1 2 50 60",
                             "click Bt3_Dts",
                             "#look 0.5"}) {
      play(line);
    }
  }
}

// Two hundred actions, each read by a replay, and among all of them every action that one knows.
TEST(ARandomScript, IsReadToItsEndByAReplay) {
  std::map<std::string, int> actions;
  int full = 0;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    std::stringstream script, errors;
    for (const std::string& line : RandomScript(seed, 200)) script << line << "\n";
    const std::string text = script.str();
    for (std::string line; std::getline(script, line);) ++actions[line.substr(0, line.find(' '))];
    script.clear();
    script.str(text);
    std::ostringstream printed;
    ASSERT_EQ(PlayScript(script, printed, errors, false), 0) << seed << ": " << errors.str();
    if (!printed.str().ends_with("end\n")) ++full;
  }
  EXPECT_GT(full, 40);
  for (const char* action :
       {"click",      "doubleclick", "select", "press",   "move",  "release", "bar",
        "drag",       "drop",        "type",   "key",     "tick",  "answer",  "sound-fails",
        "no-printer", "printer",     "enter",  "restart", "force", "dump"}) {
    EXPECT_GT(actions[action], 0) << action;
  }
  EXPECT_FALSE(actions.contains("#look"));
  EXPECT_EQ(RandomScript(7, 200), RandomScript(7, 200));
  EXPECT_NE(RandomScript(7, 200), RandomScript(8, 200));
}

TEST(AShrunkScript, KeepsOnlyWhatItNeeds) {
  const std::vector<std::string> script{"a", "b", "x", "c", "d", "y", "e", "z", "f"};
  const auto needs = [](const std::vector<std::string>& lines) {
    const auto has = [&](const char* line) {
      return std::find(lines.begin(), lines.end(), line) != lines.end();
    };
    return has("x") && has("y") && has("z");
  };
  EXPECT_EQ(Shrunk(script, needs, 1000), (std::vector<std::string>{"x", "y", "z"}));
}

TEST(AShrunkScript, IsWhatItHasWhenTheTriesAreUsedUp) {
  const std::vector<std::string> script{"a", "b", "c"};
  EXPECT_EQ(Shrunk(
                script, [](const auto&) { return true; }, 0),
            script);
}

TEST(AReason, IsOfTheSameKindWhateverItsNumbersAndWords) {
  const std::string kind = KindOfReason("bond 17 joins 300 and -2");
  EXPECT_EQ(KindOfReason("bond 3 joins 4 and 596"), kind);
  EXPECT_NE(KindOfReason("BondCount is 597"), kind);
  EXPECT_EQ(KindOfReason("Bt3_Label reads \"On\""), KindOfReason("Bt3_Label reads \"no 1\""));
  EXPECT_NE(KindOfReason("Bt3_Label reads \"On\""), KindOfReason("Bt3_HBD reads \"On\""));
}

TEST(ALifeApart, SaysWhenTheSearchForLeaksBrokeDown) {
  const auto says = [](const char* text, int code) {
    return RunApart([=] {
      std::cerr << text;
      return code;
    });
  };
  const char* const broke =
      "Tracer caught signal 11\nLeakSanitizer has encountered a fatal error.\n";
  EXPECT_TRUE(LeakSearchBroke(says(broke, 1)));
  EXPECT_FALSE(LeakSearchBroke(says("ERROR: LeakSanitizer: detected memory leaks", 1)));
  EXPECT_FALSE(LeakSearchBroke(says(broke, 0)));
}

TEST(ALifeApart, SaysHowItEnded) {
  EXPECT_EQ(RunApart([] { return 0; }).Status, 0);
  EXPECT_EQ(HowItEnded(RunApart([] { return 5; })), "exit code 5");
  EXPECT_EQ(HowItEnded(RunApart([]() -> int { std::abort(); })), "signal Aborted");
  EXPECT_EQ(HowItEnded(RunApart([]() -> int {
              raise(SIGALRM);
              return 0;
            })),
            "it hangs");
  EXPECT_EQ(HowItEnded(RunApart([] {
              std::cerr << "==7==ERROR\nSUMMARY: a sanitizer: a leak\nABORTING\n";
              return 1;
            })),
            "exit code 1, SUMMARY: a sanitizer: a leak");
}

}  // namespace
}  // namespace orvane
