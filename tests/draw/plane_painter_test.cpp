#include "draw/plane_painter.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "core/records.h"
#include "draw/placed_atoms.h"

namespace orvane {
namespace {

constexpr const char* kPlainBond = "Line 1 10 2 20 #008080 w1\n";  // palette colour 3

struct PlanePainterTest : testing::Test, PlacedAtoms {
  Drawing& drawing = desk.drawing;

  std::string Painted() {
    desk.main.Picture1.Cls();
    PaintPlanes(desk);
    return Strokes();
  }

  // Two atoms with these names: the first atom of bond 1 and the second of bond 1 + `ahead`.
  std::string PaintedPair(std::string_view from, std::string_view to, int ahead) {
    Molecule& molecule = desk.molecule;
    molecule.AtomCount = 0;
    Atom(from, 1, 10);
    Atom(to, 2, 20);
    molecule.BondA[1] = 1;
    molecule.BondB[1 + ahead] = 2;
    std::string painted = Painted();
    molecule.BondA[1] = 0;
    molecule.BondB[1 + ahead] = 0;
    return painted;
  }

  // The six marked atoms, corners first, and their peptide bond in bonds 1 and 13.
  void MarkedPlane() {
    Atom("  CA1", 0, 0);
    Atom("  O! ", 10, 1);
    Atom("  CA2", 20, 2);
    Atom("  H! ", 30, 3);
    Atom("  C! ", 40, 4);
    Atom("  N! ", 50, 5);
    desk.molecule.BondA[1] = 5;
    desk.molecule.BondB[13] = 6;
  }
};

TEST_F(PlanePainterTest, TheMarkedPlaneIsItsPeptideBondAndItsFourSidesInOrder) {
  MarkedPlane();

  EXPECT_EQ(Painted(),
            "Line 40 4 50 5 #008080 w1\n"   // C! to N!
            "Line 30 3 20 2 #008080 w1\n"   // H! to CA2
            "Line 20 2 10 1 #008080 w1\n"   // CA2 to O!
            "Line 10 1 0 0 #008080 w1\n"    // O! to CA1
            "Line 0 0 30 3 #008080 w1\n");  // CA1 to H!
}

TEST_F(PlanePainterTest, TheStockDipeptideAloneShowsFiveLinesOnThePlainBackgroundAtPlaneWidth) {
  const auto& rows = desk.main.Pro_Lst.Rows.Get();
  const auto row = std::ranges::find_if(
      rows, [](const std::string& text) { return text.find("PEP ") != std::string::npos; });
  ASSERT_NE(row, rows.end());
  SelectRow(desk, desk.main.Pro_Lst, static_cast<int>(row - rows.begin()));
  drawing.PlanesOnly = 1;
  drawing.PlaneWidth = 4;
  desk.main.Picture1.Print("old");
  PaintPlanes(desk);

  const auto image = desk.main.Picture1.Image();
  ASSERT_EQ(image->Strokes.size(), 5u);
  EXPECT_EQ(image->Backdrop, nullptr);
  const auto at = [&](std::string_view name) {
    for (int i = 1; i <= desk.molecule.AtomCount; ++i) {
      if (FullName(desk.molecule.AtomName[i]).substr(0, name.size()) == name) return i;
    }
    return 0;
  };
  const int corners[5][2] = {{at("C!"), at("N!")},
                             {at("H!"), at("CA2")},
                             {at("CA2"), at("O!")},
                             {at("O!"), at("CA1")},
                             {at("CA1"), at("H!")}};
  for (std::size_t side = 0; side < 5; ++side) {
    const Stroke& line = image->Strokes[side];
    const auto [from, to] = corners[side];
    EXPECT_EQ(line.X1, static_cast<float>(desk.molecule.ScrX[from])) << side;
    EXPECT_EQ(line.Y1, static_cast<float>(desk.molecule.ScrY[from])) << side;
    EXPECT_EQ(line.X2, static_cast<float>(desk.molecule.ScrX[to])) << side;
    EXPECT_EQ(line.Y2, static_cast<float>(desk.molecule.ScrY[to])) << side;
    EXPECT_EQ(line.Width, 4) << side;
  }
}

TEST_F(PlanePainterTest, ChainLinesAreFoundByNameAndPlace) {
  drawing.ChainPlanes = 1;

  EXPECT_EQ(PaintedPair("  C  ", "  N  ", 13), kPlainBond);
  EXPECT_EQ(PaintedPair("  O  ", "  CA ", 1), kPlainBond);
  EXPECT_EQ(PaintedPair("  O  ", "  CA ", 13), kPlainBond);
  EXPECT_EQ(PaintedPair("  H1 ", "  CA ", 1), kPlainBond);
}

TEST_F(PlanePainterTest, ChainLinesAreNotFoundAtAnotherPlaceOrUnderAnotherName) {
  drawing.ChainPlanes = 1;

  EXPECT_EQ(PaintedPair("  C  ", "  N  ", 1), "");
  EXPECT_EQ(PaintedPair("  C  ", "  N  ", 12), "");
  EXPECT_EQ(PaintedPair("  O  ", "  CA ", 12), "");
  EXPECT_EQ(PaintedPair("  H1 ", "  CA ", 13), "");
  EXPECT_EQ(PaintedPair("  N  ", "  C  ", 13), "");
  EXPECT_EQ(PaintedPair("  OG ", "  CA ", 1), "");
  EXPECT_EQ(PaintedPair("  CB ", "  N  ", 13), "");
  EXPECT_EQ(PaintedPair("  H  ", "  CA ", 1), "");
}

TEST_F(PlanePainterTest, AnAlphaCarbonIsJoinedToTheHydrogenFourteenAtomsOn) {
  drawing.ChainPlanes = 1;
  for (int i = 1; i <= 16; ++i) Atom("  X  ", i, 10 * i);
  desk.molecule.AtomName[1] = "  CA ";
  desk.molecule.AtomName[2] = "  CA ";  // its partner, atom 16, is no H1
  desk.molecule.AtomName[15] = "  H1 ";

  EXPECT_EQ(Painted(), "Line 1 10 15 150 #008080 w1\n");
}

TEST_F(PlanePainterTest, OneBondTestsItsLinesInTheOrderOfTheTable) {
  drawing.ChainPlanes = 1;
  Atom("  O  ", 1, 1);
  Atom("  CA ", 2, 2);
  Atom("  CA ", 3, 3);
  desk.molecule.BondA[1] = 1;
  desk.molecule.BondB[2] = 2;
  desk.molecule.BondB[14] = 3;

  EXPECT_EQ(Painted(),
            "Line 1 1 2 2 #008080 w1\n"
            "Line 1 1 3 3 #008080 w1\n");
}

TEST_F(PlanePainterTest, ChainLinesNeedAStockChainAndTheMarkedBondDoesNot) {
  EXPECT_EQ(PaintedPair("  C  ", "  N  ", 13), "");
  EXPECT_EQ(PaintedPair("  C! ", "  N! ", 12), kPlainBond);
  drawing.ChainPlanes = 1;
  EXPECT_EQ(PaintedPair("  C! ", "  N! ", 12), kPlainBond);
}

TEST_F(PlanePainterTest, TheTestsRunUpToTwiceTheNumberOfAtoms) {
  Atom("  C! ", 1, 10);
  Atom("  N! ", 2, 20);
  desk.molecule.BondA[4] = 1;
  desk.molecule.BondB[16] = 2;
  EXPECT_EQ(Painted(), kPlainBond);
  EXPECT_EQ(drawing.PlaneIndex, 5);

  desk.molecule.BondA[4] = 0;
  desk.molecule.BondA[5] = 1;
  desk.molecule.BondB[17] = 2;
  EXPECT_EQ(Painted(), "");
}

TEST_F(PlanePainterTest, OfSeveralMarkedPlanesTheLastIsClosed) {
  MarkedPlane();
  Atom("  CA1", 100, 0);
  Atom("  O! ", 110, 1);
  Atom("  CA2", 120, 2);
  Atom("  H! ", 130, 3);

  EXPECT_EQ(Painted(),
            "Line 40 4 50 5 #008080 w1\n"
            "Line 130 3 120 2 #008080 w1\n"
            "Line 120 2 110 1 #008080 w1\n"
            "Line 110 1 100 0 #008080 w1\n"
            "Line 100 0 130 3 #008080 w1\n");
}

TEST_F(PlanePainterTest, MarksOutliveTheStructureAndItsNamesGuardThem) {
  MarkedPlane();
  PaintPlanes(desk);
  Load(desk, Record("N", 0, 0, 0) + Record("CA", 4, 2, 0) + Record("C", 1, 1, 0) +
                 Record("O", 2, 2, 0) + Record("CB", 3, 3, 0) + Record("CG", 5, 5, 0));
  // Bond slots beyond the new structure hold nothing of the old one.
  EXPECT_EQ(Painted(), "");
  EXPECT_EQ(drawing.PlaneCA1, 1);
  EXPECT_EQ(drawing.PlaneO, 2);
  EXPECT_EQ(drawing.PlaneCA2, 3);
  EXPECT_EQ(drawing.PlaneH, 4);

  // The names of the other corners are not checked again: O! and H! at those numbers bring it back.
  desk.molecule.AtomName[2] = "  O! ";
  EXPECT_EQ(Painted(), "");
  desk.molecule.AtomName[4] = "  H! ";
  EXPECT_EQ(std::ranges::count(Painted(), '\n'), 4);
}

TEST_F(PlanePainterTest, AMarkThatWasNeverSeenLeavesThePlaneOpen) {
  MarkedPlane();
  desk.molecule.AtomName[3] = "  CA3";

  EXPECT_EQ(Painted(), "Line 40 4 50 5 #008080 w1\n");
}

TEST_F(PlanePainterTest, PlanesAloneWipeFirstAndOverAPictureTheyDoNot) {
  MarkedPlane();
  desk.main.Picture1.Print("molecule");
  PaintPlanes(desk);
  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), 6u);

