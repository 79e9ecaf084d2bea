// docs/structures.md: each number, count and word about shape of its prose. What is said is put
// together from what is measured, so that a changed atom and a changed sentence both are seen.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <regex>
#include <set>

#include "desk_fixture.h"
#include "handbook/ledger.h"
#include "handbook/measured.h"
#include "handbook/rows_on_page.h"
#include "stock_check/bends.h"
#include "stock_check/check.h"
#include "stock_check/constitution.h"
#include "stock_check/geometry.h"
#include "stock_check/hydrogen_bonds.h"
#include "stock_check/published.h"

namespace orvane {
namespace {

using stock_check::AtomPair;

std::string Value(std::string_view key, std::string_view atoms, int decimals) {
  return Fixed(Measured(key, atoms), decimals);
}

std::string SignedWhole(double value) { return (value > 0 ? "+" : "") + Fixed(value, 0); }

std::size_t CountOf(const StockRow& row, char element) {
  return static_cast<std::size_t>(
      std::count_if(row.Atoms.begin(), row.Atoms.end(),
                    [&](const auto& atom) { return atom.Name.front() == element; }));
}

// Atoms bonded to that one.
std::vector<int> BondedTo(const StockRow& row, int atom) {
  std::vector<int> found;
  for (const AtomPair& pair : row.Joined) {
    if (stock_check::IsContact(row, pair)) continue;
    if (pair.A == atom) found.push_back(pair.B);
    if (pair.B == atom) found.push_back(pair.A);
  }
  return found;
}

std::size_t HydrogensOn(const StockRow& row, int atom) {
  std::size_t count = 0;
  for (const int other : BondedTo(row, atom)) count += row.Element(other) == 'H' ? 1 : 0;
  return count;
}

double FlatWithin(std::string_view key, std::string_view atoms) {
  return FarthestFromPlane(PlacesOf(RowOf(key), atoms));
}

bool IsInOnlyOneList(const StockRow& row) { return row.List == "DNA_Lst"; }

void WhatTheProgramDoes(Ledger& page) {
  page.Says("each row of the four lists");
  page.Says("three lines for the lesson");  // StructuresPage.TellsOfEveryRow... counts them
  page.Says("two steps at the desk");       // StructuresPage.LooksByTwoSteps...
  page.Says("(0.1 nm)");                    // the unit itself

  // Joined is whatever is near enough, in every row; hydrogens on one atom are.
  double nearest = 10, farthest = 0;
  std::size_t pairs = 0;
  for (const StockRow& row : AllRows()) {
    for (const AtomPair& pair : row.Joined) {
      EXPECT_LE(row.Apart(pair.A, pair.B), 1.85);
      if (row.Element(pair.A) != 'H' || row.Element(pair.B) != 'H') continue;
      nearest = std::min(nearest, row.Apart(pair.A, pair.B));
      farthest = std::max(farthest, row.Apart(pair.A, pair.B));
    }
    std::size_t near = 0;
    const int count = static_cast<int>(row.Atoms.size());
    for (int a = 0; a < count; ++a) {
      for (int b = 0; b < a; ++b) {
        near += row.Apart(a, b) <= 1.85 && row.Apart(a, b) > 0 ? 1 : 0;
      }
    }
    EXPECT_EQ(near, row.Joined.size()) << row.Key;
    pairs += near;
  }
  EXPECT_GT(pairs, 1000u);
  page.Says("Whatever lies 1.85 or less apart is joined");
  page.SaysBySource("sulphur bridges (2.03 in proteins,");
  page.Says("(" + Fixed(nearest, 1) + " to " + Fixed(farthest, 1) +
            " apart), be it CH3, CH2 or NH3");

  // Listed is every pair within the limits, by elements or by names.
  const std::set<std::string> names{"N1 N3", "N3 N1", "N6 O4", "O4 N6",
                                    "N4 O6", "O6 N4", "N2 O2", "O2 N2"};
  for (const StockRow& row : AllRows()) {
    std::size_t listed = 0;
    const int count = static_cast<int>(row.Atoms.size());
    for (int a = 0; a < count; ++a) {
      for (int b = 0; b < a; ++b) {
        const double apart = row.Apart(a, b);
        const std::string elements{row.Element(a), row.Element(b)};
        const bool by_element =
            (elements == "NO" || elements == "ON") && apart > 2.7 && apart <= 3.1;
        const bool by_name =
            names.contains(row.Name(a) + " " + row.Name(b)) && apart > 2.0 && apart <= 3.3;
        listed += (IsInOnlyOneList(row) ? by_name : by_element) ? 1 : 0;
      }
    }
    EXPECT_EQ(listed, row.HydrogenBonds.size()) << row.Key;
  }
  page.Says("any nitrogen with any oxygen more than 2.7 and up to 3.1 apart");
  page.Says("the pairs N1-N3, N6-O4, N4-O6 and N2-O2 more than 2.0 and up to 3.3 apart");
  page.Says("whether both atoms are in one residue");

  const double phi = Measured("Alfa", "3:C 4:N 4:CA 4:C"),
               psi = Measured("Alfa", "4:N 4:CA 4:C 5:N");
  page.Says("so " + Fixed(phi, 0) + " is shown as -" + Fixed(Folded(phi), 0) + ", and " +
            Fixed(psi, 0) + " as -" + Fixed(Folded(psi), 0));
  page.Says("stands at (-" + Fixed(Folded(phi), 0) + ", -" + Fixed(Folded(psi), 0) +
            "), the strand at its true (" + Fixed(Measured("Beta", "2:C 3:N 3:CA 3:C"), 0) + ", " +
            SignedWhole(Measured("Beta", "3:N 3:CA 3:C 4:N")) + ")");

  for (const StockRow& row : AllRows()) {
    for (int atom = 0; atom < static_cast<int>(row.Atoms.size()); ++atom) {
      if (row.Element(atom) != 'R') continue;
      const bool by_hand = row.Key == "Gen" || row.Key == "PEP";
      const std::vector<int> bonded = BondedTo(row, atom);
      ASSERT_EQ(bonded.size(), 1u);
      EXPECT_EQ(Fixed(row.Apart(atom, bonded[0]), 2), by_hand ? "1.50" : "1.53") << row.Key;
    }
  }
  page.Says(
      "drawn as one atom, 1.53 from the alpha carbon in chains and sheets and 1.50 in the "
      "general amino acid and the dipeptide");

  // The cut ends.
  for (const char* key : {"Alfa", "Alfb", "Beta", "Betb", "PBS", "APBS"}) {
    const StockRow& row = RowOf(key);
    const int last = row.Atoms.back().Residue;
    EXPECT_EQ(row.Find(last, "O2"), -1);
    EXPECT_EQ(row.Find(last, "OXT"), -1);
    const bool all_hydrogens = row.Key == "Alfb" || row.Key == "Betb";
    EXPECT_EQ(HydrogensOn(row, row.Find("N")), all_hydrogens ? 1u : 0u) << key;
  }
  EXPECT_EQ(HydrogensOn(RowOf("Gen"), RowOf("Gen").Find("N")), 3u);
  page.Says(
      "has the one hydrogen of a peptide (`Alfb`, `Betb`) or none, where a free end has three");
  EXPECT_EQ(BondedTo(RowOf("S1DNA"), RowOf("S1DNA").Find("P")).size(), 3u);
  EXPECT_EQ(BondedTo(RowOf("S2DNA"), RowOf("S2DNA").Find("P")).size(), 3u);
  EXPECT_EQ(BondedTo(RowOf("S1DNA"), RowOf("S1DNA").Find(3, "P")).size(), 4u);
  page.Says("has three oxygens instead of four");

  // Which way up: y grows downward.
  const auto down = [](std::string_view key, std::string_view first, std::string_view last) {
    return PlaceOf(RowOf(key), last).Y - PlaceOf(RowOf(key), first).Y;
  };
  EXPECT_GT(down("PEP", "1:CA1", "2:CA2") + 10, 0);  // drawn, and not set upright
  EXPECT_GT(down("Alfa", "1:CA", "12:CA"), 10);
  EXPECT_GT(down("Alfb", "1:CA", "6:CA"), 4);
  EXPECT_GT(down("Beta", "1:CA", "6:CA"), 10);
  EXPECT_GT(down("Betb", "1:CA", "5:CA"), 10);
  EXPECT_GT(down("S1DNA", "2:P", "4:P"), 5);
  for (const char* run : {"47:CA 53:CA", "70:CA 75:CA", "110:CA 116:CA"}) {
    EXPECT_GT(PlacesOf(RowOf("PBS"), run)[1].Y, PlacesOf(RowOf("PBS"), run)[0].Y + 10);
  }
  EXPECT_GT(down("APBS", "139:CA", "145:CA"), 10);
  EXPECT_LT(down("APBS", "112:CA", "118:CA"), -10);
  EXPECT_LT(down("APBS", "152:CA", "158:CA"), -10);
  EXPECT_LT(down("S2DNA", "18:P", "20:P"), -4);
  EXPECT_LT(down("DNA3", "18:P", "20:P"), -4);
  page.Says("All these first pictures stand upright");
  page.Says("the outer strands of the antiparallel sheet, and the second strand of DNA, alone too");
}

void TheFrame(Ledger& page) {
  page.Says("the two oxygens of the carboxyl group");
  page.Says("CO, R and N are read clockwise");  // Truths.AnAminoAcidReadsClockwise...
  std::size_t sinister = 0;
  double low = 1000, high = 0;
  for (const StockRow& row : AllRows()) {
    if (!row.IsAminoAcid()) continue;
    const int n = row.Find("N");
    EXPECT_EQ(HydrogensOn(row, n), row.Key == "PRO" ? 2u : 3u) << row.Key;
    EXPECT_EQ(HydrogensOn(row, row.Find("O")) + HydrogensOn(row, row.Find("O2")), 0u);
    EXPECT_EQ(Fixed(Measured(row, "C O"), 2), "1.24");
    EXPECT_EQ(Fixed(Measured(row, "C O2"), 2), "1.30");
    for (const AtomPair& pair : row.Joined) {
      if (stock_check::IsContact(row, pair) || row.Element(pair.B) != 'H') continue;
      EXPECT_EQ(Fixed(row.Apart(pair.A, pair.B), 2), "1.00") << row.Key;
    }
    EXPECT_EQ(row.Atoms.front().ResidueName, "GLY");
    EXPECT_EQ(row.HydrogenBonds.size(), row.Key == "SER" ? 2u : 1u);
    EXPECT_EQ(Fixed(Measured(row, "N O"), 2), "2.99");
    for (const auto& centre : stock_check::StereocentresOf(row)) {
      if (centre.Centre != "CA") continue;
      EXPECT_EQ(stock_check::HandFound(row, centre), row.Key == "CYS" ? 'R' : 'S');
      ++sinister;
    }
    if (row.Key == "Gen" || row.Key == "GLY") continue;
    EXPECT_EQ(Fixed(Measured(row, "N CA CB"), 1), "117.7");
    EXPECT_EQ(Fixed(Measured(row, "N CA H4"), 1), "103.2");
    if (row.Key == "PRO") continue;
    low = std::min(low, PublishedMean(row.Key, "N CA CB"));
    high = std::max(high, PublishedMean(row.Key, "N CA CB"));
  }
  EXPECT_EQ(sinister, 20u);  // the general one and all but glycine
  page.Says("three hydrogens on N, none on the oxygens");
  page.Says("C - O being 1.24 and C - O2 1.30");
  page.SaysBySource("drawn at 1.00, a little short (about 1.01 on nitrogen and 1.09 on carbon");
  page.Says("N with O of the same residue, 2.99 apart");
  // The hydrogen of N that is nearest to O.
  double nearest = 10, angle = 0;
  for (const char* hydrogen : {"H1", "H2", "H3"}) {
    const double apart = Measured("SER", std::string(hydrogen) + " O");
    if (apart >= nearest) continue;
    nearest = apart;
    angle = Measured("SER", "N " + std::string(hydrogen) + " O");
  }
  page.Says("at the nearest hydrogen the angle N-H..O is " + Fixed(angle, 0));
  page.Says("N - CA - CB is 117.7 in every one that has a CB (true " + Fixed(low, 1) + " to " +
            Fixed(high, 1) + ", in proline " + Fixed(PublishedMean("PRO", "N CA CB"), 1) + ")");
  page.Says("N - CA - H4 is 103.2 (true " + Fixed(stock_check::kTetrahedral, 1) + ")");
  page.Says("*do not measure* these two");
}

void TheAminoAcids(Ledger& page) {
  const StockRow& general = RowOf("Gen");
  page.Says("what the twenty have in common");
  EXPECT_EQ(BondedTo(general, general.Find("CA")).size(), 4u);
  page.Says("Four different groups on the alpha carbon");
  page.Says(Capital(CountWord(general.Atoms.size())) + " atoms");
  page.Says("find the four groups round CA");
  EXPECT_EQ(HydrogensOn(RowOf("GLY"), RowOf("GLY").Find("CA")), 2u);
  page.Says("Its two enantiomers are one molecule");

  EXPECT_NEAR(std::abs(Measured("ALA", "N CA CB H5")), 180, 1);
  EXPECT_NEAR(Measured("ALA", "N CA CB H6"), 60, 1);
  page.Says("Two of its hydrogens stand staggered, the third, H7, " +
            Fixed(Measured("ALA", "N CA CB H7") + 60, 0) + " degrees further round");

  page.Says("both C-O are " + Value("ASP", "CG OD1", 2) + " to " + Value("ASP", "CG OD2", 2));
  page.Says("find the two carboxylates");
  page.Says("one C=O of " + Value("ASN", "CG OD1", 2) + ", one C-N of " +
            Value("ASN", "CG ND2", 2));
  page.Says(
      "Compare the two pictures atom by atom: all places are the same but those of OD1 and the "
      "atom that was OD2");
  std::set<std::string> moved;
  for (std::size_t i = 0; i < RowOf("ASP").Atoms.size(); ++i) {
    const auto &acid = RowOf("ASP").Atoms[i], &amide = RowOf("ASN").Atoms[i];
    if (Apart(acid.At, amide.At) > 0) moved.insert(acid.Name);
  }
  EXPECT_EQ(moved, (std::set<std::string>{"OD1", "OD2"}));

  const auto ring = [](std::string_view atoms) {
    return PlaneThrough(PlacesOf(RowOf("TRP"), atoms));
  };
  constexpr std::string_view kFive = "CG CD1 NE1 CE2 CD2", kSix = "CD2 CE2 CZ2 CH2 CZ3 CE3";
  page.Says("two rings that share a bond, with nitrogen in the smaller");
  page.Says("Indole is flat; here the two rings are " +
            Fixed(BetweenPlanes(ring(kFive), ring(kSix)), 1) +
            " degrees apart, each flat by itself within " +
            Fixed(std::max(FlatWithin("TRP", kFive), FlatWithin("TRP", kSix)), 2));
  std::size_t largest = 0;
  for (const StockRow& row : AllRows()) {
    if (row.IsAminoAcid()) largest = std::max(largest, row.Atoms.size());
  }
  EXPECT_EQ(largest, RowOf("TRP").Atoms.size());
  page.Says("the six-membered ring is a line");

  constexpr const char* kRingBonds[] = {"CG CD1",  "CG CD2", "CD1 CE1",
                                        "CD2 CE2", "CE1 CZ", "CE2 CZ"};
  double shortest = 10, longest = 0;
  for (const char* bond : kRingBonds) {
    shortest = std::min(shortest, Measured("PHE", bond));
    longest = std::max(longest, Measured("PHE", bond));
  }
  page.SaysBySource("Ring bonds " + Fixed(shortest, 2) + " to " + Fixed(longest, 2) +
                    ", between single (1.54) and double (1.33");
  // CD1 is the one whose torsion is between -90 and 90.
  for (const char* key : {"PHE", "TYR"}) {
    EXPECT_GT(std::abs(Measured(key, "CA CB CG CD1")), 90);
    EXPECT_LT(std::abs(Measured(key, "CA CB CG CD2")), 90);
  }
  page.Says("it is flat, within " + Fixed(FlatWithin("PHE", "CG CD1 CD2 CE1 CE2 CZ"), 2));
  page.Says("C-O " + Value("TYR", "CZ OH", 2));
  page.Says("a five-membered ring with two nitrogens");
  page.Says("find the two blue balls of the ring");

  const StockRow& proline = RowOf("PRO");
  EXPECT_EQ(HydrogensOn(proline, proline.Find("N")), 2u);
  page.Says("(CD-N " + Value("PRO", "CD N", 2) + "), which keeps two hydrogens only");
  page.Says("its phi of about -65 would fit");  // near the helix's own
  EXPECT_NEAR(Measured("Alfa", "3:C 4:N 4:CA 4:C"), -65, 10);
  // In the helix: CD in the place of the hydrogen of N, at the length of that bond, and the O of
  // the residue four before.
  const StockRow& helix = RowOf("Alfa");
  const Point away = Unit(Minus(PlaceOf(helix, "4:C"), PlaceOf(helix, "4:O")));
  const Point cd = Plus(PlaceOf(helix, "5:N"), Times(PublishedMean("PRO", "CD N"), away));
  EXPECT_LT(Apart(cd, PlaceOf(helix, "1:O")), 2.0);  // C and O touch at 3.2
  page.SaysBySource("the ring's CD stands where the O of the residue four before has its place");

  page.Says("CG-SD is drawn at " + Value("MET", "CG SD", 2) + " where " +
            Fixed(PublishedMean("MET", "CG SD"), 2) + " is usual");
  page.Says("(" + Value("MET", "CG SD CE", 0) + ", usually " +
            Fixed(PublishedMean("MET", "CG SD CE"), 0) + "): measure SD-CE (" +
            Value("MET", "SD CE", 2) + ")");
  page.SaysBySource("Two methyl groups crowd the backbone: valine is found in strands more often");
  page.Says("CB has two carbons more");
  // The names of the branches, as R and S: CG1 of valine is the pro-R one, CD1 of leucine should
  // be.
  const auto hand = [](std::string_view key, std::string_view atoms) {
    const std::vector<Point> at = PlacesOf(RowOf(key), atoms);
    return HandOf(at[0], at[1], at[2], at[3]) > 0 ? 'S' : 'R';
  };
  EXPECT_EQ(hand("VAL", "CB CA CG1 CG2"), 'R');
  EXPECT_EQ(hand("LEU", "CG CB CD1 CD2"), 'S');
  page.Says("CB has one carbon more, and CG two");

  page.Says("C-S " + Value("CYS", "CB SG", 2));
  page.Says("a bridge S-S of 2.03 would not be");
  page.Says("OG stands " + Value("SER", "N OG", 2) + " from N");
  page.Says("at the nearest hydrogen the angle N-H..OG is " + Value("SER", "N H1 OG", 0));
  EXPECT_LT(Measured("SER", "H1 OG"), std::min(Measured("SER", "H2 OG"), Measured("SER", "H3 OG")));
  page.Says("where a good bond is nearly straight");
  for (const auto& bond : stock_check::BondsByEnergy(RowOf("Alfa")))
    EXPECT_GT(bond.AtHydrogen, 155);
  page.Says("two dotted lines from N, and no hydrogen on either");

  const double sum =
      Measured("ARG", "NE CZ NH1") + Measured("ARG", "NH1 CZ NH2") + Measured("ARG", "NH2 CZ NE");
  EXPECT_EQ(CountOf(RowOf("ARG"), 'N'), 4u);  // with that of the frame
  page.Says("three nitrogens on one carbon");
  page.Says("In nature it is a flat Y. Here it is not: the angles at CZ add up to " +
            Fixed(sum, 0) + " and not to 360");
  EXPECT_EQ(CountOf(RowOf("LYS"), 'C'), 2u + 4u);
  page.Says("four CH2 and a nitrogen at the end");
}

void TheDipeptide(Ledger& page) {
  page.Says("two residues and the peptide bond between them");
  page.Says("Six atoms lie in one plane within " +
            Fixed(FlatWithin("PEP", "1:CA1 1:C! 1:O! 2:N! 2:H! 2:CA2"), 2));
  EXPECT_NEAR(std::abs(Measured("PEP", "1:CA1 1:C! 2:N! 2:CA2")), 180, 0.5);
  page.Says("*PBP* draws it, trans, omega 180");
  page.SaysBySource("C!-N! is " + Value("PEP", "1:C! 2:N!", 2) +
                    ", between single (1.47) and double (1.28");
  EXPECT_EQ(Value("PEP", "2:CA2 2:C", 2), Value("PEP", "1:CA1 1:C!", 2));
  page.Says("to show the plane well: CA-C is " + Value("PEP", "1:CA1 1:C!", 2) +
            " in both residues where 1.525 is true");
  EXPECT_EQ(Value("PEP", "1:N 1:O!", 2), Value("PEP", "2:N! 2:O", 2));
  page.Says("N and O of each residue stand " + Value("PEP", "1:N 1:O!", 2) + " apart");
  EXPECT_EQ(Value("PEP", "1:H4 1:C!", 2), Value("PEP", "2:H4 2:C", 2));
  page.Says("H4 stands " + Value("PEP", "1:H4 1:C!", 2) + " from C in both residues");
}

std::vector<Point> TraceOf(std::string_view key) {
  std::vector<Point> trace;
  for (const auto& atom : stock_check::WithoutCopies(RowOf(key)).Atoms) {
    if (atom.Name == "CA") trace.push_back(atom.At);
  }
  return trace;
}

Screw ScrewFrom(std::string_view key) {
  const std::vector<Point> trace = TraceOf(key);
  return ScrewOf({trace[0], trace[1], trace[2], trace[3]});
}

std::string ResidueCount(std::string_view key) { return CountWord(TraceOf(key).size()); }

void Torsions(Ledger& page, std::string_view key, const std::string& words, int residue) {
  const StockRow& row = RowOf(key);
  const double phi = stock_check::TorsionAt(row, residue, "-C N CA C");
  const double psi = stock_check::TorsionAt(row, residue, "N CA C +N");
  const std::string told = psi < 0 ? Fixed(psi, 0) : "+" + Fixed(psi, 0);
  page.Says(words + "phi " + Fixed(phi, 0) + ", psi " + told);
}

// How far N and O of one residue stand apart at these angles and that psi.
double OwnPair(double at_alpha, double at_carbonyl, double psi) {
  // C at the origin, CA on the x axis, N in the plane of x and y.
  const double degree = std::acos(-1.0) / 180;
  const Point ca{1.525, 0, 0};
  const Point n =
      Plus(ca, {-1.458 * std::cos(at_alpha * degree), 1.458 * std::sin(at_alpha * degree), 0});
  const double twist = (psi - 180) * degree;
  const Point o{1.231 * std::cos(at_carbonyl * degree),
                1.231 * std::sin(at_carbonyl * degree) * std::cos(twist),
                1.231 * std::sin(at_carbonyl * degree) * std::sin(twist)};
  return Apart(n, o);
}

double PeptideMean(std::string_view atoms) {
  for (const auto& row : stock_check::Peptides()) {
    if (row.Atoms == atoms) return row.Mean;
  }
  ADD_FAILURE() << atoms;
  return 0;
}

double PeptideDeviation(std::string_view atoms) {
  for (const auto& row : stock_check::Peptides()) {
    if (row.Atoms == atoms) return row.Deviation;
  }
  return 0;
}

void TheHelices(Ledger& page) {
  const Screw screw = ScrewFrom("Alfa");
  EXPECT_GT(screw.Turn, 0);  // with the way along: right-handed
  page.Says(ResidueCount("Alfa") + " residues of the right-handed alpha helix");
  Torsions(page, "Alfa", "alpha helix: ", 4);
  page.Says(Fixed(360 / screw.Turn, 1) + " residues a turn, " + Fixed(screw.Rise, 2) +
            " a residue");
  const auto bonds = stock_check::BondsByEnergy(RowOf("Alfa"));
  for (const auto& bond : bonds) {
    EXPECT_EQ(RowOf("Alfa").Residue(bond.Nitrogen) - RowOf("Alfa").Residue(bond.Oxygen), 4);
    EXPECT_EQ(Fixed(bond.NitrogenToOxygen, 2), "2.95");
  }
  page.Says("N of each residue with O of the fourth before it, " + CountWord(bonds.size()) +
            " of 2.95, all along the axis; the rule of energies finds the same " +
            CountWord(bonds.size()));
  EXPECT_EQ(bonds.size(), RowOf("Alfa").HydrogenBonds.size());
  page.Says("N-CA-C is " + Value("Alfa", "4:N 4:CA 4:C", 1) + ", one degree below their mean");
  EXPECT_NEAR(PeptideMean("N CA C") - Measured("Alfa", "4:N 4:CA 4:C"), 1, 0.3);
  page.Says("so that N of the fourth residue stays clear of the first O (" +
            Value("Alfa", "1:O 4:N", 2) + ")");
  page.Says("eight rungs along the axis");

  const StockRow& helix = RowOf("Alfb");
  page.Says(ResidueCount("Alfb") + " residues of the same helix with CB and all hydrogens");
  for (const int residue : {2, 3, 4}) {
    // Down is where y grows.
    const auto y = [&](const char* name) { return helix.At(helix.Find(residue, name)).Y; };
    EXPECT_GT(y("O"), y("C") + 1);
    EXPECT_LT(y("H1"), y("N") - 0.8);
  }
  page.Says("they stand upright, C=O down, N-H up, side chains outside");
  EXPECT_EQ(helix.HydrogenBonds.size(), 2u);
  page.Says("Two hydrogen bonds. **H4 is drawn in.**");
  // Entries of the list of bonds from residue to residue.
  std::size_t entries = 0, with_h4 = 0;
  for (const AtomPair& pair : helix.Joined) {
    const bool of_third = helix.Residue(pair.A) == 3;
    entries += of_third ? 1 : 0;
    with_h4 +=
        of_third && stock_check::IsContact(helix, pair) && helix.Name(pair.B) == "H4" ? 1 : 0;
    with_h4 +=
        of_third && stock_check::IsContact(helix, pair) && helix.Name(pair.A) == "H4" ? 1 : 0;
  }
  EXPECT_EQ(with_h4, 1u);
  page.Says("by counting " + CountWord(entries) + " entries from residue to residue");
  page.Says("with H4 at its true place there are " + CountWord(entries - 1));
  page.Says("So H4 stands " + Value("Alfb", "3:CA 3:H4", 2) +
            " from CA (true 1.09), leaning towards C (" + Value("Alfb", "3:C 3:CA 3:H4", 1) +
            " instead of about 108), where the pair H4-C (" + Value("Alfb", "3:C 3:H4", 3) + ")");
  // The true place: against the sum of the other three bonds of CA.
  const Point ca = PlaceOf(helix, "3:CA");
  Point sum;
  for (const char* other : {"3:N", "3:C", "3:CB"}) {
    sum = Plus(sum, Unit(Minus(PlaceOf(helix, other), ca)));
  }
  EXPECT_NEAR(DegreesBetween(Minus(PlaceOf(helix, "3:C"), ca), Times(-1, sum)), 108, 1.0);
  page.Says("its peptide planes under *PBP*");
  page.Says("The plane painter finds its lines");
  for (const char* key : {"Alfb", "Betb"}) {
    for (const char* group : {"1:CA 1:C 1:O 2:N 2:H1 2:CA", "3:CA 3:C 3:O 4:N 4:H1 4:CA"}) {
      EXPECT_LT(FlatWithin(key, group), 0.01) << key;
    }
  }
  page.Says("five planes and two rungs");
  EXPECT_EQ(TraceOf("Alfb").size() - 1, 5u);
}

void TheStrands(Ledger& page) {
  const Screw screw = ScrewFrom("Beta");
  page.Says(ResidueCount("Beta") + " residues of an extended strand");
  Torsions(page, "Beta", "extended strand, ", 3);
  page.Says(Fixed(std::abs(screw.Rise), 2) + " a residue, nearly two residues a turn");
  EXPECT_NEAR(360 / std::abs(screw.Turn), 2, 0.05);
  EXPECT_EQ(RowOf("Beta").HydrogenBonds.size(), 0u);
  const double at_alpha = Measured("Beta", "3:N 3:CA 3:C"), at_c = Measured("Beta", "3:CA 3:C 3:O");
  EXPECT_LT((at_alpha - PeptideMean("N CA C")) / PeptideDeviation("N CA C"), 1.5);
  EXPECT_LT((at_c - PeptideMean("CA C O")) / PeptideDeviation("CA C O"), 1.5);
  page.Says("N-CA-C is " + Fixed(at_alpha, 1) + " and CA-C-O " + Fixed(at_c, 1));
  const double psi = Measured("Beta", "3:N 3:CA 3:C 4:N");
  EXPECT_NEAR(OwnPair(at_alpha, at_c, psi), Measured("Beta", "3:N 3:O"), 0.005);
  page.Says("of each residue would come within 3.1 (" +
            Fixed(OwnPair(PeptideMean("N CA C"), PeptideMean("CA C O"), psi), 2) + ")");
  // R to one side and the other.
  const StockRow& strand = RowOf("Beta");
  for (int residue = 2; residue <= 5; ++residue) {
    const auto side = [&](int of) {
      return Minus(strand.At(strand.Find(of, "R")), strand.At(strand.Find(of, "CA")));
    };
    EXPECT_LT(Dot(side(residue), side(residue - 1)), 0);
  }

  page.Says(ResidueCount("Betb") + " residues of the same strand");
  EXPECT_EQ(TraceOf("Betb").size() - 1, 4u);
  page.Says("four planes, each turned over against the one before");
  page.Says("the second copy of residue 5");
  const StockRow& planes = RowOf("Betb");
  for (int residue = 2; residue <= 5; ++residue) {
    const auto carbonyl = [&](int of) {
      return Minus(planes.At(planes.Find(of, "O")), planes.At(planes.Find(of, "C")));
    };
    EXPECT_GT(DegreesBetween(carbonyl(residue), carbonyl(residue - 1)), 150);
  }
  page.Says("peptide planes: see how each plane turns over against the one before");
}

// How many hydrogen bonds of a sheet and how long.
std::string LengthOfRungs(std::string_view key) {
  const StockRow& row = RowOf(key);
  for (const AtomPair& pair : row.HydrogenBonds) {
    EXPECT_EQ(Fixed(row.Apart(pair.A, pair.B), 2),
              Fixed(row.Apart(row.HydrogenBonds[0].A, row.HydrogenBonds[0].B), 2));
  }
  return Fixed(row.Apart(row.HydrogenBonds[0].A, row.HydrogenBonds[0].B), 2);
}

std::vector<std::size_t> RunsOf(std::string_view key) {
  std::vector<std::size_t> runs;
  int before = -10;
  for (const int residue : RowOf(key).Residues()) {
    if (residue != before + 1) runs.push_back(0);
    ++runs.back();
    before = residue;
  }
  return runs;
}

void TheSheets(Ledger& page) {
  const std::vector<std::size_t> runs = RunsOf("PBS");
  ASSERT_EQ(runs.size(), 3u);
  page.Says("three strands of " + CountWord(runs[0]) + ", " + CountWord(runs[1]) + " and " +
            CountWord(runs[2]) + " residues that all run the same way, " +
            Value("PBS", "47:CA 70:CA", 2) + " apart");
  page.Says(Capital(CountWord(RowOf("PBS").HydrogenBonds.size())) + " hydrogen bonds of " +
            LengthOfRungs("PBS") + ", slanting to and fro");
  // Given to one residue of the neighbour, taken from the next but one: 49 and 71, 73.
  const auto listed = [](int n, int o) {
    const StockRow& row = RowOf("PBS");
    for (const AtomPair& pair : row.HydrogenBonds) {
      const bool first = row.Element(pair.A) == 'N';
      if (row.Residue(first ? pair.A : pair.B) == n && row.Residue(first ? pair.B : pair.A) == o) {
        return true;
      }
    }
    return false;
  };
  EXPECT_TRUE(listed(49, 71) && listed(73, 49));
  page.Says("a residue gives to one residue of its neighbour and takes from the next but one");
  page.Says("It is the flat pleated sheet of");
  Torsions(page, "PBS", "](sources.md#pauling-corey-1951), ", 50);
  page.SaysBySource(
      "easier to read than the twisted sheets of real proteins, whose strands turn by "
      "20 to 25 degrees from one to the next");
  // R up and down in turn: on one side of the sheet and on the other.
  std::vector<Point> sheet = TraceOf("PBS");
  const Plane plane = PlaneThrough(sheet);
  const StockRow& row = RowOf("PBS");
  for (const int residue : {48, 49, 50, 51, 52}) {
    const auto side = [&](int of) { return FromPlane(plane, row.At(row.Find(of, "R"))); };
    EXPECT_LT(side(residue) * side(residue - 1), 0);
  }
  // Flat: no strand is turned against another.
  const auto along = [](std::string_view key, std::string_view ends) {
    const std::vector<Point> at = PlacesOf(RowOf(key), ends);
    return Minus(at[1], at[0]);
  };
  EXPECT_LT(DegreesBetween(along("PBS", "47:CA 53:CA"), along("PBS", "110:CA 116:CA")), 1);
  EXPECT_GT(DegreesBetween(along("APBS", "139:CA 145:CA"), along("APBS", "112:CA 118:CA")), 179);

  for (const char* torsion : {"50:C 51:N 51:CA 51:C", "50:N 50:CA 50:C 51:N"}) {
    std::string there = torsion;
    for (std::size_t at = there.find("50:"); at != std::string::npos; at = there.find("50:")) {
      there.replace(at, 3, "142:");
    }
    for (std::size_t at = there.find("51:"); at != std::string::npos; at = there.find("51:")) {
      there.replace(at, 3, "143:");
    }
    EXPECT_NEAR(Measured("PBS", torsion), Measured("APBS", there), 0.3);
  }
  page.Says("The same flat strand as in the parallel sheet");
  EXPECT_EQ(RunsOf("APBS"), (std::vector<std::size_t>{7, 7, 7}));
  page.Says("three strands of seven residues, the outer ones running against the middle one");
  page.Says(Capital(CountWord(RowOf("APBS").HydrogenBonds.size())) + " hydrogen bonds of " +
            LengthOfRungs("APBS") + ", straight across");
  for (const auto& bond : stock_check::BondsByEnergy(RowOf("APBS"))) {
    EXPECT_GT(bond.AtHydrogen, 175);
  }
  for (const auto& bond : stock_check::BondsByEnergy(RowOf("PBS"))) EXPECT_LT(bond.AtHydrogen, 168);
  page.Says("the rungs go straight across, in pairs");
  page.Says("a pair of residues with two bonds (139 with 158) and a pair with none");
  EXPECT_EQ(Value("APBS", "139:N 158:O", 2), Value("APBS", "158:N 139:O", 2));
  std::set<int> cut;
  for (const AtomPair& pair : stock_check::ListedAtCutEnds(RowOf("APBS"))) {
    const bool first = RowOf("APBS").Element(pair.A) == 'N';
    cut.insert(RowOf("APBS").Residue(first ? pair.A : pair.B));
  }
  EXPECT_EQ(cut, (std::set<int>{139, 152}));
  page.Says("Two of the fourteen begin at the first N of a strand, 139 and 152");
  page.SaysBySource("Textbooks give the antiparallel sheet as -139, +135");
  page.Says("each residue's own N and O come to " +
            Fixed(OwnPair(PeptideMean("N CA C"), PeptideMean("CA C O"), 135), 2) +
            " with the usual angles");
  page.Says("The Ramachandran plot of the two sheets");
}

void TheSugars(Ledger& page) {
  const auto shape = [](std::string_view key) {
    return stock_check::SugarOf(RowOf(key), RowOf(key).Atoms.front().Residue);
  };
  for (const StockRow& row : AllRows()) {
    if (!stock_check::HasNucleotides(row)) continue;
    for (const int residue : row.Residues()) {
      EXPECT_NEAR(stock_check::SugarOf(row, residue).Phase, 155, 0.6);
      EXPECT_NEAR(stock_check::SugarOf(row, residue).Amplitude, 35, 0.6);
    }
    EXPECT_EQ(CountOf(row, 'H'), 0u);
  }
  page.Says("the sugar has phase 155 and amplitude 35");
  page.Says(
      "The first three rows have hydrogens, and the two sugars are bent a little otherwise than "
      "those of the DNA (phase " +
      Fixed(shape("RIB").Phase, 0) + ", amplitude " + Fixed(shape("RIB").Amplitude, 0) + ")");
  EXPECT_EQ(Fixed(shape("DRB").Phase, 1), Fixed(shape("RIB").Phase, 1));
  for (const char* key : {"PHS", "RIB", "DRB"}) EXPECT_GT(CountOf(RowOf(key), 'H'), 0u);
  for (const char* key : {"dA", "dC", "dG", "dT"}) EXPECT_EQ(CountOf(RowOf(key), 'H'), 0u);

  EXPECT_EQ(Value("PHS", "P OP1", 2), Value("PHS", "P OP2", 2));
  EXPECT_EQ(Value("PHS", "P OP3", 2), Value("PHS", "P OP4", 2));
  page.SaysBySource("a tetrahedron: two oxygens without hydrogen at " + Value("PHS", "P OP1", 2) +
                    ", which share the charge, two with hydrogen at " + Value("PHS", "P OP3", 2));
  page.Says("two oxygens bear a hydrogen");
  page.Says("OP3 - HP3 " + Value("PHS", "OP3 HP3", 2) + " as the length of a bond to hydrogen");

  // C2 on the side of C5, out of the plane of the other four; H1B there, O2 and O3 on the other
  // side.
  const StockRow& ribose = RowOf("RIB");
  const Plane four = PlaneThrough(PlacesOf(ribose, "O1 C1 C3 C4"));
  const auto side = [&](std::string_view atom) {
    return FromPlane(four, PlaceOf(ribose, atom)) *
           (FromPlane(four, PlaceOf(ribose, "C5")) > 0 ? 1 : -1);
  };
  EXPECT_GT(side("C2"), 0.4);
  EXPECT_GT(side("H1B"), 0.4);
  EXPECT_LT(side("O3"), -0.4);
  EXPECT_LT(side("O2"), side("C2"));
  EXPECT_NEAR(Measured("RIB", "O2 O3"), 2.75, 0.1);
  page.SaysBySource(
      "The ring is bent, C2 out of the plane on the side of C5 (C2'-endo), as in the DNA "
      "below; in strands of RNA it is bent the other way, C3'-endo");
  page.Says("Two hydroxyl groups, O2 and O3");
  std::size_t h4 = 0;
  for (const auto& atom : ribose.Atoms) h4 += atom.Name == "H4" ? 1 : 0;
  EXPECT_EQ(h4, 2u);
  EXPECT_EQ(ribose.Atoms.back().Name, "H4");
  EXPECT_LT(Apart(ribose.Atoms.back().At, PlaceOf(ribose, "O4")), 1.1);

  for (const auto& atom : RowOf("DRB").Atoms) {
    if (atom.Name == "H4") continue;
    const char* there = atom.Name == "H2B" ? "O2" : atom.Name.c_str();
    EXPECT_EQ(Apart(atom.At, PlaceOf(ribose, there)), 0) << atom.Name;
  }
  page.Says("H2B stands where O2 stood, " + Value("DRB", "C2 H2B", 2) +
            " from C2 where a C-H bond has " + Value("DRB", "C2 H2A", 2));
}

void TheBases(Ledger& page) {
  for (const char* key : {"dA", "dC", "dG", "dT"}) {
    std::vector<Point> all;
    for (const auto& atom : RowOf(key).Atoms) all.push_back(atom.At);
    EXPECT_LT(FarthestFromPlane(all), 0.002) << key;
  }
  page.Says("a purine, two rings in one plane");
  page.Says("the larger ring has six atoms, the smaller five");
  page.Says("the base points away from the sugar (anti), chi " + Value("As", "O4* C1* N9 C4", 0));
  EXPECT_EQ(stock_check::StereocentresOf(RowOf("As")).size(), 3u);
  page.Says("N4 gives, N3 and O2 take: three bonds with guanine");
  for (const char* oxygen : {"P O1P", "P O2P", "P O3P"}) {
    EXPECT_EQ(Value("C", oxygen, 2), "1.51") << oxygen;
  }
  page.Says("P-O5* is " + Value("C", "P O5*", 2) + ", the other three P-O are 1.51");
  // O6 against a place with the means of the same paper: 1.237 from C6, 119.9 from N1.
  page.Says("O6 stands 0.015 off its published place, so that it is " + Value("dG", "O6 N7", 3) +
            " from N7");
  EXPECT_EQ(RowOf("dG").HydrogenBonds.size(), 0u);
  EXPECT_LT(Measured("T", "C5M O4"), Measured("T", "C5M O2"));
  EXPECT_GT(Measured("T", "C5M C1*"), 4.5);
  EXPECT_EQ(RowOf("G").Find("O2*"), -1);
}

void TheDna(Ledger& page) {
  const StockRow& dna = RowOf("DNA3");
  // The turn from pair to pair, by the lines between their sugars, about the way from pair to pair.
  const auto across = [&](int a, int b) {
    return Minus(dna.At(dna.Find(b, "C1*")), dna.At(dna.Find(a, "C1*")));
  };
  const auto bend = [&](const char* name, int a, int b, int c) {
    const Point at_a = dna.At(dna.Find(a, name)), at_b = dna.At(dna.Find(b, name)),
                at_c = dna.At(dna.Find(c, name));
    return Minus(Minus(at_c, at_b), Minus(at_b, at_a));
  };
  Point axis = Unit(Cross(bend("O3*", 2, 3, 4), bend("O3*", 18, 19, 20)));
  const Point step = Minus(dna.At(dna.Find(3, "O3*")), dna.At(dna.Find(2, "O3*")));
  if (Dot(step, axis) < 0) axis = Times(-1, axis);
  const auto flat = [&](const Point& way) { return Minus(way, Times(Dot(way, axis), axis)); };
  const double first = DegreesBetween(flat(across(2, 20)), flat(across(3, 19)));
  const double second = DegreesBetween(flat(across(3, 19)), flat(across(4, 18)));
  EXPECT_GT(Dot(Cross(flat(across(2, 20)), flat(across(3, 19))), axis), 0);  // right-handed
  EXPECT_EQ(Fixed(first, 0), Fixed(second, 0));
  page.Says(CountWord(static_cast<std::size_t>(std::lround(360 / first))) + " pairs a turn (" +
            Fixed(first, 0) + " degrees each), " + Fixed(Dot(step, axis), 2) +
            " from pair to pair, right-handed, C2'-endo sugars");
  for (const int residue : dna.Residues()) {
    const double phase = stock_check::SugarOf(dna, residue).Phase;
    EXPECT_TRUE(phase > 144 && phase < 180) << residue;
  }
  double low = 10, high = 0;
  std::size_t rings = 0, between = 0;
  for (const AtomPair& pair : dna.HydrogenBonds) {
    if (dna.Residue(pair.A) != dna.Residue(pair.B)) {
      ++between;
      continue;
    }
    ++rings;
    low = std::min(low, dna.Apart(pair.A, pair.B));
    high = std::max(high, dna.Apart(pair.A, pair.B));
  }
  page.Says("In these three rows hydrogen bonds are looked for between bases");
  page.Says(Fixed(low, 1) + " to " + Fixed(high, 1) + " apart, because names and distance");

  for (const char* key : {"S1DNA", "S2DNA"}) {
    EXPECT_EQ(RowOf(key).HydrogenBonds.size(), 3u);
    for (const AtomPair& pair : RowOf(key).HydrogenBonds) {
      EXPECT_EQ(RowOf(key).Residue(pair.A), RowOf(key).Residue(pair.B));
    }
  }
  page.Says("Three entries of hydrogen bonds, all three inside rings");
  page.Says("Three entries, all inside rings");
  page.Says("2 P with its three oxygens");
  page.Says("18 P with its three oxygens");
  page.Says("the first residue, 18, stands at the bottom");

  page.Says(Capital(CountWord(dna.HydrogenBonds.size())) + " entries of hydrogen bonds, " +
            CountWord(between) + " true ones: two in each A-T (" + Value("DNA3", "2:N6 20:O4", 2) +
            " and " + Value("DNA3", "2:N1 20:N3", 2) + "), three in G-C (" +
            Value("DNA3", "3:O6 19:N4", 2) + ", " + Value("DNA3", "3:N1 19:N3", 2) + " and " +
            Value("DNA3", "3:N2 19:O2", 2) + "), and " + CountWord(rings) + " inside rings");
  EXPECT_EQ(Value("DNA3", "4:O4 18:N6", 2), Value("DNA3", "2:N6 20:O4", 2));
  EXPECT_EQ(Value("DNA3", "4:N3 18:N1", 2), Value("DNA3", "2:N1 20:N3", 2));
  for (const char* pair : {"2:C1* 20:C1*", "3:C1* 19:C1*", "4:C1* 18:C1*"}) {
    EXPECT_EQ(Value("DNA3", pair, 2), "10.73");
  }
  page.Says("the sugars of each pair stand 10.73 apart");
  page.Says("is a turn of " + Fixed(first + second, 0) + " degrees");
  // The two edges: the sugars hang on one side of the middle of the pair, that of C2 and O2.
  for (const auto& [a, t] : {std::pair(2, 20), std::pair(18, 4)}) {
    const auto at = [&](int residue, const char* name) { return dna.At(dna.Find(residue, name)); };
    const Point middle = Times(0.5, Plus(at(a, "N1"), at(t, "N3")));
    const Point narrow = Minus(Times(0.5, Plus(at(a, "C1*"), at(t, "C1*"))), middle);
    for (const char* name : {"C2", "O2"}) {
      EXPECT_GT(Dot(Minus(at(name[0] == 'C' ? a : t, name), middle), narrow), 0) << name;
    }
    EXPECT_LT(Dot(Minus(at(a, "N6"), middle), narrow), 0);
    EXPECT_LT(Dot(Minus(at(t, "O4"), middle), narrow), 0);
    EXPECT_LT(Dot(Minus(at(t, "C5M"), middle), narrow), 0);
  }
  page.Says("From the side, three pairs do not show a groove from wall to wall");
  page.SaysBySource(
      "on one edge of each pair, that of N6, O4 and C5M in A-T, begins the wide groove");
  page.Says("two, three and two lines join the strands");
  page.Says("the width of a groove, for which three pairs are too few");
}

TEST(StructuresPage, SaysOfShapesWhatTheAtomsSay) {
  Ledger page = Ledger::OfPage("docs/structures.md");
  WhatTheProgramDoes(page);
  TheFrame(page);
  TheAminoAcids(page);
  TheDipeptide(page);
  TheHelices(page);
  TheStrands(page);
  TheSheets(page);
  TheSugars(page);
  TheBases(page);
  TheDna(page);
  // What StructuresPage.HasTheValuesThatThePanelShows and DoubtsWhatIsBent measure.
  const std::regex measured(R"(^.+ -?[0-9.]+( \(true [0-9.]+( or more)?\))?\.?$)");
  for (const RowOnPage& row : RowsOnPage()) {
    for (const std::string& item : SplitAt(row.Measure + "; " + row.Doubt, "; ")) {
      if (std::regex_match(item, measured)) page.Says(item);
    }
  }
  page.Says("tells what is bent or drawn in");
  page.Says("What is bent in one alone stands under its name");
  for (const std::string& word : page.Unaccounted()) ADD_FAILURE() << "nobody works out " << word;
}

}  // namespace
}  // namespace orvane
