#include "commands/ways_of_drawing.h"

#include <gtest/gtest.h>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

constexpr Colour kPen = Rgb(1, 2, 3);
constexpr Colour kPlane = Rgb(4, 5, 6);

// What happens on the surface, one word for each painter; its further lines are left out. The atom
// family is known by a line in the element colour of carbon or oxygen.
struct PainterWords : SurfaceTrace {
  std::string Words;
  void Add(const std::string& word) {
    if (!Words.ends_with(word)) Words += word;
  }
  void PictureSet(int) override { Words += " wipe"; }
  void BackColorSet(Colour) override {}
  void Drawn(const Stroke& stroke, std::string_view) override {
    Add(stroke.Ink == kPen ? " trace" : stroke.Ink == kPlane ? " planes" : " atoms");
  }
};

// '-': the field stays.
struct Row {
  const char* Entry;
  bool Needs;
  char BondWidth, BallsOn, DrawFamily, RibbonOn, CartoonOn, PeptideOn, PlanesOnly;
  const char* Painters;
  int Composed;  // how many of the three tests of the tail run, counted from the first
};
constexpr Row kRows[] = {
    {"D_Wf", true, '1', '0', '0', '0', '0', '0', '0', " wipe atoms", 3},
    {"M_Stk", true, '3', '0', '0', '-', '0', '0', '0', " wipe atoms", 3},
    {"D_StB", true, '-', '1', '0', '-', '0', '0', '0', " wipe atoms", 3},
    {"D_Ca", false, '-', '-', '1', '0', '0', '0', '0', " wipe trace", 3},
    {"M_Rbn", false, '-', '-', '1', '1', '0', '0', '0', " wipe trace", 2},
    {"Cartn", false, '-', '-', '1', '0', '1', '0', '-', " wipe trace", 0},
    {"OPB", false, '-', '-', '0', '0', '0', '1', '1', " wipe planes", 3},
    {"PPB_SB", false, '-', '1', '0', '0', '0', '1', '0', " wipe atoms planes", 3},
};

struct DrawCommandsTest : testing::Test, PlacedAtoms {
  Drawing& drawing = desk.drawing;
  PainterWords words;

  // One bond that each of the three painters draws: alpha carbons 1 and 2 for the atoms and the
  // trace, C! and N! for the planes.
  DrawCommandsTest() {
    Atom("  CA ", 0, 0);
    Atom("  CA ", 10, 0);
    Atom("  C! ", 20, 0);
    Atom("  N! ", 30, 0);
    desk.molecule.BondCount = 2;
    desk.molecule.BondSerial[2] = 2;
    desk.molecule.BondA[1] = 2;
    desk.molecule.BondB[1] = 1;
    desk.molecule.BondB[7] = 1;
    desk.molecule.BondA[2] = 3;
    desk.molecule.BondB[2] = 4;
    desk.molecule.BondB[14] = 4;
    desk.colours.PenColour = kPen;
    desk.colours.PlaneColour = kPlane;
    desk.main.Picture1.Trace = &words;
  }

  // The painters that ran during the click. The click comes even if the menu is disabled.
  std::string Clicked(std::string_view name) {
    words.Words.clear();
    Click(desk, *desk.FindControl(name), Reach::Forced);
    return words.Words;
  }

  void Set(int width, int modes) {
    drawing.BondWidth = width;
    drawing.BallsOn = modes & 1;
    drawing.DrawFamily = (modes >> 1) & 1;
    drawing.RibbonOn = (modes >> 2) & 1;
    drawing.CartoonOn = (modes >> 3) & 1;
    drawing.PeptideOn = (modes >> 4) & 1;
    drawing.PlanesOnly = (modes >> 5) & 1;
    desk.molecule.MoleculeReady = (modes >> 6) & 1;
  }

  std::string Modes() const {
    std::string text;
    for (const int field :
         {int(drawing.BondWidth), drawing.BallsOn, drawing.DrawFamily, drawing.RibbonOn,
          drawing.CartoonOn, drawing.PeptideOn, drawing.PlanesOnly}) {
      text += static_cast<char>('0' + field);
    }
    return text;
  }
};

std::string Expected(const Row& row, std::string before) {
  const char fields[] = {row.BondWidth, row.BallsOn,   row.DrawFamily, row.RibbonOn,
                         row.CartoonOn, row.PeptideOn, row.PlanesOnly};
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (fields[i] != '-') before[i] = fields[i];
  }
  return before;
}

TEST_F(DrawCommandsTest, EachEntrySetsItsFieldsAndRunsItsPaintersFromEveryStart) {
  for (const Row& row : kRows) {
    for (const int width : {1, 2, 3, 6}) {
      for (int modes = 0; modes < 128; ++modes) {
        Set(width, modes);
        const std::string before = Modes();
        const bool acts = !row.Needs || desk.molecule.MoleculeReady == 1;
        const std::string painters = Clicked(row.Entry);

        ASSERT_EQ(Modes(), acts ? Expected(row, before) : before) << row.Entry << " " << before;
        ASSERT_EQ(painters, acts ? row.Painters : "") << row.Entry << " from " << before;
      }
    }
  }
  EXPECT_TRUE(platform.Effects.empty());  // without a structure they do not even beep
}

