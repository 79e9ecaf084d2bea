#include "stock/structure.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

#include "measure/angle.h"
#include "measure/distance.h"
#include "measure/torsion.h"

namespace orvane {

Structure::Structure(Rows list, std::string_view row) {
  List& rows = work_.desk.main.*list;
  for (int index = 0; index < static_cast<int>(rows.Rows.Get().size()); ++index) {
    if (!rows.Rows.Get()[static_cast<std::size_t>(index)].starts_with(row)) continue;
    SelectRow(work_.desk, rows, index);
    return;
  }
  ADD_FAILURE() << "no row " << row;
}

std::string Structure::Name(int atom) const {
  const std::string_view field = Store().AtomName[atom];
  const std::size_t start = field.find_first_not_of(' ');
  return std::string(field.substr(start, field.find_last_not_of(' ') + 1 - start));
}

std::string Structure::Label(int atom) const {
  return std::to_string(Store().ResSeq[atom]) + " " + Name(atom);
}

int Structure::Atom(std::string_view label) const {
  for (int i = 1; i <= Count(); ++i) {
    if (Label(i) == label) return i;
  }
  ADD_FAILURE() << "no atom " << label;
  return 0;
}

std::vector<int> Structure::Named(std::string_view name) const {
  std::vector<int> atoms;
  for (int i = 1; i <= Count(); ++i) {
    if (Name(i) == name) atoms.push_back(i);
  }
  return atoms;
}

Point Structure::At(int atom) const {
  return {Store().AtomX[atom], Store().AtomY[atom], Store().AtomZ[atom]};
}

double Structure::Length(int a, int b) {
  Molecule& molecule = Desk().molecule;
  molecule.PointA = At(a);
  molecule.PointB = At(b);
  Distance(Desk());
  return molecule.DistResult;
}

double Structure::Angle(int a, int b, int c) {
  Desk().molecule.PointA = At(a);
  Desk().molecule.PointB = At(b);
  Desk().measure.PointC = At(c);
  Angle3(Desk());
  return Desk().measure.AngleResult;
}

double Structure::Torsion(int a, int b, int c, int d) const {
  return TorsionOf(At(a), At(b), At(c), At(d));
}

double Structure::ShownTorsion(int a, int b, int c, int d, int kind) {
  Desk().molecule.PointA = At(a);
  Desk().molecule.PointB = At(b);
  Desk().measure.PointC = At(c);
  Desk().measure.PointD = At(d);
  Torsion4(Desk());
  FlipTorsionSign(Desk(), static_cast<BackboneTorsion>(kind));
  return Desk().measure.TorsionResult;
}

double Structure::Hand(int centre, int a, int b, int c) const {
  return HandOf(At(centre), At(a), At(b), At(c));
}

std::vector<Pair> Structure::Bonds() const {
  std::vector<Pair> pairs;
  for (int b = 1; b <= Store().BondCount; ++b) {
    pairs.push_back({Store().BondA[b], Store().BondB[b]});
  }
  return pairs;
}

std::vector<Pair> Structure::HydrogenBonds() const {
  std::vector<Pair> pairs;
  for (int h = 1; h <= Store().HBondCount; ++h) {
    pairs.push_back({Store().HBondA[h], Store().HBondB[h]});
  }
  return pairs;
}

bool Structure::IsContact(Pair pair) {
  const int hydrogens = (ElementLetter(Store().AtomName[pair.A]) == "H" ? 1 : 0) +
                        (ElementLetter(Store().AtomName[pair.B]) == "H" ? 1 : 0);
  // No bond of hydrogen is longer than 1.41, that of H2B in deoxyribose.
  return hydrogens == 2 || (hydrogens == 1 && Length(pair.A, pair.B) > 1.5);
}

std::vector<std::string> Structure::BondNames() {
  std::vector<std::string> names;
  for (const Pair& bond : Bonds()) {
    if (IsContact(bond)) continue;
    const auto [first, second] = std::minmax({Name(bond.A), Name(bond.B)});
    names.push_back(first);
    names.back().append("-").append(second);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<AtomLine> Structure::Lines() {
  const auto at_end = [&](float x, float y) {
    for (int i = 1; i <= Count(); ++i) {
      if (static_cast<float>(Store().ScrX[i]) == x && static_cast<float>(Store().ScrY[i]) == y) {
        return i;
      }
    }
    return 0;
  };
  std::vector<AtomLine> lines;
  for (const Stroke& stroke : Desk().main.Picture1.Image()->Strokes) {
    if (stroke.Kind != StrokeKind::Line) continue;
    lines.push_back({at_end(stroke.X1, stroke.Y1), at_end(stroke.X2, stroke.Y2)});
  }
  return lines;
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

double LargestDistanceFromPlane(const Structure& structure, const std::vector<int>& atoms) {
  std::vector<Point> points;
  points.reserve(atoms.size());
  for (const int atom : atoms) points.push_back(structure.At(atom));
  return FarthestFromPlane(points);
}

}  // namespace orvane
