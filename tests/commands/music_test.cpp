// The music commands. No menu reaches them, so they are forced here.

#include "commands/music.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {
namespace {

struct Sound : DeskAtWork, testing::Test {
  using List = std::vector<std::string>;
};

TEST_F(Sound, IsNotReachedFromTheMenu) {
  Click(desk, desk.main.PMSC1);
  EXPECT_TRUE(platform.Effects.empty());
}

TEST_F(Sound, AStockTuneIsOpenedBelowTheStockFolderAndPlayed) {
  Click(desk, desk.main.PMSC3, Reach::Forced);

  EXPECT_EQ(desk.shell.SoundFile, "3d_pdb\\sounds\\music3.wav");
  EXPECT_EQ(platform.Effects,
            (List{"sound open /opt/orvane/3d_pdb\\sounds\\music3.wav", "sound play"}));
  EXPECT_TRUE(desk.main.Timer1.Enabled);
}

TEST_F(Sound, EveryEntryHasItsTune) {
  const std::array<Control*, 9> entries = {&desk.main.PMSC1, &desk.main.PMSC2, &desk.main.PMSC3,
                                           &desk.main.PMSC4, &desk.main.PMSC5, &desk.main.PMSC6,
                                           &desk.main.PMSC7, &desk.main.PMSC8, &desk.main.PMSC9};
  for (std::size_t i = 0; i < entries.size(); ++i) {
    Click(desk, *entries[i], Reach::Forced);
    EXPECT_EQ(desk.shell.SoundFile, "3d_pdb\\sounds\\music" + std::to_string(i + 1) + ".wav");
  }
}

TEST_F(Sound, ADriveIsListedInTheOtherTwoAndAFolderInTheFilesOnly) {
  Click(desk, desk.main.OpMfL, Reach::Forced);

  OpenFolder(desk, desk.main.Drive1, "/media/stick");
  EXPECT_EQ(desk.main.Dir1.Path.Get(), "/media/stick");
  EXPECT_EQ(desk.main.File1.Path.Get(), "/media/stick");

  ChooseFile(desk, desk.main.File1, "a.wav");
  OpenFolder(desk, desk.main.Dir1, "/media/stick/tunes");
  EXPECT_EQ(desk.main.Drive1.Path.Get(), "/media/stick");
  EXPECT_EQ(desk.main.File1.Path.Get(), "/media/stick/tunes");
  EXPECT_EQ(desk.main.File1.FileName.Get(), "");  // it was a file in another folder
}

TEST_F(Sound, NoFileIsChosenWhileTheChooserIsHidden) {
  ChooseFile(desk, desk.main.File1, "a.wav");

  EXPECT_EQ(desk.main.File1.FileName.Get(), "");
}

TEST_F(Sound, ASecondTuneClosesTheFirst) {
  Click(desk, desk.main.PMSC1, Reach::Forced);
  platform.Effects.clear();

  Click(desk, desk.main.PMSC2, Reach::Forced);

  EXPECT_EQ(
      platform.Effects,
      (List{"sound close", "sound open /opt/orvane/3d_pdb\\sounds\\music2.wav", "sound play"}));
}

TEST_F(Sound, AFileThatDoesNotOpenEndsInTheBoxAndTheProgramGoesOn) {
  platform.SoundError = 53;
  Click(desk, desk.main.PMSC1, Reach::Forced);
  EXPECT_EQ(platform.Effects.back(), "warning ÎØÃ ÛíÑ ãÚÑæÝ (53).");

  platform.Effects.clear();
  Click(desk, desk.main.PMSC2, Reach::Forced);
  EXPECT_EQ(platform.Effects.back(), "sound play");
}

TEST_F(Sound, StopWithNothingPlayingGivesBothCommands) {
  Click(desk, desk.main.StMsc, Reach::Forced);
  EXPECT_EQ(platform.Effects, (List{"sound stop", "sound close"}));
}

TEST_F(Sound, PlayFileOpensTheChooser) {
  Click(desk, desk.main.OpMfL, Reach::Forced);
  EXPECT_TRUE(desk.main.P_Dir_Holder.Visible);
  EXPECT_TRUE(desk.main.File1.IsOpenToUser());
  EXPECT_EQ(desk.main.File1.Pattern, "*.wav;*.aud;*.wa;*.au");
}

TEST_F(Sound, ADoubleClickPlaysTheFileAndClosesTheChooser) {
  Click(desk, desk.main.OpMfL, Reach::Forced);
  desk.main.File1.Path = "/home/student/music";
  desk.main.File1.FileName = "bell.au";

  DoubleClick(desk, desk.main.File1);

  EXPECT_EQ(platform.Effects, (List{"sound open /home/student/music/bell.au", "sound play"}));
  EXPECT_FALSE(desk.main.P_Dir_Holder.Visible);
}

TEST_F(Sound, APathThatEndsInASeparatorGetsNoSecondOne) {
  Click(desk, desk.main.OpMfL, Reach::Forced);
  for (const char* root : {"/", "Y:\\"}) {
    platform.Effects.clear();
    desk.main.P_Dir_Holder.Visible = true;
    desk.main.File1.Path = root;
    desk.main.File1.FileName = "bell.wav";
    DoubleClick(desk, desk.main.File1);
    EXPECT_THAT(platform.Effects,
                testing::Contains(std::string("sound open ") + root + "bell.wav"));
  }
}

}  // namespace
}  // namespace orvane
