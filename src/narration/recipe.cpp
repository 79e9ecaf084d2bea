#include "narration/recipe.h"

#include <cmath>
#include <numbers>

#include "core/record.h"
#include "narration/names.h"
#include "narration/number_words.h"
#include "runtime/trigonometry.h"
#include "stock/generator.h"
#include "stock/stock_texts.h"

namespace orvane {
namespace {

constexpr double kDegrees = 180 / std::numbers::pi;
constexpr double kShownApart = 0.05;  // degrees; one decimal does not show less

Point Minus(const Point& a, const Point& b) { return {a.X - b.X, a.Y - b.Y, a.Z - b.Z}; }
double Dot(const Point& a, const Point& b) { return a.X * b.X + a.Y * b.Y + a.Z * b.Z; }
Point Cross(const Point& a, const Point& b) {
  return {a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X};
}
double Length(const Point& a) { return std::sqrt(Dot(a, a)); }

// Of the direction (x, y), anticlockwise from that of x.
double AngleTo(double x, double y) {
  if (x == 0) return y == 0 ? 0 : std::copysign(90, y);
  const double angle = ArcTangent(y / x) * kDegrees;
  return x > 0 ? angle : angle + std::copysign(180, y);
}

// At b.
double AngleOf(const Point& a, const Point& b, const Point& c) {
  const Point ba = Minus(a, b), bc = Minus(c, b);
  return AngleTo(Dot(ba, bc), Length(Cross(ba, bc)));
}

// About b - c.
double TorsionOf(const Point& a, const Point& b, const Point& c, const Point& d) {
  const Point ab = Minus(b, a), bc = Minus(c, b), cd = Minus(d, c);
  const Point first = Cross(ab, bc), second = Cross(bc, cd);
  return AngleTo(Dot(first, second), Length(bc) * Dot(ab, second));
}

// The generator's own memory, at full precision.
Point PlaceOf(const Generator& generator, std::string_view name) {
  for (const PlacedAtom& atom : generator.Placed) {
    if (atom.Name == name) return atom.At;
  }
  return {};
}

int NumberOf(const Molecule& molecule, std::string_view name) {
  for (int i = 1; i <= molecule.AtomCount; ++i) {
    if (Trimmed(molecule.AtomName[i]) == name) return i;
  }
  return 0;
}

// The later atom is the first of a bond.
bool IsBonded(const Molecule& molecule, int later, int earlier) {
  for (int b = 1; b <= molecule.BondCount; ++b) {
    if (molecule.BondA[b] == later && molecule.BondB[b] == earlier) return true;
  }
  return false;
}

std::string Joined(std::initializer_list<std::string_view> names) {
  std::string text;
  for (const std::string_view name : names) {
    if (!text.empty()) text += "–";
    text += name;
  }
  return text;
}

std::string WordsOf(const Orvane_Desk& desk, int atom, const Placement& row) {
  const Generator& generator = desk.generator;
  const Point placed = PlaceOf(generator, row.Atom);
  const Point bonded = PlaceOf(generator, row.BondedTo);
  const Point angle_ref = PlaceOf(generator, row.AngleRef);
  const double angle = AngleOf(placed, bonded, angle_ref);
  const double torsion = TorsionOf(placed, bonded, angle_ref, PlaceOf(generator, row.TorsionRef));

  std::string words = LengthWords(row.Length) + " from " + std::string(row.BondedTo);
  if (!IsBonded(desk.molecule, atom, NumberOf(desk.molecule, row.BondedTo))) words += " (no bond)";
  words += ", angle " + Joined({row.Atom, row.BondedTo, row.AngleRef}) + " " + DegreeWords(angle);
  words += ", torsion " + Joined({row.Atom, row.BondedTo, row.AngleRef, row.TorsionRef}) + " " +
           DegreeWords(torsion);
  const bool as_entered = std::fabs(row.Angle - angle) < kShownApart &&
                          std::fabs(std::remainder(row.Torsion - torsion, 360)) < kShownApart;
  if (as_entered) return words;
  return words + "\n(entered as " + NumberWords(row.Angle) + "° and " + NumberWords(row.Torsion) +
         "°)";
}

// The last record of the text lacks its closing blank.
int FrameAtoms() { return static_cast<int>(stock::TextFrame.size() + 1) / kRecordWidth; }

}  // namespace

std::string RecipeWords(const Orvane_Desk& desk, int atom) {
  const std::string_view key = GeneratedKey(desk);
  if (key.empty() || atom < 1) return {};
  const std::vector<Placement> rows = PlacementsOf(key);
  if (atom <= FrameAtoms()) return "Fixed: part of the frame of every amino acid";
  const auto row = static_cast<std::size_t>(atom - FrameAtoms() - 1);
  return row < rows.size() ? WordsOf(desk, atom, rows[row]) : std::string();
}

}  // namespace orvane
