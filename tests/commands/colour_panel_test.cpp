#include "commands/colour_panel.h"

#include <gtest/gtest.h>
#include <utility>

#include "draw/placed_atoms.h"

namespace orvane {
namespace {

constexpr Colour kWhite = Rgb(255, 255, 255);
constexpr std::size_t kWhiteSwatch = 30, kBlackSwatch = 4, kYellowSwatch = 25;
constexpr Colour kElementFace = Rgb(181, 200, 200);

constexpr const char* kIsBackground =
    "message This is already the background colour \n\nChoose a different colour";
constexpr const char* kIsInUse =
    "message This is already the Molecule, the Labels and/or\nthe Peptide Plane colour\n\n\n"
    "Choose a different colour.";

struct ColoursTest : testing::Test, PlacedAtoms, SurfaceTrace, ControlWatcher {
  Colours& colours = desk.colours;
  Drawing& drawing = desk.drawing;
  MainWindow& main = desk.main;
  std::vector<std::string> calls;
  std::vector<const Control*> brought;

  ColoursTest() {
    main.Picture1.Trace = this;
    main.Watcher = this;
  }
  ~ColoursTest() override { main.Watcher = nullptr; }

  void PictureSet(int background) override {
    calls.push_back("wipe " + std::to_string(background));
  }
  void BackColorSet(Colour colour) override { calls.push_back("back " + ColourAsText(colour)); }
  void Drawn(const Stroke& stroke, std::string_view) override {
    calls.push_back("line " + ColourAsText(stroke.Ink));
  }
  void Changed(Control& control, Aspect aspect) override {
    if (aspect == Aspect::Front) brought.push_back(&control);
  }

  // Does what a user does: the menu entry, then a press and a click on the swatch. Returns the
  // calls on the surface.
  std::vector<std::string> Choose(MenuEntry& entry, std::size_t swatch, int button = kLeftButton) {
    Click(desk, entry);
    calls.clear();
    Press(desk, main.P_Clr[swatch], button, 5, 5);
    Click(desk, main.P_Clr[swatch]);
    return std::exchange(calls, {});
  }

