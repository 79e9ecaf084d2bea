#include "narration/picture_words.h"

#include <gtest/gtest.h>

#include "narration/chosen_row.h"

namespace orvane {
namespace {

struct PictureWordsTest : testing::Test, DeskAtWork {
  MainWindow& main = desk.main;
  std::string Words() const { return PictureWords(desk); }
  void ChooseAlanine() { Choose(*this, main.AA_Lst, "ALA"); }
};

TEST_F(PictureWordsTest, AnEmptyDeskHasWordsToo) {
  EXPECT_EQ(Words(), "Empty picture");
  ChooseAlanine();
  Click(desk, main.Bt_Blt_AA);
  EXPECT_EQ(Words(), "Empty picture");
}

TEST_F(PictureWordsTest, GiveStructureAtomsAndMode) {
  ChooseAlanine();
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame");
  Click(desk, main.D_StB);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, ball and stick");
  Click(desk, main.M_Stk);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, sticks");
  Click(desk, main.D_Wf);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame");
}

TEST_F(PictureWordsTest, NameTheWaysToDrawAChain) {
  Choose(*this, main.Pro_Lst, "Alfa");
  const std::string chain = "Alpha helix structure (polypeptide), 60 atoms, ";
  Click(desk, main.D_Ca);
  EXPECT_EQ(Words(), chain + "alpha carbon trace");
  Click(desk, main.M_Rbn);
  EXPECT_EQ(Words(), chain + "ribbon");
  Click(desk, main.Cartn);
  EXPECT_EQ(Words(), chain + "cartoon");
}

TEST_F(PictureWordsTest, MentionThePlanesAloneAndOverTheAtoms) {
  Choose(*this, main.Pro_Lst, "Alfb");
  Click(desk, main.OPB);
  EXPECT_EQ(Words(), "Alpha helix structure (polyalanine), 60 atoms, peptide planes alone");
  Click(desk, main.PPB_SB);
  EXPECT_EQ(Words(),
            "Alpha helix structure (polyalanine), 60 atoms, ball and stick, peptide planes");
}

TEST_F(PictureWordsTest, MentionLabelsAndHydrogenBonds) {
  ChooseAlanine();
  Click(desk, main.Bt3_Label);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame, labels");
  Click(desk, main.Bt3_HBD);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame, hydrogen bonds, labels");
}

// A trace prints no labels, so the words do not mention them, even if they are on.
TEST_F(PictureWordsTest, MentionNoLabelsOfATrace) {
  Choose(*this, main.Pro_Lst, "Alfa");
  Click(desk, main.Bt3_Label);
  Click(desk, main.D_Ca);
  EXPECT_EQ(Words(), "Alpha helix structure (polypeptide), 60 atoms, alpha carbon trace");
}

// A split view widens thin bonds to two pixels, but they are still called wires.
TEST_F(PictureWordsTest, NameTheComposedViews) {
  ChooseAlanine();
  Click(desk, main.Bt3_Sterio);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame, stereo pair");
  Click(desk, main.Bt3_Sterio);
  Click(desk, main.Bt3_Isomers);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame, both enantiomers");
  Click(desk, main.Bt3_Isomers);
  Click(desk, main.R_G_Stereo);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame, red-green stereo");
  Click(desk, main.R_G_Stereo);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame");
}

TEST_F(PictureWordsTest, SayThatItSpins) {
  ChooseAlanine();
  Click(desk, main.P_Auto_Rotate);
  EXPECT_EQ(Words(), "Alanine, 13 atoms, wire frame, spinning");
}

}  // namespace
}  // namespace orvane
