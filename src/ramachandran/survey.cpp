#include "ramachandran/survey.h"

#include "measure/torsion.h"
#include "runtime/arithmetic.h"

namespace orvane {
namespace {

// From an alpha carbon back to the C before it and on to the N after it, in atoms of the list.
constexpr int kStepOfTen = 9;   // residues of ten atoms
constexpr int kStepOfFive = 4;  // residues N, CA, C, O, R

using enum BackboneTorsion;

Point AtomAsRead(const Molecule& molecule, int atom) {
  return {molecule.AtomX[atom], molecule.AtomY[atom], molecule.AtomZ[atom]};
}

double SignedTorsion(Orvane_Desk& desk, int a, int b, int c, int d, BackboneTorsion kind) {
  desk.molecule.PointA = AtomAsRead(desk.molecule, a);
  desk.molecule.PointB = AtomAsRead(desk.molecule, b);
  desk.measure.PointC = AtomAsRead(desk.molecule, c);
  desk.measure.PointD = AtomAsRead(desk.molecule, d);
  Torsion4(desk);
  FlipTorsionSign(desk, kind);
  return desk.measure.TorsionResult;
}

void AddRow(SurveyRows& rows, int& count, double& largest, double& smallest, double angle) {
  ++count;
  rows[count] = angle;
  if (angle > largest) largest = angle;
  if (angle < smallest) smallest = angle;
}

void SurveyResidues(Orvane_Desk& desk) {
  Survey& survey = desk.survey;
  const int step = desk.molecule.MolText == desk.stock.TextAlfb ? kStepOfTen : kStepOfFive;
  for (int i = 1; i <= desk.molecule.AtomCount; ++i) {
    survey.SurveyAtom = i;
    if (!IsSurveyed(desk.molecule, i)) continue;
    desk.measure.PickAtomD = i;
    AddRow(survey.PhiList, survey.PhiCount, survey.PhiMax, survey.PhiMid,
           SignedTorsion(desk, i - step, i - 1, i, i + 1, Phi));
    AddRow(survey.PsiList, survey.PsiCount, survey.PsiMax, survey.PsiMid,
           SignedTorsion(desk, i - 1, i, i + 1, i + step, Psi));
  }
}

// Index of the area for a row, -1 for a row that fits none.
int QuarterOf(double phi, double psi) {
  if (phi < 0 && psi > 0) return 0;
  if (phi < 0 && psi < 0) return 1;
  if (phi >= 0 && psi <= 0) return 2;
  if (phi >= 0 && psi > 0) return 3;
  return -1;
}

void PlotRow(Orvane_Desk& desk, int row) {
  Survey& survey = desk.survey;
  const int quarter = QuarterOf(survey.PhiList[row], survey.PsiList[row]);
  if (quarter < 0) return;
  MapArea& area = desk.plot.Area[static_cast<std::size_t>(quarter)];
  const double w = area.InnerWidth();
  const double h = area.InnerHeight();
  survey.PhiList[row] = (survey.PhiList[row] - survey.PhiMid) * survey.PlotScale * (w / 2) + w / 2;
  survey.PsiList[row] = (survey.PsiList[row] - survey.PsiMid) * survey.PlotScale * (h / 2) + h / 2;
  area.FillColor = kPalette14;
  area.Circle(survey.PhiList[row], survey.PsiList[row], 1, kPalette14);
}

}  // namespace

bool IsSurveyed(const Molecule& molecule, int atom) {
  return ShortName(molecule.AtomName[atom]) == "CA" && atom > 4;  // skips the first residue
}

void TorsionSurvey(Orvane_Desk& desk) {
  Survey& survey = desk.survey;
  survey.PhiCount = survey.PsiCount = 0;
  survey.WidestSpan = 0;
  survey.PhiMax = survey.PsiMax = -10000;
  survey.PhiMid = survey.PsiMid = 10000;

  SurveyResidues(desk);

  survey.PhiSpan = survey.PhiMax - survey.PhiMid;
  if (!(survey.PhiSpan < survey.WidestSpan)) survey.WidestSpan = survey.PhiSpan;
  survey.PsiSpan = survey.PsiMax - survey.PsiMid;
  if (!(survey.PsiSpan < survey.WidestSpan)) survey.WidestSpan = survey.PsiSpan;
  survey.PlotScale = Divide(1.0, survey.WidestSpan);
  survey.PhiMid += survey.PhiSpan / 2;
  survey.PsiMid += survey.PsiSpan / 2;

  for (int k = 1; k <= survey.PhiCount - 1; ++k) {
    survey.PlotIndex = k;
    PlotRow(desk, k);
  }
}

}  // namespace orvane