  // A bond of two alpha carbons, which the trace painter finds too.
  void TwoCarbons() {
    Atom("  CA ", 0, 0);
    Atom("  CA ", 10, 0);
    Bond(2, 1);
    desk.molecule.BondB[7] = 1;
    desk.molecule.BondB[8] = 0;
  }
  // The marked peptide bond: the plane painter draws one line for it.
  void MarkedBond() {
    Atom("  C! ", 0, 0);
    Atom("  N! ", 10, 0);
    desk.molecule.BondA[1] = 1;
    desk.molecule.BondB[13] = 2;
  }
};

using Calls = std::vector<std::string>;

TEST_F(ColoursTest, EachEntryOpensThePanelForItsTarget) {
  const std::pair<MenuEntry*, int> entries[] = {
      {&main.MlClr, 1}, {&main.LbClr, 0}, {&main.PbClr, 2}, {&main.ClPlt, 3}};
  for (const auto& [entry, target] : entries) {
    main.P_Clr_Holder.Visible = false;
    brought.clear();
    Click(desk, *entry);
    EXPECT_EQ(colours.ColourTarget, target) << entry->Name;
    EXPECT_EQ(main.P_Clr[0].Caption, target == 1 ? "CPK" : "") << entry->Name;
    EXPECT_TRUE(main.P_Clr_Holder.Visible) << entry->Name;
    EXPECT_EQ(brought, std::vector<const Control*>{&main.P_Clr_Holder}) << entry->Name;
  }
}

TEST_F(ColoursTest, AnyButtonChoosesAndTheClickClosesThePanel) {
  TwoCarbons();
  for (const int button : {kLeftButton, kRightButton, kMiddleButton}) {
    colours.PenColour = 0;
    Choose(main.MlClr, kYellowSwatch, button);
    EXPECT_EQ(colours.PenColour, Rgb(255, 255, 0)) << button;
    EXPECT_FALSE(main.P_Clr_Holder.Visible) << button;
  }
}

TEST_F(ColoursTest, AClickAloneClosesThePanelAndChoosesNothing) {
  Click(desk, main.MlClr);
  Click(desk, main.P_Clr[kYellowSwatch]);
  EXPECT_FALSE(main.P_Clr_Holder.Visible);
  EXPECT_EQ(colours.PenColour, kPalette7);
}

TEST_F(ColoursTest, ASwatchIsWhatItsPanelShows) {
  TwoCarbons();
  main.P_Clr[7].BackColor = Rgb(9, 8, 7);
  Choose(main.MlClr, 7);
  EXPECT_EQ(colours.PenColour, Rgb(9, 8, 7));
}

TEST_F(ColoursTest, TheClashAnswersInColourRefused) {
  SwatchClash(desk, kBlackSwatch);  // the background is black at the start
  EXPECT_EQ(colours.ColourRefused, 1);
  EXPECT_EQ(platform.Effects, Calls{kIsBackground});

  SwatchClash(desk, kWhiteSwatch);
  EXPECT_EQ(colours.ColourRefused, 0);
  EXPECT_EQ(platform.Effects.size(), 1u);
}

// Molecule.

TEST_F(ColoursTest, AMoleculeOfTheBackgroundColourIsRefusedAndThePanelCloses) {
  TwoCarbons();
  main.Picture1.SetBackColor(kWhite);

  EXPECT_EQ(Choose(main.MlClr, kWhiteSwatch), Calls{});
  EXPECT_EQ(platform.Effects, Calls{kIsBackground});
  EXPECT_EQ(colours.PenColour, kPalette7);
  EXPECT_FALSE(main.P_Clr_Holder.Visible);
}

TEST_F(ColoursTest, AMoleculeColourEndsElementColours) {
  TwoCarbons();
  EXPECT_EQ(Choose(main.MlClr, kYellowSwatch), (Calls{"wipe -1", "line #ffff00", "line #ffff00"}));
  EXPECT_EQ(colours.ColourByElement, 0);
}

TEST_F(ColoursTest, TheFirstSwatchPaintsTwiceAndMeansElementColoursForTheAtoms) {
  TwoCarbons();
  colours.ColourByElement = 0;
  EXPECT_EQ(Choose(main.MlClr, 0), (Calls{"wipe -1", "line #b5c8c8", "line #b5c8c8",  //
                                          "wipe -1", "line #00f050", "line #00f050"}));
  EXPECT_EQ(colours.ColourByElement, 1);
  EXPECT_EQ(colours.PenColour, kElementFace);

  Click(desk, main.Bt_CA_Trace);
  EXPECT_EQ(calls, (Calls{"wipe -1", "line #b5c8c8"}));
}

TEST_F(ColoursTest, AColourChosenInTheTraceLeavesElementColoursToTheAtoms) {
  TwoCarbons();
  Click(desk, main.Bt_CA_Trace);
  EXPECT_EQ(Choose(main.MlClr, kYellowSwatch), (Calls{"wipe -1", "line #ffff00"}));
  EXPECT_EQ(colours.ColourByElement, 1);

  Click(desk, main.D_Wf, Reach::Forced);
  EXPECT_EQ(calls, (Calls{"wipe -1", "line #00f050", "line #00f050"}));
}

TEST_F(ColoursTest, ACartoonIsColouredAsATrace) {
  TwoCarbons();
  Click(desk, main.Cartn, Reach::Forced);
  colours.ColourByElement = 0;

  EXPECT_EQ(Choose(main.MlClr, kYellowSwatch),
            (Calls{"wipe -1", "line #ffff00", "line #ffff00", "line #ffff00"}));
  EXPECT_EQ(colours.ColourByElement, 1);
}

TEST_F(ColoursTest, ARememberedRibbonIsPaintedAndWipedByTheAtoms) {
  TwoCarbons();
  Click(desk, main.M_Rbn, Reach::Forced);
  Click(desk, main.M_Stk, Reach::Forced);

  const std::string yellow = "line #ffff00";
  EXPECT_EQ(Choose(main.MlClr, kYellowSwatch),
            (Calls{"wipe -1", yellow, yellow, yellow, yellow, yellow, "wipe -1", yellow, yellow}));
  EXPECT_EQ(colours.ColourByElement, 0);
}

TEST_F(ColoursTest, ARememberedCartoonPaintsNothingInTheAtomFamily) {
  TwoCarbons();
  drawing.CartoonOn = 1;
  EXPECT_EQ(Choose(main.MlClr, kYellowSwatch), Calls{});
  EXPECT_EQ(colours.PenColour, Rgb(255, 255, 0));
  EXPECT_EQ(colours.ColourByElement, 1);
}

TEST_F(ColoursTest, PlanesComeAfterTheCompositionsOfAMoleculeColour) {
  MarkedBond();
  drawing.PlanesOnly = 1;  // and PeptideOn 0: the passes run no plane painter
  desk.stereo.StereoOn = 1;
  const Calls chosen = Choose(main.MlClr, kYellowSwatch);

  ASSERT_FALSE(chosen.empty());
  EXPECT_EQ(chosen.back(), "line #008080");
  ASSERT_NE(main.L_Img.Shown(), nullptr);
  for (const Stroke& stroke : main.L_Img.Shown()->Strokes) EXPECT_NE(stroke.Ink, kPalette3);
}

// Labels.

TEST_F(ColoursTest, WithLabelsOffALabelColourDoesNothing) {
  TwoCarbons();
  EXPECT_EQ(Choose(main.LbClr, kBlackSwatch), Calls{});  // not even refused
  EXPECT_EQ(Choose(main.LbClr, kYellowSwatch), Calls{});
  EXPECT_EQ(colours.LabelColour, kPalette15);
  EXPECT_TRUE(platform.Effects.empty());
  EXPECT_FALSE(main.P_Clr_Holder.Visible);
}

TEST_F(ColoursTest, ALabelColourPaintsTheAtomsWhateverTheFamily) {
  TwoCarbons();
  drawing.LabelsOn = 1;
  drawing.DrawFamily = 1;
  EXPECT_EQ(Choose(main.LbClr, kYellowSwatch),
            (Calls{"wipe -1", "line #00f050", "line #00f050", "line #ffff00", "line #ffff00"}));
  EXPECT_EQ(colours.LabelColour, Rgb(255, 255, 0));
  EXPECT_EQ(drawing.DrawFamily, 1);

  Choose(main.LbClr, kBlackSwatch);
  EXPECT_EQ(platform.Effects, Calls{kIsBackground});
  EXPECT_EQ(colours.LabelColour, Rgb(255, 255, 0));
}

// Planes.

TEST_F(ColoursTest, APlaneColourNeedsPlanesInOneOfTheTwoWays) {
  MarkedBond();
  EXPECT_EQ(Choose(main.PbClr, kYellowSwatch), Calls{});
  EXPECT_EQ(colours.PlaneColour, kPalette3);

  drawing.PeptideOn = 1;
  EXPECT_EQ(Choose(main.PbClr, kYellowSwatch), Calls{"line #ffff00"});
  drawing.PeptideOn = 0;
  drawing.PlanesOnly = 1;
  EXPECT_EQ(Choose(main.PbClr, kWhiteSwatch), (Calls{"wipe -1", "line #ffffff"}));
}

TEST_F(ColoursTest, APlaneOfTheBackgroundColourIsRefused) {
  MarkedBond();
  drawing.PeptideOn = 1;
  EXPECT_EQ(Choose(main.PbClr, kBlackSwatch), Calls{});
  EXPECT_EQ(platform.Effects, Calls{kIsBackground});
  EXPECT_EQ(colours.PlaneColour, kPalette3);
}

// Background.

TEST_F(ColoursTest, ABackgroundWipesThenTakesItsColourThenPaints) {
  TwoCarbons();
  colours.BackgroundIndex = 2;
  EXPECT_EQ(Choose(main.ClPlt, kYellowSwatch),
            (Calls{"wipe -1", "back #ffff00", "wipe -1", "line #00f050", "line #00f050"}));
  EXPECT_EQ(colours.BackgroundIndex, -1);
}

TEST_F(ColoursTest, ABackgroundOfAnyColourInUseIsRefused) {
  TwoCarbons();
  colours.PenColour = kWhite;  // counts even though the atoms show element colours
  EXPECT_EQ(Choose(main.ClPlt, kWhiteSwatch), Calls{});
  colours.PenColour = kPalette7;
  colours.PlaneColour = kWhite;  // counts even though no planes are shown
  EXPECT_EQ(Choose(main.ClPlt, kWhiteSwatch), Calls{});
  colours.PlaneColour = kPalette3;
  drawing.LabelsOn = 1;  // labels are white at the start
  EXPECT_EQ(Choose(main.ClPlt, kWhiteSwatch), Calls{});

  EXPECT_EQ(platform.Effects, (Calls{kIsInUse, kIsInUse, kIsInUse}));
  EXPECT_EQ(main.Picture1.PlainColour(), kPalette0);
}

TEST_F(ColoursTest, TheLabelColourCountsOnlyWhileLabelsAreOn) {
  Choose(main.ClPlt, kWhiteSwatch);
  EXPECT_EQ(main.Picture1.PlainColour(), kWhite);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(ColoursTest, TheBackgroundsOwnColourIsAcceptedAgain) {
  Choose(main.ClPlt, kBlackSwatch);  // the check of the other targets does not run
  EXPECT_TRUE(platform.Effects.empty());
}

// Compositions. A pair fills the image; the red-green picture leaves the pen green.

TEST_F(ColoursTest, EveryTargetComposesAllThreeViews) {
  MarkedBond();
  drawing.LabelsOn = 1;
  drawing.PeptideOn = 1;
  for (MenuEntry* entry : {&main.LbClr, &main.MlClr, &main.PbClr, &main.ClPlt}) {
    for (int on = 0; on < 3; ++on) {
      desk.stereo.StereoOn = on == 0;
      desk.stereo.EnantiomerOn = on == 1;
      desk.stereo.RedGreenOn = on == 2;
      colours.PenColour = kPalette7;
      main.L_Img.SetPicture(nullptr);
      Choose(*entry, 13);
      const bool composed =
          on == 2 ? colours.PenColour == Rgb(0, 255, 0) : main.L_Img.Shown() != nullptr;
      EXPECT_TRUE(composed) << entry->Name << " " << on;
      colours.LabelColour = kPalette15;
      colours.PlaneColour = kPalette3;
      main.Picture1.SetBackColor(kPalette0);
    }
  }
}

}  // namespace
}  // namespace orvane
