#include "stock/generator.h"

#include <cmath>

#include "core/loader.h"
#include "core/record.h"
#include "core/selection.h"
#include "runtime/arithmetic.h"
#include "runtime/number_text.h"
#include "runtime/trigonometry.h"

namespace orvane {
namespace {

// This value, and not pi / 180 in full: the residue table was made with it.
constexpr double kDegToRad = 0.01745329251;
// A component below this counts as 0, and the turn that would bring it there is left out.
constexpr double kTinyValue = 1e-10;

Point Minus(const Point& a, const Point& b) { return {a.X - b.X, a.Y - b.Y, a.Z - b.Z}; }
Point Plus(const Point& a, const Point& b) { return {a.X + b.X, a.Y + b.Y, a.Z + b.Z}; }

void TurnAboutX(Point& p, const Turn& t) {
  const double y = p.Y, z = p.Z;
  p.Y = y * t.Cosine - z * t.Sine;
  p.Z = y * t.Sine + z * t.Cosine;
}
void TurnAboutY(Point& p, const Turn& t) {
  const double x = p.X, z = p.Z;
  p.X = x * t.Cosine + z * t.Sine;
  p.Z = -x * t.Sine + z * t.Cosine;
}
void TurnAboutZ(Point& p, const Turn& t) {
  const double x = p.X, y = p.Y;
  p.X = x * t.Cosine - y * t.Sine;
  p.Y = x * t.Sine + y * t.Cosine;
}

// Turns the references into the frame of the placement: the angle point lies at the origin and the
// bonded point on the z axis, above or below it, since an arctangent of a quotient knows no
// quadrant. The torsion point's azimuth is PlaceGamma, or half a circle from it.
void TurnReferencesIntoFrame(Generator& g) {
  g.PlaceOrigin = g.RefAngle;
  g.RefAngle = Minus(g.RefAngle, g.PlaceOrigin);
  g.RefBonded = Minus(g.RefBonded, g.PlaceOrigin);
  g.RefTorsion = Minus(g.RefTorsion, g.PlaceOrigin);

  const bool no_z = std::fabs(g.RefBonded.Z) < kTinyValue;
  g.PlaceAlpha = no_z ? 0.0 : ArcTangent(Divide(g.RefBonded.Y, g.RefBonded.Z));
  const Turn alpha = TurnBy(g.PlaceAlpha);
  TurnAboutX(g.RefBonded, alpha);
  TurnAboutX(g.RefAngle, alpha);
  TurnAboutX(g.RefTorsion, alpha);

  const bool no_x = std::fabs(g.RefBonded.X) < kTinyValue;
  g.PlaceBeta = no_x ? 0.0 : ArcTangent(Divide(g.RefBonded.X, g.RefBonded.Z));
  const Turn back = TurnBy(-g.PlaceBeta);
  TurnAboutY(g.RefBonded, back);
  TurnAboutY(g.RefTorsion, back);
}

void ComputeNewAtom(Generator& g, double torsion, double angle, double length) {
  TurnReferencesIntoFrame(g);
  angle = (angle - 90) * kDegToRad;
  g.NewAtom.Z = Sine(angle) * length + g.RefBonded.Z;
  g.PlaceGamma = ArcTangent(Divide(g.RefTorsion.Y, g.RefTorsion.X));
  length = length * Cosine(angle);
  torsion = torsion * kDegToRad;
  g.NewAtom.X = Cosine(torsion) * length;
  g.NewAtom.Y = Sine(torsion) * length;
  TurnAboutZ(g.NewAtom, TurnBy(g.PlaceGamma));
  TurnAboutY(g.NewAtom, TurnBy(g.PlaceBeta));
  TurnAboutX(g.NewAtom, TurnBy(-g.PlaceAlpha));
  g.NewAtom = Plus(g.NewAtom, g.PlaceOrigin);
}

// Characters beyond the width are cut off, not rounded away.
std::string CoordinateText(double value, std::size_t width) {
  return Com2Pnt(SingleText(value)).substr(0, width);
}

// The leading blank closes the record before, which lacks its own. Every generated atom has number
// 13 and residue GLY 1, which is also the residue of the frame's own atoms. A z below 0 takes one
// more character, which would push all later records out of place; no atom on the frame has one.
void AppendRecord(Orvane_Desk& desk, std::string_view name) {
  const Point& atom = desk.generator.NewAtom;
  std::string& text = desk.molecule.MolText;
  text += " ATOM     13  ";
  text += name;
  text += " GLY     1      ";
  text += CoordinateText(atom.X, 6);
  text += "  ";
  text += CoordinateText(atom.Y, 6);
  text += "   ";
  text += CoordinateText(atom.Z, atom.Z < 0 ? 6 : 5);
}

void Remember(Generator& g, std::string_view name, const Point& at) {
  for (PlacedAtom& atom : g.Placed) {
    if (atom.Name != name) continue;
    atom.At = at;
    return;
  }
  g.Placed.push_back({name, at});
}

// The origin for an atom that is not placed yet; no row of the table refers to one.
Point PositionOf(const Generator& g, std::string_view name) {
  for (const PlacedAtom& atom : g.Placed) {
    if (atom.Name == name) return atom.At;
  }
  return {};
}

// The atoms of the frame from which others are placed, by their short names. Its O2 takes no part.
struct FrameAtom {
  std::string_view Cut, Name;
};
constexpr FrameAtom kFrameAtoms[] = {
    {"C ", "C"}, {"CA", "CA"}, {"N ", "N"}, {"O ", "O"}, {"CB", "CB"}};

void TakeFrame(Orvane_Desk& desk) {
  Molecule& molecule = desk.molecule;
  desk.generator.Placed.clear();
  Int16 position = 1;
  for (int i = 1;; ++i) {
    const std::string_view record = StepToRecord(molecule.MolText, i, position);
    if (!IsAtomRecord(record)) break;
    molecule.AtomName[i] = Cut(record, kAtomNameField);
    for (const FrameAtom& frame : kFrameAtoms) {
      if (ShortName(molecule.AtomName[i]) != frame.Cut) continue;
      Remember(desk.generator, frame.Name,
               {molecule.AtomX[i], molecule.AtomY[i], molecule.AtomZ[i]});
    }
  }
}

void PlaceRow(Orvane_Desk& desk, const Placement& row) {
  Generator& g = desk.generator;
  g.RefBonded = PositionOf(g, row.BondedTo);
  g.RefAngle = PositionOf(g, row.AngleRef);
  g.RefTorsion = PositionOf(g, row.TorsionRef);
  std::string name(row.Atom);
  name.resize(3, ' ');
  PlaceAtom(desk, row.Torsion, row.Angle, row.Length, name);
  Remember(g, row.Atom, g.NewAtom);
}

}  // namespace

void PlaceAtom(Orvane_Desk& desk, double torsion, double angle, double length,
               std::string_view name) {
  ComputeNewAtom(desk.generator, torsion, angle, length);
  PrepareSelection(desk);
  AppendRecord(desk, name);
  desk.molecule.MoleculeReady = 1;
  LoadMolecule(desk);
  desk.main.Bt3_Reset.Raise({.Kind = EventKind::Click});
}

std::vector<Placement> PlacementsOf(std::string_view key) {
  std::vector<Placement> rows;
  for (const Placement& row : kCommonPlacements) {
    if (row.Residue != key) rows.push_back(row);
  }
  for (const Placement& row : kResiduePlacements) {
    if (row.Residue == key) rows.push_back(row);
  }
  return rows;
}

void GenerateResidue(Orvane_Desk& desk, std::string_view key) {
  if (key.empty()) return;
  TakeFrame(desk);
  for (const Placement& row : PlacementsOf(key)) PlaceRow(desk, row);
}

}  // namespace orvane
