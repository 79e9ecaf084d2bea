// A user without a plan: a hundred thousand actions, and behind each what holds at every desk.
#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

#include "random_desk/apart.h"
#include "random_desk/life.h"
#include "random_desk/moves.h"
#include "random_desk/shrink.h"

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

// So that a check that sees nothing does not pass for a desk without faults.
struct Damage {
  const char* Name;
  void (*Do)(Orvane_Desk& desk);
};

class WhatAlwaysHolds : public ::testing::TestWithParam<Damage> {};

TEST_P(WhatAlwaysHolds, IsMissedWhenItDoesNot) {
  Sitting session;
  LastSeen last;
  for (const char* line : {"enter", "select Pro_Lst 1", "click Bt3_Sterio"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  ASSERT_EQ(WhatIsWrong(session, last, true), "");
  GetParam().Do(session.Desk());
  EXPECT_NE(WhatIsWrong(session, last, true), "");
}

INSTANTIATE_TEST_SUITE_P(
    ARandomDesk, WhatAlwaysHolds,
    ::testing::Values(
        Damage{"ACount", [](Orvane_Desk& desk) { desk.molecule.BondCount = -1; }},
        Damage{"AFlag", [](Orvane_Desk& desk) { desk.drawing.BallsOn = 2; }},
        Damage{"AWidth", [](Orvane_Desk& desk) { desk.drawing.BondWidth = 7; }},
        Damage{"TheOverdraw", [](Orvane_Desk& desk) { desk.drawing.OverdrawPass = 1; }},
        Damage{"ACaption", [](Orvane_Desk& desk) { desk.main.Bt3_Label.Caption = "Label"; }},
        Damage{"ABond", [](Orvane_Desk& desk) { desk.molecule.BondB[1] = desk.molecule.BondA[1]; }},
        Damage{"TheCoordinatesAsRead", [](Orvane_Desk& desk) { desk.molecule.AtomX[1] += 1; }},
        Damage{"ACoordinate", [](Orvane_Desk& desk) { desk.molecule.CurX[1] = 0.0 / 0.0; }},
        Damage{"TheAxis", [](Orvane_Desk& desk) { desk.view.AxisY = 0; }},
        Damage{"ASecondAxis", [](Orvane_Desk& desk) { desk.view.AxisX = 1; }},
        Damage{"ATag", [](Orvane_Desk& desk) { desk.main.X_Tag[0].Style = {1, 4}; }},
        Damage{"TheTagOfAnotherAxis",
               [](Orvane_Desk& desk) {
                 desk.view.AxisX = 1;
                 desk.view.AxisY = 0;
               }},
        Damage{"ASavedAxis",
               [](Orvane_Desk& desk) { desk.view.SavedAxisX = desk.view.SavedAxisZ = 1; }},
        Damage{"TheCellsOfThePair", [](Orvane_Desk& desk) { desk.stereo.PairCells.Y = 1; }},
        Damage{"TheCellsOfRedAndGreen", [](Orvane_Desk& desk) { desk.stereo.RedGreenCells.X = 1; }},
        Damage{"TheCellsOfTheMirror",
               [](Orvane_Desk& desk) { desk.stereo.EnantiomerCells = {1, 1, 0}; }},
        Damage{"TheCellsOfTheSecondPair",
               [](Orvane_Desk& desk) { desk.stereo.PairBCells = {0, 2, 0}; }},
        Damage{"TheAtomOfTheWalk",
               [](Orvane_Desk& desk) { desk.walk.Number = desk.molecule.AtomCount + 1; }},
        Damage{"ThePickOfNoWalk", [](Orvane_Desk& desk) { desk.walk.Picked = 1; }},
        Damage{"AnAtomOfThePair",
               [](Orvane_Desk& desk) { desk.molecule.BondAtomA = desk.molecule.AtomCount + 1; }},
        Damage{"APick", [](Orvane_Desk& desk) { desk.measure.PickAtomC = -1; }},
        Damage{"TheSurvey", [](Orvane_Desk& desk) { desk.survey.SurveyAtom = 597; }},
        Damage{"AMarkOfAPlane", [](Orvane_Desk& desk) { desk.drawing.PlaneCA2 = 597; }},
        Damage{"ASerial", [](Orvane_Desk& desk) { desk.molecule.AtomSerial[3] = 4; }},
        Damage{"ABondsSerial", [](Orvane_Desk& desk) { desk.molecule.BondSerial[3] = 4; }},
        Damage{"AHydrogenBond",
               [](Orvane_Desk& desk) {
                 desk.molecule.HBondCount = 1;
                 desk.molecule.HBondA[1] = desk.molecule.HBondB[1] = 5;
               }},
        Damage{"TheLabels", [](Orvane_Desk& desk) { desk.drawing.LabelsOn = 1; }},
        Damage{"TheHydrogenBonds", [](Orvane_Desk& desk) { desk.drawing.HBondShown = 1; }},
        Damage{"ThePair", [](Orvane_Desk& desk) { desk.main.Bt3_Sterio.Caption = "Stereo Off"; }},
        Damage{"RedAndGreen", [](Orvane_Desk& desk) { desk.stereo.RedGreenOn = 1; }},
        Damage{"TheMirror", [](Orvane_Desk& desk) { desk.main.Bt3_Isomers.Caption = "D / L On"; }},
        Damage{"TheSecondPair",
               [](Orvane_Desk& desk) { desk.main.Bt3_D_L_Str.Caption = "D/L Str"; }},
        Damage{"TwoPairs", [](Orvane_Desk& desk) { desk.stereo.EnantiomerOn = 1; }},
        Damage{"TheSpin", [](Orvane_Desk& desk) { desk.view.AutoRotateOn = 1; }},
        Damage{"AKeptPicture",
               [](Orvane_Desk& desk) {
                 const_cast<Picture&>(*desk.main.R_Img.Shown()).Strokes[0].X1 += 1;
               }},
        Damage{"TheHourglass",
               [](Orvane_Desk& desk) { desk.main.MousePointer = kPointerHourglass; }},
        Damage{"ABar", [](Orvane_Desk& desk) { desk.main.ZoomBar.Value = 101; }},
        Damage{"ARow", [](Orvane_Desk& desk) { desk.main.AA_Lst.ListIndex = 99; }},
        Damage{"APicture",
               [](Orvane_Desk& desk) {
                 auto picture = std::make_shared<Picture>();
                 picture->Strokes.push_back({.Kind = StrokeKind::Print, .Text = 3});
                 desk.main.L_Img.SetPicture(picture);
               }}),
    [](const auto& damage) { return damage.param.Name; });

TEST(ARandomDesk, ReadsEveryPictureBehindEachLineOfAScript) {
  Sitting session;
  ASSERT_EQ(PlayRandomLine(session, "enter"), "");
  auto picture = std::make_shared<Picture>();
  picture->Texts.emplace_back("of no stroke");
  session.Desk().main.L_Img.SetPicture(picture);
  const Life life = PlayLines(session, std::vector<std::string>{"dump"});
  EXPECT_EQ(life.Wrong, "L_Img holds texts that no stroke prints");
}

// A release puts back what was saved, and that was nothing at the start alone.
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

TEST(ARandomDesk, HearsOfALineThatIsNoActionAlsoInsideATick) {
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

TEST(ARandomDesk, MakesTheHourglassGoWhenASaveFails) {
  Sitting session;
  LastSeen last;
  for (const char* line : {"enter", "#save-fails", "answer abc", "click S_bmp"}) {
    ASSERT_EQ(PlayRandomLine(session, line), "");
  }
  EXPECT_EQ(session.failures.Counts.size(), 1U);
  EXPECT_EQ(WhatIsWrong(session, last, true), "");
}

// 1.1 to the power of 7500 is beyond 1.8e308, and 0.9 to that power below all numbers but 0. At the
// half of the bar each thumb let go is one more step the same way.
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
