// What the program itself says of shapes: the headings of the map, the names of its regions, the
// legend of the elements' colours, and the recipe of an atom. Where its words are at odds with the
// books, docs/handbook/truths.md names them.

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "commands/key_sheet.h"
#include "draw/elements.h"
#include "handbook/measured.h"
#include "handbook/student.h"
#include "narration/atom_words.h"
#include "narration/recipe.h"
#include "ramachandran/map_names.h"
#include "stock_check/constitution.h"
#include "stock_check/geometry.h"

namespace orvane {
namespace {

std::vector<Point> TraceOf(std::string_view key, int first, int last) {
  std::vector<Point> trace;
  for (int residue = first; residue <= last; ++residue) {
    trace.push_back(RowOf(key).At(RowOf(key).Find(residue, "CA")));
  }
  return trace;
}

Point Along(const std::vector<Point>& trace) { return Minus(trace.back(), trace.front()); }

std::string HeadingOf(int row) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.Pro_Lst, row);
  Click(work.desk, work.desk.main.RCDP);
  return work.desk.plot.RamPlt_H.Caption.Get();
}

TEST(TheHeadingOfTheMap, IsTrueOfTheChain) {
  EXPECT_EQ(HeadingOf(1), "Ramachandran Plot: Right Handed A-Helix");
  // Four successive alpha carbons: a right-handed helix turns them clockwise, by about 50.
  const std::vector<Point> helix = TraceOf("Alfa", 1, 12);
  for (std::size_t i = 0; i + 3 < helix.size(); ++i) {
    EXPECT_NEAR(TorsionOf(helix[i], helix[i + 1], helix[i + 2], helix[i + 3]), 50, 5);
  }
  EXPECT_EQ(HeadingOf(3), "Ramachandran Plot: B-Strand");
  const std::vector<Point> strand = TraceOf("Beta", 1, 6);
  for (std::size_t i = 0; i + 3 < strand.size(); ++i) {
    EXPECT_GT(std::abs(TorsionOf(strand[i], strand[i + 1], strand[i + 2], strand[i + 3])), 150);
  }
  EXPECT_EQ(HeadingOf(5), "Ramachandran Plot: Parallel B-pleated Sheet");
  EXPECT_LT(DegreesBetween(Along(TraceOf("PBS", 47, 53)), Along(TraceOf("PBS", 110, 116))), 10);
  EXPECT_LT(DegreesBetween(Along(TraceOf("PBS", 47, 53)), Along(TraceOf("PBS", 70, 75))), 10);
  EXPECT_EQ(HeadingOf(6), "Ramachandran Plot: Antiparallel B-pleated Sheet");
  EXPECT_GT(DegreesBetween(Along(TraceOf("APBS", 139, 145)), Along(TraceOf("APBS", 112, 118))),
            170);
  EXPECT_GT(DegreesBetween(Along(TraceOf("APBS", 139, 145)), Along(TraceOf("APBS", 152, 158))),
            170);
}

// Words that a screen reader hears at each mark, and the quarter in which such a chain has its phi
// and psi.
TEST(TheRegionsOfTheMap, StandInTheQuartersOfTheirConformations) {
  DeskAtWork work;
  struct Region {
    MapName Name;
    const char* Words;
    int Quarter;  // 0: phi below 0, psi above; 1: both below; 3: both above
  };
  const auto quarter = [](double phi, double psi) { return phi < 0 ? (psi < 0 ? 1 : 0) : 3; };
  const int helix =
      quarter(Measured("Alfa", "3:C 4:N 4:CA 4:C"), Measured("Alfa", "4:N 4:CA 4:C 5:N"));
  const int mirrored =
      quarter(-Measured("Alfa", "3:C 4:N 4:CA 4:C"), -Measured("Alfa", "4:N 4:CA 4:C 5:N"));
  const int parallel =
      quarter(Measured("PBS", "49:C 50:N 50:CA 50:C"), Measured("PBS", "50:N 50:CA 50:C 51:N"));
  const int anti = quarter(Measured("APBS", "141:C 142:N 142:CA 142:C"),
                           Measured("APBS", "142:N 142:CA 142:C 143:N"));
  const Region regions[] = {{MapName::RightAlpha, "-Helix(right-handed)", helix},
                            {MapName::LeftAlpha, "(left-handed)", mirrored},
                            {MapName::Parallel, "Parallel", parallel},
                            {MapName::Antiparallel, "Antiparallel", anti}};
  for (const Region& region : regions) {
    for (const MapRule& rule : MapRules()) {
      if (rule.Name != region.Name || !rule.IsRegion) continue;
      EXPECT_EQ(rule.Area, region.Quarter) << region.Words;
    }
    std::set<std::string> captions;
    for (const Control* control : ControlsOf(work.desk.plot, region.Name)) {
      captions.insert(control->Caption.Get());
    }
    EXPECT_TRUE(captions.contains(region.Words)) << region.Words;
  }
}

