// The state table of the four split-view toggles.

#include "commands/stereo_toggles.h"

#include <array>
#include <gtest/gtest.h>
#include <ostream>

#include "desk_fixture.h"

namespace orvane {
namespace {

// Everything in the table that a click changes.
struct ViewState {
  std::string Sterio = "Stereo Off";
  std::string Isomers = "D / L Off";
  std::string DLStr = "D/L Nst";
  int StereoOn = 0, EnantiomerOn = 0, EnantiomerPairOn = 0, RedGreenOn = 0;
  int SplitViewOn = 0;
  bool Pic1 = true, Pair = false, PairB = false;
  int PairTop = 840;
  bool ResetEnabled = true, SterioEnabled = true, RedGreenEnabled = true;

  friend bool operator==(const ViewState&, const ViewState&) = default;
};

std::ostream& operator<<(std::ostream& out, const ViewState& s) {
  return out << "[" << s.Sterio << " | " << s.Isomers << " | " << s.DLStr << " | flags "
             << s.StereoOn << s.EnantiomerOn << s.EnantiomerPairOn << s.RedGreenOn << " split "
             << s.SplitViewOn << " | shown " << s.Pic1 << s.Pair << s.PairB << " top " << s.PairTop
             << " | enabled " << s.ResetEnabled << s.SterioEnabled << s.RedGreenEnabled << "]";
}

ViewState StateOf(const Orvane_Desk& desk) {
  const MainWindow& w = desk.main;
  return {w.Bt3_Sterio.Caption,   w.Bt3_Isomers.Caption,    w.Bt3_D_L_Str.Caption,
          desk.stereo.StereoOn,   desk.stereo.EnantiomerOn, desk.stereo.EnantiomerPairOn,
          desk.stereo.RedGreenOn, desk.stereo.SplitViewOn,  w.P_Pic1.Visible,
          w.P_Sterio.Visible,     w.P_Sterio_b.Visible,     w.P_Sterio.At.Get().Top,
          w.Bt3_Reset.Enabled,    w.Bt3_Sterio.Enabled,     w.R_G_Stereo.Enabled};
}

enum class Toggle { Sterio, Isomers, DLStr, RedGreen };
constexpr std::array kToggles = {Toggle::Sterio, Toggle::Isomers, Toggle::DLStr, Toggle::RedGreen};

// The table, row by row.
ViewState AfterClick(ViewState s, Toggle toggle) {
  switch (toggle) {
    case Toggle::Sterio:
      if (!s.SterioEnabled) return s;
      s.EnantiomerOn = s.EnantiomerPairOn = 0;
      s.Isomers = "D / L Off";
      s.DLStr = "D/L Nst";
      s.PairB = false;
      if (s.Sterio == "Stereo On") {
        s.Sterio = "Stereo Off";
        s.StereoOn = s.SplitViewOn = 0;
        s.ResetEnabled = s.RedGreenEnabled = true;
        s.Pair = false;
        s.Pic1 = true;
      } else {
        s.Sterio = "Stereo On";
        s.StereoOn = s.SplitViewOn = 1;
        s.ResetEnabled = s.RedGreenEnabled = false;
        s.Pair = true;
        s.PairTop = 1920;
        s.Pic1 = false;
      }
      return s;
    case Toggle::Isomers: {
      const bool on = s.Isomers == "D / L Off";
      s.Sterio = "Stereo Off";
      s.DLStr = "D / L Nst";
      s.Isomers = on ? "D / L On" : "D / L Off";
      s.StereoOn = s.EnantiomerPairOn = 0;
      s.EnantiomerOn = s.SplitViewOn = on ? 1 : 0;
      s.RedGreenEnabled = true;
      s.ResetEnabled = !on;
      s.Pair = on;
      s.PairB = false;
      s.Pic1 = !on;
      if (on) s.PairTop = 1920;
      return s;
    }
    case Toggle::DLStr: {
      const bool on = s.DLStr == "D/L Nst";
      s.Sterio = "Sterio Off";
      s.Isomers = "D/L Off";
      s.DLStr = on ? "D/L Str" : "D/L Nst";
      s.StereoOn = 0;
      s.EnantiomerOn = s.EnantiomerPairOn = on ? 1 : 0;
      s.Pair = s.PairB = on;
      s.Pic1 = !on;
      if (on) s.PairTop = 480;
      return s;
    }
    case Toggle::RedGreen:
      if (!s.RedGreenEnabled) return s;
      s.RedGreenOn = s.RedGreenOn == 1 ? 0 : 1;
      s.SterioEnabled = s.RedGreenOn == 0;
      return s;
  }
  return s;
}

void ClickToggle(Orvane_Desk& desk, Toggle toggle) {
  const std::array<Control*, 4> buttons = {&desk.main.Bt3_Sterio, &desk.main.Bt3_Isomers,
                                           &desk.main.Bt3_D_L_Str, &desk.main.R_G_Stereo};
  Click(desk, *buttons[static_cast<std::size_t>(toggle)]);
}

struct Toggles : DeskAtWork, testing::Test {
  Toggles() {
    desk.main.Bt3_Isomers.Enabled = true;  // as after the choice of an amino acid
    desk.stock.TitlePrefix = "Orvane (OVN) v2.0: ";
  }
};

// The start, then the rows of the table in turn.
struct TableRow {
  std::vector<Toggle> Before;
  Toggle Clicked;
  ViewState After;
};

TEST_F(Toggles, LeaveWhatTheirTableSays) {
  using enum Toggle;
  const std::vector<TableRow> rows = {
      {{},
       Sterio,
       {.Sterio = "Stereo On",
        .StereoOn = 1,
        .SplitViewOn = 1,
        .Pic1 = false,
        .Pair = true,
        .PairTop = 1920,
        .ResetEnabled = false,
        .RedGreenEnabled = false}},
      {{Sterio}, Sterio, {.PairTop = 1920}},
      {{},
       Isomers,
       {.Isomers = "D / L On",
        .DLStr = "D / L Nst",
        .EnantiomerOn = 1,
        .SplitViewOn = 1,
        .Pic1 = false,
        .Pair = true,
        .PairTop = 1920,
        .ResetEnabled = false}},
      {{Isomers}, Isomers, {.DLStr = "D / L Nst", .PairTop = 1920}},
      {{},
       DLStr,
       {.Sterio = "Sterio Off",
        .Isomers = "D/L Off",
        .DLStr = "D/L Str",
        .EnantiomerOn = 1,
        .EnantiomerPairOn = 1,
        .Pic1 = false,
        .Pair = true,
        .PairB = true,
        .PairTop = 480}},
      {{DLStr}, DLStr, {.Sterio = "Sterio Off", .Isomers = "D/L Off", .PairTop = 480}},
      {{}, RedGreen, {.RedGreenOn = 1, .SterioEnabled = false}},
      {{RedGreen}, RedGreen, {}},
  };
  for (const TableRow& row : rows) {
    DeskAtWork fresh;
    fresh.desk.main.Bt3_Isomers.Enabled = true;
    for (const Toggle toggle : row.Before) ClickToggle(fresh.desk, toggle);

    ClickToggle(fresh.desk, row.Clicked);

    EXPECT_EQ(StateOf(fresh.desk), row.After) << "row " << &row - rows.data();
  }
}

TEST(ToggleSequences, OfFiveClicksFollowThePlainModel) {
  for (int code = 0; code < 4 * 4 * 4 * 4 * 4; ++code) {
    DeskAtWork fresh;
    fresh.desk.main.Bt3_Isomers.Enabled = true;
    ViewState expected;
    for (int click = 0, rest = code; click < 5; ++click, rest /= 4) {
      const Toggle toggle = kToggles[static_cast<std::size_t>(rest % 4)];
      expected = AfterClick(expected, toggle);
      ClickToggle(fresh.desk, toggle);
      ASSERT_EQ(StateOf(fresh.desk), expected) << "sequence " << code << ", click " << click;
    }
  }
}

TEST_F(Toggles, AWidthOfFiveStaysFiveThroughStereo) {
  desk.drawing.BondWidth = 5;
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.drawing.BondWidth, 5);
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.drawing.BondWidth, 5);
}

