#include "commands/size_keys.h"

#include <gtest/gtest.h>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

struct SizeKeysTest : testing::Test, PlacedAtoms {
  SizeKeysTest() {
    Atom("  N  ", 0, 0);
    Atom("  CA ", 10, 0);
    Bond(2, 1);
  }
  void PressKeyOf(const char* caption, int times = 1, int button = kLeftButton) {
    for (Button& key : desk.main.Sz_Balls) {
      if (key.Caption != std::string(caption)) continue;
      for (int i = 0; i < times; ++i) Press(desk, key, button, 1, 1);
    }
  }
  Drawing& drawing = desk.drawing;
};

TEST_F(SizeKeysTest, BallKeysStepFrom1To6WhileBallsAreShown) {
  PressKeyOf("Bs+");
  EXPECT_EQ(drawing.BallSize, 3);

  drawing.BallsOn = 1;
  PressKeyOf("Bs+");
  EXPECT_EQ(drawing.BallSize, 4);
  PressKeyOf("Bs+", 5);
  EXPECT_EQ(drawing.BallSize, 6);
  PressKeyOf("Bs-", 9);
  EXPECT_EQ(drawing.BallSize, 1);
}

TEST_F(SizeKeysTest, BondKeysStepAlways) {
  PressKeyOf("Mw+");
  EXPECT_EQ(drawing.BondWidth, 2);
  PressKeyOf("Mw+", 9);
  EXPECT_EQ(drawing.BondWidth, 6);
  PressKeyOf("Mw-", 9);
  EXPECT_EQ(drawing.BondWidth, 1);
}

TEST_F(SizeKeysTest, PlaneKeysStepWhilePlanesAreShownInEitherWay) {
  PressKeyOf("Pw+");
  EXPECT_EQ(drawing.PlaneWidth, 1);

  drawing.PlanesOnly = 1;
  PressKeyOf("Pw+", 9);
  EXPECT_EQ(drawing.PlaneWidth, 6);
  drawing.PlanesOnly = 0;
  drawing.PeptideOn = 1;
  PressKeyOf("Pw-", 2);
  EXPECT_EQ(drawing.PlaneWidth, 4);
  PressKeyOf("Pw-", 9);
  EXPECT_EQ(drawing.PlaneWidth, 1);
}

TEST_F(SizeKeysTest, APressThatChangesNothingPaintsAgain) {
  desk.main.Picture1.Cls();
  PressKeyOf("Mw-");

  EXPECT_EQ(drawing.BondWidth, 1);
  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), 2u);
}

TEST_F(SizeKeysTest, OtherButtonsOnlyCloseThePanels) {
  desk.main.P_Clr_Holder.Visible = true;
  desk.molecule.MoleculeReady = 0;
  PressKeyOf("Mw+", 1, kRightButton);

  EXPECT_EQ(drawing.BondWidth, 1);
  EXPECT_FALSE(desk.main.P_Clr_Holder.Visible);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(SizeKeysTest, WithoutAStructureTheLeftButtonBeeps) {
  desk.molecule.MoleculeReady = 0;
  PressKeyOf("Mw+");

  EXPECT_EQ(drawing.BondWidth, 1);
  EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
}

}  // namespace
}  // namespace orvane