// The sheet behind F1 names a colour for each element; the balls have it, and the page names it
// too.
TEST(TheColoursOfTheElements, AreThoseOfTheBalls) {
  std::map<std::string, std::string> words;
  for (const SheetSection& section : KeySheet()) {
    if (section.Heading != "Colours of the elements") continue;
    for (const SheetRow& row : section.Rows) words[row.Head] = row.Words;
  }
  ASSERT_EQ(words.size(), kElements.size());
  const std::map<char, const char*> rows{{'N', "GLY"}, {'C', "GLY"}, {'O', "GLY"}, {'H', "GLY"},
                                         {'S', "MET"}, {'P', "PHS"}, {'R', "Gen"}};
  for (const auto& [letter, key] : rows) {
    Student student(RowOf(key).IsAminoAcid() ? kAminoAcids : kNucleotides, key);
    Click(student.Desk(), student.Main().Bt_BlS);
    const Colour ink = FindElement(std::string(1, letter))->Ink;
    bool painted = false;
    for (const Stroke& stroke : student.Main().Picture1.Image()->Strokes) {
      painted = painted || (stroke.Kind == StrokeKind::Circle && stroke.Fill == ink);
    }
    EXPECT_TRUE(painted) << letter;
  }
  EXPECT_EQ(words.at("Carbon"), "green");
  EXPECT_EQ(words.at("Sulphur"), "gold");
  EXPECT_TRUE(Says("docs/handbook/picture.md",
                   "Carbon is " + words.at("Carbon") + ", nitrogen " + words.at("Nitrogen") +
                       ", oxygen " + words.at("Oxygen") + ", sulphur " + words.at("Sulphur") +
                       "en, phosphorus " + words.at("Phosphorus") + ", hydrogen " +
                       words.at("Hydrogen") + "; R, which stands for a whole side chain, is " +
                       words.at("Side chain")));
  EXPECT_TRUE(Says("docs/handbook/README.md",
                   "carbon " + words.at("Carbon") + ", nitrogen " + words.at("Nitrogen") +
                       ", oxygen " + words.at("Oxygen") + ", hydrogen " + words.at("Hydrogen")));
  EXPECT_TRUE(Says("docs/handbook/truths.md",
                   "Carbon is " + words.at("Carbon") + " here, and black or grey in most books"));
}

// RecipeOf.AgreesWithTheAtomsAsTheyWereRead holds its numbers against the atoms. Here: that "no
// bond" is said of those pairs that chemistry does not join, and of no others.
TEST(TheRecipe, SaysNoBondWhereChemistryHasNone) {
  int without = 0;
  for (const StockRow& row : AllRows()) {
    if (!row.IsAminoAcid() || row.Key == "Gen") continue;
    Student student(kAminoAcids, row.Key);
    const std::vector<std::string> bonds = stock_check::ExpectedBonds(row);
    for (int atom = 1; atom <= student.Count(); ++atom) {
      const std::string words = RecipeWords(student.Desk(), atom);
      const std::size_t from = words.find(" from ");
      if (from == std::string::npos) continue;
      const std::size_t name = from + 6;
      const std::string hangs_on = words.substr(name, words.find_first_of(" ,", name) - name);
      const auto [a, b] = std::minmax({student.Name(atom), hangs_on});
      std::string bond = "1 ";
      bond.append(a).append("-").append(b);
      const bool bonded = std::find(bonds.begin(), bonds.end(), bond) != bonds.end();
      EXPECT_EQ(words.find("(no bond)") == std::string::npos, bonded) << row.Key << ": " << words;
      without += bonded ? 0 : 1;
    }
  }
  EXPECT_EQ(without, 7);  // CD2 of TYR, PHE, TRP and HIS, CG2 of THR, VAL and ILE
}

}  // namespace
}  // namespace orvane
