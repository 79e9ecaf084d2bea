// Plays the lab sheets of the lessons, and works out again what they print from the positions of
// the atoms.
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "handbook/student.h"
#include "house/source_tree.h"
#include "replay/played.h"

namespace orvane {
namespace {

using Json = nlohmann::json;

std::string PageOf(const std::string& lesson, const char* file) {
  return "docs/lessons/" + lesson + "/" + file;
}

class Lesson : public ::testing::TestWithParam<const char*> {};

TEST_P(Lesson, PrintsTheLinesBesideIt) {
  const Played played = Play(house::ReadProjectFile(PageOf(GetParam(), "lesson.txt")));
  EXPECT_EQ(played.Errors, "");
  EXPECT_EQ(played.ExitCode, 0);
  EXPECT_EQ(played.Lines, house::ReadProjectFile(PageOf(GetParam(), "lesson.expected")));
}

// The number on the panel: the text after the colon, without the leading zero of "01.33".
std::string ShownIn(const std::string& panel) {
  const std::size_t colon = panel.find(": ");
  if (colon == std::string::npos) return "";
  std::string number = panel.substr(colon + 2, panel.find(' ', colon + 2) - colon - 2);
  if (number.starts_with('0')) number.erase(0, 1);
  return number;
}

TEST_P(Lesson, HasEachPrintedNumberAmongTheAnswersOfItsTeachersPage) {
  const std::string page = PageAsLine(PageOf(GetParam(), "teacher.md"));
  std::istringstream printed(house::ReadProjectFile(PageOf(GetParam(), "lesson.expected")));
  int numbers = 0;
  for (std::string line; std::getline(printed, line);) {
    if (!line.starts_with('{')) continue;
    const std::string shown = ShownIn(Json::parse(line)["P_Dst_Show"]);
    if (shown.empty()) continue;
    ++numbers;
    EXPECT_NE(page.find(shown), std::string::npos) << line;
  }
  EXPECT_GE(numbers, 6);
}

// The student's page has the questions but none of the answers.
TEST_P(Lesson, KeepsTheAnswersFromTheStudent) {
  const std::string page = PageAsLine(PageOf(GetParam(), "student.md"));
  std::istringstream printed(house::ReadProjectFile(PageOf(GetParam(), "lesson.expected")));
  for (std::string line; std::getline(printed, line);) {
    if (!line.starts_with('{')) continue;
    const std::string shown = ShownIn(Json::parse(line)["P_Dst_Show"]);
    if (!shown.empty()) {
      EXPECT_EQ(page.find(" " + shown + " "), std::string::npos) << line;
    }
  }
  EXPECT_GT(page.find("\\_\\_\\_"), 0u);
  EXPECT_NE(page.find("\\_\\_\\_"), std::string::npos);
}

Point AsRead(const Molecule& store, int atom) {
  return {store.AtomX[atom], store.AtomY[atom], store.AtomZ[atom]};
}

// Plays the lab sheet and compares each result on the panel with the positions, as read, of the
// atoms that were picked.
TEST_P(Lesson, ShowsTheGeometryOfItsAtoms) {
  Session session;
  const Orvane_Desk& desk = session.Desk();
  const Molecule& store = desk.molecule;
  std::istringstream script(house::ReadProjectFile(PageOf(GetParam(), "lesson.txt")));
  int presses = 0, measures = 0;
  for (std::string line; std::getline(script, line);) {
    session.Do(line);
    presses = line.starts_with("press Picture1 1 ") ? presses + 1 : presses;
    const int wanted = line == "click Bt3_Dts"   ? 2
                       : line == "click Bt3_Ang" ? 3
                       : line == "click Bt3_Trg" ? 4
                                                 : 0;
    if (wanted == 0) continue;
    if (presses == wanted) {
      const std::string panel = desk.main.P_Dst_Show.Caption;
      const double shown = std::stod(ShownIn(panel));
      const Point a = AsRead(store, store.BondAtomA), b = AsRead(store, store.BondAtomB);
      const Point c = AsRead(store, desk.measure.PickAtomC);
      const Point d = AsRead(store, desk.measure.PickAtomD);
      ++measures;
      if (wanted == 2) {
        EXPECT_NEAR(shown, Apart(a, b), 0.00501) << panel;
      } else if (wanted == 3) {
        EXPECT_NEAR(shown, AngleAt(a, b, c), 0.01) << panel;
      } else {
        const double twist = std::abs(TorsionOf(a, b, c, d));
        EXPECT_NEAR(std::abs(shown), twist < 90 ? 180 - twist : twist, 0.01) << panel;
      }
    }
    presses = 0;
  }
  EXPECT_GE(measures, 6);
}

INSTANTIATE_TEST_SUITE_P(Handbook, Lesson, ::testing::Values("peptide-bond", "hands", "base-pairs"),
                         [](const auto& lesson) {
                           std::string name = lesson.param;
                           std::erase(name, '-');
                           return name;
                         });

TEST(TheLessons, AreAllHere) {
  std::set<std::string> lessons;
  const std::filesystem::path folder =
      std::filesystem::path(ORVANE_SOURCE_DIR) / "docs" / "lessons";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.is_directory()) lessons.insert(entry.path().filename().string());
  }
  EXPECT_EQ(lessons, (std::set<std::string>{"peptide-bond", "hands", "base-pairs"}));
}

