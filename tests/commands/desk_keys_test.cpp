// The table of keys: no key is there twice, and each does what its control does.
#include "commands/desk_keys.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "desk_fixture.h"
#include "draw/strokes_text.h"
#include "windows/main_window_table.h"

namespace orvane {
namespace {

enum ProRow { kAlphaHelix = 1 };

struct PictureKeys : DeskAtWork, testing::Test {
  PictureKeys() { SelectRow(desk, desk.main.Pro_Lst, kAlphaHelix); }

  void PressOn(std::string_view key, KeyPlace where = KeyPlace::Picture) {
    const DeskKey* row = FindDeskKey(where, key);
    ASSERT_NE(row, nullptr) << key;
    row->Do(desk);
  }
};

TEST(DeskKeysTable, NamesNoKeyTwiceAtAPlaceAndNoDeskKeyAgainOnThePicture) {
  std::set<std::pair<KeyPlace, std::string_view>> seen;
  for (const DeskKey& key : DeskKeys()) {
    for (const std::string_view name : {key.Key, key.Other}) {
      if (name.empty()) continue;
      EXPECT_TRUE(seen.insert({key.Where, name}).second) << name;
    }
  }
  for (const auto& [where, name] : seen) {
    if (where != KeyPlace::Picture) continue;
    EXPECT_FALSE(seen.contains({KeyPlace::Desk, name})) << name;
  }
}

TEST(DeskKeysTable, DescribesEachKeyInOneClauseThatFitsASheet) {
  for (const DeskKey& key : DeskKeys()) {
    EXPECT_NE(key.Do, nullptr) << key.Key;
    EXPECT_FALSE(key.Group.empty()) << key.Key;
    ASSERT_FALSE(key.Does.empty()) << key.Key;
    EXPECT_LT(key.Does.size(), 60U) << key.Key;
    EXPECT_TRUE(key.Does.front() >= 'A' && key.Does.front() <= 'Z') << key.Does;
    EXPECT_NE(key.Does.back(), '.') << key.Does;
  }
}

// Alt and a letter opens a menu, so no key of the table uses Alt.
TEST(DeskKeysTable, HasNoKeyWithAltOrControl) {
  for (const DeskKey& key : DeskKeys()) {
    EXPECT_EQ(key.Key.find("Alt"), std::string_view::npos) << key.Key;
    EXPECT_EQ(key.Key.find("Ctrl"), std::string_view::npos) << key.Key;
  }
}

TEST(DeskKeysTable, KnowsASecondKeyAndNoKeyOfAnotherPlace) {
  EXPECT_EQ(FindDeskKey(KeyPlace::Picture, "="), FindDeskKey(KeyPlace::Picture, "+"));
  EXPECT_EQ(FindDeskKey(KeyPlace::Picture, "F6"), nullptr);
  EXPECT_EQ(FindDeskKey(KeyPlace::Desk, "S"), nullptr);
  EXPECT_EQ(FindDeskKey(KeyPlace::Picture, ""), nullptr);
}

// Key, bar, and by how much it steps.
struct BarKey {
  std::string_view Key;
  ScrollBar MainWindow::*Bar;
  int By;
};
constexpr BarKey kBarKeys[] = {
    {"Right", &MainWindow::VScroll1, 10},     {"Left", &MainWindow::VScroll1, -10},
    {"Down", &MainWindow::VScroll1, 10},      {"Up", &MainWindow::VScroll1, -10},
    {"Page Down", &MainWindow::VScroll1, 36}, {"Page Up", &MainWindow::VScroll1, -36},
    {"Shift+Right", &MainWindow::X_TRANS, 5}, {"Shift+Left", &MainWindow::X_TRANS, -5},
    {"Shift+Down", &MainWindow::Y_TRANS, 5},  {"Shift+Up", &MainWindow::Y_TRANS, -5},
    {"+", &MainWindow::ZoomBar, 5},           {"=", &MainWindow::ZoomBar, 5},
    {"-", &MainWindow::ZoomBar, -5},          {".", &MainWindow::Rt_speed, -10},
    {",", &MainWindow::Rt_speed, 10},
};

TEST_F(PictureKeys, StepTheBarsAndThePictureFollows) {
  for (const BarKey& key : kBarKeys) {
    DeskAtWork by_bar;
    SelectRow(by_bar.desk, by_bar.desk.main.Pro_Lst, kAlphaHelix);
    DeskAtWork by_key;
    SelectRow(by_key.desk, by_key.desk.main.Pro_Lst, kAlphaHelix);
    // From the middle of the range, so that there is room on both sides.
    for (DeskAtWork* work : {&by_bar, &by_key}) {
      if (key.Bar == &MainWindow::VScroll1) StepBar(work->desk, work->desk.main.VScroll1, 101);
    }
    ScrollBar& bar = by_bar.desk.main.*key.Bar;
    const int start = bar.Value;

    StepBar(by_bar.desk, bar, start + key.By);
    FindDeskKey(KeyPlace::Picture, key.Key)->Do(by_key.desk);

    EXPECT_EQ((by_key.desk.main.*key.Bar).Value.Get(), start + key.By) << key.Key;
    EXPECT_EQ(StrokesAsText(*by_key.desk.main.Picture1.Image()),
              StrokesAsText(*by_bar.desk.main.Picture1.Image()))
        << key.Key;
  }
}

TEST_F(PictureKeys, StopAtTheEndOfABar) {
  for (int i = 0; i < 50; ++i) PressOn("+");
  EXPECT_EQ(desk.main.ZoomBar.Value, 100);
}

// Key, the control that it works, and the event that the control acts on.
struct ControlKey {
  std::string_view Key, Control;
  EventKind Acts = EventKind::Click;
};
constexpr ControlKey kControlKeys[] = {
    {"X", "X_Tag(0)"},
    {"Y", "X_Tag(1)"},
    {"Z", "X_Tag(2)"},
    {"S", "P_Auto_Rotate"},
    {"R", "Bt3_Reset"},
    {"D", "Bt3_Dts"},
    {"A", "Bt3_Ang"},
    {"T", "Bt3_Trg"},
    {"Delete", "P_Dst_Show"},
    {"B", "Bt_BlS"},
    {"C", "Bt_CA_Trace"},
    {"L", "Bt3_Label"},
    {"H", "Bt3_HBD"},
    {"1", "Sz_Balls(0)", EventKind::Press},
    {"2", "Sz_Balls(1)", EventKind::Press},
    {"3", "Sz_Balls(2)", EventKind::Press},
    {"4", "Sz_Balls(3)", EventKind::Press},
    {"5", "Sz_Balls(4)", EventKind::Press},
    {"6", "Sz_Balls(5)", EventKind::Press},
    {"V", "Bt3_Sterio"},
    {"G", "R_G_Stereo"},
    {"M", "Bt3_Isomers"},
    {"Shift+M", "Bt3_D_L_Str"},
};

TEST_F(PictureKeys, WorkTheControlsOfTheDesk) {
  for (const ControlKey& key : kControlKeys) {
    DeskAtWork work;
    SelectRow(work.desk, work.desk.main.AA_Lst, 2);
    Control* control = work.desk.FindControl(key.Control);
    ASSERT_NE(control, nullptr) << key.Control;
    int acted = 0;
    control->Bind(key.Acts, [&](const Event& event) {
      ++acted;
      EXPECT_EQ(event.Index, control->Index);
      EXPECT_EQ(event.Button, key.Acts == EventKind::Press ? kLeftButton : 0);
    });

    FindDeskKey(KeyPlace::Picture, key.Key)->Do(work.desk);

    EXPECT_EQ(acted, 1) << key.Key;
  }
}

TEST_F(PictureKeys, DoNothingWhereTheControlIsOffLimits) {
  Click(desk, desk.main.Bt3_Sterio);
  ASSERT_FALSE(desk.main.Bt3_Reset.Enabled);
  const double zoomed = desk.molecule.CurX[1];
  StepBar(desk, desk.main.ZoomBar, 5);
  ASSERT_NE(desk.molecule.CurX[1], zoomed);
  const double before = desk.molecule.CurX[1];

  PressOn("R");

  EXPECT_EQ(desk.molecule.CurX[1], before);
}

// Every key of the picture is in one of the two lists above, or walks.
TEST_F(PictureKeys, AreAllCoveredByATest) {
  std::set<std::string_view> held{"N", "P", "Home", "End", "Space", "Enter"};
  for (const BarKey& key : kBarKeys) held.insert(key.Key);
  for (const ControlKey& key : kControlKeys) held.insert(key.Key);
  for (const DeskKey& key : DeskKeys()) {
    if (key.Where != KeyPlace::Picture) continue;
    EXPECT_TRUE(held.contains(key.Key)) << key.Key;
    EXPECT_TRUE(key.Other.empty() || held.contains(key.Other)) << key.Other;
  }
}

TEST_F(PictureKeys, WalkAndPick) {
  PressOn("N");
  PressOn("N");
  EXPECT_EQ(desk.walk.Number, 2);
  PressOn("P");
  EXPECT_EQ(desk.walk.Number, 1);
  PressOn("End");
  EXPECT_EQ(desk.walk.Number, desk.molecule.AtomCount);
  PressOn("Home");
  EXPECT_EQ(desk.walk.Number, 1);
  PressOn("Space");
  EXPECT_EQ(desk.walk.Picked, 1);
  PressOn("Enter");
  EXPECT_EQ(desk.walk.Order, 2);
}

TEST_F(PictureKeys, EscapeClosesTheFloatingPanels) {
  Click(desk, desk.main.MlClr);
  ASSERT_TRUE(desk.main.P_Clr_Holder.Visible);
  PressOn("Escape", KeyPlace::Desk);
  EXPECT_FALSE(desk.main.P_Clr_Holder.Visible);
}

TEST_F(PictureKeys, EscapeClosesTheMap) {
  Click(desk, desk.main.RCDP);
  ASSERT_TRUE(desk.plot.Visible);
  PressOn("Escape", KeyPlace::Map);
  EXPECT_FALSE(desk.plot.Visible);
}

// Notes where the keyboard is sent.
struct FocusHeard : ControlWatcher {
  const Control* Last = nullptr;
  void Changed(Control& control, Aspect aspect) override {
    if (aspect == Aspect::Focus) Last = &control;
  }
};

TEST_F(PictureKeys, F6GoesToWhatIsShownInThePicturesPlace) {
  FocusHeard heard;
  desk.main.Watcher = &heard;
  PressOn("F6", KeyPlace::Desk);
  EXPECT_EQ(heard.Last, &desk.main.Picture1);

  Click(desk, desk.main.Bt3_Sterio);
  PressOn("F6", KeyPlace::Desk);
  EXPECT_EQ(heard.Last, &desk.main.P_Sterio);
  desk.main.Watcher = nullptr;
}

// The order of the other controls is fixed and stays.
TEST(DeskKeysTable, ThePictureAndThePairAreTheLastStopsOfTheTabOrder) {
  std::map<std::string_view, int> stops;
  int last_of_the_others = 0;
  for (const ControlRow& row : MainWindowTable()) {
    stops[row.Name] = row.TabStop;
    if (row.Name != "Picture1" && row.Name != "P_Sterio") {
      last_of_the_others = std::max(last_of_the_others, row.TabStop);
    }
  }
  EXPECT_EQ(stops["Picture1"], last_of_the_others + 1);
  EXPECT_EQ(stops["P_Sterio"], last_of_the_others + 2);
}

}  // namespace
}  // namespace orvane
