#include "narration/map_words.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

#include "narration/chosen_row.h"
#include "stock_check/geometry.h"

namespace orvane {
namespace {

struct MapWordsTest : testing::Test, DeskAtWork {
  MainWindow& main = desk.main;

  void Survey(std::string_view row) {
    Choose(*this, main.Pro_Lst, row);
    Click(desk, main.RCDP);
  }
  std::string At(std::size_t area, float x, float y, float reach = 1) const {
    return MapWords(desk, desk.plot.Area[area], x, y, reach);
  }
  std::vector<Stroke> Circles(std::size_t area) const {
    return desk.plot.Area[area].Image()->Strokes;
  }
};

struct Said {
  std::string Residue;
  double Phi = 0, Psi = 0;
};

double NumberOf(std::string text) {
  const std::string minus = "−";
  if (text.starts_with(minus)) text.replace(0, minus.size(), "-");
  return std::stod(text);
}

std::vector<Said> Understood(const std::string& words) {
  static const std::regex kLine("([A-Za-z]+ [0-9]+): phi (.*)°, psi (.*)°");
  std::vector<Said> lines;
  std::istringstream text(words);
  for (std::string line; std::getline(text, line);) {
    std::smatch part;
    EXPECT_TRUE(std::regex_match(line, part, kLine)) << line;
    if (!part.empty()) lines.push_back({part[1], NumberOf(part[2]), NumberOf(part[3])});
  }
  return lines;
}

// The survey shows a torsion by its size beyond a right angle: 180 less that of the atoms. Here
// the torsion is measured by the planes of its atoms.
double Surveyed(const Molecule& m, int a, int b, int c, int d) {
  const auto at = [&](int atom) { return Point{m.AtomX[atom], m.AtomY[atom], m.AtomZ[atom]}; };
  const double true_one = std::abs(TorsionOf(at(a), at(b), at(c), at(d)));
  return std::max(true_one, 180 - true_one);
}

TEST_F(MapWordsTest, ThereAreNoWordsBeforeASurvey) {
  EXPECT_EQ(At(1, 70, 70, 1000), "");
  Choose(*this, main.Pro_Lst, "Alfa");
  EXPECT_EQ(At(1, 70, 70, 1000), "");
}

// Twelve residues of five atoms, the second of which is the alpha carbon. So row k is residue k +
// 1, whose alpha carbon is atom 5 k + 2. Phi and psi of the helix are negative.
TEST_F(MapWordsTest, EachCircleOfTheHelixGivesItsResidueAndItsTorsions) {
  Survey("Alfa");
  const auto circles = Circles(1);
  ASSERT_EQ(circles.size(), 10U);
  for (std::size_t k = 0; k < circles.size(); ++k) {
    const int ca = 5 * (static_cast<int>(k) + 1) + 2;
    const std::string residue = "Alanine " + std::to_string(k + 2);
    bool told = false;
    for (const Said& said : Understood(At(1, circles[k].X1, circles[k].Y1))) {
      if (said.Residue != residue) continue;
      told = true;
      // The survey's factor for degrees is too large by a factor of 1.00002: 0.003 in 180.
      EXPECT_NEAR(said.Phi, -Surveyed(desk.molecule, ca - 4, ca - 1, ca, ca + 1), 0.06);
      EXPECT_NEAR(said.Psi, -Surveyed(desk.molecule, ca - 1, ca, ca + 1, ca + 4), 0.06);
    }
    EXPECT_TRUE(told) << residue;
  }
}

TEST_F(MapWordsTest, TheStrandHasPositivePsi) {
  Survey("Beta");
  const auto circles = Circles(0);
  ASSERT_EQ(circles.size(), 4U);
  const auto lines = Understood(At(0, circles[0].X1, circles[0].Y1));
  ASSERT_FALSE(lines.empty());
  EXPECT_LT(lines.front().Phi, -90);
  EXPECT_GT(lines.front().Psi, 90);
}

// Residues of a sheet have the names and numbers of their own chains. Each plotted residue is named
// at its own circle.
TEST_F(MapWordsTest, EveryPlottedResidueOfASheetIsNamedAtOneCircle) {
  Survey("PBS");
  std::set<std::string> residues;
  for (std::size_t area = 0; area < 4; ++area) {
    for (const Stroke& circle : Circles(area)) {
      const auto lines = Understood(At(area, circle.X1, circle.Y1));
      EXPECT_FALSE(lines.empty());
      for (const Said& said : lines) residues.insert(said.Residue);
    }
  }
  EXPECT_EQ(residues.size(), 18U);
  EXPECT_TRUE(residues.contains("Valine 50"));
  EXPECT_FALSE(residues.contains("Alanine 47"));  // the first has no torsion before it
}

TEST_F(MapWordsTest, OnlyCirclesWithinReachAreNamed) {
  Survey("Beta");
  const Stroke circle = Circles(0)[0];
  float leftmost = circle.X1;
  for (const Stroke& other : Circles(0)) leftmost = std::min(leftmost, other.X1);
  EXPECT_EQ(At(0, leftmost - 5, circle.Y1, 4), "");
  EXPECT_NE(At(0, circle.X1 + 1, circle.Y1 + 1, 4), "");
  EXPECT_EQ(At(1, circle.X1, circle.Y1, 4), "");  // another area
}

TEST_F(MapWordsTest, AskingChangesNothingOnTheMap) {
  Survey("Alfa");
  const auto before = Circles(1);
  const double row = desk.survey.PhiList[1];
  At(1, before[0].X1, before[0].Y1);
  EXPECT_EQ(Circles(1), before);
  EXPECT_EQ(desk.survey.PhiList[1], row);
}

}  // namespace
}  // namespace orvane
