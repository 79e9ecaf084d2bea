#include "commands/label_button.h"

#include <gtest/gtest.h>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

constexpr const char* kLabelsOnWhite =
    "message To see the labels, you need to change the colour\n"
    "of either the Labels or the background.\nUse the Options menu";

struct LabelsTest : testing::Test, PlacedAtoms {
  LabelsTest() { Atom("  CA ", 10, 20); }
  std::string Clicked() {
    Click(desk, desk.main.Bt3_Label);
    return Strokes();
  }
};

TEST_F(LabelsTest, TheSwitchPrintsNamesAndTakesThemAwayAgain) {
  EXPECT_EQ(Clicked(), "Print 10 20 #ffffff \"  CA \"\n");
  EXPECT_EQ(desk.main.Bt3_Label.Caption, "Label On");
  EXPECT_EQ(desk.drawing.LabelsOn, 1);

  EXPECT_EQ(Clicked(), "");
  EXPECT_EQ(desk.main.Bt3_Label.Caption, "Label Off");
  EXPECT_EQ(desk.drawing.LabelsOn, 0);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(LabelsTest, WithoutAStructureTheSwitchClosesThePanelsAndBeeps) {
  desk.molecule.MoleculeReady = 0;
  desk.main.V_RGB_H.Visible = true;
  Clicked();

  EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
  EXPECT_FALSE(desk.main.V_RGB_H.Visible);
  EXPECT_EQ(desk.drawing.LabelsOn, 0);
}

TEST_F(LabelsTest, OnWhiteTheMessageComesWhateverTheLabelColour) {
  desk.main.Picture1.SetBackColor(kPalette15);
  desk.colours.LabelColour = Rgb(255, 0, 0);

  EXPECT_EQ(Clicked(), "Print 10 20 #ff0000 \"  CA \"\n");
  EXPECT_EQ(platform.Effects, std::vector<std::string>{kLabelsOnWhite});
  Clicked();
  EXPECT_EQ(platform.Effects.size(), 1u);  // no message when they go
}

TEST_F(LabelsTest, OverAPictureNoMessageComes) {
  desk.main.Picture1.SetBackColor(kPalette15);
  Click(desk, desk.main.Bgr1);
  Clicked();

  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(LabelsTest, WhiteBehindWhiteLabelsGivesNoMessage) {
  Clicked();
  Click(desk, desk.main.Wt_Cl, Reach::Forced);

  EXPECT_TRUE(platform.Effects.empty());
  EXPECT_EQ(desk.main.Picture1.PlainColour(), kPalette15);
  EXPECT_EQ(Strokes(), "Print 10 20 #ffffff \"  CA \"\n");
}

TEST_F(LabelsTest, LabelsInATraceShowWhenTheAtomsComeBack) {
  desk.drawing.DrawFamily = 1;
  EXPECT_EQ(Clicked(), "");
  EXPECT_EQ(desk.drawing.LabelsOn, 1);

  Click(desk, desk.main.Bt_CA_Trace);
  EXPECT_EQ(Strokes(), "Print 10 20 #ffffff \"  CA \"\n");
}

TEST_F(LabelsTest, PlanesAloneWipeTheLabels) {
  desk.drawing.PeptideOn = 1;
  desk.drawing.PlanesOnly = 1;
  EXPECT_EQ(Clicked(), "");
}

TEST_F(LabelsTest, AMeasureTurnsLabelsOffAndTheCaptionStays) {
  Clicked();
  Click(desk, desk.main.Bt3_Dts);
  ASSERT_EQ(desk.drawing.LabelsOn, 0);
  EXPECT_EQ(desk.main.Bt3_Label.Caption, "Label On");

  Clicked();
  EXPECT_EQ(desk.drawing.LabelsOn, 1);
  EXPECT_EQ(desk.main.Bt3_Label.Caption, "Label On");
}

TEST_F(LabelsTest, ThePairsAreComposedAgainAndTheRedGreenPictureIsNot) {
  desk.stereo.RedGreenOn = 1;
  const Colour pen = desk.colours.PenColour;
  Clicked();
  EXPECT_EQ(desk.colours.PenColour, pen);  // a composition leaves it green
  EXPECT_EQ(desk.main.L_Img.Shown(), nullptr);

  desk.stereo.RedGreenOn = 0;
  desk.stereo.StereoOn = 1;
  Clicked();
  ASSERT_NE(desk.main.L_Img.Shown(), nullptr);

  desk.main.L_Img.SetPicture(nullptr);
  desk.stereo.StereoOn = 0;
  desk.stereo.EnantiomerOn = 1;
  Clicked();
  EXPECT_NE(desk.main.L_Img.Shown(), nullptr);
}

}  // namespace
}  // namespace orvane
