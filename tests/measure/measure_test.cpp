#include <cmath>
#include <gtest/gtest.h>

#include "commands/measure_buttons.h"
#include "core/records.h"
#include "desk_fixture.h"
#include "draw/strokes_text.h"
#include "measure/angle.h"
#include "measure/distance.h"
#include "measure/picks.h"
#include "measure/torsion.h"

namespace orvane {
namespace {

const double kRadians = std::acos(-1.0) / 180;

struct MeasureTest : testing::Test, DeskAtWork {
  Measure& measure = desk.measure;

  std::string Readout() const { return desk.main.P_Dst_Show.Caption; }
  void Pick(std::initializer_list<int> atoms) {
    for (const int atom : atoms) TakePick(desk, atom);
  }

  // Four atoms: the middle bond is along z, and the last atom is turned about it by that many
  // degrees from the first. The names are those of the backbone unless others are given.
  std::string Twisted(double degrees, std::array<const char*, 4> names = {"N1", "N2", "N3", "N4"}) {
    const double angle = degrees * kRadians;
    return Record(names[0], 1.5, 0, -0.5, {.Residue = "ALA", .Seq = 1}) +
           Record(names[1], 0, 0, 0, {.Residue = "ALA", .Seq = 1}) +
           Record(names[2], 0, 0, 1.5, {.Residue = "GLY", .Seq = 2}) +
           Record(names[3], 1.5 * std::cos(angle), 1.5 * std::sin(angle), 2,
                  {.Residue = "GLY", .Seq = 2});
  }
  double TorsionOf(double degrees) {
    Load(desk, Twisted(degrees));
    Pick({1, 2, 3, 4});
    Torsion4(desk);
    measure.PickState = 0;
    return measure.TorsionResult;
  }
  // The same with names that make it a phi or a psi, as a stock chain.
  double BackboneTorsion(double degrees, std::array<const char*, 4> names, std::string& stock) {
    const std::string text = Twisted(degrees, names);
    stock = text;
    Load(desk, text);
    Pick({1, 2, 3, 4});
    Torsion4(desk);
    measure.PickState = 0;
    stock.clear();
    return measure.TorsionResult;
  }
  void HideStock() {
    for (std::string* text : {&desk.stock.TextAlfa, &desk.stock.TextAlfb, &desk.stock.TextBeta,
                              &desk.stock.TextBetb, &desk.stock.TextPbs, &desk.stock.TextApbs}) {
      *text = "another structure";
    }
  }
};

constexpr std::array kPhi = {"C", "N", "CA", "C"};
constexpr std::array kPsi = {"N", "CA", "C", "N"};

TEST_F(MeasureTest, ADistanceShowsNamesValueAndResidues) {
  Load(desk, Record("CA", 0, 0, 0, {.Residue = "ALA", .Seq = 4}) +
                 Record("O5*", 1.5, 0, 0, {.Residue = "G", .Seq = -2}));
  Pick({1, 2});
  Click(desk, desk.main.Bt3_Dts);

  EXPECT_EQ(Readout(), "  CA  -  O5*: 01.50 Angs \n   ALA 4 -   G -2");
}

TEST_F(MeasureTest, ADistanceIsThatOfThePositionsAsRead) {
  Load(desk, Record("N", 0, 0, 0) + Record("O", 3, 4, 12));
  for (const int value : {5, 10, 15}) StepBar(desk, desk.main.ZoomBar, value);
  Pick({1, 2});
  Click(desk, desk.main.Bt3_Dts);

  EXPECT_EQ(Readout(), "  N   -  O  : 13.00 Angs \n   GLY 1 - GLY 1");
}

TEST_F(MeasureTest, ThreePressesAndDistanceShowTheFirstTwo) {
  Load(desk, Record("N", 0, 0, 0) + Record("O", 2, 0, 0) + Record("S", 0, 5, 0));
  Pick({3, 1, 2});
  EXPECT_EQ(measure.PickState, 3);
  Click(desk, desk.main.Bt3_Dts);

  EXPECT_EQ(Readout(), "  S   -  N  : 05.00 Angs \n   GLY 1 - GLY 1");
  EXPECT_EQ(measure.PickState, 0);
}

TEST_F(MeasureTest, AnAngleShowsThreeAtoms) {
  Load(desk, Record("N", 2, 0, 0, {.Seq = 1}) + Record("CA", 0, 0, 0, {.Seq = 2}) +
                 Record("C", 0, 0, 3, {.Seq = 3}));
  Pick({1, 2, 3});
  Click(desk, desk.main.Bt3_Ang);

  // c is 0, so the angle is 1.5708 x 57.29588295131 = 90.00037.
  EXPECT_EQ(Readout(), "  N   -  CA  -  C  : 90.00 Deg \n   GLY 1 - GLY 2 - GLY 3");
  EXPECT_DOUBLE_EQ(measure.AngleResult, 1.5708 * 57.29588295131);
}

TEST_F(MeasureTest, AnglesRunTo180) {
  for (const double degrees : {20.0, 60.0, 109.5, 170.0}) {
    desk.molecule.PointA = {3, 0, 0};
    desk.molecule.PointB = {0, 0, 0};
    measure.PointC = {2 * std::cos(degrees * kRadians), 2 * std::sin(degrees * kRadians), 0};
    Angle3(desk);
    EXPECT_NEAR(measure.AngleResult, degrees, 1e-3);  // the factors are rounded
  }
}

TEST_F(MeasureTest, AtomsOnOneLineFailInABoxAndMeasuringGoesOn) {
  Load(desk,
       Record("N", 0, 0, 0) + Record("CA", 2, 0, 0) + Record("C", 4, 0, 0) + Record("O", 4, 3, 0));
  Pick({1, 2, 3});
  desk.main.P_Dst_Show.Caption = "earlier";
  Click(desk, desk.main.Bt3_Ang);

  EXPECT_EQ(platform.Effects,
            std::vector<std::string>{
                "failure Angle could not be finished: a number was divided by zero."});
  EXPECT_EQ(measure.MeasureOn, 0);
  EXPECT_EQ(measure.PickState, 3);  // as it was before the failure
  EXPECT_EQ(Readout(), "earlier");

  Click(desk, desk.main.Bt3_Dts);  // the points are still as picked
  EXPECT_EQ(Readout(), "  N   -  CA : 02.00 Angs \n   GLY 1 - GLY 1");
  Pick({1, 3, 4});
  Click(desk, desk.main.Bt3_Ang);
  EXPECT_TRUE(Readout().starts_with("  N   -  C   -  O  : 90.00 Deg ")) << Readout();
}

TEST_F(MeasureTest, ALineOnWhichTheCosinePasses1FailsToo) {
  // Some of these round to a cosine above 1, whose root would not be a number. None of them may get
  // through as a result.
  for (int i = 1; i < 200; ++i) {
    const double step = 0.1 * i;
    desk.molecule.PointA = {step, step / 3, step / 7};
    desk.molecule.PointB = {0, 0, 0};
    measure.PointC = {2 * step, 2 * step / 3, 2 * step / 7};
    measure.AngleResult = 0;
    try {
      Angle3(desk);
    } catch (const Failure&) {
    }
    EXPECT_FALSE(std::isnan(measure.AngleResult)) << step;
    EXPECT_NEAR(measure.AngleResult, 0, 1e-3) << step;
  }
}

// Records hold thousandths of an Angstrom; at 1.5 from the axis that is a fiftieth of a degree.
TEST_F(MeasureTest, ATorsionKnowsNoQuadrant) {
  EXPECT_NEAR(TorsionOf(120), 120, 0.02);
  EXPECT_NEAR(TorsionOf(178), 178, 0.02);
  EXPECT_NEAR(TorsionOf(-120), -120, 0.02);
  EXPECT_NEAR(TorsionOf(-178), -178, 0.02);
  EXPECT_NEAR(TorsionOf(2), -178, 0.02);  // small ones come out on the other side of the circle
  EXPECT_NEAR(TorsionOf(-2), 178, 0.02);
  EXPECT_NEAR(TorsionOf(60), -120, 0.02);
}

TEST_F(MeasureTest, ATorsionOf0StaysAt0) { EXPECT_EQ(TorsionOf(0), 0); }

TEST_F(MeasureTest, ATorsionKeepsItsSizeInAnyPositionAndItsSignWhileTheMiddleBondRunsUp) {
  using Place = Point (*)(const Point&);
  const auto torsion_of = [&](Place place) {
    const double angle = 130 * kRadians;
    desk.molecule.PointA = place({1.5, 0.1, -0.5});
    desk.molecule.PointB = place({0, 0.2, 0});
    measure.PointC = place({0.3, 0, 1.5});
    measure.PointD = place({1.5 * std::cos(angle), 1.5 * std::sin(angle), 2});
    Torsion4(desk);
    return measure.TorsionResult;
  };
  // The middle bond is 0.3, -0.2, 1.5. A turn by 120 degrees about the diagonal sends z to x, and
  // one by 240 sends it to y: the first leaves -0.2 along z, and the sign flips, the second 0.3.
  const double as_placed = torsion_of([](const Point& p) { return p; });
  EXPECT_GT(std::abs(as_placed), 90);
  EXPECT_NEAR(torsion_of([](const Point& p) {
                return Point{p.X + 3, p.Y - 1, p.Z + 9};
              }),
              as_placed, 1e-9);
  EXPECT_NEAR(torsion_of([](const Point& p) { return Point{p.Z, p.X, p.Y}; }), -as_placed, 1e-9);
  EXPECT_NEAR(torsion_of([](const Point& p) { return Point{p.Y, p.Z, p.X}; }), as_placed, 1e-9);
}

TEST_F(MeasureTest, ATorsionShowsFourAtomsAndAnyOtherNameIsTor) {
  Load(desk, Twisted(120, {"C1", "N", "CA", "C"}));  // C1 is not C
  Pick({1, 2, 3, 4});
  Click(desk, desk.main.Bt3_Trg);

  EXPECT_EQ(Readout(),
            "Tor >   C1  -  N   -  CA  -  C  : 120.00 Deg \n"
            "   ALA 1 - ALA 1 - GLY 2 - GLY 2");
  EXPECT_EQ(measure.PickState, 0);
}

TEST_F(MeasureTest, BackboneTorsionsAreNamed) {
  HideStock();
  Load(desk, Twisted(-120, kPhi));
  Pick({1, 2, 3, 4});
  Click(desk, desk.main.Bt3_Trg);
  EXPECT_TRUE(Readout().starts_with("PHI >   C   -  N   -  CA  -  C  : -120.00 Deg \n"))
      << Readout();

  Load(desk, Twisted(120, kPsi));
  Pick({1, 2, 3, 4});
  Click(desk, desk.main.Bt3_Trg);
  EXPECT_TRUE(Readout().starts_with("PSI >   N   -  CA  -  C   -  N  : 120.00 Deg \n"))
      << Readout();
}

TEST_F(MeasureTest, StockHelicesShowBothTorsionsBelowZero) {
  HideStock();
  for (std::string* stock : {&desk.stock.TextAlfa, &desk.stock.TextAlfb}) {
    for (const auto& names : {kPhi, kPsi}) {
      EXPECT_NEAR(BackboneTorsion(120, names, *stock), -120, 0.02);
      EXPECT_NEAR(BackboneTorsion(-120, names, *stock), -120, 0.02);
    }
  }
}

TEST_F(MeasureTest, StockSheetsShowPhiBelowAndPsiAboveZero) {
  HideStock();
  for (std::string* stock :
       {&desk.stock.TextBeta, &desk.stock.TextBetb, &desk.stock.TextPbs, &desk.stock.TextApbs}) {
    EXPECT_NEAR(BackboneTorsion(120, kPhi, *stock), -120, 0.02);
    EXPECT_NEAR(BackboneTorsion(-120, kPhi, *stock), -120, 0.02);
    EXPECT_NEAR(BackboneTorsion(120, kPsi, *stock), 120, 0.02);
    EXPECT_NEAR(BackboneTorsion(-120, kPsi, *stock), 120, 0.02);
  }
}

TEST_F(MeasureTest, OtherStructuresAndOtherTorsionsKeepTheirSign) {
  HideStock();
  std::string elsewhere;
  EXPECT_NEAR(BackboneTorsion(120, kPhi, elsewhere), 120, 0.02);
  EXPECT_NEAR(BackboneTorsion(-120, kPsi, elsewhere), -120, 0.02);
  EXPECT_NEAR(BackboneTorsion(120, {"CA", "C", "N", "CA"}, desk.stock.TextAlfa), 120, 0.02);
}

TEST_F(MeasureTest, ATorsionWithoutTheNeededComponentFails) {
  desk.molecule.PointA = {1, 1, 0};
  desk.molecule.PointB = {0, 0, 0};
  measure.PointC = {2, 1, 0};  // the middle bond has no z
  measure.PointD = {3, 1, 1};
  desk.molecule.MoleculeReady = 1;
  Click(desk, desk.main.Bt3_Trg);

  EXPECT_EQ(platform.Effects,
            std::vector<std::string>{
                "failure Torsion could not be finished: a number was divided by zero."});
  EXPECT_EQ(measure.MeasureOn, 0);
}

TEST_F(MeasureTest, TheFrameOfATorsionIsZeroedAtItsEnd) {
  TorsionOf(120);

  for (const Point& vector : measure.TorsionFrame) {
    EXPECT_EQ(vector.X, 0);
    EXPECT_EQ(vector.Y, 0);
    EXPECT_EQ(vector.Z, 0);
  }
}

TEST_F(MeasureTest, OutsideAMeasureTheRoutinesOnlyEmptyTheReadout) {
  Load(desk, Twisted(120));
  Pick({1, 2, 3, 4});
  for (auto* routine : {Distance, Angle3, Torsion4}) {
    desk.main.P_Dst_Show.Caption = "earlier";
    routine(desk);
    EXPECT_EQ(Readout(), "");
  }
}

TEST_F(MeasureTest, TheBondScanOfALoadClearsTheReadout) {
  desk.main.P_Dst_Show.Caption = "earlier";
  Load(desk, Record("N", 0, 0, 0) + Record("O", 2, 2, 2));

  EXPECT_EQ(Readout(), "");
}

TEST_F(MeasureTest, AButtonTurnsLabelsOffAndWipesTheTags) {
  Load(desk, Record("N", 0, 0, 0) + Record("O", 2, 2, 2));
  desk.drawing.LabelsOn = 1;
  desk.main.Bt3_Label.Caption = "Label On";
  Press(desk, desk.main.Picture1, kLeftButton, 90, 90);
  EXPECT_FALSE(desk.main.Picture1.Image()->Strokes.empty());
  Click(desk, desk.main.Bt3_Dts);

  EXPECT_TRUE(desk.main.Picture1.Image()->Strokes.empty());
  EXPECT_EQ(desk.drawing.LabelsOn, 0);
  EXPECT_EQ(desk.main.Bt3_Label.Caption, std::string("Label On"));
}

TEST_F(MeasureTest, ButtonsBeepWithoutAStructureAndCloseThePanels) {
  for (Button* button : {&desk.main.Bt3_Dts, &desk.main.Bt3_Ang, &desk.main.Bt3_Trg}) {
    platform.Effects.clear();
    measure.PickState = 2;
    desk.main.V_RGB_H.Visible = true;
    Click(desk, *button);
    EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
    EXPECT_EQ(measure.PickState, 2);
    EXPECT_FALSE(desk.main.V_RGB_H.Visible);
  }
}

TEST_F(MeasureTest, WithNothingPickedOnlyTheResultAndTheSeparatorsShow) {
  desk.molecule.MoleculeReady = 1;
  desk.molecule.PointB = {0, 0, 2.5};
  Click(desk, desk.main.Bt3_Dts);

  EXPECT_EQ(Readout(), " -: 02.50 Angs \n    0 -  0");
}

TEST_F(MeasureTest, ATurnBetweenPicksAndButtonSpoilsTheFirstPoint) {
  Load(desk, Record("N", 0, 0, 0) + Record("O", 2, 2, 2) + Record("S", 0, 4, 1));
  Pick({1, 2});
  StepBar(desk, desk.main.VScroll1, 20);
  EXPECT_EQ(measure.PickState, 0);
  Click(desk, desk.main.Bt3_Dts);

  // PointA is now the turned third atom, while the line still names the first.
  const Molecule& m = desk.molecule;
  EXPECT_DOUBLE_EQ(m.DistResult, std::hypot(m.CurX[3] - 2, m.CurY[3] - 2, m.CurZ[3] - 2));
  EXPECT_TRUE(Readout().starts_with("  N   -  O  : "));
}

TEST_F(MeasureTest, AClickOnTheReadoutEmptiesIt) {
  desk.main.P_Dst_Show.Caption = "earlier";
  desk.main.P_Dir_Holder.Visible = true;
  Click(desk, desk.main.P_Dst_Show);

  EXPECT_EQ(Readout(), "");
  EXPECT_FALSE(desk.main.P_Dir_Holder.Visible);
}

}  // namespace
}  // namespace orvane
