#include "shell/start_up.h"

#include <gtest/gtest.h>
#include <memory>

#include "desk_fixture.h"

namespace orvane {
namespace {

// The desk as its start leaves it, with the main window still hidden.
struct StartedDesk {
  FakePlatform platform;
  std::unique_ptr<Orvane_Desk> desk = StartDesk(platform);
};

TEST(StartUp, ShowsTheSplashAndKeepsTheDeskHidden) {
  StartedDesk started;
  EXPECT_FALSE(started.desk->main.Visible);
  EXPECT_TRUE(started.desk->front.Visible);
  EXPECT_FALSE(started.desk->content.Visible);
  EXPECT_FALSE(started.desk->author.Visible);
  EXPECT_TRUE(started.platform.Effects.empty());
}

TEST(StartUp, WipesTheSurfaceAndStaysWithoutAStructure) {
  StartedDesk started;
  // Any assignment of a picture counts as a structure; the start undoes that.
  EXPECT_EQ(started.desk->molecule.MoleculeReady, 0);
  EXPECT_TRUE(started.desk->main.Picture1.Image()->Strokes.empty());
}

TEST(StartUp, SetsEverySwitch) {
  StartedDesk started;
  const Orvane_Desk& desk = *started.desk;
  EXPECT_EQ(desk.selection.StockPending, 0);
  EXPECT_EQ(desk.selection.ListsShown, 0);
  EXPECT_EQ(desk.drawing.LabelsOn, 0);
  EXPECT_EQ(desk.drawing.BallsOn, 0);
  EXPECT_EQ(desk.drawing.RibbonOn, 0);
  EXPECT_EQ(desk.drawing.CartoonOn, 0);
  EXPECT_EQ(desk.drawing.PlanesOnly, 0);
  EXPECT_EQ(desk.drawing.ChainPlanes, 0);
  EXPECT_EQ(desk.drawing.DrawFamily, 0);
  EXPECT_EQ(desk.drawing.PeptideOn, 0);
  EXPECT_EQ(desk.drawing.NucleicMode, 0);
  EXPECT_EQ(desk.drawing.HBondShown, 0);
  EXPECT_EQ(desk.stereo.StereoOn, 0);
  EXPECT_EQ(desk.stereo.EnantiomerOn, 0);
  EXPECT_EQ(desk.stereo.EnantiomerPairOn, 0);
  EXPECT_EQ(desk.stereo.SplitViewOn, 0);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
}

TEST(StartUp, SetsColoursAndSizes) {
  StartedDesk started;
  const Orvane_Desk& desk = *started.desk;
  EXPECT_EQ(desk.colours.ColourByElement, 1);
  EXPECT_EQ(desk.colours.PlaneColour, Rgb(0, 128, 128));
  EXPECT_EQ(desk.colours.PenColour, Rgb(192, 192, 192));
  EXPECT_EQ(desk.colours.LabelColour, Rgb(255, 255, 255));
  EXPECT_EQ(desk.colours.BackgroundIndex, -1);
  EXPECT_EQ(desk.drawing.BallSize, 3);
  EXPECT_EQ(desk.drawing.BondWidth, 1);
  EXPECT_EQ(desk.drawing.PlaneWidth, 1);
}

TEST(StartUp, ChoosesTheYAxisAndTakesHalfOfTheSurface) {
  StartedDesk started;
  const Orvane_Desk& desk = *started.desk;
  EXPECT_EQ(desk.view.AxisX, 0);
  EXPECT_EQ(desk.view.AxisY, 1);
  EXPECT_EQ(desk.view.AxisZ, 0);
  EXPECT_EQ(desk.main.X_Tag[1].Style.Get(), (Look{1, 4}));
  EXPECT_EQ(desk.view.HalfW, 180);
  EXPECT_EQ(desk.view.HalfH, 180);
  EXPECT_EQ(desk.view.ZoomNow, 0);
  EXPECT_EQ(desk.view.PanX, 0);
  EXPECT_EQ(desk.view.PanY, 0);
  EXPECT_EQ(desk.view.SurfOffX, 0);
  EXPECT_EQ(desk.view.SurfOffY, 0);
}

TEST(StartUp, DisablesTheMenusThatNeedAStructure) {
  StartedDesk started;
  EXPECT_FALSE(started.desk->main.DWn.Enabled);
  EXPECT_FALSE(started.desk->main.RCDP.Enabled);
  EXPECT_FALSE(started.desk->main.Bt3_Isomers.Enabled);
}

TEST(StartUp, KeepsTheNewerNumberInTheTitleAndTheOlderInThePrefix) {
  StartedDesk started;
  EXPECT_EQ(started.desk->main.Caption, "Orvane (OVN) V3.0");
  EXPECT_EQ(started.desk->stock.TitlePrefix, "Orvane (OVN) v2.0: ");
}

TEST(StartUp, AssemblesEveryTextThatIsComparedLater) {
  StartedDesk started;
  const Catalogue& stock = started.desk->stock;
  for (const std::string* text :
       {&stock.TextAlfa, &stock.TextAlfb, &stock.TextBeta, &stock.TextBetb, &stock.TextPbs,
        &stock.TextApbs, &stock.TextNucleotideA, &stock.TextNucleotideC, &stock.TextNucleosideG,
        &stock.TextNucleotideG, &stock.TextNucleotideT, &stock.TextRibose, &stock.TextS1Dna,
        &stock.TextS2Dna, &stock.TextDna3}) {
    EXPECT_TRUE(text->starts_with("AT"));
  }
  EXPECT_EQ(stock.TextDna3, stock.TextS1Dna + stock.TextS2Dna);
}

TEST(StartUp, GivesTheSoundListItsPattern) {
  StartedDesk started;
  EXPECT_EQ(started.desk->main.File1.Pattern, "*.wav;*.aud;*.wa;*.au");
}

}  // namespace
}  // namespace orvane
