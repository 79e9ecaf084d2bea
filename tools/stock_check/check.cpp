#include "stock_check/check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>

#include "stock_check/bends.h"
#include "stock_check/constitution.h"
#include "stock_check/fixed.h"
#include "stock_check/geometry.h"
#include "stock_check/hydrogen_bonds.h"
#include "stock_check/published.h"

namespace orvane::stock_check {

namespace {

// clang-format off

// Torsions that a chain was built with, degrees.
struct ChainTorsion {
  std::string_view Row, Atoms;
  double Value;
};
constexpr auto kChainTorsions = std::to_array<ChainTorsion>({
    {"Alfa", "-C N CA C",  -57}, {"Alfa", "N CA C +N",  -47},
    {"Alfb", "-C N CA C",  -57}, {"Alfb", "N CA C +N",  -47},
    {"Beta", "-C N CA C", -119}, {"Beta", "N CA C +N",  113},
    {"Betb", "-C N CA C", -119}, {"Betb", "N CA C +N",  113},
    {"PBS",  "-C N CA C", -116.6}, {"PBS",  "N CA C +N",  113},
    {"APBS", "-C N CA C", -116.6}, {"APBS", "N CA C +N",  113},
    {"",     "CA C +N +CA", 180},
});

// Of a nucleotide: B. Schneider and others (1997), means of B-DNA crystals; `N` and `C` of the last
// are N9 and C4 of a purine, N1 and C2 of a pyrimidine.
struct NucleicTorsion {
  std::string_view Letter, Atoms;
  double Mean, Deviation;
};
constexpr auto kNucleicTorsions = std::to_array<NucleicTorsion>({
    {"alpha",   "-O3* P O5* C5*",   -62, 15},
    {"beta",    "P O5* C5* C4*",    176,  9},
    {"gamma",   "O5* C5* C4* C3*",   48, 11},
    {"delta",   "C5* C4* C3* O3*",  128, 13},
    {"epsilon", "C4* C3* O3* +P",   184, 11},
    {"zeta",    "C3* O3* +P +O5*",  -95, 10},
    {"chi",     "O4* C1* N C",     -111, 16},
});

// clang-format on

constexpr double kTorsionSlack = 0.3;      // degrees: three decimals of a coordinate
constexpr double kWithoutDeviation = 1.5;  // used as the standard deviation of an angle, degrees
constexpr double kFlatBase = 0.005;        // Angstrom
constexpr double kFlatPeptide = 0.02;

// "+N" of residue 3 is N of residue 4. `N` and `C` of a sugar's bond to its base stand for the
// atoms of that base.
int AtomFor(const StockRow& row, int residue, std::string_view name) {
  if (name.front() == '+') return row.Find(residue + 1, name.substr(1));
  if (name.front() == '-') return row.Find(residue - 1, name.substr(1));
  if (HasNucleotides(row) && name == "N") {
    return row.Find(residue, IsPurine(BaseOf(row, residue)) ? "N9" : "N1");
  }
  if (HasNucleotides(row) && name == "C") {
    return row.Find(residue, IsPurine(BaseOf(row, residue)) ? "C4" : "C2");
  }
  return row.Find(residue, name);
}

// The positions of the named atoms; none if one is missing.
std::vector<Point> PlacesOf(const StockRow& row, int residue, std::string_view atoms) {
  std::vector<Point> places;
  for (const std::string& name : NamesIn(atoms)) {
    const int atom = AtomFor(row, residue, name);
    if (atom < 0) return {};
    places.push_back(row.At(atom));
  }
  return places;
}

void CheckBonds(Verdict& verdict, const StockRow& row) {
  const std::vector<std::string> expected = ExpectedBonds(row), found = BondsIn(row);
  std::vector<std::string> missing, surplus;
  std::set_difference(expected.begin(), expected.end(), found.begin(), found.end(),
                      std::back_inserter(missing));
  std::set_difference(found.begin(), found.end(), expected.begin(), expected.end(),
                      std::back_inserter(surplus));
  for (const std::string& bond : missing) verdict.Wrong.push_back("no bond " + bond);
  for (const std::string& bond : surplus) verdict.Wrong.push_back("a bond too many, " + bond);
  const std::vector<std::string> contacts = ContactsIn(row);
  verdict.Found.push_back("bonds      " + std::to_string(found.size()) + ", and " +
                          std::to_string(contacts.size()) + " contacts in their list");
  // A contact is two hydrogens on one atom, or H4 with the carbon beside it.
  for (const AtomPair& pair : row.Joined) {
    if (!IsContact(row, pair)) continue;
    const bool both = row.Element(pair.A) == 'H' && row.Element(pair.B) == 'H';
    const auto bonded = [&](int hydrogen, int to) {
      return std::any_of(row.Joined.begin(), row.Joined.end(), [&](const AtomPair& other) {
        return !IsContact(row, other) &&
               ((other.A == hydrogen && other.B == to) || (other.B == hydrogen && other.A == to));
      });
    };
    bool explained = false;
    for (int atom = 0; atom < static_cast<int>(row.Atoms.size()) && both; ++atom) {
      explained = explained || (bonded(pair.A, atom) && bonded(pair.B, atom));
    }
    if (!both) {
      const bool first = row.Element(pair.A) == 'H';
      const std::string& hydrogen = row.Name(first ? pair.A : pair.B);
      const std::string& carbon = row.Name(first ? pair.B : pair.A);
      explained = hydrogen == "H4" && (carbon == "C" || carbon == "C!") &&
                  row.Residue(pair.A) == row.Residue(pair.B);
    }
    if (!explained) {
      verdict.Wrong.push_back("a contact that nothing explains, " + row.Name(pair.A) + " " +
                              row.Name(pair.B));
    }
  }
}

void CheckHands(Verdict& verdict, const StockRow& row) {
  std::string words;
  for (const Stereocentre& centre : StereocentresOf(row)) {
    const char found = HandFound(row, centre);
    words += (words.empty() ? "" : ", ") + std::to_string(centre.Residue) + " " + centre.Centre +
             " " + found;
    if (found != centre.Expected) {
      verdict.Wrong.push_back("the other hand at " + std::to_string(centre.Residue) + " " +
                              centre.Centre);
    }
  }
  // Which of the two free oxygens of a phosphate between two sugars is the first.
  for (const int residue : row.Residues()) {
    const std::vector<Point> at = PlacesOf(row, residue, "P -O3* O5* O1P");
    if (at.empty()) continue;
    if (HandOf(at[0], at[1], at[2], at[3]) <= 0) {
      verdict.Wrong.push_back("O1P and O2P exchanged in " + std::to_string(residue));
    }
  }
  verdict.Found.push_back("hands      " + (words.empty() ? "none" : words));
}

// The value that is farthest off among those of one kind, in words.
struct Farthest {
  double Off = -1;
  std::string Words = "none published";
};

void Judge(Verdict& verdict, const StockRow& row, int residue, const Published& published,
           bool is_judged, std::array<Farthest, 2>& farthest) {
  const std::vector<Point> at = PlacesOf(row, residue, published.Atoms);
  if (at.empty()) return;
  const bool is_length = at.size() == 2;
  const double value = is_length ? Apart(at[0], at[1]) : AngleAt(at[0], at[1], at[2]);
  const double deviation = published.Deviation > 0 ? published.Deviation : kWithoutDeviation;
  const double off = std::abs(value - published.Mean) / deviation;
  const int decimals = is_length ? 3 : 1;
  const std::string words = std::to_string(residue) + " " + std::string(published.Atoms) + " " +
                            Fixed(value, decimals) + " (published " +
                            Fixed(published.Mean, decimals) + ", " + Fixed(off, 1) + " deviations)";
  Farthest& worst = farthest[is_length ? 0 : 1];
  if (off > worst.Off) worst = {off, words};
  if (is_judged && off > kSpreads) verdict.Wrong.push_back(words);
}

void CheckLengthsAndAngles(Verdict& verdict, const StockRow& row) {
  std::array<Farthest, 2> farthest;
  for (const int residue : row.Residues()) {
    if (row.IsAminoAcid()) {
      for (const Published& published : PublishedOf(row.Key)) {
        Judge(verdict, row, residue, published, false, farthest);
      }
    } else if (IsPeptideChain(row)) {
      for (const Published& published : Peptides()) {
        Judge(verdict, row, residue, published, true, farthest);
      }
    } else if (row.Key == "PHS" || row.Key == "RIB" || row.Key == "DRB") {
      for (const Published& published : Backbones()) {
        if (published.Unit != (row.Key == "PHS" ? "acid" : "ribose")) continue;
        Judge(verdict, row, residue, published, true, farthest);
      }
    } else if (row.List == "DNA_Lst" || HasNucleotides(row) || row.Key.front() == 'd') {
      const std::string_view phosphate = row.Find(residue, "O3P") < 0 ? "phosphate" : "end";
      for (const Published& published : Backbones()) {
        if (published.Unit != "sugar" && published.Unit != phosphate) continue;
        Judge(verdict, row, residue, published, true, farthest);
      }
      const char base = BaseOf(row, residue);
      for (const Published& published : Bases()) {
        if (published.Unit.front() == base) Judge(verdict, row, residue, published, true, farthest);
      }
    }
  }
  verdict.Found.push_back("lengths    farthest off: " + farthest[0].Words);
  verdict.Found.push_back("angles     farthest off: " + farthest[1].Words);
}

void CheckFlatness(Verdict& verdict, const StockRow& row) {
  double base = -1, peptide = -1;
  for (const int residue : row.Residues()) {
    if (HasNucleotides(row) || row.Key.front() == 'd') {
      std::vector<Point> atoms;
      for (const StockAtom& atom : row.Atoms) {
        const bool in_base = atom.Name.find('*') == std::string::npos && atom.Name != "P" &&
                             atom.Name.find('P') == std::string::npos;
        if (atom.Residue == residue && in_base) atoms.push_back(atom.At);
      }
      base = std::max(base, FarthestFromPlane(atoms));
    }
    if (IsPeptideChain(row)) {
      const std::vector<Point> group = PlacesOf(row, residue, "CA C O +N +CA");
      if (!group.empty()) peptide = std::max(peptide, FarthestFromPlane(group));
    }
  }
  if (base >= 0) verdict.Found.push_back("flatness   bases within " + Fixed(base, 4));
  if (peptide >= 0) {
    verdict.Found.push_back("flatness   peptide groups within " + Fixed(peptide, 4));
  }
  if (base > kFlatBase) verdict.Wrong.emplace_back("a base is bent");
  if (peptide > kFlatPeptide) verdict.Wrong.emplace_back("a peptide group is bent");
}

void CheckSugars(Verdict& verdict, const StockRow& row) {
  for (const int residue : row.Residues()) {
    const SugarShape sugar = SugarOf(row, residue);
    if (std::isnan(sugar.Phase)) continue;
    verdict.Found.push_back("sugar      " + std::to_string(residue) + ": phase " +
                            Fixed(sugar.Phase, 1) + ", amplitude " + Fixed(sugar.Amplitude, 1));
    // C2'-endo is 144 to 180; amplitudes of crystals are 30 to 46.
    if (sugar.Phase < 144 || sugar.Phase > 180 || sugar.Amplitude < 30 || sugar.Amplitude > 46) {
      verdict.Wrong.emplace_back("a sugar that is not C2'-endo");
    }
  }
}

void CheckTorsions(Verdict& verdict, const StockRow& row) {
  if (IsPeptideChain(row)) {
    double farthest = 0;
    for (const ChainTorsion& torsion : kChainTorsions) {
      if (!torsion.Row.empty() && torsion.Row != row.Key) continue;
      for (const int residue : row.Residues()) {
        const double value = TorsionAt(row, residue, torsion.Atoms);
        if (std::isnan(value)) continue;
        const double off = std::abs(std::remainder(value - torsion.Value, 360));
        farthest = std::max(farthest, off);
        if (off <= kTorsionSlack) continue;
        verdict.Wrong.push_back("torsion " + std::string(torsion.Atoms) + " of " +
                                std::to_string(residue) + " is " + Fixed(value, 1));
      }
    }
    verdict.Found.push_back("torsions   phi, psi and omega within " + Fixed(farthest, 2));
  }
  if (!HasNucleotides(row)) return;
  for (const NucleicTorsion& torsion : kNucleicTorsions) {
    for (const int residue : row.Residues()) {
      const double value = TorsionAt(row, residue, torsion.Atoms);
      if (std::isnan(value)) continue;
      const double off = std::abs(std::remainder(value - torsion.Mean, 360)) / torsion.Deviation;
      verdict.Found.push_back("torsions   " + std::to_string(residue) + " " +
                              std::string(torsion.Letter) + " " + Fixed(value, 1));
      if (off > kSpreads) verdict.Wrong.push_back(std::string(torsion.Letter) + " is unusual");
    }
  }
}

void CheckHydrogenBonds(Verdict& verdict, const StockRow& row) {
  if (IsPeptideChain(row)) {
    std::set<std::pair<int, int>> listed, by_energy;
    const std::vector<AtomPair> cut = ListedAtCutEnds(row);
    for (const AtomPair& pair : row.HydrogenBonds) listed.emplace(pair.A, pair.B);
    for (const AtomPair& pair : cut) listed.erase({pair.A, pair.B});
    for (const PeptideBond& bond : BondsByEnergy(row)) {
      by_energy.emplace(std::min(bond.Nitrogen, bond.Oxygen), std::max(bond.Nitrogen, bond.Oxygen));
    }
    verdict.Found.push_back("hydrogen bonds " + std::to_string(by_energy.size()) +
                            " by energy, the list has " + std::to_string(row.HydrogenBonds.size()) +
                            ", of which at cut ends " + std::to_string(cut.size()));
    if (listed != by_energy) verdict.Wrong.emplace_back("the list is not that of the energy");
  }
  if (row.Key != "DNA3") return;
  for (const AtomPair& pair : row.HydrogenBonds) {
    if (row.Residue(pair.A) == row.Residue(pair.B)) continue;
    const double apart = row.Apart(pair.A, pair.B);
    verdict.Found.push_back("pair       " + std::to_string(row.Residue(pair.A)) + " " +
                            row.Name(pair.A) + " with " + std::to_string(row.Residue(pair.B)) +
                            " " + row.Name(pair.B) + " " + Fixed(apart, 2));
    if (apart < 2.7 || apart > 3.1) verdict.Wrong.emplace_back("a base pair of another width");
  }
}

}  // namespace

double TorsionAt(const StockRow& row, int residue, std::string_view atoms) {
  const std::vector<Point> at = PlacesOf(row, residue, atoms);
  if (at.empty()) return std::numeric_limits<double>::quiet_NaN();
  return TorsionOf(at[0], at[1], at[2], at[3]);
}

SugarShape SugarOf(const StockRow& row, int residue) {
  for (const char* ring : {"O4* C1* C2* C3* C4*", "O1 C1 C2 C3 C4"}) {
    const std::vector<Point> at = PlacesOf(row, residue, ring);
    if (at.empty()) continue;
    const Pucker pucker = PuckerOf({at[0], at[1], at[2], at[3], at[4]});
    return {pucker.Phase, pucker.Amplitude};
  }
  return {std::numeric_limits<double>::quiet_NaN(), 0};
}

Verdict CheckRow(const StockRow& as_read) {
  const StockRow row = WithoutCopies(as_read);
  Verdict verdict;
  CheckBonds(verdict, row);
  CheckHands(verdict, row);
  CheckLengthsAndAngles(verdict, row);
  CheckFlatness(verdict, row);
  CheckSugars(verdict, row);
  CheckTorsions(verdict, row);
  CheckHydrogenBonds(verdict, row);
  if (row.IsAminoAcid() && row.Key != "Gen") {
    verdict.Found.push_back("bends      " + std::to_string(BendsOf(row).size()) +
                            ", told of in docs/bends.md");
  }
  return verdict;
}

}  // namespace orvane::stock_check
