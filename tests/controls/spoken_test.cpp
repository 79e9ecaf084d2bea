#include "controls/spoken.h"

#include <gtest/gtest.h>

#include "controls/kinds.h"
#include "desk_fixture.h"

namespace orvane {
namespace {

TEST(Spoken, ACaptionIsReadWithoutMnemonicsAndWithOneBlankBetweenWords) {
  EXPECT_EQ(AsSpoken("&Draw in"), "Draw in");
  EXPECT_EQ(AsSpoken("  Get  Molecule "), "Get Molecule");
  EXPECT_EQ(AsSpoken("N - CA: 1.46\n   ALA 1 - ALA 1"), "N - CA: 1.46, ALA 1 - ALA 1");
  EXPECT_EQ(AsSpoken(" \n "), "");
}

TEST(Spoken, EveryControlOfEveryWindowHasAName) {
  DeskAtWork desk;
  for (const Window* window : desk.desk.windows) {
    EXPECT_NE(SpokenName(*window), "") << window->Name;
    for (const Control* control : window->Controls) {
      EXPECT_NE(SpokenName(*control), "") << control->FullName();
      EXPECT_NE(RoleOf(*control), SpokenRole::ByKind) << control->FullName();
    }
  }
}

TEST(Spoken, TheResultIsReadWhileThereIsOne) {
  DeskAtWork work;
  Control& result = work.desk.main.P_Dst_Show;
  EXPECT_EQ(RoleOf(result), SpokenRole::Result);
  EXPECT_EQ(SpokenName(result), "Result of the measure");

  result.Caption = "N - CA: 1.46 Angs\n   ALA 1 - ALA 1";

  EXPECT_EQ(SpokenName(result), "N - CA: 1.46 Angs, ALA 1 - ALA 1");
}

TEST(Spoken, AWordOfTheRowReplacesACaptionThatReadsBadly) {
  DeskAtWork work;
  EXPECT_EQ(SpokenName(work.desk.main.X_Tag[0]), "X axis");
  EXPECT_EQ(SpokenName(work.desk.plot.Label5[0]), "phi");
}

// Two swatches of the same colour have the same name; any other two have different names.
TEST(Spoken, ASwatchIsCalledByItsColour) {
  DeskAtWork work;
  auto& swatches = work.desk.main.P_Clr;
  EXPECT_EQ(SpokenName(swatches[kRedSwatch]), "red");
  for (std::size_t a = 0; a < swatches.size(); ++a) {
    for (std::size_t b = a + 1; b < swatches.size(); ++b) {
      EXPECT_EQ(SpokenName(swatches[a]) == SpokenName(swatches[b]),
                swatches[a].BackColor.Get() == swatches[b].BackColor.Get())
          << a << " and " << b;
    }
  }
}

TEST(Spoken, ASwatchThatStandsForTheElementsIsCalledByItsCaption) {
  DeskAtWork work;
  work.desk.main.P_Clr[0].Caption = "CPK";
  EXPECT_EQ(SpokenName(work.desk.main.P_Clr[0]), "CPK");
}

// A toggle shows its state by its caption, the chosen axis and the spin by their bevel.
TEST(Spoken, WhatIsDrawnAsPressedLooksOn) {
  DeskAtWork work;
  MainWindow& main = work.desk.main;
  EXPECT_FALSE(LooksOn(main.X_Tag[0]));
  EXPECT_TRUE(LooksOn(main.X_Tag[1]));
  EXPECT_FALSE(LooksOn(main.Bt3_Label));
  EXPECT_FALSE(LooksOn(main.P_Auto_Rotate));

  main.Bt3_Label.Caption = "Label On";
  main.P_Auto_Rotate.Style = Look{1, 4};

  EXPECT_TRUE(LooksOn(main.Bt3_Label));
  EXPECT_TRUE(LooksOn(main.P_Auto_Rotate));
}

}  // namespace
}  // namespace orvane
