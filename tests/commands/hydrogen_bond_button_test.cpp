#include "commands/hydrogen_bond_button.h"

#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"
#include "draw/strokes_text.h"

namespace orvane {
namespace {

struct HydrogenBondButtonTest : testing::Test, DeskAtWork {
  // One bond, and a nitrogen and an oxygen 2.9 apart.
  HydrogenBondButtonTest() {
    Load(desk, Record("N", 0, 0, 0) + Record("C", 1.5, 0, 0) + Record("O", 0, 2.9, 0));
  }
  std::size_t DottedLines() const {
    std::size_t count = 0;
    for (const Stroke& stroke : desk.main.Picture1.Image()->Strokes) count += stroke.Style == 2;
    return count;
  }
};

TEST_F(HydrogenBondButtonTest, ItShowsAndHidesTheBondsThatTheLoadFound) {
  EXPECT_EQ(desk.main.Bt3_HBD.Caption, std::string("H-bond Off"));
  desk.main.P_Clr_Holder.Visible = true;
  Click(desk, desk.main.Bt3_HBD);
  EXPECT_EQ(desk.drawing.HBondShown, 1);
  EXPECT_EQ(desk.main.Bt3_HBD.Caption, std::string("H-bond On"));
  EXPECT_EQ(DottedLines(), 2u);
  EXPECT_FALSE(desk.main.P_Clr_Holder.Visible);

  Click(desk, desk.main.Bt3_HBD);
  EXPECT_EQ(desk.drawing.HBondShown, 0);
  EXPECT_EQ(desk.main.Bt3_HBD.Caption, std::string("H-bond Off"));
  EXPECT_EQ(DottedLines(), 0u);
}

TEST_F(HydrogenBondButtonTest, ItBeepsWithoutAStructure) {
  desk.molecule.MoleculeReady = 0;
  Click(desk, desk.main.Bt3_HBD);

  EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
  EXPECT_EQ(desk.drawing.HBondShown, 0);
}

TEST_F(HydrogenBondButtonTest, AStructureLoadedWithItOnShowsItsBondsAtOnce) {
  Click(desk, desk.main.Bt3_HBD);
  Load(desk, Record("N", 0, 0, 0) + Record("C", 1.5, 0, 0) + Record("O", 0, 3, 0));

  EXPECT_EQ(desk.drawing.HBondShown, 1);
  EXPECT_EQ(DottedLines(), 2u);
}

}  // namespace
}  // namespace orvane
