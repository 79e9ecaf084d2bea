// docs/handbook/truths.md, "The Ramachandran plot", "What is there" and "The picture".
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <set>

#include "handbook/student.h"
#include "replay/played.h"

namespace orvane {
namespace {

constexpr std::string_view kPage = "docs/handbook/truths.md";

// Heights of the dots in one quarter of the map.
std::vector<double> Heights(const Orvane_Desk& desk, std::size_t quarter) {
  std::vector<double> heights;
  for (const Stroke& dot : desk.plot.Area[quarter].Image()->Strokes) heights.push_back(dot.Y1);
  return heights;
}

double Middle(const std::vector<double>& values) {
  double sum = 0;
  for (const double value : values) sum += value;
  return sum / static_cast<double>(values.size());
}

TEST(Truths, TheTenDotsOfTheHelixAreOneConformation) {
  const Student helix(kProteins, "Alfa");
  const std::vector<int> trace = helix.Named("CA");
  ASSERT_EQ(trace.size(), 12u);
  for (std::size_t i = 1; i + 1 < trace.size(); ++i) {
    const int ca = trace[i];  // N, CA, C, O, R of each residue
    EXPECT_NEAR(helix.Torsion(ca - 4, ca - 1, ca, ca + 1), -57, 0.1);
    EXPECT_NEAR(helix.Torsion(ca - 1, ca, ca + 1, ca + 4), -47, 0.1);
  }
}

TEST(Truths, TheDotsOfTheHelixMoveWithWhatWasShownBefore) {
  Student helix(kProteins, "Alfa");
  Click(helix.Desk(), helix.Main().RCDP);
  const std::vector<double> fresh = Heights(helix.Desk(), 1);
  SelectRow(helix.Desk(), helix.Main().DNA_Lst, 2);
  SelectRow(helix.Desk(), helix.Main().Pro_Lst, 1);
  Click(helix.Desk(), helix.Main().RCDP);
  const std::vector<double> after = Heights(helix.Desk(), 1);
  EXPECT_EQ(fresh.size(), 10u);
  EXPECT_EQ(after.size(), 10u);
  EXPECT_TRUE(Says(kPage, "about a height of " + Quoted(Middle(fresh), 0) + " of 139"));
  EXPECT_TRUE(Says(kPage, "and at " + Quoted(Middle(after), 0) + " after `DNA3`"));
  EXPECT_EQ(std::lround(helix.Desk().plot.Area[1].InnerHeight()), 139);
}

TEST(Truths, FirstAndLastResidueHaveNoDot) {
  for (const auto& [row, residues, quarter] :
       {std::tuple("Alfa", 12, 1), std::tuple("Beta", 6, 0)}) {
    Student chain(kProteins, row);
    EXPECT_EQ(chain.Named("CA").size(), static_cast<std::size_t>(residues));
    Click(chain.Desk(), chain.Main().RCDP);
    for (std::size_t area = 0; area < 4; ++area) {
      const bool here = area == static_cast<std::size_t>(quarter);
      EXPECT_EQ(Heights(chain.Desk(), area).size(),
                static_cast<std::size_t>(here ? residues - 2 : 0))
          << row << " " << area;
    }
  }
  EXPECT_TRUE(Says(kPage, "`Alfa` has 12 residues and 10 dots, `Beta` 6 and 4."));
}

TEST(Truths, TheSheetsHaveTheirDotsTopLeft) {
  for (const char* row : {"PBS", "APBS"}) {
    Student sheet(kProteins, row);
    Click(sheet.Desk(), sheet.Main().RCDP);
    EXPECT_GT(Heights(sheet.Desk(), 0).size(), 15u);
    for (const std::size_t other : {1u, 2u, 3u}) EXPECT_EQ(Heights(sheet.Desk(), other).size(), 0u);
  }
}

// Runs of residues whose numbers follow one another.
std::vector<int> RunsOf(const Student& student) {
  std::vector<int> runs;
  int before = -100;
  for (const int ca : student.Named("CA")) {
    const int number = student.Store().ResSeq[ca];
    if (number == before) continue;  // the copy of the last residue
    if (number == before + 1) {
      ++runs.back();
    } else {
      runs.push_back(1);
    }
    before = number;
  }
  return runs;
}

TEST(Truths, TheLengthsAreThoseOfThePage) {
  using Runs = std::vector<int>;
  EXPECT_EQ(RunsOf(Student(kProteins, "Alfa")), (Runs{12}));
  EXPECT_EQ(RunsOf(Student(kProteins, "Alfb")), (Runs{6}));
  EXPECT_EQ(RunsOf(Student(kProteins, "Beta")), (Runs{6}));
  EXPECT_EQ(RunsOf(Student(kProteins, "Betb")), (Runs{5}));
  EXPECT_EQ(RunsOf(Student(kProteins, "PBS")), (Runs{7, 6, 7}));
  EXPECT_EQ(RunsOf(Student(kProteins, "APBS")), (Runs{7, 7, 7}));
  EXPECT_TRUE(Says(kPage,
                   "`Alfa` 12 residues, `Alfb` 6, `Beta` 6, `Betb` 5; `PBS` three strands of 7, 6 "
                   "and 7, `APBS` three of 7."));
}

TEST(Truths, TheLastResidueOfBetbIsThereTwice) {
  const Student strand(kProteins, "Betb");
  EXPECT_EQ(strand.Named("CA").size(), 6u);
  for (const char* atom : {"5 N", "5 CA", "5 C", "5 O"}) {
    EXPECT_FALSE(strand.CanPressAlone(strand.Atom(atom)));
  }
}

bool HasHydrogens(const Student& student) {
  for (int atom = 1; atom <= student.Count(); ++atom) {
    if (ElementLetter(student.Store().AtomName[atom]) == "H") return true;
  }
  return false;
}

TEST(Truths, HydrogensAreWhereThePageSays) {
  const std::set<std::string> with{"PEP", "Alfb", "Betb", "PHS", "RIB", "DRB"};
  for (const Rows list : {kAminoAcids, kProteins, kNucleotides, kStrands}) {
    DeskAtWork lists;
    for (const std::string& row : (lists.desk.main.*list).Rows.Get()) {
      const std::string key = row.substr(0, row.find(' '));
      EXPECT_EQ(HasHydrogens(Student(list, row)), list == kAminoAcids || with.contains(key)) << row;
    }
  }
  // H1 to H3 on N, H4 on CA; only glycine and alanine have more, and proline has one less.
  DeskAtWork lists;
  for (const std::string& key : KeysOf(lists.desk.main.AA_Lst)) {
    const Student student(kAminoAcids, key);
    int hydrogens = 0;
    for (int atom = 1; atom <= student.Count(); ++atom) {
      hydrogens += ElementLetter(student.Store().AtomName[atom]) == "H" ? 1 : 0;
    }
    EXPECT_EQ(hydrogens, key == "GLY" ? 5 : key == "ALA" ? 7 : key == "PRO" ? 3 : 4) << key;
  }
}

TEST(Truths, WhatShouldNotBeMeasuredReadsAsThePageSays) {
  Student dipeptide(kProteins, "PEP");
  dipeptide.Measure({"1 CA1", "1 C!"});
  EXPECT_TRUE(Says(kPage, "CA-C of the dipeptide (drawn " + Quoted(dipeptide.Value(), 2)));
  Student sugar(kNucleotides, "DRB");
  sugar.Measure({"1 C2", "1 H2B"});
  EXPECT_TRUE(Says(kPage, "C2-H2B of deoxyribose (" + Quoted(sugar.Value(), 2)));
}

TEST(Truths, OneStepUpAndOneDownLeave99Hundredths) {
  Student alanine(kAminoAcids, "ALA");
  const Molecule& store = alanine.Store();
  const auto width = [&] { return store.CurX[1] - store.PivotX; };
  const double before = width();
  for (const int value : {5, 10, 5}) StepBar(alanine.Desk(), alanine.Main().ZoomBar, value);
  EXPECT_NEAR(width() / before, 1.1 * 1.1 * 0.9, 1e-9);
  EXPECT_TRUE(Says(kPage, "1.1 times as large, a step down 0.9 times: one of each leaves `0.99`"));
  StepBar(alanine.Desk(), alanine.Main().ZoomBar, 0);
  EXPECT_NEAR(width() / before, 1.1 * 1.1 * 0.9, 1e-9);
}

TEST(Truths, AShiftIsTheWholeValueOfTheBar) {
  Student alanine(kAminoAcids, "ALA");
  const double start = alanine.Store().ScrX[1];
  StepBar(alanine.Desk(), alanine.Main().X_TRANS, 5);
  StepBar(alanine.Desk(), alanine.Main().X_TRANS, 10);
  EXPECT_NEAR(alanine.Store().ScrX[1], start + 15, 1e-9);
}

TEST(Truths, AutoRotateStandsStillUntilTheTurnBarHasBeenMoved) {
  Student alanine(kAminoAcids, "ALA");
  const double start = alanine.Store().CurX[1];
  Click(alanine.Desk(), alanine.Main().P_Auto_Rotate);
  Tick(alanine.Desk(), alanine.Main().Timer1);
  EXPECT_EQ(alanine.Store().CurX[1], start);
  StepBar(alanine.Desk(), alanine.Main().VScroll1, 11);
  const double stepped = alanine.Store().CurX[1];
  Tick(alanine.Desk(), alanine.Main().Timer1);
  EXPECT_NE(alanine.Store().CurX[1], stepped);
}

TEST(Truths, ResetAfterTheTurnBarLeavesOneStepOfTenDegrees) {
  Student alanine(kAminoAcids, "ALA");
  const Molecule& store = alanine.Store();
  StepBar(alanine.Desk(), alanine.Main().VScroll1, 11);
  Click(alanine.Desk(), alanine.Main().Bt3_Reset);
  const double x = store.AtomX[1] - store.PivotX, z = store.AtomZ[1] - store.PivotZ;
  const double turned_x = store.CurX[1] - store.PivotX, turned_z = store.CurZ[1] - store.PivotZ;
  const double angle = std::acos((x * turned_x + z * turned_z) / (x * x + z * z));
  EXPECT_NEAR(angle * 180 / std::numbers::pi, 10, 1e-6);
  EXPECT_TRUE(Says(kPage, "that step turns the molecule by 10 degrees"));
  Click(alanine.Desk(), alanine.Main().Bt3_Reset);
  EXPECT_EQ(store.CurX[1], store.AtomX[1]);

  // The next structure is turned in the same way, except for an amino acid that is generated.
  for (const auto& [list, comes_turned] :
       {std::pair(kProteins, true), std::pair(kAminoAcids, false)}) {
    StepBar(alanine.Desk(), alanine.Main().VScroll1, 11);
    SelectRow(alanine.Desk(), alanine.Main().*list, 3);
    EXPECT_EQ(store.CurX[1] != store.AtomX[1], comes_turned);
  }
}

TEST(Truths, CartoonAndTheTraceButtonLeaveOtherStructuresEmpty) {
  const std::set<std::string> chains{"Alfa", "Beta", "PBS", "APBS"};
  for (const Rows list : {kAminoAcids, kProteins, kNucleotides, kStrands}) {
    DeskAtWork lists;
    for (const std::string& row : (lists.desk.main.*list).Rows.Get()) {
      const bool is_chain = chains.contains(row.substr(0, row.find(' ')));
      Student student(list, row), other(list, row);
      Click(student.Desk(), student.Main().Cartn);
      EXPECT_EQ(!student.Lines(student.Main().Picture1).empty(), is_chain) << row;
      Click(other.Desk(), other.Main().Bt_CA_Trace);
      EXPECT_EQ(!other.Lines(other.Main().Picture1).empty(), is_chain) << row;
      EXPECT_EQ(student.Main().M_Rbn.Enabled.Get(), is_chain) << row;
      EXPECT_EQ(student.Main().D_Ca.Enabled.Get(), is_chain) << row;
    }
  }
}

TEST(Truths, ATraceHasNoNamesAndNoRed) {
  Student helix(kProteins, "Alfa");
  Click(helix.Desk(), helix.Main().Bt3_Label);
  Click(helix.Desk(), helix.Main().M_Rbn);
  for (const Stroke& stroke : helix.Main().Picture1.Image()->Strokes) {
    EXPECT_EQ(stroke.Kind, StrokeKind::Line);
  }
  Click(helix.Desk(), helix.Main().R_G_Stereo);
  for (const Stroke& line : helix.Lines(helix.Main().Picture1)) {
    EXPECT_EQ(line.Ink, Rgb(0, 255, 0));
  }
}

TEST(Truths, APairClosesResetAndHidesThePicture) {
  Student alanine(kAminoAcids, "ALA");
  for (Button* button : {&alanine.Main().Bt3_Sterio, &alanine.Main().Bt3_Isomers}) {
    Click(alanine.Desk(), *button);
    EXPECT_FALSE(alanine.Main().Bt3_Reset.IsOpenToUser());
    EXPECT_FALSE(alanine.Main().Picture1.IsOpenToUser());
    Click(alanine.Desk(), *button);
    EXPECT_TRUE(alanine.Main().Bt3_Reset.IsOpenToUser());
  }
  // After D / L the other button needs two clicks.
  Click(alanine.Desk(), alanine.Main().Bt3_D_L_Str);
  EXPECT_FALSE(alanine.Main().P_Sterio.Visible);
  Click(alanine.Desk(), alanine.Main().Bt3_D_L_Str);
  EXPECT_TRUE(alanine.Main().P_Sterio.Visible);
}

TEST(Truths, DlIsOpenToAminoAcidsOnly) {
  for (const Rows list : {kAminoAcids, kProteins, kNucleotides, kStrands}) {
    DeskAtWork work;
    SelectRow(work.desk, work.desk.main.*list, 0);
    EXPECT_EQ(work.desk.main.Bt3_Isomers.Enabled.Get(), list == kAminoAcids);
  }
}

TEST(Truths, NamesOfOneToThreeLettersAreSavedAndLongerOnesAreNot) {
  Session session;
  session.Do("enter\nselect AA_Lst 2");
  for (const char* name : {"a", "abc"}) {
    EXPECT_NE(session.Do("answer " + std::string(name) + "\nclick S_bmp").find("save BMP"),
              std::string::npos);
  }
  for (const char* name : {"abcd", "a.bmp", ""}) {
    const std::string printed = session.Do("answer " + std::string(name) + "\nclick S_bmp");
    EXPECT_TRUE(printed.starts_with("ask ")) << printed;
    EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 1) << printed;
  }
}

TEST(Truths, AClosedMapIsStillPrinted) {
  Session session;
  session.Do("enter\nselect Pro_Lst 1\nclick RCDP\nselect AA_Lst 2");
  EXPECT_FALSE(session.Desk().plot.Visible);
  EXPECT_EQ(session.Do("click PrImg"), "print Ramachandran\n");
  session.Do("click Bt3_Sterio\nclick Bt3_Sterio");
  EXPECT_TRUE(session.Do("click PrImg").ends_with("print Form_Print\n"));
}

}  // namespace
}  // namespace orvane