// Each composition leaves its own mark. Both pairs fill the images, and the right half of the
// stereo pair is turned; the red-green picture leaves the pen green.
TEST_F(DrawCommandsTest, EachEntryComposesWhatItsRowSays) {
  const Colour green = desk.main.P_Clr[kGreenSwatch].BackColor;
  for (const Row& row : kRows) {
    for (int on = 0; on < 3; ++on) {
      Set(1, 64);
      desk.stereo.StereoOn = on == 0;
      desk.stereo.EnantiomerOn = on == 1;
      desk.stereo.RedGreenOn = on == 2;
      desk.colours.PenColour = kPen;
      desk.main.L_Img.SetPicture(nullptr);
      Clicked(row.Entry);

      const bool composed =
          on == 2 ? desk.colours.PenColour == green : desk.main.L_Img.Shown() != nullptr;
      EXPECT_EQ(composed, on < row.Composed) << row.Entry << " " << on;
    }
  }
}

TEST_F(DrawCommandsTest, TheEntriesLeaveOpenPanelsOpen) {
  desk.main.P_Clr_Holder.Visible = true;
  for (const Row& row : kRows) Clicked(row.Entry);
  EXPECT_TRUE(desk.main.P_Clr_Holder.Visible);
}

TEST_F(DrawCommandsTest, PlanesOverBallsLeaveTheWidthOfTheBonds) {
  drawing.BondWidth = 5;
  Clicked("PPB_SB");
  EXPECT_EQ(drawing.BallsOn, 1);
  EXPECT_EQ(drawing.BondWidth, 5);
}

TEST_F(DrawCommandsTest, BallOutlinesAreOnePixelWideWhateverTheBonds) {
  drawing.BondWidth = 6;
  Clicked("D_StB");
  int balls = 0;
  for (const Stroke& stroke : desk.main.Picture1.Image()->Strokes) {
    if (stroke.Kind != StrokeKind::Circle) continue;
    ++balls;
    EXPECT_EQ(stroke.Width, 1);
  }
  EXPECT_EQ(balls, 4);
}

TEST_F(DrawCommandsTest, TheStyleButtonGoesByItsCaption) {
  EXPECT_EQ(Clicked("Bt_BlS"), " wipe atoms");
  EXPECT_EQ(desk.main.Bt_BlS.Caption, "Wire-Frame");
  EXPECT_EQ(drawing.BondWidth, 2);
  EXPECT_EQ(drawing.BallsOn, 1);

  EXPECT_EQ(Clicked("Bt_BlS"), " wipe atoms");
  EXPECT_EQ(desk.main.Bt_BlS.Caption, "Ball-Stick");
  EXPECT_EQ(drawing.BondWidth, 1);
  EXPECT_EQ(drawing.BallsOn, 0);

  // The menu gave balls but left the caption, so a click gives balls once more.
  Clicked("D_StB");
  Clicked("Bt_BlS");
  EXPECT_EQ(drawing.BallsOn, 1);
  EXPECT_EQ(desk.main.Bt_BlS.Caption, "Wire-Frame");
}

TEST_F(DrawCommandsTest, TheStyleButtonPaintsAtomsOverATraceAndLeavesTheFamily) {
  Clicked("D_Ca");
  EXPECT_EQ(Clicked("Bt_BlS"), " wipe atoms");
  EXPECT_EQ(drawing.DrawFamily, 1);
}

TEST_F(DrawCommandsTest, TheStyleButtonOnlyBeepsWithoutAStructure) {
  desk.molecule.MoleculeReady = 0;
  EXPECT_EQ(Clicked("Bt_BlS"), "");
  EXPECT_EQ(platform.Effects, std::vector<std::string>{"beep"});
  EXPECT_EQ(desk.main.Bt_BlS.Caption, "Ball-Stick");
  EXPECT_EQ(drawing.BondWidth, 1);
}

TEST_F(DrawCommandsTest, TheTraceButtonSwitchesTheFamilyAndKeepsTheLook) {
  drawing.CartoonOn = 1;
  EXPECT_EQ(Clicked("Bt_CA_Trace"), " wipe trace");
  EXPECT_EQ(desk.main.Bt_CA_Trace.Caption, "Ca-trace ON");
  EXPECT_EQ(drawing.DrawFamily, 1);
  EXPECT_EQ(drawing.CartoonOn, 1);

  EXPECT_EQ(Clicked("Bt_CA_Trace"), " wipe atoms");
  EXPECT_EQ(desk.main.Bt_CA_Trace.Caption, "Ca-trace OFF");
  EXPECT_EQ(drawing.DrawFamily, 0);
  EXPECT_EQ(drawing.CartoonOn, 1);
}

TEST_F(DrawCommandsTest, TheTraceButtonNeedsNoStructure) {
  desk.molecule.MoleculeReady = 0;
  EXPECT_EQ(Clicked("Bt_CA_Trace"), " wipe trace");
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(DrawCommandsTest, TheTwoButtonsComposeNothing) {
  desk.stereo.StereoOn = 1;
  Clicked("Bt_BlS");
  Clicked("Bt_CA_Trace");
  EXPECT_EQ(desk.main.L_Img.Shown(), nullptr);
}

TEST_F(DrawCommandsTest, TheTraceButtonAfterPlanesOverBallsBringsPlanesOverATrace) {
  Clicked("PPB_SB");
  Clicked("Bt_CA_Trace");
  EXPECT_EQ(drawing.DrawFamily, 1);
  EXPECT_EQ(drawing.PeptideOn, 1);

  words.Words.clear();
  Press(desk, desk.main.Sz_Balls[2], kLeftButton, 1, 1);
  EXPECT_EQ(words.Words, " wipe trace planes");
}

}  // namespace
}  // namespace orvane
