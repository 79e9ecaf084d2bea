// The windows before and beside the desk, and the order in which they come.

#include "commands/information.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "desk_fixture.h"
#include "front_maker/front_maker.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

// A desk as the program starts it, before anything was clicked.
struct Starting : testing::Test {
  FakePlatform platform;
  std::unique_ptr<Orvane_Desk> owned = StartDesk(platform);
  Orvane_Desk& desk = *owned;
};

TEST_F(Starting, TheSplashShowsAndTheMainWindowIsHidden) {
  EXPECT_TRUE(desk.front.Visible);
  EXPECT_FALSE(desk.main.Visible);
  EXPECT_FALSE(desk.content.Visible);
  EXPECT_FALSE(desk.author.Visible);
}

TEST_F(Starting, TheWayLeadsFromTheSplashThroughTheOverviewToTheDesk) {
  Click(desk, desk.front.Get_in);
  EXPECT_FALSE(desk.front.Visible);
  EXPECT_TRUE(desk.content.Visible);
  EXPECT_FALSE(desk.front.Timer1.Enabled);

  Click(desk, desk.content.Get_in);
  EXPECT_FALSE(desk.content.Visible);
  EXPECT_TRUE(desk.main.Visible);
}

TEST_F(Starting, TheAuthorWindowIsASideTripFromTheSplash) {
  Click(desk, desk.front.Author);
  EXPECT_TRUE(desk.author.Visible);
  EXPECT_TRUE(desk.front.Visible);
  EXPECT_EQ(desk.shell.FromFrontAuthor, -1);

  Click(desk, desk.author.Get_in);
  EXPECT_FALSE(desk.author.Visible);
  EXPECT_TRUE(desk.front.Visible);
  EXPECT_FALSE(desk.main.Visible);
}

TEST_F(Starting, ClosingTheSplashOrTheFirstOverviewEndsTheProgram) {
  CloseWindow(desk, desk.front);
  EXPECT_EQ(platform.Effects, std::vector<std::string>{"end"});
  platform.Effects.clear();

  Click(desk, desk.front.Get_in);
  CloseWindow(desk, desk.content);
  EXPECT_EQ(platform.Effects, std::vector<std::string>{"end"});
}

TEST_F(Starting, OnceTheDeskIsReachedClosingTheOverviewLeadsBackToIt) {
  Click(desk, desk.front.Get_in);
  Click(desk, desk.content.Get_in);
  Click(desk, desk.main.WatN);

  CloseWindow(desk, desk.content);

  EXPECT_TRUE(platform.Effects.empty());
  EXPECT_FALSE(desk.content.Visible);
  EXPECT_TRUE(desk.main.Visible);
}

TEST_F(Starting, ClosingThePlotOnlyHidesIt) {
  desk.plot.Show();

  CloseWindow(desk, desk.plot);

  EXPECT_FALSE(desk.plot.Visible);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(Starting, FromTheMenuTheAuthorWindowLeadsBackToTheDesk) {
  Click(desk, desk.front.Author);  // the flag is set here and cleared on the way in
  Click(desk, desk.author.Get_in);
  Click(desk, desk.front.Get_in);
  Click(desk, desk.content.Get_in);

  Click(desk, desk.main.Cprt);
  EXPECT_FALSE(desk.main.Visible);
  EXPECT_TRUE(desk.author.Visible);

  Click(desk, desk.author.Get_in);
  EXPECT_TRUE(desk.main.Visible);
  EXPECT_FALSE(desk.front.Visible);
}

TEST_F(Starting, WhatsNewHidesTheDeskAndLeadsBackToIt) {
  Click(desk, desk.front.Get_in);
  Click(desk, desk.content.Get_in);
  desk.main.P_Clr_Holder.Visible = true;

  Click(desk, desk.main.WatN);
  EXPECT_FALSE(desk.main.Visible);
  EXPECT_TRUE(desk.content.Visible);
  EXPECT_FALSE(desk.main.P_Clr_Holder.Visible);

  Click(desk, desk.content.Get_in);
  EXPECT_TRUE(desk.main.Visible);
}

TEST_F(Starting, TheAnimationBeginsAtFrameOneAndNeverLooksUpTen) {
  std::vector<int> frames;
  for (int tick = 0; tick < 25; ++tick) {
    Tick(desk, desk.front.Timer1);
    frames.push_back(desk.shell.FrontFrame);
    const auto at = static_cast<std::size_t>(desk.shell.FrontFrame);
    EXPECT_EQ(desk.front.Image1[0].Shown(), desk.front.Pro_Image[at].Shown());
    EXPECT_EQ(desk.front.Image1[1].Shown(), desk.front.DNA_Image[at].Shown());
  }
  EXPECT_EQ(frames, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 1, 2, 3,
                                      4, 5, 6, 7, 8, 9, 0, 1, 2, 3, 4, 5}));
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(Starting, TheAnimationRunsOnBehindTheAuthorWindow) {
  Click(desk, desk.front.Author);
  EXPECT_TRUE(desk.front.Timer1.Enabled);
  Tick(desk, desk.front.Timer1);
  EXPECT_EQ(desk.shell.FrontFrame, 1);
}

