#include "narration/hover_words.h"

#include <gtest/gtest.h>

#include "narration/chosen_row.h"

namespace orvane {
namespace {

struct RestWordsTest : testing::Test, DeskAtWork {
  MainWindow& main = desk.main;
  std::string AtAtom(const Control& control, int atom) const {
    return RestWords(desk, control, static_cast<float>(desk.molecule.ScrX[atom]),
                     static_cast<float>(desk.molecule.ScrY[atom]));
  }
};

TEST_F(RestWordsTest, OverABuiltResidueNameTheAtomAndThenSayHowItWasPlaced) {
  Choose(*this, main.AA_Lst, "SER");
  EXPECT_EQ(AtAtom(main.Picture1, 11),
            "Oxygen OG of serine, atom 11\n"
            "1.422 Å from CB, angle OG–CB–CA 108.1°, torsion OG–CB–CA–N 53.7°");
}

TEST_F(RestWordsTest, OverAStockStructureNameTheAtomAlone) {
  Choose(*this, main.Nuc_Lst, "PHS");
  EXPECT_EQ(AtAtom(main.Picture1, 3), "Phosphorus P of Phosphate, atom 3");
}

// A half is 2535 twips wide: its 169 pixels show the 360 of the surface.
TEST_F(RestWordsTest, OverAHalfOfASplitViewNameTheAtomThatItShowsThere) {
  Choose(*this, main.Nuc_Lst, "PHS");
  Click(desk, main.Bt3_Sterio);
  const double scale = 169.0 / 360;
  EXPECT_EQ(RestWords(desk, main.L_Img, static_cast<float>(desk.molecule.ScrX[3] * scale),
                      static_cast<float>(desk.molecule.ScrY[3] * scale)),
            "Phosphorus P of Phosphate, atom 3");
}

TEST_F(RestWordsTest, OverTheMapDescribeTheCircle) {
  Choose(*this, main.Pro_Lst, "Beta");
  Click(desk, main.RCDP);
  const Stroke circle = desk.plot.Area[0].Image()->Strokes.front();
  EXPECT_TRUE(RestWords(desk, desk.plot.Area[0], circle.X1, circle.Y1).starts_with("Alanine "));
}

TEST_F(RestWordsTest, NameNoAtomWhileItSpins) {
  Choose(*this, main.AA_Lst, "ALA");
  Click(desk, main.P_Auto_Rotate);
  EXPECT_EQ(AtAtom(main.Picture1, 1), "");
  Click(desk, main.P_Auto_Rotate);
  EXPECT_NE(AtAtom(main.Picture1, 1), "");
}

TEST_F(RestWordsTest, AreEmptyBesideTheAtomsAndOverOtherControls) {
  EXPECT_EQ(RestWords(desk, main.Picture1, 180, 180), "");
  Choose(*this, main.AA_Lst, "ALA");
  EXPECT_EQ(RestWords(desk, main.Picture1, 2, 2), "");
  EXPECT_EQ(AtAtom(main.P_Pic1, 1), "");
  EXPECT_EQ(AtAtom(main.AA_Lst, 1), "");
}

}  // namespace
}  // namespace orvane
