#include "stereo/repaint_all.h"

#include <gtest/gtest.h>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

constexpr Colour kPen = Rgb(1, 2, 3);

// One atom pair for the atoms, one for the trace, one for the planes.
struct RepaintAllTest : testing::Test, PlacedAtoms, SurfaceTrace {
  std::string words;

  RepaintAllTest() {
    Atom("  CA ", 0, 0);
    Atom("  CA ", 10, 0);
    Atom("  C! ", 20, 0);
    Atom("  N! ", 30, 0);
    Bond(2, 1);
    desk.molecule.BondB[7] = 1;
    desk.molecule.BondA[2] = 3;
    desk.molecule.BondB[14] = 4;
    desk.colours.PenColour = kPen;
    desk.main.Picture1.Trace = this;
  }
  void PictureSet(int) override { words += " wipe"; }
  void BackColorSet(Colour) override {}
  void Drawn(const Stroke& stroke, std::string_view) override {
    const std::string word = stroke.Ink == kPen        ? " trace"
                             : stroke.Ink == kPalette3 ? " planes"
                                                       : " atoms";
    if (!words.ends_with(word)) words += word;
  }
  std::string Repainted() {
    words.clear();
    RepaintAll(desk);
    return words;
  }
};

TEST_F(RepaintAllTest, RunsThePainterOfTheFamilyThenThePlanes) {
  EXPECT_EQ(Repainted(), " wipe atoms");
  desk.drawing.DrawFamily = 1;
  EXPECT_EQ(Repainted(), " wipe trace");
  desk.drawing.PeptideOn = 1;
  EXPECT_EQ(Repainted(), " wipe trace planes");
  desk.drawing.DrawFamily = 2;
  EXPECT_EQ(Repainted(), " planes");
}

TEST_F(RepaintAllTest, DoesNotProject) {
  desk.molecule.ScrX[1] = 77;
  RepaintAll(desk);
  EXPECT_EQ(desk.molecule.ScrX[1], 77);
}

// The flag at 2 is neither off nor on: no painter of a family and no composition runs.
TEST_F(RepaintAllTest, LeavesTheFamilyOutWhileRedGreenIsNotOff) {
  desk.stereo.RedGreenOn = 2;
  EXPECT_EQ(Repainted(), "");
  desk.drawing.DrawFamily = 1;
  EXPECT_EQ(Repainted(), "");
  desk.drawing.PeptideOn = 1;
  EXPECT_EQ(Repainted(), " planes");
}

TEST_F(RepaintAllTest, ComposesEachViewThatIsOn) {
  desk.stereo.StereoOn = 1;
  RepaintAll(desk);
  EXPECT_NE(desk.main.L_Img.Shown(), nullptr);

  desk.stereo.StereoOn = 0;
  desk.stereo.EnantiomerOn = 1;
  desk.main.L_Img.SetPicture(nullptr);
  RepaintAll(desk);
  EXPECT_NE(desk.main.L_Img.Shown(), nullptr);

  desk.stereo.EnantiomerOn = 0;
  desk.stereo.RedGreenOn = 1;
  RepaintAll(desk);
  EXPECT_EQ(desk.colours.PenColour, Rgb(0, 255, 0));  // the composition ends with its green pen
}

}  // namespace
}  // namespace orvane
