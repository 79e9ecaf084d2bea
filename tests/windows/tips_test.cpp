// Each control has a tip: one clause, verb first, under 60 letters, no full stop.
#include <gtest/gtest.h>
#include <vector>

#include "controls/window.h"
#include "windows/information_tables.h"
#include "windows/main_window_table.h"
#include "windows/plot_window_table.h"

namespace orvane {
namespace {

// The windows themselves, and controls that take no pointer and no keyboard and so show no tip.
bool CanShowATip(const ControlRow& row) {
  switch (row.Kind) {
    case ControlKind::Ornament:
    case ControlKind::Line:
    case ControlKind::Timer:
    case ControlKind::Window:
      return false;
    default:
      break;
  }
  // The stored frames of the splash are shown only in its image boxes.
  return !row.Name.starts_with("Pro_Image") && !row.Name.starts_with("DNA_Image");
}

TEST(Tips, EachControlOfEveryWindowHasOne) {
  for (const auto table :
       {MainWindowTable(), FrontTable(), ContentTable(), AuthorTable(), PlotWindowTable()}) {
    for (const ControlRow& row : table) {
      EXPECT_TRUE(!CanShowATip(row) || !row.Tip.empty()) << table[0].Name << "." << row.Name;
    }
  }
}

TEST(Tips, AreOneClauseUnderSixtyLettersWithACapitalAndNoFullStop) {
  for (const auto table :
       {MainWindowTable(), FrontTable(), ContentTable(), AuthorTable(), PlotWindowTable()}) {
    for (const ControlRow& row : table) {
      if (row.Tip.empty()) continue;
      EXPECT_LT(row.Tip.size(), 60U) << row.Tip;
      EXPECT_TRUE(row.Tip.front() >= 'A' && row.Tip.front() <= 'Z') << row.Tip;
      EXPECT_NE(row.Tip.back(), '.') << row.Tip;
    }
  }
}

struct GivenTip {
  std::string_view Control, Tip;
};
constexpr GivenTip kGivenTips[] = {
    {"X_Tag(0)", "Turn about the X axis"},
    {"VScroll1", "Turn about the chosen axis"},
    {"P_Auto_Rotate", "Spin about the chosen axis"},
    {"Rt_speed", "Spin faster to the left, slower to the right"},
    {"Sz_Balls(0)", "Make the balls larger"},
    {"Sz_Balls(3)", "Make the bonds thinner"},
    {"Sz_Balls(4)", "Make the plane lines wider"},
    {"X_TRANS", "Move left and right"},
    {"ZoomBar", "Enlarge to the right"},
    {"Bt3_Sterio", "Show two views, one for each eye"},
    {"R_G_Stereo", "Overlay a red and a green view"},
    {"Bt3_Isomers", "Show the left and the right form"},
    {"Bt3_Dts", "Measure the first two atoms you pressed"},
    {"Bt3_Ang", "Measure the angle at the second atom"},
    {"P_Dst_Show", "Clear the result"},
    {"Bt3_Reset", "Go back to the start view"},
    {"Bt_Blt_AA", "Clear the picture and choose again"},
    {"Bt_M_Ld", "Load the last structure again"},
    {"Bt3_Label", "Print atom names"},
    {"Bt3_HBD", "Show hydrogen bonds"},
};

TEST(Tips, SayWhatAClickDoes) {
  for (const GivenTip& given : kGivenTips) {
    bool found = false;
    for (const ControlRow& row : MainWindowTable()) {
      if (row.Name != given.Control) continue;
      found = true;
      EXPECT_EQ(row.Tip, given.Tip);
    }
    EXPECT_TRUE(found) << given.Control;
  }
}

}  // namespace
}  // namespace orvane