constexpr const char* kPeptide = "docs/lessons/peptide-bond/teacher.md";
constexpr const char* kPairs = "docs/lessons/base-pairs/teacher.md";

TEST(PeptideLesson, TheSixAtomsLieInOnePlane) {
  const Student dipeptide(kProteins, "PEP");
  std::vector<int> group;
  for (const char* name : {"1 CA1", "1 C!", "1 O!", "2 N!", "2 H!", "2 CA2"}) {
    group.push_back(dipeptide.Atom(name));
  }
  EXPECT_LT(LargestDistanceFromPlane(dipeptide, group), 0.02);
}

TEST(PeptideLesson, AnglesAddUpTo360InAPlaneAndToLessRoundTheAlphaCarbon) {
  Student dipeptide(kProteins, "PEP");
  const auto sum = [&](const char* centre, std::vector<const char*> round) {
    double total = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      total += dipeptide.Angle(dipeptide.Atom(round[i]), dipeptide.Atom(centre),
                               dipeptide.Atom(round[(i + 1) % 3]));
    }
    return total;
  };
  EXPECT_NEAR(sum("1 C!", {"1 CA1", "1 O!", "2 N!"}), 360, 0.05);
  EXPECT_NEAR(sum("2 N!", {"1 C!", "2 H!", "2 CA2"}), 360, 0.05);
  EXPECT_NEAR(sum("1 CA1", {"1 N", "1 C!", "1 R"}), 338.66, 0.01);
  EXPECT_TRUE(Says(kPeptide, "| **Sum** | 360.00 | **Sum** | 360.00 | **Sum** | 338.66 |"));
}

TEST(PeptideLesson, TheOutlineClosesToALine) {
  // The student turns by eight moves of four degrees about X, where 33 would be exact. The eye
  // looks along z, so the group's normal then lies in the picture.
  Session session;
  session.Do("enter\nselect Pro_Lst 0\npress Picture1 2 20 20");
  for (int move = 0; move < 8; ++move) session.Do("move Picture1 2 20 120");
  const Molecule& store = session.Desk().molecule;
  const auto now = [&](int atom) {
    return Point{store.CurX[atom], store.CurY[atom], store.CurZ[atom]};
  };
  // C! is atom 3, O! 4, N! 10.
  const Point normal = Unit(Cross(Minus(now(10), now(3)), Minus(now(4), now(3))));
  EXPECT_LT(std::abs(normal.Z), 0.05);
}

TEST(HandsLesson, H4StandsInFrontOfTheAlphaCarbon) {
  Student alanine(kAminoAcids, "ALA");
  Orvane_Desk& desk = alanine.Desk();
  for (const int value : {11, 21}) StepBar(desk, desk.main.VScroll1, value);
  Click(desk, desk.main.X_Tag[0]);
  for (const int value : {31, 41, 51}) StepBar(desk, desk.main.VScroll1, value);
  const int h4 = alanine.Atom("1 H4"), ca = alanine.Atom("1 CA");
  const Molecule& store = alanine.Store();
  EXPECT_NEAR(store.ScrX[h4], store.ScrX[ca], 3);
  EXPECT_NEAR(store.ScrY[h4], store.ScrY[ca], 3);
  EXPECT_LT(store.CurZ[h4], store.CurZ[ca] - 0.9);  // nearly the whole bond of 1.0, towards the eye

  // CO, R, N clockwise on a screen whose y grows downward.
  const auto clockwise = [&](const char* from, const char* to) {
    const int a = alanine.Atom(from), b = alanine.Atom(to);
    return (store.ScrX[a] - store.ScrX[ca]) * (store.ScrY[b] - store.ScrY[ca]) -
               (store.ScrY[a] - store.ScrY[ca]) * (store.ScrX[b] - store.ScrX[ca]) >
           0;
  };
  EXPECT_TRUE(clockwise("1 C", "1 CB"));
  EXPECT_TRUE(clockwise("1 CB", "1 N"));
  EXPECT_TRUE(clockwise("1 N", "1 C"));
}

