#include "stock_check/bends.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <deque>

#include "stock_check/constitution.h"
#include "stock_check/geometry.h"
#include "stock_check/published.h"

namespace orvane::stock_check {

namespace {

// clang-format off

// An atom with three neighbours that lies in one plane with them.
struct FlatAtom {
  std::string_view Residue, Centre, Neighbours;
};
constexpr auto kFlatAtoms = std::to_array<FlatAtom>({
    {"",    "C",   "CA O O2"},
    {"ASP", "CG",  "CB OD1 OD2"},
    {"ASN", "CG",  "CB OD1 ND2"},
    {"GLU", "CD",  "CG OE1 OE2"},
    {"GLN", "CD",  "CG OE1 NE2"},
    {"ARG", "CZ",  "NE NH1 NH2"},
    {"PHE", "CG",  "CB CD1 CD2"},
    {"TYR", "CG",  "CB CD1 CD2"},
    {"TYR", "CZ",  "CE1 CE2 OH"},
    {"HIS", "CG",  "CB ND1 CD2"},
    {"TRP", "CG",  "CB CD1 CD2"},
    {"TRP", "CD2", "CG CE2 CE3"},
    {"TRP", "CE2", "NE1 CD2 CZ2"},
});

// Torsions of bonds that do not turn.
struct FlatBond {
  std::string_view Residue, Atoms;
  double True;  // 0 or 180
};
constexpr auto kFlatBonds = std::to_array<FlatBond>({
    {"ARG", "CD NE CZ NH1",    0},
    {"ARG", "CD NE CZ NH2",    180},
    {"PHE", "CG CD1 CE1 CZ",   0},
    {"PHE", "CG CD2 CE2 CZ",   0},
    {"PHE", "CD1 CG CD2 CE2",  0},
    {"TYR", "CG CD1 CE1 CZ",   0},
    {"TYR", "CG CD2 CE2 CZ",   0},
    {"TYR", "CD1 CG CD2 CE2",  0},
    {"HIS", "CG ND1 CE1 NE2",  0},
    {"HIS", "CG CD2 NE2 CE1",  0},
    {"TRP", "CG CD1 NE1 CE2",  0},
    {"TRP", "CD1 CG CD2 CE2",  0},
    {"TRP", "CD2 CE2 CZ2 CH2", 0},
    {"TRP", "CD2 CE3 CZ3 CH2", 0},
});

// A. Bondi (1964): half the distance at which atoms that are not bonded touch, Angstrom.
struct Radius {
  char Element;
  double Value;
};
constexpr auto kRadii = std::to_array<Radius>({
    {'H', 1.20}, {'C', 1.70}, {'N', 1.55}, {'O', 1.52}, {'S', 1.80}, {'P', 1.80}, {'R', 1.70},
});

// clang-format on

constexpr std::string_view kFiveRing = "CG CD1 NE1 CE2 CD2";
constexpr std::string_view kSixRing = "CD2 CE2 CZ2 CH2 CZ3 CE3";

double RadiusOf(char element) {
  for (const Radius& radius : kRadii) {
    if (radius.Element == element) return radius.Value;
  }
  return 0;
}

std::vector<Point> PointsOf(const StockRow& row, std::string_view atoms) {
  std::vector<Point> points;
  for (const std::string& name : NamesIn(atoms)) points.push_back(row.At(row.Find(name)));
  return points;
}

double MeasureAlong(const StockRow& row, std::string_view atoms) {
  const std::vector<Point> at = PointsOf(row, atoms);
  if (at.size() == 2) return Apart(at[0], at[1]);
  if (at.size() == 3) return AngleAt(at[0], at[1], at[2]);
  return TorsionOf(at[0], at[1], at[2], at[3]);
}

using Neighbours = std::vector<std::vector<int>>;

Neighbours NeighboursIn(const StockRow& row) {
  Neighbours of(row.Atoms.size());
  for (const AtomPair& pair : row.Joined) {
    if (IsContact(row, pair)) continue;
    of[static_cast<std::size_t>(pair.A)].push_back(pair.B);
    of[static_cast<std::size_t>(pair.B)].push_back(pair.A);
  }
  return of;
}

// How many bonds lie between an atom and each other one; a large number if they are not connected.
std::vector<int> BondsFrom(const Neighbours& neighbours, int start) {
  std::vector<int> bonds(neighbours.size(), 1000);
  bonds[static_cast<std::size_t>(start)] = 0;
  std::deque<int> waiting{start};
  while (!waiting.empty()) {
    const auto here = static_cast<std::size_t>(waiting.front());
    waiting.pop_front();
    for (const int next : neighbours[here]) {
      int& there = bonds[static_cast<std::size_t>(next)];
      if (there <= bonds[here] + 1) continue;
      there = bonds[here] + 1;
      waiting.push_back(next);
    }
  }
  return bonds;
}

void AddFlatGroups(std::vector<Bend>& measures, const StockRow& row) {
  for (const FlatAtom& group : kFlatAtoms) {
    if (!group.Residue.empty() && group.Residue != row.Key) continue;
    const std::vector<Point> round = PointsOf(row, group.Neighbours);
    const Point& centre = row.At(row.Find(group.Centre));
    const std::string atoms = std::string(group.Centre).append(" ").append(group.Neighbours);
    measures.push_back({row.Key, BendOf::Sum, atoms,
                        AngleAt(round[0], centre, round[1]) + AngleAt(round[1], centre, round[2]) +
                            AngleAt(round[2], centre, round[0]),
                        360, 0});
    measures.push_back(
        {row.Key, BendOf::Height, atoms, std::abs(FromPlane(PlaneThrough(round), centre)), 0, 0});
  }
  for (const FlatBond& bond : kFlatBonds) {
    if (bond.Residue != row.Key) continue;
    measures.push_back({row.Key, BendOf::Twist, std::string(bond.Atoms),
                        MeasureAlong(row, bond.Atoms), bond.True, 0});
  }
  if (row.Key == "TRP") {
    measures.push_back({row.Key, BendOf::Rings, "5 6",
                        BetweenPlanes(PlaneThrough(PointsOf(row, kFiveRing)),
                                      PlaneThrough(PointsOf(row, kSixRing))),
                        0, 0});
  }
}

// Angles in which a hydrogen takes part.
void AddHydrogens(std::vector<Bend>& measures, const StockRow& row) {
  const Neighbours neighbours = NeighboursIn(row);
  for (std::size_t corner = 0; corner < neighbours.size(); ++corner) {
    const std::vector<int>& round = neighbours[corner];
    for (std::size_t i = 0; i < round.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        if (row.Element(round[i]) != 'H' && row.Element(round[j]) != 'H') continue;
        const std::string atoms =
            row.Name(round[j]) + " " + row.Atoms[corner].Name + " " + row.Name(round[i]);
        measures.push_back(
            {row.Key, BendOf::Angle, atoms, MeasureAlong(row, atoms), kTetrahedral, 0});
      }
    }
  }
}

// Whether electrical attraction brings them near: N, O, and hydrogens on nitrogen.
bool Attract(const StockRow& row, int a, int b) {
  const auto polar_hydrogen = [&](int atom) {
    return row.Element(atom) == 'H' && row.Find("N") >= 0 &&
           Apart(row.At(atom), row.At(row.Find("N"))) < 1.2;
  };
  const auto polar = [&](int atom) {
    return row.Element(atom) == 'N' || row.Element(atom) == 'O' || polar_hydrogen(atom);
  };
  return polar(a) && polar(b);
}

}  // namespace

