// Walks the main window's table: names, containers, captions, places.
#include "windows/main_window.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

#include "desk_fixture.h"
#include "windows/main_window_table.h"

namespace orvane {
namespace {

// Of the main window, inside its frame and below the menu strip, twips.
constexpr int kDeskWidth = 8505, kDeskHeight = 6975, kStripHeight = 300;

std::map<std::string_view, const ControlRow*> RowsByName() {
  std::map<std::string_view, const ControlRow*> rows;
  for (const ControlRow& row : MainWindowTable()) rows[row.Name] = &row;
  return rows;
}

TEST(MainWindowTable, NamesEachControlOnce) {
  EXPECT_EQ(RowsByName().size(), MainWindowTable().size());
}

TEST(MainWindowTable, BeginsWithTheWindowItself) {
  EXPECT_EQ(MainWindowTable().front().Name, "Orvane_Desk");
  EXPECT_EQ(MainWindowTable().front().Kind, ControlKind::Window);
}

TEST(MainWindowTable, AContainerComesBeforeWhatItHolds) {
  std::set<std::string_view> seen;
  for (const ControlRow& row : MainWindowTable()) {
    EXPECT_TRUE(row.Parent.empty() || seen.contains(row.Parent)) << row.Name;
    seen.insert(row.Name);
  }
}

TEST(MainWindowTable, EveryRowHasAControlAndEveryControlARow) {
  MainWindow window;
  std::set<std::string_view> rows, controls;
  for (const ControlRow& row : MainWindowTable().subspan(1)) rows.insert(row.Name);
  for (const Control* control : window.Controls) {
    EXPECT_TRUE(controls.insert(control->Row.Name).second) << control->Row.Name << " twice";
  }
  EXPECT_EQ(controls, rows);
}

TEST(MainWindowTable, AControlIsOfTheKindOfItsRow) {
  MainWindow window;
  for (const Control* control : window.Controls) {
    const ControlKind kind = control->Row.Kind;
    EXPECT_EQ(dynamic_cast<const List*>(control) != nullptr, kind == ControlKind::List);
    EXPECT_EQ(dynamic_cast<const ScrollBar*>(control) != nullptr, kind == ControlKind::ScrollBar);
    EXPECT_EQ(dynamic_cast<const Timer*>(control) != nullptr, kind == ControlKind::Timer);
    EXPECT_EQ(dynamic_cast<const MenuEntry*>(control) != nullptr, kind == ControlKind::MenuEntry);
    EXPECT_EQ(dynamic_cast<const PictureBox*>(control) != nullptr, kind == ControlKind::PictureBox);
    EXPECT_EQ(dynamic_cast<const ImageBox*>(control) != nullptr, kind == ControlKind::ImageBox);
    EXPECT_EQ(dynamic_cast<const TextBox*>(control) != nullptr, kind == ControlKind::TextBox);
    EXPECT_EQ(dynamic_cast<const FileList*>(control) != nullptr, kind == ControlKind::FileList);
  }
}

struct Captioned {
  std::string_view Name, Caption;
};

// Letter for letter, doubled blanks and odd spellings included.
constexpr Captioned kCaptions[] = {
    {"Orvane_Desk", "Orvane (OVN) V3.0"},
    {"Str_Entm", "Enantimers"},
    {"AA_name", "AA_Name"},
    {"L_Form", "Left Form (L-AA)"},
    {"R_Form", "Right Form (D-AA)"},
    {"Panel3D5", "Orvane"},
    {"Panel3D4", "Amino acids structure"},
    {"Panel3D3", "Alpha/Beta structure"},
    {"Panel3D2", "Nucleotides structure"},
    {"Panel3D1", "Single/Double DNA "},
    {"Bt_Blt_AA", "Get  Molecule"},
    {"Bt_M_Ld", "Load AA"},
    {"Bt_BlS", "Ball-Stick"},
    {"Bt_CA_Trace", "Ca-trace OFF"},
    {"Bt3_Dts", "Distance"},
    {"Bt3_Ang", "Angle"},
    {"Bt3_Trg", "Torsion"},
    {"P_Dst_Show", ""},
    {"Bt3_Label", "Label Off"},
    {"Bt3_HBD", "H-bond Off"},
    {"Bt3_Reset", "Reset"},
    {"Bt3_Sterio", "Stereo Off"},
    {"R_G_Stereo", "Red-Green Stereo Off"},
    {"Bt3_Isomers", "D / L Off"},
    {"Bt3_D_L_Str", "D/L Nst"},
    {"P_Auto_Rotate", " Auto Rotate"},
    {"X_Tag(0)", "X"},
    {"X_Tag(1)", "Y"},
    {"X_Tag(2)", "Z"},
    {"Label1", "X-TRANS"},
    {"Label2", "Y T R A N S"},
    {"Label3", "E N L A R G E"},
    {"Do_color", "RGB   Colour"},
    {"P_Dir_Holder", "Load Music"},
};

TEST(MainWindowTable, CaptionsAreExact) {
  const auto rows = RowsByName();
  for (const Captioned& control : kCaptions) {
    ASSERT_TRUE(rows.contains(control.Name)) << control.Name;
    EXPECT_EQ(rows.at(control.Name)->Caption, control.Caption) << control.Name;
  }
}

TEST(MainWindowTable, TheSixSizeKeysHaveTheirSixCaptions) {
  std::set<std::string_view> captions;
  for (const ControlRow& row : MainWindowTable()) {
    if (row.Name.starts_with("Sz_Balls")) captions.insert(row.Caption);
  }
  EXPECT_EQ(captions, (std::set<std::string_view>{"Pw-", "Pw+", "Bs+", "Bs-", "Mw+", "Mw-"}));
}

struct MenuRow {
  std::string_view Name, Parent, Caption;
};

// From left to right and from top to bottom.
constexpr MenuRow kMenuTree[] = {
    {"OpTs", "", "&Options"},
    {"MlClr", "OpTs", "&Mol_Colour"},
    {"LbClr", "OpTs", "&Lbl_Colour"},
    {"PbClr", "OpTs", "&PBP_Colour"},
    {"BkGd", "OpTs", "&Background"},
    {"ClPlt", "BkGd", "&Colour Palette"},
    {"Bk_Cl", "BkGd", "&Black"},
    {"Wt_Cl", "BkGd", "&White"},
    {"COL_RGB", "BkGd", "&RGB"},
    {"Bgr1", "BkGd", "Bgr &1"},
    {"Bgr2", "BkGd", "Bgr &2"},
    {"Bgr3", "BkGd", "Bgr &3"},
    {"Bgr4", "BkGd", "Bgr &4"},
    {"Bgr5", "BkGd", "Bgr &5"},
    {"PrImg", "OpTs", "&Print"},
    {"ExitEntry", "OpTs", "&Exit"},
    {"DWn", "", "&Draw in"},
    {"D_Wf", "DWn", "&Wireframe"},
    {"M_Stk", "DWn", "&Sticks"},
    {"M_Rbn", "DWn", "&Ribbon"},
    {"D_Ca", "DWn", "&Ca_trace"},
    {"D_StB", "DWn", "&Ball_Stick"},
    {"Cartn", "DWn", "Car&toon"},
    {"Ppt", "DWn", "&Peptide Bond"},
    {"OPB", "Ppt", "PBP &Only"},
    {"PPB_SB", "Ppt", "PBP + Ball_&Stick"},
    {"RCDP", "", "&Ramachandran"},
    {"Exp", "", "&Export"},
    {"S_bmp", "Exp", "&BMP"},
    {"S_JPG", "Exp", "&JPEG"},
    {"S_Gif", "Exp", "&GIF"},
    {"S_AnGif", "Exp", "&Animated GIF"},
    {"BMusic", "", "&Music"},
    {"PMSC1", "BMusic", "Play Music&1"},
    {"PMSC2", "BMusic", "Play Music&2"},
    {"PMSC3", "BMusic", "Play Music&3"},
    {"PMSC4", "BMusic", "Play Music&4"},
    {"PMSC5", "BMusic", "Play Music&5"},
    {"PMSC6", "BMusic", "Play Music&6"},
    {"PMSC7", "BMusic", "Play Music&7"},
    {"PMSC8", "BMusic", "Play Music&8"},
    {"PMSC9", "BMusic", "Play Music&9"},
    {"OpMfL", "BMusic", "&Play File"},
    {"StMsc", "BMusic", "&Stop Play"},
    {"WatN", "", "&What's New"},
    {"Cprt", "", "&Author in brief"},
};

TEST(MainWindowTable, TheMenuTreeIsExactAndInOrder) {
  std::vector<const ControlRow*> entries;
  for (const ControlRow& row : MainWindowTable()) {
    if (row.Kind == ControlKind::MenuEntry) entries.push_back(&row);
  }
  ASSERT_EQ(entries.size(), std::size(kMenuTree));
  for (std::size_t i = 0; i < entries.size(); ++i) {
    EXPECT_EQ(entries[i]->Name, kMenuTree[i].Name);
    EXPECT_EQ(entries[i]->Parent, kMenuTree[i].Parent) << kMenuTree[i].Name;
    EXPECT_EQ(entries[i]->Caption, kMenuTree[i].Caption) << kMenuTree[i].Name;
  }
}

TEST(MainWindowTable, WhatThisVersionDoesNotOfferIsNeitherShownNorEnabled) {
  DeskAtWork work;
  for (const char* name : {"BMusic", "PMSC1", "PMSC2", "PMSC3", "PMSC4", "PMSC5", "PMSC6", "PMSC7",
                           "PMSC8", "PMSC9", "Bk_Cl", "Wt_Cl"}) {
    const Control* entry = work.desk.FindControl(name);
    ASSERT_NE(entry, nullptr) << name;
    EXPECT_FALSE(entry->Visible) << name;
    EXPECT_FALSE(entry->Enabled) << name;
  }
}

// Whether a rectangle lies in its container; both are in the container's twips.
bool LiesIn(const Place& at, int left, int top, int width, int height) {
  return at.Left >= left && at.Top >= top && at.Left + at.Width <= width &&
         at.Top + at.Height <= height;
}

TEST(MainWindowTable, EveryPlaceLiesInsideTheDeskOrItsContainer) {
  const auto rows = RowsByName();
  for (const ControlRow& row : MainWindowTable().subspan(1)) {
    if (row.Kind == ControlKind::MenuEntry || row.Kind == ControlKind::Timer) continue;
    EXPECT_GT(row.At.Width, 0) << row.Name;
    EXPECT_GT(row.At.Height, 0) << row.Name;
    if (row.Parent.empty()) {
      // The heading is in the menu strip.
      EXPECT_TRUE(LiesIn(row.At, 0, -kStripHeight, kDeskWidth, kDeskHeight)) << row.Name;
    } else {
      const Place& holder = rows.at(row.Parent)->At;
      EXPECT_TRUE(LiesIn(row.At, 0, 0, holder.Width, holder.Height)) << row.Name;
    }
  }
}

TEST(MainWindowTable, ThePictureIsASquareOf360Pixels) {
  MainWindow window;
  EXPECT_EQ(window.Picture1.At.Get().Width, 5400);
  EXPECT_EQ(window.Picture1.At.Get().Height, 5400);
  EXPECT_EQ(window.Picture1.ScaleWidth(), 5400 / TwipsPerPixel);
  EXPECT_EQ(window.Picture1.ScaleHeight(), 5400 / TwipsPerPixel);
  EXPECT_EQ(window.Picture1.Parent, &window.P_Pic1);
}

TEST(MainWindowTable, TheTabOrderHasNoGapAndNoDuplicate) {
  std::set<int> stops;
  for (const ControlRow& row : MainWindowTable()) {
    if (row.TabStop == 0) continue;
    EXPECT_TRUE(stops.insert(row.TabStop).second) << row.Name << " at " << row.TabStop;
  }
  ASSERT_FALSE(stops.empty());
  EXPECT_EQ(*stops.begin(), 1);
  EXPECT_EQ(*stops.rbegin(), static_cast<int>(stops.size()));
}

TEST(MainWindowTable, WhateverTakesTheKeyboardHasANameToBeReadOut) {
  for (const ControlRow& row : MainWindowTable()) {
    if (row.TabStop == 0 || row.Name.starts_with("P_Clr(")) continue;
    EXPECT_FALSE(row.Spoken.empty() && row.Caption.empty()) << row.Name;
    EXPECT_FALSE(row.Tip.empty()) << row.Name;
  }
}

struct BarCase {
  ScrollBar MainWindow::*Bar;
  BarRange Expected;
};

TEST(MainWindow, BarsHaveTheirRangesStepsAndStart) {
  MainWindow window;
  for (const BarCase& bar : {BarCase{&MainWindow::VScroll1, {0, 360, 10, 36, 1}},
                             BarCase{&MainWindow::ZoomBar, {-100, 100, 5, 5, 0}},
                             BarCase{&MainWindow::X_TRANS, {-80, 80, 5, 10, 0}},
                             BarCase{&MainWindow::Y_TRANS, {-80, 80, 5, 10, 0}},
                             BarCase{&MainWindow::Rt_speed, {1, 400, 10, 30, 200}}}) {
    const ScrollBar& shown = window.*bar.Bar;
    EXPECT_EQ(shown.Range.Min, bar.Expected.Min) << shown.Name;
    EXPECT_EQ(shown.Range.Max, bar.Expected.Max) << shown.Name;
    EXPECT_EQ(shown.Range.SmallStep, bar.Expected.SmallStep) << shown.Name;
    EXPECT_EQ(shown.Range.LargeStep, bar.Expected.LargeStep) << shown.Name;
    EXPECT_EQ(shown.Value, bar.Expected.Start) << shown.Name;
  }
}

TEST(MainWindow, TheSpinTimerStartsOffAt200Milliseconds) {
  MainWindow window;
  EXPECT_FALSE(window.Timer1.Enabled);
  EXPECT_EQ(window.Timer1.Interval, 200);
}

TEST(MainWindow, SplitViewsAndFloatingPanelsStartHidden) {
  MainWindow window;
  for (const Control* control : std::initializer_list<const Control*>{
           &window.P_Sterio, &window.P_Sterio_b, &window.PC, &window.P_Clr_Holder, &window.V_RGB_H,
           &window.P_Dir_Holder}) {
    EXPECT_FALSE(control->Visible) << control->Name;
  }
  EXPECT_TRUE(window.P_Pic1.Visible);
  EXPECT_TRUE(window.Bt_M_Ld.Visible);
}

}  // namespace
}  // namespace orvane
