// The trace and the torsion survey walk the lists by fixed steps. This is what they find in the
// stock.

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "commands/plot_window.h"
#include "draw/trace_painter.h"
#include "stock/chain_checks.h"

namespace orvane {
namespace {

struct Walk {
  const char* Row;
  std::vector<std::pair<int, int>> Runs;  // first and last residue
};

const std::vector<Walk>& Walks() {
  static const std::vector<Walk> walks = {
      {"Alfa", {{1, 12}}},
      {"Beta", {{1, 6}}},
      {"PBS", {{47, 53}, {70, 75}, {110, 116}}},
      {"APBS", {{112, 118}, {139, 145}, {152, 158}}},
  };
  return walks;
}

TEST(Trace, JoinsEveryNeighbourAndNoTwoRuns) {
  const std::size_t segments[] = {11, 5, 17, 18};  // one less than the residues, run by run
  std::size_t which = 0;
  for (const Walk& walk : Walks()) {
    Structure structure(kProteins, walk.Row);
    PaintTraceFamily(structure.Desk());
    std::set<std::pair<int, int>> expected, found;
    for (const auto& [first, last] : walk.Runs) {
      for (int number = first; number < last; ++number) expected.insert({number, number + 1});
    }
    const std::vector<AtomLine> lines = structure.Lines();
    for (const AtomLine& line : lines) {
      EXPECT_EQ(structure.Name(line.From), "CA");
      EXPECT_EQ(structure.Name(line.To), "CA");
      found.insert(
          std::minmax<int>(structure.Store().ResSeq[line.From], structure.Store().ResSeq[line.To]));
    }
    EXPECT_EQ(lines.size(), segments[which++]) << walk.Row;
    EXPECT_EQ(found, expected) << walk.Row;
  }
}

// One row of the survey, from its fixed steps in the list.
struct SurveyRow {
  int Residue;
  double Phi, Psi;
};
std::vector<SurveyRow> RowsOf(const char* row) {
  Structure structure(kProteins, row);
  std::vector<SurveyRow> rows;
  for (const int i : structure.Named("CA")) {
    if (i <= 4) continue;  // the first residue has no phi
    rows.push_back({structure.Store().ResSeq[i], structure.ShownTorsion(i - 4, i - 1, i, i + 1, 0),
                    structure.ShownTorsion(i - 1, i, i + 1, i + 4, 1)});
  }
  return rows;
}

// A torsion below 90 is shown as its supplement: -57 as -123, -47 as -133.
TEST(Survey, ShowsTheHelixAtItsPlace) {
  const std::vector<SurveyRow> rows = RowsOf("Alfa");
  ASSERT_EQ(rows.size(), 11u);
  for (std::size_t k = 0; k < 10; ++k) {  // the last psi reads beyond the structure
    EXPECT_NEAR(rows[k].Phi, -123, 0.2) << rows[k].Residue;
    EXPECT_NEAR(rows[k].Psi, -133, 0.2) << rows[k].Residue;
  }
  EXPECT_NEAR(rows[10].Phi, -123, 0.2);
}

TEST(Survey, ShowsTheStrandAtItsPlace) {
  const std::vector<SurveyRow> rows = RowsOf("Beta");
  ASSERT_EQ(rows.size(), 5u);
  for (std::size_t k = 0; k < 4; ++k) {
    EXPECT_NEAR(rows[k].Phi, -119, 0.2) << rows[k].Residue;
    EXPECT_NEAR(rows[k].Psi, 113, 0.2) << rows[k].Residue;
  }
  EXPECT_NEAR(rows[4].Phi, -119, 0.2);
}

// At the ends of runs the steps meet atoms of another strand, so only the signs hold there.
TEST(Survey, ShowsTheSheetsAtTheirPlaceInsideTheRuns) {
  struct Case {
    const char* Row;
    std::size_t Rows;
    std::set<int> OpenPhi, OpenPsi;  // the last psi reads beyond the structure
  };
  const Case cases[] = {{"PBS", 19, {70, 110}, {53, 75, 116}},
                        {"APBS", 20, {139, 152}, {118, 145, 158}}};
  for (const Case& sheet : cases) {
    const std::vector<SurveyRow> rows = RowsOf(sheet.Row);
    ASSERT_EQ(rows.size(), sheet.Rows);
    for (const SurveyRow& row : rows) {
      EXPECT_LT(row.Phi, 0) << row.Residue;
      if (!sheet.OpenPhi.contains(row.Residue)) {
        EXPECT_NEAR(row.Phi, -116.6, 0.2) << row.Residue;
      }
      if (row.Residue == rows.back().Residue) continue;
      EXPECT_GT(row.Psi, 0) << row.Residue;
      if (!sheet.OpenPsi.contains(row.Residue)) {
        EXPECT_NEAR(row.Psi, 113.0, 0.2) << row.Residue;
      }
    }
  }
}

// The circles of one area of the map.
long Circles(Structure& structure, int area) {
  const auto& strokes = structure.Desk().plot.Area[area].Image()->Strokes;
  return std::count_if(strokes.begin(), strokes.end(),
                       [](const Stroke& stroke) { return stroke.Kind == StrokeKind::Circle; });
}

TEST(Survey, PutsEveryRowButTheLastIntoTheQuarterOfItsKind) {
  struct Case {
    const char* Row;
    int Rows, Area;
  };
  for (const Case& chain :
       {Case{"Alfa", 11, 1}, Case{"Beta", 5, 0}, Case{"PBS", 19, 0}, Case{"APBS", 20, 0}}) {
    Structure structure(kProteins, chain.Row);
    ShowRamachandran(structure.Desk());
    EXPECT_EQ(structure.Desk().survey.PhiCount, chain.Rows) << chain.Row;
    for (int area = 0; area < 4; ++area) {
      EXPECT_EQ(Circles(structure, area), area == chain.Area ? chain.Rows - 1 : 0)
          << chain.Row << " " << area;
    }
  }
}

}  // namespace
}  // namespace orvane
