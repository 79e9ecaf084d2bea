#include "narration/recipe.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numbers>
#include <regex>

#include "core/loader.h"
#include "narration/chosen_row.h"
#include "narration/names.h"
#include "stock/catalogue_tables.h"
#include "stock/generator.h"
#include "stock_check/geometry.h"

namespace orvane {
namespace {

constexpr std::string_view kFixed = "Fixed: part of the frame of every amino acid";

struct RecipeTest : testing::Test, DeskAtWork {
  MainWindow& main = desk.main;
  std::string Recipe(int atom) const { return RecipeWords(desk, atom); }
  void Build(std::string_view key) { Choose(*this, main.AA_Lst, key); }
};

// The first five atoms are the frame. H2 is opposite C, 109 degrees from CA.
TEST_F(RecipeTest, GivesLengthAngleAndTorsionByTheAtomsThatSpanThem) {
  Build("SER");
  EXPECT_EQ(Recipe(11), "1.422 Å from CB, angle OG–CB–CA 108.1°, torsion OG–CB–CA–N 53.7°");
}

// 289 is 109 on the other side of the axis plus half a turn. CB is at 360 - 295.04 and 180 - 69.98.
TEST_F(RecipeTest, GivesTheEntriesWhereTheyCountDifferently) {
  Build("ALA");
  EXPECT_EQ(
      Recipe(8),
      "1 Å from N, angle H3–N–CA 109.0°, torsion H3–N–CA–C −60.0°\n(entered as 289° and 60°)");
  EXPECT_EQ(Recipe(10),
            "1.5 Å from CA, angle CB–CA–C 110.0°, torsion CB–CA–C–O 65.0°\n(entered as 69.98° and "
            "295.04°)");
}

TEST_F(RecipeTest, SaysThatTheFrameIsFixed) {
  Build("ALA");
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(Recipe(i), kFixed);
  EXPECT_NE(Recipe(6), kFixed);
}

TEST_F(RecipeTest, SaysWhenTheLengthIsNotABond) {
  Build("THR");
  EXPECT_THAT(Recipe(12),
              testing::StartsWith("2.381 Å from OG1 (no bond), angle CG2–OG1–CB 38.6°"));
}

TEST_F(RecipeTest, IsEmptyForWhatWasNotBuiltHere) {
  EXPECT_EQ(Recipe(1), "");
  Build("Gen");
  EXPECT_EQ(Recipe(2), "");
  Choose(*this, main.Pro_Lst, "PEP");
  EXPECT_EQ(Recipe(2), "");
}

TEST_F(RecipeTest, IsGoneWithTheNextStructure) {
  Build("ALA");
  ASSERT_NE(Recipe(13), "");
  Choose(*this, main.Nuc_Lst, "RIB");
  ASSERT_GE(desk.molecule.AtomCount, 13);
  for (int i = 1; i <= desk.molecule.AtomCount; ++i) EXPECT_EQ(Recipe(i), "");
}

TEST_F(RecipeTest, IsEmptyForANumberThatNoAtomHas) {
  Build("ALA");
  EXPECT_EQ(Recipe(0), "");
  EXPECT_EQ(Recipe(-3), "");
  EXPECT_EQ(Recipe(14), "");
}

TEST_F(RecipeTest, StaysTheSameHoweverTheViewIsTurned) {
  Build("LEU");
  const std::string before = Recipe(13);
  StepBar(desk, main.VScroll1, 41);
  StepBar(desk, main.ZoomBar, 5);
  EXPECT_EQ(Recipe(13), before);
}

// ---- The words compared with the atoms as read, by routines that are not the recipe's own. ----

double InDegrees(double radians) { return radians * 180 / std::numbers::pi; }

// How far a stands from the line through b and c.
double FromAxis(const Point& a, const Point& b, const Point& c) {
  return LengthOf(Cross(Minus(a, b), Unit(Minus(c, b))));
}

struct Said {
  double Length = 0, Angle = 0, Torsion = 0;
  std::array<std::string, 4> Names;
  bool NoBond = false;
};

double NumberOf(std::string text) {
  const std::string minus = "−";
  if (text.starts_with(minus)) text.replace(0, minus.size(), "-");
  return std::stod(text);
}

Said Understood(const std::string& words) {
  static const std::regex kForm(
      "([0-9.]+) Å from (\\w+)( \\(no bond\\))?, angle (\\w+)–(\\w+)–(\\w+) ([0-9.]+)°, "
      "torsion (\\w+)–(\\w+)–(\\w+)–(\\w+) ((−)?[0-9.]+)°(\n\\(entered as .*\\))?");
  std::smatch part;
  EXPECT_TRUE(std::regex_match(words, part, kForm)) << words;
  if (part.empty()) return {};
  EXPECT_EQ(part[2], part[5]);
  for (int k = 4; k <= 6; ++k) EXPECT_EQ(part[k], part[k + 4]);
  return {NumberOf(part[1]),
          NumberOf(part[7]),
          NumberOf(part[12]),
          {part[8], part[9], part[10], part[11]},
          part[3].matched};
}

// A coordinate is cut off after its third decimal, so each end of a line is up to 0.001 off in each
// of three directions. A length is off by up to 2 * 0.001 * root of 3, and an angle by that divided
// by its shortest arm. Words are rounded to 0.05 of a degree.
constexpr double kLengthOff = 0.0035;

class RecipeOf : public testing::TestWithParam<std::string_view> {};

TEST_P(RecipeOf, AgreesWithTheAtomsAsTheyWereRead) {
  DeskAtWork work;
  Choose(work, work.desk.main.AA_Lst, GetParam());
  const Molecule& molecule = work.desk.molecule;
  const auto number = [&](std::string_view name) {
    for (int i = 1; i <= molecule.AtomCount; ++i) {
      if (Trimmed(molecule.AtomName[i]) == name) return i;
    }
    ADD_FAILURE() << "no atom " << name;
    return 0;
  };
  const auto place = [&](std::string_view name) {
    const int i = number(name);
    return Point{molecule.AtomX[i], molecule.AtomY[i], molecule.AtomZ[i]};
  };
  for (int i = 6; i <= molecule.AtomCount; ++i) {
    const std::string words = RecipeWords(work.desk, i);
    const Said said = Understood(words);
    EXPECT_EQ(number(said.Names[0]), i) << words;
    const Point a = place(said.Names[0]), b = place(said.Names[1]);
    const Point c = place(said.Names[2]), d = place(said.Names[3]);
    EXPECT_NEAR(Apart(a, b), said.Length, kLengthOff) << words;

    const double arm = std::min(Apart(a, b), Apart(c, b));
    const double angle_off = 0.051 + InDegrees(2 * kLengthOff / arm);
    EXPECT_NEAR(AngleAt(a, b, c), said.Angle, angle_off) << words;

    const double side = std::min(FromAxis(a, b, c), FromAxis(d, b, c));
    const double torsion_off = 0.051 + InDegrees(2 * kLengthOff / side);
    EXPECT_NEAR(std::remainder(TorsionOf(a, b, c, d) - said.Torsion, 360), 0, torsion_off) << words;
    EXPECT_EQ(said.NoBond, said.Length > kBondLimit) << words;
  }
}

// The entries, read back by the rule without quadrants, give the same atom: an entry may have the
// other sense or lack half a turn, and its angle may be the rest to 180 or 360 degrees.
TEST_P(RecipeOf, GivesTheEntriesOfTheTableWhereTheyDiffer) {
  DeskAtWork work;
  Choose(work, work.desk.main.AA_Lst, GetParam());
  const auto rows = PlacementsOf(GetParam());
  ASSERT_EQ(static_cast<std::size_t>(work.desk.molecule.AtomCount), rows.size() + 5);
  for (std::size_t k = 0; k < rows.size(); ++k) {
    const std::string words = RecipeWords(work.desk, static_cast<int>(k) + 6);
    const Said said = Understood(words);
    EXPECT_DOUBLE_EQ(said.Length, rows[k].Length);
    EXPECT_EQ(said.Names, (std::array<std::string, 4>{
                              std::string(rows[k].Atom), std::string(rows[k].BondedTo),
                              std::string(rows[k].AngleRef), std::string(rows[k].TorsionRef)}));
    static const std::regex kEntries("[^]*entered as (.*)° and (.*)°\\)");
    std::smatch part;
    const bool told = std::regex_match(words, part, kEntries);
    const bool same = std::fabs(rows[k].Angle - said.Angle) < 0.1 &&
                      std::fabs(std::remainder(rows[k].Torsion - said.Torsion, 360)) < 0.1;
    EXPECT_EQ(told, !same) << words;
    if (!told) continue;
    EXPECT_DOUBLE_EQ(NumberOf(part[1]), rows[k].Angle) << words;
    EXPECT_DOUBLE_EQ(NumberOf(part[2]), rows[k].Torsion) << words;
  }
}

INSTANTIATE_TEST_SUITE_P(Residues, RecipeOf, testing::ValuesIn(catalogue::kGeneratedKeys),
                         [](const auto& key) { return std::string(key.param); });

}  // namespace
}  // namespace orvane
