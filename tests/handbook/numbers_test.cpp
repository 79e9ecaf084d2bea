// The handbook and the lessons: none of their numbers, counts and words about shape stands there
// that no test works out. What the panel and the picture do is tested beside this, page by page;
// here each phrase is put together from the atoms once more, and what is left over is found.

#include <cmath>
#include <gtest/gtest.h>
#include <regex>
#include <set>

#include "desk_fixture.h"
#include "handbook/ledger.h"
#include "handbook/measured.h"
#include "handbook/rows_on_page.h"
#include "handbook/student.h"
#include "ramachandran/map_names.h"
#include "ramachandran/map_pictures.h"
#include "stock_check/bends_page.h"
#include "stock_check/check.h"
#include "stock_check/constitution.h"
#include "stock_check/geometry.h"
#include "stock_check/hydrogen_bonds.h"

namespace orvane {
namespace {

std::string Value(std::string_view key, std::string_view atoms, int decimals) {
  return Fixed(Measured(key, atoms), decimals);
}

void ExpectNothingLeft(const Ledger& page) {
  for (const std::string& word : page.Unaccounted()) ADD_FAILURE() << "nobody works out " << word;
}

// Words of the program that are no measures of a molecule; other tests play them.
void Mechanics(Ledger& page, const std::vector<std::string>& phrases) {
  for (const std::string& phrase : phrases) page.Says(phrase);
}

std::size_t Listed(std::string_view key) { return RowOf(key).HydrogenBonds.size(); }

std::size_t ResiduesOf(std::string_view key) { return RowOf(key).Residues().size(); }

void TruthsOfMeasures(Ledger& page) {
  page.Says("**A torsion is shown between 90 and 180, or as 0.**");
  page.Says("A torsion of up to 90 is shown by its supplement");
  page.Says("the helix has phi " + Value("Alfb", "3:C 4:N 4:CA 4:C", 0) + " and psi " +
            Value("Alfb", "4:N 4:CA 4:C 5:N", 0) + " and reads `-" +
            Fixed(Folded(Measured("Alfb", "3:C 4:N 4:CA 4:C")), 0) + "` and `-" +
            Fixed(Folded(Measured("Alfb", "4:N 4:CA 4:C 5:N")), 0) + "`; the strand has " +
            Value("Betb", "2:C 3:N 3:CA 3:C", 0) + " and +" + Value("Betb", "3:N 3:CA 3:C 4:N", 0));
  page.Says("or 180 less what you read");
  page.Says(
      "So flat is flat, and no more.** A torsion of 180 (trans) and one of 0 (cis) both read about "
      "180");
  EXPECT_GT(std::abs(Measured("PEP", "1:CA1 1:C! 2:N! 2:CA2")), 179);
  EXPECT_LT(std::abs(Measured("PEP", "1:O! 1:C! 2:N! 2:CA2")), 1);
  page.Says("which is trans, reads `" +
            Fixed(-std::abs(Measured("PEP", "1:CA1 1:C! 2:N! 2:CA2")), 2) + "`");
  page.Says("which is cis, reads `" + Fixed(Folded(Measured("PEP", "1:O! 1:C! 2:N! 2:CA2")), 2) +
            "`");
  page.Says("CA1 to CA2 is `" + Value("PEP", "1:CA1 2:CA2", 2) + "`, O! to CA2 is `" +
            Value("PEP", "1:O! 2:CA2", 2) + "`");
  page.Says("N to CA is `" + Value("ALA", "N CA", 2) + "`");
  Mechanics(page, {"counts in two cases only", "psi of the six chains",
                   "whether the four atoms are", "the same two names", "within three pixels",
                   "two of the sixty atoms cannot be pressed alone", "is called GLY 1**"});
}

void TruthsOfBonds(Ledger& page) {
  page.Says("A bond is a distance of 1.85 or less");
  page.Says("In the first three lists it is any N and any O more than 2.7 and up to 3.1 apart");
  page.Says("N1-N3, N6-O4, N4-O6 and N2-O2 more than 2.0 and up to 3.3 apart");
  page.Says("N to O of the same residue, `" + Value("SER", "N O", 2) +
            "` apart, and serine a second one, N to OG, `" + Value("SER", "N OG", 2) +
            "`; neither is a good one, since the angles N-H..O and N-H..OG are `" +
            Value("SER", "N H1 O", 0) + "` and `" + Value("SER", "N H1 OG", 0) +
            "`, where that of a hydrogen bond is nearly straight");
  for (const char* oxygen : {"O", "OG"}) {
    for (const char* farther : {"H2", "H3"}) {
      EXPECT_LT(Measured("SER", std::string("H1 ") + oxygen),
                Measured("SER", std::string(farther) + " " + oxygen));
    }
  }
  EXPECT_GT(Measured("Alfb", "5:N 5:H1 1:O"), 160);
  page.Says("the dipeptide shows " + CountWord(Listed("PEP")) + " of `" +
            Value("PEP", "1:N 1:O!", 2) + "`");
  page.Says("`DNA3` shows " + std::to_string(Listed("DNA3")) +
            ", of which 7 join the strands and 6 run across a ring");
  EXPECT_EQ(Listed("S1DNA"), Listed("S2DNA"));
  page.Says("a single strand shows " + std::to_string(Listed("S1DNA")) + ", all of that kind");
  page.Says("`Alfa` shows " + std::to_string(Listed("Alfa")) + ", `Alfb` " +
            std::to_string(Listed("Alfb")) + ", `PBS` " + std::to_string(Listed("PBS")) +
            ", `APBS` " + std::to_string(Listed("APBS")) +
            ", all of them where a protein has them; " +
            std::to_string(stock_check::ListedAtCutEnds(RowOf("APBS")).size()) + " of the " +
            std::to_string(Listed("APBS")) + " begin at the cut end of a strand");
  // StockCheck holds the other entries against their energies.
}

void TruthsOfHands(Ledger& page) {
  Mechanics(page, {"**Amino acids are L, helices are right-handed.**", "are then read clockwise",
                   "is the left one turned by 180 degrees about the upright axis",
                   "between the two stereo pictures is taken from the two atoms last looked at",
                   "a right-handed helix looks left-handed", "The same two atoms decide"});
}

// A mark of the map, by the numbers at the edge: 180 degrees to 140 pixels.
double MarkOff(MapName name, double phi, double psi, bool of_phi) {
  for (const MapRule& rule : MapRules()) {
    if (rule.Name != name || !rule.IsRegion) continue;
    const double degree = 180.0 / 140;
    const double left = (rule.Area == 3 ? 0 : -180), top = (rule.Area == 1 ? 0 : 180);
    const double low = of_phi ? left + rule.Left * degree : top - rule.Bottom * degree;
    const double high = of_phi ? left + rule.Right * degree : top - rule.Top * degree;
    const double true_one = of_phi ? phi : psi;
    return true_one < low ? low - true_one : true_one > high ? high - true_one : 0;
  }
  ADD_FAILURE() << "no mark";
  return 0;
}

void TruthsOfTheMap(Ledger& page) {
  DeskAtWork work;
  page.Says("All ten dots of the helix are the same conformation");
  page.Says("The ten dots of `Alfa` lie");
  page.Says("of 139 on a fresh desk");
  page.Says("`Alfa` has " + std::to_string(ResiduesOf("Alfa")) + " residues and 10 dots, `Beta` " +
            std::to_string(ResiduesOf("Beta")) + " and 4");
  Mechanics(page, {"in the two sheets, are no residues", "beside the upright axis",
                   "Sheets are named where flat ones lie"});
  // The chains of the headings: A and B are alpha and beta.
  for (const auto& [row, heading] :
       {std::pair(1, "A-Helix"), std::pair(3, "B-Strand"), std::pair(5, "B-pleated")}) {
    SelectRow(work.desk, work.desk.main.Pro_Lst, row);
    Click(work.desk, work.desk.main.RCDP);
    EXPECT_NE(work.desk.plot.RamPlt_H.Caption.Get().find(heading), std::string::npos) << row;
    page.Says("`" + std::string(heading) + "`");
  }
  // IUPAC-IUB (1970).
  constexpr struct {
    MapName Name;
    double Phi, Psi;
  } kBooks[] = {{MapName::RightAlpha, -57, -47},    {MapName::ThreeTenHelix, -49, -26},
                {MapName::LeftAlpha, 57, 47},       {MapName::Parallel, -119, 113},
                {MapName::Antiparallel, -139, 135}, {MapName::Extended, -180, -180}};
  double helices = 0;
  for (const auto& book : kBooks) {
    const double phi = MarkOff(book.Name, book.Phi, book.Psi, true);
    const double psi = MarkOff(book.Name, book.Phi, book.Psi, false);
    switch (book.Name) {
      case MapName::Parallel:
      case MapName::Antiparallel:
        EXPECT_EQ(Fixed(phi, 0), "14");
        EXPECT_EQ(psi, 0);
        break;
      case MapName::LeftAlpha:
        EXPECT_EQ(Fixed(psi, 0), "28");
        EXPECT_LT(std::abs(phi), 1);
        break;
      case MapName::Extended:
        EXPECT_EQ(phi, 0);
        EXPECT_LT(std::abs(psi), 3);
        break;
      default:
        helices = std::max({helices, std::abs(phi), std::abs(psi)});
    }
  }
  EXPECT_EQ(Fixed(helices, 0), "5");
  page.SaysBySource("**The marks are not where the books have them**");
  page.Says(
      "Both sheets are marked with phi `14` degrees too far to the right, and the left-handed "
      "helix with psi `28` degrees too high");
  page.Says("The right-handed helix and the 3-10 helix are off by no more than `5`");
  const auto colour = [&](double phi, double psi) {  // in the quarter of both below 0
    const int x = static_cast<int>((phi + 180) * 140 / 180), y = static_cast<int>(-psi * 140 / 180);
    return MapPicture(work.desk, 1)->Words[static_cast<std::size_t>(y * 140 + x)];
  };
  EXPECT_EQ(colour(-57, -47), 0xFFFE8F95);  // 254, 143, 149
  page.Says(
      "by the same numbers the helix, at -57 and -47, falls on the colour of the outer limits");
  EXPECT_EQ(colour(-49, -26), 0xFFFFCECE);  // 255, 206, 206
  page.Says("the 3-10 helix, at -49 and -26, on the palest red, which is forbidden");
}

std::vector<std::size_t> RunsIn(std::string_view key) {
  std::vector<std::size_t> runs;
  int before = -10;
  for (const int residue : RowOf(key).Residues()) {
    if (residue != before + 1) runs.push_back(0);
    ++runs.back();
    before = residue;
  }
  return runs;
}

void TruthsOfWhatIsThere(Ledger& page) {
  const auto number = [](std::size_t count) { return std::to_string(count); };
  const std::vector<std::size_t> parallel = RunsIn("PBS");
  page.Says("`Alfa` " + number(ResiduesOf("Alfa")) + " residues, `Alfb` " +
            number(ResiduesOf("Alfb")) + ", `Beta` " + number(ResiduesOf("Beta")) + ", `Betb` " +
            number(ResiduesOf("Betb")) + "; `PBS` " + CountWord(parallel.size()) + " strands of " +
            number(parallel[0]) + ", " + number(parallel[1]) + " and " + number(parallel[2]) +
            ", `APBS` " + CountWord(RunsIn("APBS").size()) + " of " + number(RunsIn("APBS")[0]));
  EXPECT_EQ(ResiduesOf("DNA3"), 6u);
  page.Says("The DNA has three pairs: A2-T20, G3-C19 and T4-A18");
  page.Says("phosphate and the two sugars have hydrogens");
  page.Says("A press there takes two atoms");
  const auto oxygens = [](const char* key, std::string_view phosphorus) {
    const StockRow& row = RowOf(key);
    const std::size_t colon = phosphorus.find(':');
    const int p = row.Find(std::stoi(std::string(phosphorus.substr(0, colon))), "P");
    std::size_t count = 0;
    for (const auto& pair : row.Joined) count += pair.A == p || pair.B == p ? 1 : 0;
    return std::to_string(count);
  };
  page.Says("the first phosphorus of a strand of DNA has " + oxygens("S1DNA", "2:P") +
            " oxygens instead of " + oxygens("S1DNA", "3:P"));

  page.Says("CA-C of the dipeptide (drawn `" + Value("PEP", "1:CA1 1:C!", 2) + "`, true 1.53)");
  page.Says("C2-H2B of deoxyribose (`" + Value("DRB", "C2 H2B", 2) + "`, true " +
            Value("DRB", "C2 H2A", 2) + ")");
  page.Says("not N - CA - CB (drawn `" + Value("VAL", "N CA CB", 1) + "`, true about 110)");
  std::string bent;
  std::set<std::string> sound;
  for (const StockRow& row : AllRows()) {
    if (!row.IsAminoAcid() || row.Key == "Gen") continue;
    bool own = false;
    for (const auto& bend : stock_check::BendsOf(row)) own = own || !stock_check::IsCommon(bend);
    if (own) {
      bent += (bent.empty() ? "" : ", ") + ("`" + row.Key + "`");
    } else {
      sound.insert(row.Key);
    }
  }
  page.Says("nor what is bent in one alone: in " + bent + ".");
  EXPECT_EQ(sound, (std::set<std::string>{"VAL", "CYS", "SER"}));
  const auto worst = [&](const char* words, const char* key, const char* atoms, bool first) {
    page.Says(std::string(words) + " (" + (first ? "drawn " : "") + "`" + Value(key, atoms, 1) +
              "`, true " + Fixed(PublishedMean(key, atoms), 0) + ")");
  };
  worst("CD - CE - NZ of lysine", "LYS", "CD CE NZ", true);
  worst("CG - SD - CE of methionine", "MET", "CG SD CE", false);
  worst("CD - NE - CZ of arginine", "ARG", "CD NE CZ", false);
  worst("CG - CD - OE2 of glutamic acid", "GLU", "CG CD OE2", false);

  const auto oxygen_atoms = [](std::string_view key) {
    std::size_t count = 0;
    for (const auto& atom : RowOf(key).Atoms) count += atom.Name.front() == 'O' ? 1 : 0;
    return count;
  };
  for (const char* name : {"TRIPTOPHANE", "ARGENINE", "ASPARTIC", "GLUTAMIC"}) {
    bool listed = false;
    for (const StockRow& row : AllRows())
      listed = listed || row.Text.find(name) != std::string::npos;
    EXPECT_TRUE(listed) << name;
    page.Says("`" + std::string(name) + "`");
  }
  EXPECT_EQ(RowOf("A").Text, "A   DeoxyAdenosine (Nucleotide A)");
  EXPECT_GE(RowOf("A").Find("P"), 0);
  page.Says("they have " + number(oxygen_atoms("RIB")) + " and " + number(oxygen_atoms("DRB")) +
            " oxygens, the free sugars " + number(oxygen_atoms("RIB") + 1) + " and " +
            number(oxygen_atoms("DRB") + 1));
  const double phase = stock_check::SugarOf(RowOf("RIB"), 1).Phase;
  EXPECT_TRUE(phase > 144 && phase < 180);
  page.Says("They are bent as in DNA, C2'-endo");
}

TEST(Numbers, OfTheTruthsAreWorkedOut) {
  Ledger page = Ledger::OfPage("docs/handbook/truths.md");
  TruthsOfMeasures(page);
  TruthsOfBonds(page);
  TruthsOfHands(page);
  TruthsOfTheMap(page);
  TruthsOfWhatIsThere(page);
  Mechanics(
      page,
      {"nor what is bent in one alone", "Only turning, or two eyes, tells front from back",
       "A step up makes it 1.1 times as large, a step down 0.9 times",
       "turns the molecule by 10 degrees", "for the twenty amino acids", "with straight lines",
       "sometimes wants two clicks", "A picture file has a name of one to three letters"});
  ExpectNothingLeft(page);
}

// The minutes of a lesson are those of its steps together.
void Minutes(Ledger& page, const std::string& path) {
  const std::string text = PageAsLine(path);
  const std::size_t from = text.find("**Minutes: "), to = text.find(" ## ", from);
  std::string paragraph = text.substr(from, to - from);
  if (const std::size_t without = paragraph.find(" Without "); without != std::string::npos) {
    page.Says(paragraph.substr(without + 1));
    paragraph.resize(without);
  }
  page.Says(paragraph);
  const std::regex step(R"(([0-9]+|end|Talk): ([0-9]+))");
  int sum = 0;
  for (std::sregex_iterator it(paragraph.begin(), paragraph.end(), step), end; it != end; ++it) {
    sum += std::stoi((*it)[2]);
  }
  EXPECT_TRUE(paragraph.starts_with("**Minutes: " + std::to_string(sum) + ".**"))
      << path << " " << sum;
}

// Each "| atoms | value |" of a page, the atoms as "CA1 - C! - N!" or "A2 N6 - T20 O4".
void Cells(Ledger& page, const std::string& path, std::string_view key, int at_least) {
  const std::string text = PageAsLine(path);
  const std::regex cell(
      R"(\| ([A-Za-z0-9!*\\' ]+( - [A-Za-z0-9!*\\' ]+)+) \| ([0-9]+\.[0-9]+) \|)");
  int found = 0;
  std::string::const_iterator from = text.begin();
  for (std::smatch match; std::regex_search(from, text.end(), match, cell);) {
    std::string atoms;
    for (std::string label : SplitAt(match[1], " - ")) {
      std::erase(label, '\\');
      const std::size_t blank = label.find(' ');
      if (blank != std::string::npos)
        label = label.substr(1, blank - 1) + ":" + label.substr(blank + 1);
      atoms += (atoms.empty() ? "" : " ") + label;
    }
    EXPECT_EQ(Value(key, atoms, 2), match[3].str()) << path << ": " << atoms;
    page.Says(match[0].str());
    ++found;
    from = match[3].second;  // the bar behind it begins the next cell
  }
  EXPECT_GE(found, at_least) << path;
}

TEST(Numbers, OfThePeptideLessonAreWorkedOut) {
  const std::string path = "docs/lessons/peptide-bond/teacher.md";
  Ledger page = Ledger::OfPage(path);
  Minutes(page, path);
  page.Says("The six atoms of a peptide group lie in one plane");
  EXPECT_LT(FarthestFromPlane(PlacesOf(RowOf("PEP"), "1:CA1 1:C! 1:O! 2:N! 2:H! 2:CA2")), 0.02);
  page.Says("these two are not free either");
  Cells(page, path, "PEP", 9);
  for (const char* bond : {"N CA1", "C! N!", "N! CA2", "C! O!"}) {
    const std::vector<std::string> names = SplitAt(bond, " ");
    page.Says("| " + names[0] + " - " + names[1] + " | " + Value("PEP", bond, 2) + " |");
  }
  page.SaysBySource("shorter: between single (1.47) and double (1.28)");
  page.Says("The sum is 360 in a plane and less out of it");
  // As a student adds them up, from what the panel shows.
  const auto sum = [](const char* a, const char* b, const char* c) {
    double total = 0;
    for (const char* angle : {a, b, c}) total += std::stod(Value("PEP", angle, 2));
    return total;
  };
  page.Says("| **Sum** | " + Fixed(sum("CA1 C! N!", "O! C! N!", "CA1 C! O!"), 2) + " | **Sum** | " +
            Fixed(sum("C! N! CA2", "C! N! H!", "H! N! CA2"), 2) + " | **Sum** | " +
            Fixed(sum("N CA1 C!", "N CA1 R", "C! CA1 R"), 2) + " |");
  const auto folded = [](std::string_view key, std::string_view atoms) {
    return Fixed(Folded(Measured(key, atoms)), 2);
  };
  page.Says("-" + folded("PEP", "1:CA1 1:C! 2:N! 2:CA2") + ", " +
            folded("PEP", "1:O! 1:C! 2:N! 2:H!") + " and " + folded("PEP", "1:O! 1:C! 2:N! 2:CA2") +
            ": all three are flat");
  page.Says(Value("PEP", "CA1 CA2", 2) + " and " + Value("PEP", "1:O! CA2", 2) + ": trans");
  page.Says(
      "The third torsion of step 5 is cis, since O! and CA2 are on the same side; it reads like "
      "the other two");
  page.Says("The torsions of the helix: " + folded("Alfb", "3:CA 3:C 4:N 4:CA") + ", -" +
            folded("Alfb", "3:C 4:N 4:CA 4:C") + ", -" + folded("Alfb", "4:N 4:CA 4:C 5:N"));
  page.Says("Of the strand: -" + folded("Betb", "2:CA 2:C 3:N 3:CA") + ", -" +
            folded("Betb", "2:C 3:N 3:CA 3:C") + ", " + folded("Betb", "3:N 3:CA 3:C 4:N"));
  page.Says("Two of the three turn, C-N does not");

  // How much of the map is of the palest red; the fourth quarter has no other colour.
  DeskAtWork work;
  std::size_t forbidden = std::size_t{140} * 140, all = forbidden;
  for (int index = 0; index < 3; ++index) {
    for (const std::uint32_t word : MapPicture(work.desk, index)->Words) {
      forbidden += word == 0xFFFFCECE ? 1 : 0;  // 255, 206, 206
      ++all;
    }
  }
  page.Says(
      "Forbidden: " + Fixed(100 * static_cast<double>(forbidden) / static_cast<double>(all), 0) +
      " in 100 of the map. " + std::to_string(Listed("Alfa")) + ".");
  page.Says("it takes one bond of three, and the other two are left");
  page.Says("held by two things that step 9 shows");
  page.SaysBySource("water drives the oily side chains together");

  page.Says("The helix has phi " + Value("Alfb", "3:C 4:N 4:CA 4:C", 0) + " in my book");
  page.Says("Orvane shows a torsion of less than 90 as its supplement: 180 - 57 = " +
            std::to_string(180 - 57) + ", and 180 - 47 = " + std::to_string(180 - 47));
  page.Says("The strand's " + Value("Betb", "2:C 3:N 3:CA 3:C", 0) + " and " +
            Value("Betb", "3:N 3:CA 3:C 4:N", 0) + " are shown as they are");
  page.Says("**CA1 - C! is drawn " + Value("PEP", "CA1 C!", 2) +
            " long**, far too short (1.53 is true), so that the plane shows well. That is why CA1 "
            "to CA2 is " +
            Value("PEP", "CA1 CA2", 2) + " here and " + Value("Alfa", "1:CA 2:CA", 2) +
            " in the chains");
  EXPECT_EQ(Value("Betb", "1:CA 2:CA", 2), Value("Alfa", "1:CA 2:CA", 2));
  page.Says("The angle C! - N! - H! is " + Value("PEP", "C! N! H!", 2) + ", where 119 is usual");
  EXPECT_EQ(Value("Alfb", "1:C 2:N 2:H1", 0), "119");
  page.Says("**N - CA1 - R is too wide**, " + Value("PEP", "N CA1 R", 2) + " where 110.5 is usual");
  page.Says("far from 360 all the same");
  Mechanics(page, {"Two atoms at once", "between two presses", "and two tags appear**",
                   "Keep to residues 2 to 4", "Step 1 does not need it"});
  ExpectNothingLeft(page);
}

TEST(Numbers, OfTheHandsLessonAreWorkedOut) {
  const std::string path = "docs/lessons/hands/teacher.md";
  Ledger page = Ledger::OfPage(path);
  Minutes(page, path);
  Cells(page, path, "Gen", 6);
  page.Says(
      "In a plane, neighbours would be 90 apart. The corners of a tetrahedron (109.5 if it were "
      "regular)");
  page.Says(
      "Two of the six are bent further than in nature, N - CA - R (true 110.5) and H4 - CA - N");
  // The other four are within the limit of a bend.
  for (const char* atoms : {"N CA C", "C CA R", "H4 CA C", "H4 CA R"}) {
    EXPECT_LT(std::abs(Measured("Gen", atoms) - 109.5), 5) << atoms;
  }
  EXPECT_GT(std::abs(Measured("Gen", "N CA R") - 110.5), 5);
  EXPECT_GT(std::abs(Measured("Gen", "H4 CA N") - 109.5), 5);
  page.Says("H4 and H5. The mirror form of glycine is glycine");
  Mechanics(page,
            {"Clockwise.", "Left: clockwise. Right: the other way",
             "right-handed. Dots: bottom left", "Right-handed: bottom left",
             "Left-handed: top right", "top right, left-handed", "about the upright axis",
             "They do not say which way", "why step 2 says where H is", "why step 5 needs two eyes",
             "show step 5 with a real spring", "it shows a left-handed helix",
             "The two presses of step 5", "of the two arrangements", "**Reset twice** after step 3",
             "of the right-handed helix. They are placed", "It does so in step 6"});
  page.Says("Threonine's is the natural one, (2S,3R)");
  page.Says("the one in Orvane is allo-isoleucine, (2S,3R) where nature has (2S,3S)");
  ExpectNothingLeft(page);
}

TEST(Numbers, OfThePairsLessonAreWorkedOut) {
  const std::string path = "docs/lessons/base-pairs/teacher.md";
  Ledger page = Ledger::OfPage(path);
  Minutes(page, path);
  page.Says("Three reasons why A goes with T");
  page.Says("Adenine " + std::to_string(RowOf("dA").Atoms.size()) +
            " atoms and two rings, thymine " + std::to_string(RowOf("dT").Atoms.size()) +
            " and one");
  // Rings: bonds that a tree of the atoms would not have.
  EXPECT_EQ(RowOf("dA").Joined.size() - (RowOf("dA").Atoms.size() - 1), 2u);
  EXPECT_EQ(RowOf("dT").Joined.size() - (RowOf("dT").Atoms.size() - 1), 1u);
  const double long_one = Measured("As", "C1* N1"), short_one = Measured("Ts", "C1* N3");
  page.Says("| A | C1\\* - N9 | " + Value("As", "C1* N9", 2) + " | C1\\* - N1 | " +
            Fixed(long_one, 2) + " |");
  page.Says("| T | C1\\* - N1 | " + Value("Ts", "C1* N1", 2) + " | C1\\* - N3 | " +
            Fixed(short_one, 2) + " |");
  page.Says("In the double strand 2, 3 and 2 lines join the strands");
  for (const char* bridge : {"2:N6 20:O4", "2:N1 20:N3", "3:O6 19:N4", "3:N1 19:N3", "3:N2 19:O2",
                             "4:O4 18:N6", "4:N3 18:N1"}) {
    const std::vector<std::string> ends = SplitAt(bridge, " ");
    const auto label = [](const std::string& end) {
      const std::size_t colon = end.find(':');
      const int residue = std::stoi(end.substr(0, colon));
      return std::string(1, stock_check::BaseOf(RowOf("DNA3"), residue)) + end.substr(0, colon) +
             " " + end.substr(colon + 1);
    };
    page.Says("| " + label(ends[0]) + " - " + label(ends[1]) + " | " + Value("DNA3", bridge, 2) +
              " |");
  }
  page.Says(Value("DNA3", "2:C2 20:O2", 2) + ". There is no line");
  for (const char* pair : {"2:C1* 20:C1*", "3:C1* 19:C1*", "4:C1* 18:C1*"}) {
    EXPECT_EQ(Value("DNA3", pair, 2), "10.73");
  }
  page.Says("10.73 in all three pairs");
  const auto rounded = [](double value) { return std::round(value * 100) / 100; };
  const double twice_long = 2 * rounded(long_one), twice_short = 2 * rounded(short_one);
  page.Says("Two long bases " + Fixed(twice_long, 2) + ", two short ones " + Fixed(twice_short, 2) +
            ", one of each " + Fixed((twice_long + twice_short) / 2, 2));
  page.Says("Two long ones would push the strands apart, two short ones would not reach");
  page.Says("With a bridge of about 2.9 the three come to " + Fixed(twice_long + 2.9, 1) + ", " +
            Fixed(twice_short + 2.9, 1) + " and " + Fixed((twice_long + twice_short) / 2 + 2.9, 1) +
            ". The path along the atoms bends, so 11.7 along it is 10.73 straight across");
  page.Says(" " + Value("DNA3", "2:N1 2:N3", 2) + ". It is far too short");
  page.Says("more than 2.0 and up to 3.3 Angstrom");
  page.Says("`DNA3` has " + CountWord(Listed("DNA3")) +
            " entries: seven true bridges and six across rings");
  page.Says("A student who finds thirteen has counted correctly");
  page.Says("looks for N with O, 2.7 to 3.1 apart");
  Mechanics(page, {"The marks of step 1 come from the book", "After eight steps every atom",
                   "lower arrow of the turn bar nine times"});
  page.Says("each turned by 36 degrees from the next");  // Dna.EachStrandIsAScrewOfTenNucleotides
  ExpectNothingLeft(page);
}

// They ask, so few numbers stand there, and what they count is said in words.
TEST(Numbers, OfTheStudentsPagesAreWorkedOut) {
  Ledger peptide = Ledger::OfPage("docs/lessons/peptide-bond/student.md");
  peptide.Says("as a number from 90 to 180");
  peptide.Says("reads about 180");
  for (const char* atoms : {"CA 3 - C 3 - N 4 - CA 4", "C 3 - N 4 - CA 4 - C 4",
                            "N 4 - CA 4 - C 4 - N 5", "CA 2 - C 2 - N 3 - CA 3",
                            "C 2 - N 3 - CA 3 - C 3", "N 3 - CA 3 - C 3 - N 4", "C 3 is the C"}) {
    peptide.Says(atoms);
  }
  peptide.Says("whose tag gives residue 3");
  Ledger hands = Ledger::OfPage("docs/lessons/hands/student.md");
  hands.Says("with phi +57 and psi +47");
  EXPECT_NEAR(Measured("Alfa", "3:C 4:N 4:CA 4:C"), -57, 0.1);
  EXPECT_NEAR(Measured("Alfa", "4:N 4:CA 4:C 5:N"), -47, 0.1);
  Ledger pairs = Ledger::OfPage("docs/lessons/base-pairs/student.md");
  pairs.Says("your numbers from step 2");
  pairs.Says("from step 3");
  for (const Ledger* page : {&peptide, &hands, &pairs}) {
    for (const std::string& word : page->Unaccounted()) {
      if (std::isdigit(
              static_cast<unsigned char>(word.find_first_of("+-") == 0 ? word[1] : word[0]))) {
        ADD_FAILURE() << "nobody works out " << word;
      }
    }
  }
}

TEST(Numbers, OfTheWordsForTheFirstFiveMinutesAreWorkedOut) {
  Ledger page = Ledger::OfPage("docs/handbook/README.md");
  EXPECT_EQ(AllRows().size(), 46u);
  Mechanics(page, {"two eyes, mirror forms", "each of the 46 rows", "[Three lessons]",
                   "how far four atoms in a chain are twisted", "*PBP* is the peptide bond plane"});
  page.Says("a little less than the length of a C-H bond (" + Value("Alfb", "2:CB 2:H5", 2) + ")");
  ExpectNothingLeft(page);
}

}  // namespace
}  // namespace orvane
