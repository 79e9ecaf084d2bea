// docs/structures.md: what it says of each row, its numbers, its counts and its words about shape
// are worked out from the atoms.

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "handbook/measured.h"
#include "handbook/rows_on_page.h"
#include "handbook/student.h"
#include "stock_check/bends_page.h"
#include "stock_check/check.h"
#include "stock_check/constitution.h"
#include "stock_check/hydrogen_bonds.h"
#include "stock_check/published.h"

namespace orvane {
namespace {

using stock_check::Bend;

Rows ListOf(const std::string& key) {
  const std::map<std::string, Rows> lists{{"AA_Lst", &MainWindow::AA_Lst},
                                          {"Pro_Lst", &MainWindow::Pro_Lst},
                                          {"Nuc_Lst", &MainWindow::Nuc_Lst},
                                          {"DNA_Lst", &MainWindow::DNA_Lst}};
  return lists.at(RowOf(key).List);
}

TEST(StructuresPage, TellsOfEveryRowOfTheListsInTheirOrder) {
  const std::vector<RowOnPage> rows = RowsOnPage();
  ASSERT_EQ(rows.size(), AllRows().size());
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].Title, AllRows()[i].Text);
}

// Each caption between back quotes is one that a student can click there and then.
TEST(StructuresPage, LooksByTwoStepsThatAreOpen) {
  for (const RowOnPage& row : RowsOnPage()) {
    EXPECT_EQ(SplitAt(row.Look, ", then ").size(), 2u) << row.Look;
    Student student(ListOf(row.Key), row.Title);
    const std::regex quoted("`([^`]+)`");
    int clicks = 0;
    for (std::sregex_iterator it(row.Look.begin(), row.Look.end(), quoted), end; it != end; ++it) {
      const std::string caption = (*it)[1];
      Control* found = nullptr;
      for (Control* control : student.Main().Controls) {
        std::string shown = control->Caption.Get();
        std::erase(shown, '&');
        if (shown == caption && control->IsOpenToUser()) found = control;
      }
      EXPECT_NE(found, nullptr) << row.Key << ": " << caption;
      if (found != nullptr) Click(student.Desk(), *found);
      ++clicks;
    }
    EXPECT_GE(clicks, 1) << row.Key;
  }
}

// Atoms and what the panel shows, "N - CA - C 110.98", measured by presses as a student does it;
// enlarged step by step where atoms cannot be pressed alone.
TEST(StructuresPage, HasTheValuesThatThePanelShows) {
  const std::regex item(R"(^(.+) (-?[0-9]+\.[0-9][0-9])\.?$)");
  int measures = 0;
  for (const RowOnPage& row : RowsOnPage()) {
    for (const std::string& words : SplitAt(row.Measure, "; ")) {
      std::smatch parts;
      ASSERT_TRUE(std::regex_match(words, parts, item)) << row.Key << ": " << words;
      Student student(ListOf(row.Key), row.Title);
      std::vector<std::string> labels = SplitAt(parts[1], " - ");
      for (std::string& label : labels) {
        if (label.find(' ') == std::string::npos) {
          label.insert(0, std::to_string(RowOf(row.Key).Atoms.front().Residue) + " ");
        }
      }
      const auto all_alone = [&] {
        for (const std::string& label : labels) {
          if (!student.CanPressAlone(student.Atom(label))) return false;
        }
        return true;
      };
      for (int step = 1; step <= 8 && !all_alone(); ++step) {
        StepBar(student.Desk(), student.Main().ZoomBar, 5 * step);
      }
      const std::string panel = student.Measure(labels);
      EXPECT_EQ(Fixed(student.Value(), 2), parts[2].str()) << row.Key << ": " << panel;
      ++measures;
    }
  }
  EXPECT_GT(measures, 100);
}

// "true 1.09" of what is drawn otherwise outside the twenty amino acids.
const std::map<std::string, double> kTruths{
    {"PEP 1 CA1 - 1 C!", 1.525},      {"PEP 2 CA2 - 2 C", 1.525},
    {"PEP 1 CA1 - 2 CA2", 3.80},      {"PEP 1 C! - 2 N! - 2 H!", 119.2},
    {"PEP 1 N - 1 CA1 - 1 R", 110.5}, {"Gen CA - R", 1.530},
    {"Gen N - CA - R", 110.5},        {"Alfb 3 CA - 3 H4", 1.09},
    {"Alfb 3 C - 3 CA - 3 H4", 108},  {"Betb 3 CA - 3 H4", 1.09},
    {"Betb 3 C - 3 CA - 3 H4", 108},  {"DRB C2 - H2B", 1.09},
};

std::size_t DecimalsIn(const std::string& number) {
  const std::size_t point = number.find('.');
  return point == std::string::npos ? 0 : number.size() - point - 1;
}

std::string WithColons(const std::string& atoms) {  // "1 C! - 2 N!" to "1:C! 2:N!"
  std::string names;
  for (std::string label : SplitAt(atoms, " - ")) {
    const std::size_t blank = label.find(' ');
    if (blank != std::string::npos) label[blank] = ':';
    names += (names.empty() ? "" : " ") + label;
  }
  return names;
}

// Whatever is drawn otherwise stands there with its value and the true one: "ATOMS 1.21
// (true 1.53)".
TEST(StructuresPage, DoubtsWhatIsBent) {
  const std::regex item(R"(^(.+) (-?[0-9.]+) \(true ([0-9.]+)( or more)?\)\.?$)");
  for (const RowOnPage& row : RowsOnPage()) {
    std::set<std::string> told;
    const auto bends = RowOf(row.Key).IsAminoAcid() && row.Key != "Gen"
                           ? stock_check::BendsOf(RowOf(row.Key))
                           : std::vector<Bend>();
    for (const std::string& words : SplitAt(row.Doubt, "; ")) {
      std::smatch parts;
      if (!std::regex_match(words, parts, item)) {
        EXPECT_EQ(words.find("true"), std::string::npos) << words;
        continue;
      }
      const std::string atoms = parts[1], drawn = parts[2], truth = parts[3];
      bool is_bend = false;
      for (const Bend& bend : bends) {
        if (stock_check::MeasureWords(bend) != atoms) continue;
        is_bend = true;
        told.insert(atoms);
        EXPECT_EQ(drawn, stock_check::DrawnWords(bend)) << row.Key << " " << words;
        EXPECT_EQ(Fixed(bend.True, static_cast<int>(DecimalsIn(truth))), truth) << words;
      }
      if (is_bend) continue;
      EXPECT_EQ(Fixed(Measured(row.Key, WithColons(atoms)), static_cast<int>(DecimalsIn(drawn))),
                drawn)
          << row.Key << " " << words;
      const auto known = kTruths.find(row.Key + " " + atoms);
      const double value =
          known != kTruths.end() ? known->second : PublishedMean(row.Key, WithColons(atoms));
      EXPECT_EQ(Fixed(value, static_cast<int>(DecimalsIn(truth))), truth) << words;
    }
    for (const Bend& bend : bends) {
      if (stock_check::IsCommon(bend)) continue;
      EXPECT_TRUE(told.contains(stock_check::MeasureWords(bend)))
          << row.Key << " does not tell of " << stock_check::MeasureWords(bend);
    }
    const bool nothing = told.empty() && !bends.empty();
    if (nothing) {
      EXPECT_NE(row.Doubt.find("what all have"), std::string::npos) << row.Key;
    }
  }
}

}  // namespace
}  // namespace orvane