TEST_F(Toggles, AWidthOfOneIsTwoDuringStereoAndOneAgainAfterIt) {
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.drawing.BondWidth, 2);
  EXPECT_EQ(desk.drawing.PlaneWidth, 2);
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.drawing.BondWidth, 1);
  EXPECT_EQ(desk.drawing.PlaneWidth, 1);
}

TEST_F(Toggles, WidthsDoNotDriftFromEnantiomersIntoStereo) {
  Click(desk, desk.main.Bt3_Isomers);
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.drawing.BondWidth, 2);
  EXPECT_EQ(desk.stereo.SavedBondWidth, 1);
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.drawing.BondWidth, 1);
}

TEST_F(Toggles, StereoWithNoStructureOpensTheCommandsThatBeep) {
  Click(desk, desk.main.Bt3_HBD);
  ASSERT_EQ(platform.Effects, std::vector<std::string>{"beep"});
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.molecule.MoleculeReady, 1);

  platform.Effects.clear();
  Click(desk, desk.main.Bt3_HBD);

  EXPECT_EQ(platform.Effects, std::vector<std::string>());
}

TEST_F(Toggles, CaptionsOfThePairSayWhichItIs) {
  desk.main.Caption = "Orvane (OVN) v2.0: ALANINE (ALA A)";

  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.main.Str_Entm.Caption, "Stereo Pair");
  EXPECT_FALSE(desk.main.L_Form.Visible);
  EXPECT_FALSE(desk.main.R_Form.Visible);
  EXPECT_EQ(desk.main.AA_name.Caption, "OVN V3.0: ALANINE (ALA A)");

  Click(desk, desk.main.Bt3_Isomers);
  EXPECT_EQ(desk.main.Str_Entm.Caption, "Enantiomers");
  EXPECT_TRUE(desk.main.L_Form.Visible);
  EXPECT_TRUE(desk.main.R_Form.Visible);
  EXPECT_EQ(desk.main.L_Form.Caption, "Left Form (L-AA)");
}

