// The survey of the backbone torsions: rows, quarters and places on the map.

#include "ramachandran/survey.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "core/records.h"
#include "desk_fixture.h"
#include "stock_check/geometry.h"

namespace orvane {
namespace {

enum ProteinRow { kPep, kAlfa, kAlfb, kBeta, kBetb, kPbs, kApbs };

struct SurveyTest : DeskAtWork, testing::Test {
  void Survey(ProteinRow row) {
    SelectRow(desk, desk.main.Pro_Lst, row);
    Click(desk, desk.main.RCDP);
  }
  std::size_t CirclesOn(std::size_t area) { return desk.plot.Area[area].Image()->Strokes.size(); }
  std::vector<std::size_t> Circles() {
    return {CirclesOn(0), CirclesOn(1), CirclesOn(2), CirclesOn(3)};
  }
};

TEST_F(SurveyTest, OfTheHelixHasElevenRowsAndTenCirclesBottomLeft) {
  Survey(kAlfa);
  EXPECT_EQ(desk.survey.PhiCount, 11);
  EXPECT_EQ(desk.survey.PsiCount, 11);
  EXPECT_EQ(Circles(), (std::vector<std::size_t>{0, 10, 0, 0}));
}

TEST_F(SurveyTest, OfTheStrandHasFiveRowsAndFourCirclesTopLeft) {
  Survey(kBeta);
  EXPECT_EQ(desk.survey.PhiCount, 5);
  EXPECT_EQ(Circles(), (std::vector<std::size_t>{4, 0, 0, 0}));
}

TEST_F(SurveyTest, OfTheSheetsPlotsEveryRowButTheLast) {
  // One alpha carbon for each residue except the first: 20 and 21 residues.
  Survey(kPbs);
  EXPECT_EQ(desk.survey.PhiCount, 19);
  const auto parallel = Circles();
  EXPECT_EQ(parallel[0] + parallel[1] + parallel[2] + parallel[3], 18U);
  Survey(kApbs);
  EXPECT_EQ(desk.survey.PhiCount, 20);
  const auto antiparallel = Circles();
  EXPECT_EQ(antiparallel[0] + antiparallel[1] + antiparallel[2] + antiparallel[3], 19U);
}

TEST_F(SurveyTest, AStepThatMeetsAnAlphaCarbonAfterAGlycineIsUsedAsItIs) {
  // The seventh residue of the parallel sheet has four atoms, 31 to 34. So from its alpha carbon 32
  // the step of four leads to atom 36, an alpha carbon where an N should be. From 36 the step leads
  // back to 32, where a C should be. They are rows 6 and 7.
  Survey(kPbs);
  const Molecule& atoms = desk.molecule;
  ASSERT_EQ(ShortName(atoms.AtomName[32]), "CA");
  ASSERT_EQ(ShortName(atoms.AtomName[36]), "CA");

  // The acute angle between the planes a, b, c and b, c, d, which is all that is left of a torsion
  // without quadrants.
  const auto acute = [&](int a, int b, int c, int d) {
    const auto at = [&](int atom) {
      return Point{atoms.AtomX[atom], atoms.AtomY[atom], atoms.AtomZ[atom]};
    };
    const double size = std::abs(TorsionOf(at(a), at(b), at(c), at(d)));
    return std::min(size, 180 - size);
  };
  // A row holds its place in the area; this goes from there back to its angle.
  const auto& survey = desk.survey;
  const double half_width = desk.plot.Area[0].InnerWidth() / 2;
  const double half_height = desk.plot.Area[0].InnerHeight() / 2;
  const double psi =
      (survey.PsiList[6] - half_height) / (survey.PlotScale * half_height) + survey.PsiMid;
  const double phi =
      (survey.PhiList[7] - half_width) / (survey.PlotScale * half_width) + survey.PhiMid;

  // 57.29588 degrees to the radian instead of 57.29578 are 2 parts in a million.
  EXPECT_NEAR(psi, 180 - acute(31, 32, 33, 36), 0.001);
  EXPECT_NEAR(phi, acute(32, 35, 36, 37) - 180, 0.001);
}

// The torsions as the program shows them: -57 comes out as -123, since the arctangent knows no
// quadrant, and -47 as -133; -119 and +113 do not change.
TEST_F(SurveyTest, ShowsTheHelixNearItsTorsions) {
  // The plot pass overwrites the rows with places, so the test checks the ranges. The last psi
  // depends on the store's history, so only phi is exact.
  Survey(kAlfa);
  EXPECT_NEAR(desk.survey.PhiMax, -123, 0.2);
  EXPECT_NEAR(desk.survey.PhiMid, -123, 0.2);
}

TEST_F(SurveyTest, ShowsTheStrandNearItsTorsions) {
  Survey(kBeta);
  EXPECT_NEAR(desk.survey.PhiMax, -119, 0.2);
  EXPECT_NEAR(desk.survey.PhiMid, -119, 0.2);
}

TEST_F(SurveyTest, CirclesAreSmallAndYellow) {
  Survey(kBeta);
  const auto picture = desk.plot.Area[0].Image();
  for (const Stroke& stroke : picture->Strokes) {
    EXPECT_EQ(stroke.Kind, StrokeKind::Circle);
    EXPECT_EQ(stroke.X2, 1.0F);
    EXPECT_EQ(stroke.Ink, kPalette14);
    EXPECT_EQ(stroke.Fill, kPalette14);
  }
}

TEST_F(SurveyTest, TwiceInARowDrawsTheSamePicture) {
  Survey(kApbs);
  const auto once = desk.plot.Area[0].Image()->Strokes;
  Click(desk, desk.main.RCDP);
  EXPECT_EQ(desk.plot.Area[0].Image()->Strokes, once);
}

TEST_F(SurveyTest, DoesNotChangeWithTheView) {
  Survey(kPbs);
  const auto before = desk.plot.Area[0].Image()->Strokes;
  StepBar(desk, desk.main.VScroll1, 11);
  StepBar(desk, desk.main.ZoomBar, 5);
  Click(desk, desk.main.RCDP);
  EXPECT_EQ(desk.plot.Area[0].Image()->Strokes, before);
}

TEST_F(SurveyTest, ReadsWhatALongerStructureLeftBeyondTheLastResidue) {
  // The helix ends at atom 60 with its last alpha carbon at 57, whose next nitrogen would be
  // atom 61.
  Survey(kAlfa);
  const double fresh = desk.survey.PsiSpan;
  SelectRow(desk, desk.main.Pro_Lst, kApbs);
  Survey(kAlfa);
  EXPECT_NE(desk.survey.PsiSpan, fresh);
}

TEST_F(SurveyTest, CaptionsNameTheStructureAndStayForOthers) {
  Survey(kAlfa);
  EXPECT_EQ(desk.plot.RamPlt_H.Caption, "Ramachandran Plot: Right Handed A-Helix");
  Survey(kBeta);
  EXPECT_EQ(desk.plot.RamPlt_H.Caption, "Ramachandran Plot: B-Strand");
  Survey(kPbs);
  EXPECT_EQ(desk.plot.RamPlt_H.Caption, "Ramachandran Plot: Parallel B-pleated Sheet");
  Survey(kApbs);
  EXPECT_EQ(desk.plot.RamPlt_H.Caption, "Ramachandran Plot: Antiparallel B-pleated Sheet");

  SelectRow(desk, desk.main.Pro_Lst, kAlfb);
  Click(desk, desk.main.RCDP, Reach::Forced);
  EXPECT_EQ(desk.plot.RamPlt_H.Caption, "Ramachandran Plot: Antiparallel B-pleated Sheet");
}

TEST_F(SurveyTest, KeepsItsStepOfNineForThePolyalanineHelix) {
  // Alpha carbons at 2, 12, ... 52: with a step of nine the survey finds all the neighbours of a
  // regular helix.
  SelectRow(desk, desk.main.Pro_Lst, kAlfb);
  Click(desk, desk.main.RCDP, Reach::Forced);
  EXPECT_EQ(desk.survey.PhiCount, 5);
  EXPECT_NEAR(desk.survey.PhiMax, -123, 0.2);
}

TEST_F(SurveyTest, OpensTheWindowClosesThePanelsAndTurnsPrintingToIt) {
  SelectRow(desk, desk.main.Pro_Lst, kAlfa);
  desk.main.P_Clr_Holder.Visible = true;
  Click(desk, desk.main.RCDP);
  EXPECT_TRUE(desk.plot.Visible);
  EXPECT_FALSE(desk.main.P_Clr_Holder.Visible);
  EXPECT_EQ(desk.stereo.SplitViewOn, 2);
}

TEST_F(SurveyTest, StaysAvailableForTheAtomsInStoreAfterGetMolecule) {
  Survey(kAlfa);
  Click(desk, desk.main.Bt_Blt_AA);
  ASSERT_EQ(desk.molecule.MoleculeReady, 0);
  Click(desk, desk.main.RCDP);
  EXPECT_EQ(desk.survey.PhiCount, 11);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(SurveyTest, ASelectionClosesTheWindow) {
  const std::pair<List*, int> rows[] = {{&desk.main.AA_Lst, 1},
                                        {&desk.main.Pro_Lst, kAlfb},
                                        {&desk.main.Nuc_Lst, 0},
                                        {&desk.main.DNA_Lst, 0}};
  for (const auto& [list, row] : rows) {
    Survey(kAlfa);
    ASSERT_TRUE(desk.plot.Visible);
    SelectRow(desk, *list, row);
    EXPECT_FALSE(desk.plot.Visible);
  }
  EXPECT_FALSE(desk.main.RCDP.Enabled);
}

TEST_F(SurveyTest, OfAStructureWithoutAlphaCarbonsEndsInAFailure) {
  Load(desk, Record("C1", 0, 0, 0) + Record("C2", 1, 1, 0.5));
  Click(desk, desk.main.RCDP, Reach::Forced);
  ASSERT_EQ(platform.Effects.size(), 1U);
  EXPECT_TRUE(platform.Effects[0].starts_with("failure "));
}

TEST_F(SurveyTest, SpreadsTheWiderRangeOverHalfAPicture) {
  // With the scale 1 / widest span a row lies at most a quarter of the picture from its middle.
  Survey(kApbs);
  const double w = desk.plot.Area[0].InnerWidth();
  const double h = desk.plot.Area[0].InnerHeight();
  for (std::size_t area = 0; area < 4; ++area) {
    const auto picture = desk.plot.Area[area].Image();
    for (const Stroke& stroke : picture->Strokes) {
      EXPECT_LE(std::fabs(stroke.X1 - w / 2), w / 4 + 1e-3);
      EXPECT_LE(std::fabs(stroke.Y1 - h / 2), h / 4 + 1e-3);
    }
  }
}

}  // namespace
}  // namespace orvane