  drawing.PlanesOnly = 1;
  drawing.OverdrawPass = 1;  // not checked here
  desk.colours.BackgroundIndex = 2;
  PaintPlanes(desk);
  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), 5u);
  EXPECT_EQ(desk.main.Picture1.Image()->Backdrop, desk.colours.BakImg[2]);
}

TEST_F(PlanePainterTest, BallsAreFilledAgainAfterwards) {
  desk.main.Picture1.FillStyle = 1;
  PaintPlanes(desk);
  EXPECT_EQ(desk.main.Picture1.FillStyle, 0);
}

// 2 x 16384 = 32768 is not a 16-bit number. 2 x 14994 = 29988 reaches i = 29987, and i + 14 is
// 30001. Without chain lines only i + 12 is read, and 2 x 14994 + 12 = 30000 is still a slot.
TEST_F(PlanePainterTest, LargeStructuresEndInAFailure) {
  desk.molecule.AtomCount = 14993;
  drawing.ChainPlanes = 1;
  EXPECT_NO_THROW(PaintPlanes(desk));
  desk.molecule.AtomCount = 14994;
  EXPECT_THROW(PaintPlanes(desk), Failure);
  EXPECT_EQ(drawing.PlaneIndex, 29987);

  drawing.ChainPlanes = 0;
  EXPECT_NO_THROW(PaintPlanes(desk));
  desk.molecule.AtomCount = 14995;
  EXPECT_THROW(PaintPlanes(desk), Failure);
  EXPECT_EQ(drawing.PlaneIndex, 29989);
}

