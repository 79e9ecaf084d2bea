#include "draw/redraw_chain.h"

#include <gtest/gtest.h>

#include "core/records.h"
#include "draw/placed_atoms.h"

namespace orvane {
namespace {

constexpr Colour kTraceColour = Rgb(1, 2, 3);
constexpr Colour kPlaneColour = Rgb(4, 5, 6);

// What the passes do, one word each; a repeated word is left out.
struct Passes : SurfaceTrace {
  std::vector<std::string> Words;
  void Add(const char* word) {
    if (Words.empty() || Words.back() != word) Words.emplace_back(word);
  }
  void PictureSet(int) override { Words.emplace_back("wipe"); }
  void BackColorSet(Colour) override {}
  void Drawn(const Stroke& stroke, std::string_view) override {
    Add(stroke.Ink == kTraceColour ? "trace" : stroke.Ink == kPlaneColour ? "planes" : "atoms");
  }
};

struct RedrawChainTest : testing::Test, PlacedAtoms {
  // A stock strand with its planes, and what a redraw does to it.
  std::vector<std::string> PassesOver(const std::string& text) {
    Load(desk, text);
    desk.drawing.ChainPlanes = 1;
    desk.colours.PenColour = kTraceColour;
    desk.colours.PlaneColour = kPlaneColour;
    Passes passes;
    desk.main.Picture1.Trace = &passes;
    RedrawView(desk);
    desk.main.Picture1.Trace = nullptr;
    return passes.Words;
  }

  // 4 wide and 2 high: the centre is 2, 1, and an Angstrom is 0.25 of half the surface, 45 pixels.
  void LoadTwo() { Load(desk, Record("N", 0, 0, 0) + Record("O", 4, 2, 0)); }
};

TEST_F(RedrawChainTest, ANewStructureFillsHalfOfTheSurface) {
  LoadTwo();

  EXPECT_EQ(desk.molecule.ScrX[1], 90);  // (0 - 2) x 45 + 180
  EXPECT_EQ(desk.molecule.ScrX[2], 270);
}

TEST_F(RedrawChainTest, ThePictureIsDrawnYDownAndFlat) {
  LoadTwo();
  desk.molecule.CurZ[1] = 50;
  RedrawView(desk);

  EXPECT_EQ(desk.molecule.ScrY[1], 135);  // (0 - 1) x 45 + 180: the lower y is the upper end
  EXPECT_EQ(desk.molecule.ScrY[2], 225);
}

TEST_F(RedrawChainTest, ShiftsArePixelsOnTopOfTheProjection) {
  LoadTwo();
  desk.view.PanX = 7;
  desk.view.PanY = -9;
  desk.view.SurfOffX = 0.5;
  RedrawView(desk);

  EXPECT_EQ(desk.molecule.ScrX[1], 97.5);
  EXPECT_EQ(desk.molecule.ScrY[1], 126);
}

TEST_F(RedrawChainTest, EachRedrawSetsThePixelScale) {
  desk.main.Picture1.ScaleMode = 1;
  RedrawView(desk);

  EXPECT_EQ(desk.main.Picture1.ScaleMode, 3);
}

TEST_F(RedrawChainTest, ARepaintDoesNotProject) {
  LoadTwo();
  desk.molecule.ScrX[1] = 33;
  desk.drawing.BallsOn = 1;
  RepaintPasses(desk);

  EXPECT_EQ(desk.molecule.ScrX[1], 33);
  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.at(0).X1, 33);
}

TEST_F(RedrawChainTest, AnUnknownFamilyRunsNoPainter) {
  LoadTwo();
  desk.main.Picture1.Cls();
  desk.main.Picture1.Print("kept");
  desk.drawing.DrawFamily = 2;
  RedrawView(desk);

  EXPECT_EQ(Strokes(), "Print 0 0 #000000 \"kept\"\n");
}

TEST_F(RedrawChainTest, PlanesComeAfterTheMoleculeAndOnTopOfIt) {
  desk.drawing.PeptideOn = 1;

  EXPECT_EQ(PassesOver(desk.stock.TextBetb), (std::vector<std::string>{"wipe", "atoms", "planes"}));
}

TEST_F(RedrawChainTest, PlanesAloneArePaintedOnceTheMoleculeIsWiped) {
  desk.drawing.PeptideOn = 1;
  desk.drawing.PlanesOnly = 1;

  EXPECT_EQ(PassesOver(desk.stock.TextBetb),
            (std::vector<std::string>{"wipe", "atoms", "wipe", "planes"}));
}

TEST_F(RedrawChainTest, PlanesGoOnTopOfATraceToo) {
  desk.drawing.DrawFamily = 1;
  desk.drawing.PeptideOn = 1;

  EXPECT_EQ(PassesOver(desk.stock.TextBeta), (std::vector<std::string>{"wipe", "trace", "planes"}));
}

TEST_F(RedrawChainTest, WithoutPeptideOnNoPlaneIsPainted) {
  desk.drawing.PlanesOnly = 1;

  EXPECT_EQ(PassesOver(desk.stock.TextBetb), (std::vector<std::string>{"wipe", "atoms"}));
}

TEST_F(RedrawChainTest, FastWireJoinsPlacesOfAtomsWithTheNumbersOfBonds) {
  Load(desk, Record("N", 0, 0, 0) + Record("O", 4, 0, 0));
  desk.molecule.AtomCount = 2;
  Bond(1, 2);  // point 2 is not filled yet, and is at 0, 0
  Bond(2, 1);
  desk.drawing.FastWire = 1;
  desk.drawing.DrawFamily = 2;  // so that no painter wipes the wire
  desk.main.Picture1.Print("old");
  desk.main.Picture1.ForeColor = Rgb(1, 2, 3);
  desk.main.Picture1.DrawWidth = 4;
  RedrawView(desk);

  EXPECT_EQ(Strokes(),
            "Line 90 180 0 0 #010203 w4\n"
            "Line 270 180 90 180 #010203 w4\n");
}

TEST_F(RedrawChainTest, FastWireIsGoodFor1000Points) {
  for (int bond = 1; bond <= 1000; ++bond) Bond(bond, 1);
  desk.drawing.FastWire = 1;
  EXPECT_NO_THROW(RedrawView(desk));

  Bond(1001, 1);
  EXPECT_THROW(RedrawView(desk), Failure);
}

}  // namespace
}  // namespace orvane