double Bend::Off() const {
  const double off = Kind == BendOf::Twist ? std::abs(std::remainder(Measured - True, 360))
                                           : std::abs(Measured - True);
  if (Deviation > 0) return off / Deviation;
  return off / (Kind == BendOf::Height    ? kOffPlane
                : Kind == BendOf::Contact ? kOverlap
                                          : kDegreesOff);
}

std::vector<Bend> MeasuresOf(const StockRow& amino_acid) {
  std::vector<Bend> measures;
  for (const Published& published : PublishedOf(amino_acid.Key)) {
    const bool is_length = NamesIn(published.Atoms).size() == 2;
    measures.push_back({amino_acid.Key, is_length ? BendOf::Length : BendOf::Angle,
                        std::string(published.Atoms), MeasureAlong(amino_acid, published.Atoms),
                        published.Mean, published.Deviation});
  }
  AddHydrogens(measures, amino_acid);
  AddFlatGroups(measures, amino_acid);
  return measures;
}

bool IsBend(const Bend& measure) {
  if (measure.Kind == BendOf::Angle && std::abs(measure.Measured - measure.True) > kDegreesOff) {
    return true;
  }
  return measure.Off() > (measure.Deviation > 0 ? kSpreads : 1);
}

std::vector<Bend> BendsOf(const StockRow& amino_acid) {
  std::vector<Bend> bends;
  for (const Bend& measure : MeasuresOf(amino_acid)) {
    if (IsBend(measure)) bends.push_back(measure);
  }
  for (const Bend& contact : ContactsTooNear(amino_acid)) bends.push_back(contact);
  return bends;
}

std::vector<Bend> ContactsTooNear(const StockRow& row) {
  std::vector<Bend> contacts;
  const Neighbours neighbours = NeighboursIn(row);
  for (int a = 0; a < static_cast<int>(row.Atoms.size()); ++a) {
    const std::vector<int> bonds = BondsFrom(neighbours, a);
    for (int b = 0; b < a; ++b) {
      if (bonds[static_cast<std::size_t>(b)] <= 3 || Attract(row, a, b)) continue;
      const double touching = RadiusOf(row.Element(a)) + RadiusOf(row.Element(b));
      if (touching - row.Apart(a, b) <= kOverlap) continue;
      contacts.push_back({row.Key, BendOf::Contact, row.Name(a) + " " + row.Name(b),
                          row.Apart(a, b), touching, 0});
    }
  }
  return contacts;
}

double RingOff(const StockRow& histidine, const std::string& form) {
  double sum = 0;
  int count = 0;
  for (const Published& published : SideChains()) {
    if (published.Unit != form || published.Atoms.find("CA") != std::string_view::npos) continue;
    sum +=
        std::abs(MeasureAlong(histidine, published.Atoms) - published.Mean) / published.Deviation;
    ++count;
  }
  return sum / count;
}

}  // namespace orvane::stock_check