TEST_F(Starting, EveryFrameHoldsADrawnMolecule) {
  for (std::size_t i = 0; i < kFrontFrames; ++i) {
    // The helix has 60 atoms with a ball each, the double strand 136 bonds of two halves.
    EXPECT_GE(desk.front.Pro_Image[i].Shown()->Strokes.size(), 60U);
    EXPECT_GE(desk.front.DNA_Image[i].Shown()->Strokes.size(), 272U);
  }
}

TEST_F(Starting, TheAnimationsAreWhatTheirMakerDraws) {
  const auto kept = [](const char* name) {
    std::ifstream file(std::string(ORVANE_SOURCE_DIR) + "/src/shell/front/" + name,
                       std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
  };
  EXPECT_TRUE(kept("protein.frames") == ProteinFramesAsBytes());
  EXPECT_TRUE(kept("dna.frames") == DnaFramesAsBytes());
  EXPECT_TRUE(kept("author.frames") == AuthorFrameAsBytes());
}

// For a box of 132 by 164 pixels, a picture 360 wide is 447 high.
TEST_F(Starting, TheAuthorWindowShowsAWholeAlanineInItsMiddle) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.AA_Lst, 2);
  const auto picture = desk.author.Image1.Shown();
  ASSERT_NE(picture, nullptr);
  int balls = 0;
  float left = 999, right = 0, top = 999, bottom = 0;
  for (const Stroke& stroke : picture->Strokes) {
    if (stroke.Kind != StrokeKind::Circle) continue;
    ++balls;
    left = std::min(left, stroke.X1 - stroke.X2);
    right = std::max(right, stroke.X1 + stroke.X2);
    top = std::min(top, stroke.Y1 - stroke.X2);
    bottom = std::max(bottom, stroke.Y1 + stroke.X2);
  }
  EXPECT_EQ(balls, work.desk.molecule.AtomCount);
  EXPECT_GT(left, 15);
  EXPECT_LT(right, 345);
  EXPECT_GT(top, 15);
  EXPECT_LT(bottom, 432);
  EXPECT_NEAR((left + right) / 2, 180, 20);
  EXPECT_NEAR((top + bottom) / 2, 447 / 2.0, 20);
}

TEST_F(Starting, TheTextsStandAsTheyAre) {
  EXPECT_EQ(desk.front.Title.Caption, "  Orvane   (OVN)  ");
  EXPECT_EQ(desk.front.Panel3D5.Caption, "Version 3.0   ");
  EXPECT_EQ(desk.content.WtNew.Caption, "What's new in OVN");
  EXPECT_EQ(desk.content.Text[0].Caption,
            "OVN offers the interactive study of the following subjects:");
  EXPECT_EQ(desk.content.Text[1].Caption,
            "Structure, conformation and stereochemistry of amino acids and DNA nucleotides.  ");
  EXPECT_EQ(
      desk.content.Text[2].Caption,
      "OVN provides different graphical representation  modes with the aim of simplifying the "
      "study of the above subjects. These include the wire-frame, stick, ball and stick, C  "
      "-trace, Ribbon and Peptide Bond Plane (PBP; Bioribbon) display modes.");
  EXPECT_EQ(desk.content.Text[3].Caption, "Calculation of bond distances, bond angles and ");
  EXPECT_EQ(desk.content.Text[4].Caption,
            "torsion angles is possible. Ramachandran plot is also provided.  ");
}

TEST(Exit, HidesTheListsAndEndsTheProgram) {
  DeskAtWork work;
  work.desk.selection.ListsShown = 1;
  work.desk.main.P_Clr_Holder.Visible = true;

  Click(work.desk, work.desk.main.ExitEntry);

  EXPECT_EQ(work.platform.Effects, std::vector<std::string>{"end"});
  EXPECT_EQ(work.desk.selection.ListsShown, 0);
  EXPECT_FALSE(work.desk.main.P_Clr_Holder.Visible);
  EXPECT_FALSE(work.desk.main.AA_Lst.Visible);
  EXPECT_FALSE(work.desk.main.DNA_Lst.Visible);
  EXPECT_FALSE(work.desk.main.Panel3D4.Visible);
}

}  // namespace
}  // namespace orvane