TEST(HandsLesson, ThePiecesOfTheHelixInFrontGoUpToTheRight) {
  Student helix(kProteins, "Alfa");
  const std::vector<int> trace = helix.Named("CA");
  double front = 0, back = 0;
  for (std::size_t i = 0; i + 1 < trace.size(); ++i) {
    const Point here = helix.At(trace[i]), next = helix.At(trace[i + 1]);
    // Up to the right: x and y, which grows downward, go opposite ways.
    const double slope = -(next.X - here.X) * (next.Y - here.Y);
    ((here.Z + next.Z) / 2 < helix.Store().PivotZ ? front : back) += slope;
  }
  EXPECT_GT(front, 5);
  EXPECT_LT(back, -5);
}

TEST(HandsLesson, ItsTwoPressesTakeTheLowestAndTheTopmostAtom) {
  Session session;
  const Orvane_Desk& desk = session.Desk();
  const Molecule& store = desk.molecule;
  std::istringstream script(house::ReadProjectFile("docs/lessons/hands/lesson.txt"));
  bool seen = false;
  for (std::string line; std::getline(script, line);) {
    if (line == "click Bt3_Sterio" && !seen) {
      seen = true;
      for (int atom = 1; atom <= store.AtomCount; ++atom) {
        EXPECT_LE(store.AtomY[atom], store.AtomY[store.BondAtomA]);
        EXPECT_GE(store.AtomY[atom], store.AtomY[store.BondAtomB]);
      }
    }
    session.Do(line);
  }
  EXPECT_TRUE(seen);
  EXPECT_EQ(desk.plot.RamPlt_H.Caption.Get(), "Ramachandran Plot: Right Handed A-Helix");
  EXPECT_TRUE(desk.plot.R_Alf[0].Visible);  // right-handed, bottom left
  EXPECT_TRUE(desk.plot.L_Alf[0].Visible);  // left-handed, top right
}

TEST(PairsLesson, CountsAreThoseOfTheLists) {
  EXPECT_EQ(Student(kNucleotides, "dA").Count(), 10);
  EXPECT_EQ(Student(kNucleotides, "dT").Count(), 9);
  EXPECT_TRUE(Says(kPairs, "Adenine 10 atoms and two rings, thymine 9 and one."));
  std::map<int, int> lines;  // by the residue of the first strand
  const Student dna(kStrands, "DNA3");
  for (const Pair& pair : dna.HydrogenBonds()) {
    const int a = dna.Store().ResSeq[pair.A], b = dna.Store().ResSeq[pair.B];
    if (a != b) ++lines[std::min(a, b)];
  }
  EXPECT_EQ(lines, (std::map<int, int>{{2, 2}, {3, 3}, {4, 2}}));
  EXPECT_TRUE(Says(kPairs, "In the double strand 2, 3 and 2 lines join the strands."));
}

TEST(PairsLesson, TheReachOfTheBasesAddsUp) {
  Student a(kNucleotides, "As"), t(kNucleotides, "Ts");
  const auto rounded = [](double value) { return std::round(value * 100) / 100; };
  const double long_one = rounded(a.Length(a.Atom("1 C1*"), a.Atom("1 N1")));
  const double short_one = rounded(t.Length(t.Atom("1 C1*"), t.Atom("1 N3")));
  const auto two = [](double value) {
    return Quoted(value, 2).substr(1, Quoted(value, 2).size() - 2);
  };
  EXPECT_TRUE(Says(kPairs, "Two long bases " + two(2 * long_one) + ", two short ones " +
                               two(2 * short_one) + ", one of each " + two(long_one + short_one)));
}

TEST(PairsLesson, EveryAtomOfItsTablesCanBePressedAloneAtEightSteps) {
  Student dna(kStrands, "DNA3");
  for (int step = 1; step <= 8; ++step) {
    StepBar(dna.Desk(), dna.Main().ZoomBar, 5 * step);
  }
  for (const char* atom : {"2 N6",  "20 O4",  "2 N1",  "20 N3",  "3 O6",  "19 N4",  "3 N1", "19 N3",
                           "3 N2",  "19 O2",  "4 O4",  "18 N6",  "4 N3",  "18 N1",  "2 C2", "20 O2",
                           "2 C1*", "20 C1*", "3 C1*", "19 C1*", "4 C1*", "18 C1*", "2 N3"}) {
    EXPECT_TRUE(dna.CanPressAlone(dna.Atom(atom))) << atom;
    EXPECT_GT(dna.Store().ScrX[dna.Atom(atom)], 0) << atom;
    EXPECT_LT(dna.Store().ScrX[dna.Atom(atom)], 360) << atom;
  }
}

}  // namespace
}  // namespace orvane
