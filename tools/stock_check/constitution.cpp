#include "stock_check/constitution.h"

#include <algorithm>
#include <array>
#include <set>

#include "stock_check/geometry.h"
#include "stock_check/published.h"

namespace orvane::stock_check {

namespace {

struct BondsOfUnit {
  std::string_view Unit;
  std::string_view Bonds;
};

// clang-format off

// What the side chain of an amino acid adds to its frame; a ring of proline closes on N.
constexpr auto kSideChainBonds = std::to_array<BondsOfUnit>({
    {"GLY", "CA-H5"},
    {"ALA", "CA-CB CB-H5 CB-H6 CB-H7"},
    {"ASP", "CA-CB CB-CG CG-OD1 CG-OD2"},
    {"ASN", "CA-CB CB-CG CG-OD1 CG-ND2"},
    {"GLU", "CA-CB CB-CG CG-CD CD-OE1 CD-OE2"},
    {"GLN", "CA-CB CB-CG CG-CD CD-OE1 CD-NE2"},
    {"TRP", "CA-CB CB-CG CG-CD1 CD1-NE1 NE1-CE2 CE2-CD2 CD2-CG CD2-CE3 CE3-CZ3 CZ3-CH2 CH2-CZ2 CZ2-CE2"},
    {"PHE", "CA-CB CB-CG CG-CD1 CG-CD2 CD1-CE1 CD2-CE2 CE1-CZ CE2-CZ"},
    {"TYR", "CA-CB CB-CG CG-CD1 CG-CD2 CD1-CE1 CD2-CE2 CE1-CZ CE2-CZ CZ-OH"},
    {"HIS", "CA-CB CB-CG CG-ND1 CG-CD2 ND1-CE1 CE1-NE2 NE2-CD2"},
    {"PRO", "CA-CB CB-CG CG-CD CD-N"},
    {"MET", "CA-CB CB-CG CG-SD SD-CE"},
    {"THR", "CA-CB CB-OG1 CB-CG2"},
    {"VAL", "CA-CB CB-CG1 CB-CG2"},
    {"ILE", "CA-CB CB-CG1 CB-CG2 CG1-CD1"},
    {"LEU", "CA-CB CB-CG CG-CD1 CG-CD2"},
    {"CYS", "CA-CB CB-SG"},
    {"SER", "CA-CB CB-OG"},
    {"ARG", "CA-CB CB-CG CG-CD CD-NE NE-CZ CZ-NH1 CZ-NH2"},
    {"LYS", "CA-CB CB-CG CG-CD CD-CE CE-NZ"},
    {"Gen", "CA-R"},
});

constexpr auto kWholeRows = std::to_array<BondsOfUnit>({
    {"PHS", "P-OP1 P-OP2 P-OP3 P-OP4 OP3-HP3 OP4-HP4"},
    // The ring oxygen is O1; a hydrogen, H1B, is where the base would be.
    {"RIB", "O1-C1 O1-C4 C1-C2 C1-H1A C1-H1B C2-C3 C2-O2 C2-H2A O2-H2B C3-C4 C3-O3 C3-H3A O3-H3B "
            "C4-C5 C4-H4 C5-O4 C5-H5A C5-H5B O4-H4"},
    {"DRB", "O1-C1 O1-C4 C1-C2 C1-H1A C1-H1B C2-C3 C2-H2A C2-H2B C3-C4 C3-O3 C3-H3A O3-H3B "
            "C4-C5 C4-H4 C5-O4 C5-H5A C5-H5B O4-H4"},
});

constexpr auto kBaseBonds = std::to_array<BondsOfUnit>({
    {"A", "C2-N1 C2-N3 C4-C5 C4-N3 C4-N9 C5-C6 C5-N7 C6-N1 C6-N6 C8-N7 C8-N9"},
    {"C", "C2-N1 C2-N3 C2-O2 C4-C5 C4-N3 C4-N4 C5-C6 C6-N1"},
    {"G", "C2-N1 C2-N2 C2-N3 C4-C5 C4-N3 C4-N9 C5-C6 C5-N7 C6-N1 C6-O6 C8-N7 C8-N9"},
    {"T", "C2-N1 C2-N3 C2-O2 C4-C5 C4-N3 C4-O4 C5-C5M C5-C6 C6-N1"},
});

// By rank. CB of threonine carries O, then CA (N, C), then the methyl group; that of isoleucine CA,
// then CG1 (C), then the methyl group. The generator's table makes it R, where nature has S.
struct CentreOfUnit {
  std::string_view Unit, Centre, First, Second, Third;
  char Expected;
};
constexpr auto kCentres = std::to_array<CentreOfUnit>({
    {"CYS",   "CA",  "N",   "CB",  "C",   'R'},  // sulphur outranks the oxygens of the carboxylate
    {"THR",   "CB",  "OG1", "CA",  "CG2", 'R'},
    {"ILE",   "CB",  "CA",  "CG1", "CG2", 'R'},
    {"RIB",   "C2",  "O2",  "C3",  "C1",  'S'},  // R with a base on C1, which then outranks C3
    {"RIB",   "C3",  "O3",  "C4",  "C2",  'S'},
    {"RIB",   "C4",  "O1",  "C3",  "C5",  'R'},
    {"DRB",   "C3",  "O3",  "C4",  "C2",  'S'},
    {"DRB",   "C4",  "O1",  "C3",  "C5",  'R'},
    {"sugar", "C1*", "O4*", "N",   "C2*", 'R'},
    {"sugar", "C3*", "O3*", "C4*", "C2*", 'S'},
    {"sugar", "C4*", "O4*", "C3*", "C5*", 'R'},
});

// clang-format on

constexpr std::string_view kFrameBonds = "N-CA CA-C C-O C-O2 N-H1 N-H2 N-H3 CA-H4";
constexpr std::string_view kChainBonds = "N-CA CA-C C-O CA-R CA-CB N-H1 CA-H4 CB-H5 CB-H6 CB-H7";
constexpr std::string_view kPhosphateBonds = "P-O1P P-O2P P-O3P P-O5*";
constexpr std::string_view kFirstOfDipeptide = "N-CA1 CA1-C! C!-O! CA1-R N-H1 N-H2 N-H3 CA1-H4";
constexpr std::string_view kSecondOfDipeptide = "N!-CA2 CA2-C C-O C-O3 CA2-R' N!-H! CA2-H4";

// No bond of hydrogen is longer than 1.41, that of H2B in deoxyribose.
constexpr double kLongestToHydrogen = 1.5;

template <std::size_t N>
std::string_view BondsIn(const std::array<BondsOfUnit, N>& table, std::string_view unit) {
  for (const BondsOfUnit& row : table) {
    if (row.Unit == unit) return row.Bonds;
  }
  return {};
}

std::string NameOfPair(std::string a, std::string b) {
  if (b < a) a.swap(b);
  return a.append("-").append(b);
}

std::string Labelled(int residue, std::string_view name) {
  return std::to_string(residue).append(" ").append(name);
}

// "3 C" and "4 N" as one name, the smaller residue first.
std::string BondName(int residue_a, std::string_view a, int residue_b, std::string_view b) {
  if (residue_a == residue_b) {
    return std::to_string(residue_a) + " " + NameOfPair(std::string(a), std::string(b));
  }
  return residue_a < residue_b ? Labelled(residue_a, a) + "-" + Labelled(residue_b, b)
                               : Labelled(residue_b, b) + "-" + Labelled(residue_a, a);
}

// Adds the bonds of a list whose two atoms are there.
void AddBonds(std::vector<std::string>& bonds, const StockRow& row, int residue,
              std::string_view list) {
  for (const std::string& bond : NamesIn(list)) {
    const std::size_t dash = bond.find('-');
    const std::string a = bond.substr(0, dash), b = bond.substr(dash + 1);
    if (row.Find(residue, a) < 0 || row.Find(residue, b) < 0) continue;
    bonds.push_back(BondName(residue, a, residue, b));
  }
}

void AddLink(std::vector<std::string>& bonds, const StockRow& row, int residue,
             std::string_view from, std::string_view to) {
  if (row.Find(residue, from) < 0 || row.Find(residue + 1, to) < 0) return;
  bonds.push_back(BondName(residue, from, residue + 1, to));
}

std::string GlycosidicN(char base) { return IsPurine(base) ? "N9" : "N1"; }

std::string BondOf(const StockRow& row, const AtomPair& pair) {
  return BondName(row.Residue(pair.A), row.Name(pair.A), row.Residue(pair.B), row.Name(pair.B));
}

}  // namespace

bool IsPurine(char base) { return base == 'A' || base == 'G'; }

std::vector<std::string> BondsOfBase(char base) {
  return NamesIn(BondsIn(kBaseBonds, std::string_view(&base, 1)));
}

std::vector<std::string> BondsOfSugar(char base) {
  std::vector<std::string> names =
      NamesIn("C1*-C2* C1*-O4* C2*-C3* C3*-C4* C3*-O3* C4*-C5* C4*-O4* C5*-O5*");
  names.push_back("C1*-" + GlycosidicN(base));
  return names;
}

char BaseOf(const StockRow& row, int residue) {
  for (const StockAtom& atom : row.Atoms) {
    if (atom.Residue == residue) return atom.ResidueName.back();
  }
  return ' ';
}

bool IsPeptideChain(const StockRow& row) { return row.List == "Pro_Lst" && row.Key != "PEP"; }

bool HasNucleotides(const StockRow& row) { return row.Find("C1*") >= 0; }

StockRow WithoutCopies(const StockRow& row) {
  StockRow once = row;
  once.Atoms.clear();
  once.Joined.clear();
  std::vector<int> place;
  for (const StockAtom& atom : row.Atoms) {
    int at = once.Find(atom.Residue, atom.Name);
    if (at < 0 || LengthOf(Minus(once.At(at), atom.At)) > 0) {
      at = static_cast<int>(once.Atoms.size());
      once.Atoms.push_back(atom);
    }
    place.push_back(at);
  }
  std::set<std::pair<int, int>> seen;
  for (const AtomPair& pair : row.Joined) {
    const auto [a, b] = std::minmax(
        {place[static_cast<std::size_t>(pair.A)], place[static_cast<std::size_t>(pair.B)]});
    if (a != b && seen.emplace(a, b).second) once.Joined.push_back({a, b});
  }
  return once;
}

std::vector<std::string> ExpectedBonds(const StockRow& row) {
  std::vector<std::string> bonds;
  for (const int residue : row.Residues()) {
    if (row.IsAminoAcid()) {
      AddBonds(bonds, row, residue, kFrameBonds);
      AddBonds(bonds, row, residue, BondsIn(kSideChainBonds, row.Key));
    } else if (row.Key == "PEP") {
      AddBonds(bonds, row, residue, residue == 1 ? kFirstOfDipeptide : kSecondOfDipeptide);
      AddLink(bonds, row, residue, "C!", "N!");
    } else if (IsPeptideChain(row)) {
      AddBonds(bonds, row, residue, kChainBonds);
      AddLink(bonds, row, residue, "C", "N");
    } else if (const std::string_view whole = BondsIn(kWholeRows, row.Key); !whole.empty()) {
      // H4 is there twice, the second time on O4, so both bonds have the same names.
      AddBonds(bonds, row, residue, whole);
    } else {
      const char base = BaseOf(row, residue);
      AddBonds(bonds, row, residue, kPhosphateBonds);
      for (const std::string& bond : BondsOfSugar(base)) AddBonds(bonds, row, residue, bond);
      for (const std::string& bond : BondsOfBase(base)) AddBonds(bonds, row, residue, bond);
      AddLink(bonds, row, residue, "O3*", "P");
    }
  }
  std::sort(bonds.begin(), bonds.end());
  return bonds;
}

bool IsContact(const StockRow& row, const AtomPair& pair) {
  const int hydrogens = (row.Element(pair.A) == 'H' ? 1 : 0) + (row.Element(pair.B) == 'H' ? 1 : 0);
  return hydrogens == 2 || (hydrogens == 1 && row.Apart(pair.A, pair.B) > kLongestToHydrogen);
}

std::vector<std::string> BondsIn(const StockRow& row) {
  std::vector<std::string> bonds;
  for (const AtomPair& pair : row.Joined) {
    if (!IsContact(row, pair)) bonds.push_back(BondOf(row, pair));
  }
  std::sort(bonds.begin(), bonds.end());
  return bonds;
}

std::vector<std::string> ContactsIn(const StockRow& row) {
  std::vector<std::string> contacts;
  for (const AtomPair& pair : row.Joined) {
    if (IsContact(row, pair)) contacts.push_back(BondOf(row, pair));
  }
  std::sort(contacts.begin(), contacts.end());
  return contacts;
}

std::vector<Stereocentre> StereocentresOf(const StockRow& row) {
  std::vector<Stereocentre> centres;
  for (const int residue : row.Residues()) {
    const std::string unit = HasNucleotides(row) ? "sugar" : row.Key;
    for (const char* alpha : {"CA", "CA1", "CA2"}) {
      for (const char* side : {"CB", "R", "R'"}) {
        if (row.Find(residue, alpha) < 0 || row.Find(residue, side) < 0 || unit == "CYS") continue;
        const bool n = row.Find(residue, "N") >= 0, c = row.Find(residue, "C") >= 0;
        centres.push_back({residue, alpha, n ? "N" : "N!", c ? "C" : "C!", side, 'S'});
      }
    }
    for (const CentreOfUnit& centre : kCentres) {
      if (centre.Unit != unit || row.Find(residue, centre.Centre) < 0) continue;
      const std::string second = centre.Second == "N" && unit == "sugar"
                                     ? GlycosidicN(BaseOf(row, residue))
                                     : std::string(centre.Second);
      centres.push_back({residue, std::string(centre.Centre), std::string(centre.First), second,
                         std::string(centre.Third), centre.Expected});
    }
  }
  return centres;
}

char HandFound(const StockRow& row, const Stereocentre& centre) {
  const auto at = [&](const std::string& name) { return row.At(row.Find(centre.Residue, name)); };
  // The hydrogen points away from the eye, the other three are in front: counterclockwise is S.
  return HandOf(at(centre.Centre), at(centre.First), at(centre.Second), at(centre.Third)) > 0 ? 'S'
                                                                                              : 'R';
}

}  // namespace orvane::stock_check