TEST_F(Toggles, ATitleShorterThanThePrefixLeavesTheNameEmpty) {
  // "Orvane (OVN) V3.0" has 17 letters, the prefix 19.
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(desk.main.AA_name.Caption, "OVN V3.0: ");
}

TEST_F(Toggles, TheSecondStructureToggleLeavesTheWidthAtTwo) {
  desk.drawing.BondWidth = 5;
  Click(desk, desk.main.Bt3_D_L_Str);
  Click(desk, desk.main.Bt3_D_L_Str);
  EXPECT_EQ(desk.drawing.BondWidth, 2);
}

TEST_F(Toggles, EnantiomersAfterTheSecondToggleTakeTheOffBranchAndItsSavedWidth) {
  desk.stereo.SavedBondWidth = 4;
  Click(desk, desk.main.Bt3_D_L_Str);
  ASSERT_EQ(desk.main.Bt3_Isomers.Caption, "D/L Off");

  Click(desk, desk.main.Bt3_Isomers);

  EXPECT_EQ(desk.main.Bt3_Isomers.Caption, "D / L Off");
  EXPECT_EQ(desk.drawing.BondWidth, 4);
}

TEST_F(Toggles, TheFirstClickOfTheSecondToggleAfterEnantiomersOnlyShowsTheSurface) {
  Click(desk, desk.main.Bt3_Isomers);
  ASSERT_FALSE(desk.main.P_Pic1.Visible);

  Click(desk, desk.main.Bt3_D_L_Str);

  EXPECT_TRUE(desk.main.P_Pic1.Visible);
  EXPECT_FALSE(desk.main.P_Sterio.Visible);
  EXPECT_EQ(desk.main.Bt3_D_L_Str.Caption, "D/L Nst");
}

TEST_F(Toggles, AllButOneCloseTheFloatingPanels) {
  for (Control* button : std::initializer_list<Control*>{
           &desk.main.Bt3_Sterio, &desk.main.Bt3_Isomers, &desk.main.R_G_Stereo}) {
    desk.main.P_Clr_Holder.Visible = true;
    Click(desk, *button, Reach::Forced);
    EXPECT_FALSE(desk.main.P_Clr_Holder.Visible) << button->Name;
  }
  desk.main.P_Clr_Holder.Visible = true;
  Click(desk, desk.main.Bt3_D_L_Str);
  EXPECT_TRUE(desk.main.P_Clr_Holder.Visible);
}

TEST_F(Toggles, RedGreenGivesColourAndModeBackExactly) {
  desk.colours.PenColour = Rgb(255, 128, 0);
  desk.colours.ColourByElement = 1;
  Click(desk, desk.main.R_G_Stereo);
  ASSERT_EQ(desk.colours.ColourByElement, 0);
  ASSERT_EQ(desk.colours.PenColour, Rgb(0, 255, 0));

  Click(desk, desk.main.R_G_Stereo);

  EXPECT_EQ(desk.colours.PenColour, Rgb(255, 128, 0));
  EXPECT_EQ(desk.colours.ColourByElement, 1);
}

TEST_F(Toggles, RedGreenOffInATraceShowsTheAtomsUntilTheNextRepaint) {
  SelectRow(desk, desk.main.Pro_Lst, 1);  // a helix: its trace is in one colour, 2 pixels wide
  Click(desk, desk.main.D_Ca);
  const auto trace = desk.main.Picture1.Image()->Strokes;
  Click(desk, desk.main.R_G_Stereo);

  Click(desk, desk.main.R_G_Stereo);

  EXPECT_EQ(desk.drawing.DrawFamily, 1);
  bool nitrogen = false;
  for (const Stroke& stroke : desk.main.Picture1.Image()->Strokes) {
    EXPECT_EQ(stroke.Width, 1);
    nitrogen |= stroke.Ink == Rgb(60, 60, 240);
  }
  EXPECT_TRUE(nitrogen);

  StepBar(desk, desk.main.X_TRANS, 5);
  const auto& after = desk.main.Picture1.Image()->Strokes;
  ASSERT_EQ(after.size(), trace.size());
  EXPECT_EQ(after.front().Width, 2);
  EXPECT_EQ(after.front().Ink, kPalette7);
}

}  // namespace
}  // namespace orvane