TEST_F(PlanePainterTest, TheDoubledNumberOfAtomsOverflowsAfterTheWipe) {
  desk.molecule.AtomCount = 16384;
  desk.main.Picture1.Print("kept");
  EXPECT_THROW(PaintPlanes(desk), Failure);
  EXPECT_EQ(desk.main.Picture1.Image()->Strokes.size(), 1u);

  drawing.PlanesOnly = 1;
  EXPECT_THROW(PaintPlanes(desk), Failure);
  EXPECT_EQ(Strokes(), "");
}

TEST_F(PlanePainterTest, TheRunNumber32768Fails) {
  for (int run = 1; run <= 32767; ++run) PaintPlanes(desk);
  EXPECT_EQ(drawing.PlanePaintCount, 32767);
  EXPECT_THROW(PaintPlanes(desk), Failure);
}

TEST_F(PlanePainterTest, ASpinThatCountsTooFarStopsAndSaysSoOnce) {
  MarkedPlane();
  drawing.PeptideOn = 1;
  Click(desk, desk.main.P_Auto_Rotate);
  ASSERT_TRUE(desk.main.Timer1.Enabled);
  drawing.PlanePaintCount = 32766;

  Tick(desk, desk.main.Timer1);
  EXPECT_TRUE(platform.Effects.empty());
  for (int tick = 0; tick < 3; ++tick) Tick(desk, desk.main.Timer1);

  ASSERT_EQ(platform.Effects.size(), 1u);
  EXPECT_TRUE(platform.Effects[0].starts_with("failure ")) << platform.Effects[0];
  EXPECT_FALSE(desk.main.Timer1.Enabled);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_EQ(desk.main.P_Auto_Rotate.Style.Get().Bevel, 0);
}

}  // namespace
}  // namespace orvane
