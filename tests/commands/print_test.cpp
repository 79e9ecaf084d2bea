// The page to be printed: what is filled in and what is shown.

#include "commands/print.h"

#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {
namespace {

using Lines = std::vector<std::string>;

struct Print : DeskAtWork, testing::Test {
  Print() { SelectRow(desk, desk.main.AA_Lst, 2); }  // "ALA ALANINE (ALA A)"
  PrintPage& page = desk.page;
};

TEST_F(Print, ThePlainPageHoldsTheSurfaceAndTheName) {
  Click(desk, desk.main.PrImg);

  EXPECT_EQ(platform.Effects, Lines{"print Form_Print"});
  EXPECT_TRUE(page.Image1.Visible);
  EXPECT_EQ(page.Image1.Shown()->Strokes, desk.main.Picture1.Image()->Strokes);
  EXPECT_TRUE(page.Mol_Name.Visible);
  // "Orvane (OVN) v2.0: ALANINE (ALA A)", from its eleventh letter on.
  EXPECT_EQ(page.Mol_Name.Caption, "N) v2.0: ALANINE (ALA A)");
  for (const Control* hidden : std::initializer_list<const Control*>{
           &page.R_Form, &page.L_Form, &page.AA_name, &page.Str_Entm}) {
    EXPECT_FALSE(hidden->Visible) << hidden->Name;
  }
}

TEST_F(Print, ThePlainPageEmptiesTheImagesOfThePairAndLeavesThemShown) {
  Click(desk, desk.main.Bt3_Sterio);
  Click(desk, desk.main.PrImg);
  Click(desk, desk.main.Bt3_Sterio);
  Click(desk, desk.main.PrImg);
  for (const ImageBox* image : {&page.L_Img, &page.R_Img}) {
    EXPECT_EQ(image->Shown(), nullptr) << image->Name;
    EXPECT_TRUE(image->Visible) << image->Name;
  }
}

TEST_F(Print, AStereoPageHoldsThePairUnderItsOwnSpelling) {
  Click(desk, desk.main.Bt3_Sterio);
  Click(desk, desk.main.PrImg);

  EXPECT_EQ(page.Str_Entm.Caption, "Sterio Pair");
  EXPECT_TRUE(page.Str_Entm.Visible);
  EXPECT_FALSE(page.L_Form.Visible);
  EXPECT_FALSE(page.Image1.Visible);
  EXPECT_FALSE(page.Mol_Name.Visible);
  EXPECT_EQ(page.L_Img.Shown(), desk.main.L_Img.Shown());
  EXPECT_EQ(page.R_Img.Shown(), desk.main.R_Img.Shown());
  EXPECT_EQ(page.AA_name.Caption, "N) v2.0: ALANINE (ALA A)");
}

TEST_F(Print, AnEnantiomerPageShowsItsForms) {
  Click(desk, desk.main.Bt3_Isomers);
  Click(desk, desk.main.PrImg);
  EXPECT_EQ(page.Str_Entm.Caption, "Enantiomers");
  EXPECT_TRUE(page.L_Form.Visible);
  EXPECT_TRUE(page.R_Form.Visible);
}

TEST_F(Print, ASecondPrintAfterASplitViewHidesItsControlsAgain) {
  Click(desk, desk.main.Bt3_Isomers);
  Click(desk, desk.main.PrImg);
  Click(desk, desk.main.Bt3_Isomers);
  Click(desk, desk.main.PrImg);
  EXPECT_FALSE(page.L_Form.Visible);
  EXPECT_FALSE(page.Str_Entm.Visible);
  EXPECT_TRUE(page.Image1.Visible);
}

TEST_F(Print, ThePlotIsTheSubjectUntilAToggleWritesTheField) {
  SelectRow(desk, desk.main.Pro_Lst, 1);
  Click(desk, desk.main.RCDP);
  desk.plot.Hide();
  platform.Effects.clear();

  Click(desk, desk.main.PrImg);
  EXPECT_EQ(platform.Effects, Lines{"print Ramachandran"});

  platform.Effects.clear();
  Click(desk, desk.main.Bt3_Sterio);
  Click(desk, desk.main.PrImg);
  EXPECT_EQ(platform.Effects, Lines{"print Form_Print"});
}

TEST_F(Print, TheSecondToggleLeavesTheHiddenSurfaceToThePage) {
  Click(desk, desk.main.Bt3_D_L_Str);
  ASSERT_EQ(desk.stereo.SplitViewOn, 0);
  Click(desk, desk.main.PrImg);
  EXPECT_TRUE(page.Image1.Visible);
}

TEST_F(Print, ARedGreenPictureIsPrintedInItsTwoColours) {
  Click(desk, desk.main.R_G_Stereo);
  Click(desk, desk.main.PrImg);
  bool red = false, green = false;
  for (const Stroke& stroke : page.Image1.Shown()->Strokes) {
    red |= stroke.Ink == Rgb(255, 0, 0);
    green |= stroke.Ink == Rgb(0, 255, 0);
  }
  EXPECT_TRUE(red);
  EXPECT_TRUE(green);
}

TEST_F(Print, WithNoPrinterTheMessageShowsAndTheProgramGoesOn) {
  platform.HasPrinter = false;
  Click(desk, desk.main.PrImg);
  EXPECT_EQ(platform.Effects,
            Lines{"message Could'nt print.\nCheck if the Printer is installed properly."});

  platform.HasPrinter = true;
  Click(desk, desk.main.PrImg);
  EXPECT_EQ(platform.Effects.back(), "print Form_Print");
}

TEST_F(Print, HidesTheColoursAndNoOtherPanel) {
  desk.main.P_Clr_Holder.Visible = true;
  desk.main.V_RGB_H.Visible = true;
  Click(desk, desk.main.PrImg);
  EXPECT_FALSE(desk.main.P_Clr_Holder.Visible);
  EXPECT_TRUE(desk.main.V_RGB_H.Visible);
}

}  // namespace
}  // namespace orvane
