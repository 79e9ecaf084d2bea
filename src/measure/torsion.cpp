#include "measure/torsion.h"

#include <array>

#include "measure/degrees.h"
#include "measure/readout.h"
#include "runtime/arithmetic.h"
#include "runtime/trigonometry.h"

namespace orvane {
namespace {

// The backbone torsions that have a name, by the four atoms' short names.
struct NamedTorsion {
  std::array<std::string_view, 4> Atoms;
  std::string_view Label;
  BackboneTorsion Kind;
};
constexpr NamedTorsion kNamedTorsions[] = {
    {{"C ", "N ", "CA", "C "}, "PHI > ", BackboneTorsion::Phi},
    {{"N ", "CA", "C ", "N "}, "PSI > ", BackboneTorsion::Psi},
};
constexpr std::string_view kOtherTorsion = "Tor > ";

Point Minus(const Point& a, const Point& b) { return {a.X - b.X, a.Y - b.Y, a.Z - b.Z}; }

void TurnAboutX(Point& p, const Turn& f) {
  p = {p.X, f.Cosine * p.Y - f.Sine * p.Z, f.Sine * p.Y + f.Cosine * p.Z};
}
void TurnAboutY(Point& p, const Turn& g) {
  p = {g.Sine * p.Z + g.Cosine * p.X, p.Y, -g.Sine * p.X + g.Cosine * p.Z};
}
void TurnAboutZ(Point& p, const Turn& h) {
  p = {h.Cosine * p.X - h.Sine * p.Y, h.Sine * p.X + h.Cosine * p.Y, p.Z};
}

//   a       d       Three vectors from PointB. The middle bond b is laid along z and a above the
//    \     /        x axis; the angle of d about z is then the torsion. Vectors that are not
//     B-b-C         looked at again are left unturned.
double TurnFrame(std::array<Point, 3>& frame) {
  auto& [a, b, d] = frame;
  const Turn f = TurnBy(ArcTangent(Divide(b.Y, b.Z)));
  for (Point& vector : frame) TurnAboutX(vector, f);
  const Turn g = TurnBy(-ArcTangent(Divide(b.X, b.Z)));
  TurnAboutY(a, g);
  TurnAboutY(d, g);
  const Turn h = TurnBy(-ArcTangent(Divide(a.Y, a.X)));
  TurnAboutZ(d, h);
  return ArcTangent(Divide(d.Y, d.X)) * kMeasureDegrees;
}

const NamedTorsion* NameOf(const Molecule& molecule, const std::array<int, 4>& atoms) {
  for (const NamedTorsion& row : kNamedTorsions) {
    bool same = true;
    for (std::size_t i = 0; i < atoms.size(); ++i) {
      same = same && ShortName(molecule.AtomName[atoms[i]]) == row.Atoms[i];
    }
    if (same) return &row;
  }
  return nullptr;
}

}  // namespace

void Torsion4(Orvane_Desk& desk) {
  const Molecule& molecule = desk.molecule;
  Measure& measure = desk.measure;
  measure.TorsionFrame = {Minus(molecule.PointA, molecule.PointB),
                          Minus(measure.PointC, molecule.PointB),
                          Minus(measure.PointD, molecule.PointB)};
  const double t = TurnFrame(measure.TorsionFrame);
  measure.TorsionResult = t > 0 ? t - 180 : t < 0 ? t + 180 : t;

  EmptyReadout(desk);
  const std::array<int, 4> atoms = {molecule.BondAtomA, molecule.BondAtomB, measure.PickAtomC,
                                    measure.PickAtomD};
  const NamedTorsion* named = NameOf(molecule, atoms);
  if (named != nullptr) FlipTorsionSign(desk, named->Kind);
  if (measure.MeasureOn == 1) {
    ShowReadout(desk, {.Label = named != nullptr ? named->Label : kOtherTorsion,
                       .Atoms = atoms,
                       .Value = measure.TorsionResult,
                       .Unit = " Deg "});
  }
  measure.TorsionFrame = {};
}

void FlipTorsionSign(Orvane_Desk& desk, BackboneTorsion kind) {
  const Catalogue& stock = desk.stock;
  const std::string& text = desk.molecule.MolText;
  double& torsion = desk.measure.TorsionResult;
  const bool helix = text == stock.TextAlfa || text == stock.TextAlfb;
  const bool sheet = text == stock.TextBeta || text == stock.TextBetb || text == stock.TextPbs ||
                     text == stock.TextApbs;
  const bool belongs_below = helix || (sheet && kind == BackboneTorsion::Phi);
  const bool belongs_above = sheet && kind == BackboneTorsion::Psi;
  if ((belongs_below && torsion > 0) || (belongs_above && torsion < 0)) torsion = -torsion;
}

}  // namespace orvane
