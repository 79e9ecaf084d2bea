// The spin's ticks drive the animated recording.

#include "commands/recording.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "desk_fixture.h"

namespace orvane {
namespace {

struct Recordings : DeskAtWork, testing::Test {
  Recordings() { SelectRow(desk, desk.main.Pro_Lst, 0); }

  void TickFor(int ticks) {
    for (int i = 0; i < ticks; ++i) Tick(desk, desk.main.Timer1);
  }
  long Count(const std::string& effect) {
    return std::count(platform.Effects.begin(), platform.Effects.end(), effect);
  }
};

TEST_F(Recordings, WriteEighteenFramesIntoOneFileAndStopByThemselves) {
  platform.Answers = {"abc"};
  Click(desk, desk.main.S_AnGif);
  ASSERT_EQ(desk.view.AutoRotateOn, 1);

  TickFor(36);  // 35 of the recording, and the one that ends it

  EXPECT_EQ(Count("save AGIF abc.gif Picture1"), 18);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_EQ(desk.recording.GifRecording, 0);
  EXPECT_EQ(desk.recording.GifFrame, 0);
}

TEST_F(Recordings, AskOnceAtTheFirstTick) {
  platform.Answers = {"abc", "xyz"};
  Click(desk, desk.main.S_AnGif);
  EXPECT_EQ(Count("ask Type in file name | Output GIF format"), 0);
  TickFor(36);
  EXPECT_EQ(Count("ask Type in file name | Output GIF format"), 1);
  EXPECT_EQ(platform.Answers.size(), 1U);
}

TEST_F(Recordings, RaiseABarAtOneSoThatTheSpinTurns) {
  ASSERT_EQ(desk.main.VScroll1.Value, 1);
  Click(desk, desk.main.S_AnGif);
  EXPECT_EQ(desk.main.VScroll1.Value, 2);
  EXPECT_NE(desk.view.SpinNow, 0);
}

TEST_F(Recordings, ACancelledNameStopsTheSpinAndWritesNothing) {
  Click(desk, desk.main.S_AnGif);
  TickFor(3);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_EQ(desk.recording.GifRecording, 0);
  EXPECT_EQ(Count("save AGIF .gif Picture1"), 0);
  EXPECT_EQ(platform.Effects,
            std::vector<std::string>{"ask Type in file name | Output GIF format"});
}

TEST_F(Recordings, AFourLetterNameRunsToItsEndAndWritesNothing) {
  platform.Answers = {"abcd"};
  Click(desk, desk.main.S_AnGif);
  TickFor(35);
  EXPECT_EQ(desk.view.AutoRotateOn, 1);
  TickFor(1);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_EQ(platform.Effects,
            std::vector<std::string>{"ask Type in file name | Output GIF format"});
}

TEST_F(Recordings, AManualStopLeavesTheFlagUntilJpegClearsIt) {
  platform.Answers = {"abc"};
  Click(desk, desk.main.S_AnGif);
  TickFor(4);
  Click(desk, desk.main.P_Auto_Rotate);
  EXPECT_EQ(desk.recording.GifRecording, -1);

  Click(desk, desk.main.S_JPG);
  EXPECT_EQ(desk.recording.GifRecording, 0);
}

TEST_F(Recordings, WithTheSpinAlreadyOnTheClickStopsIt) {
  Click(desk, desk.main.P_Auto_Rotate);
  Click(desk, desk.main.S_AnGif);
  EXPECT_EQ(desk.view.AutoRotateOn, 0);
  EXPECT_FALSE(desk.main.Timer1.Enabled);
}

TEST_F(Recordings, WithNoStructureOnlyBeep) {
  DeskAtWork empty;
  Click(empty.desk, empty.desk.main.S_AnGif);
  EXPECT_EQ(empty.platform.Effects, std::vector<std::string>{"beep"});
}

TEST_F(Recordings, FramesOfAStereoViewAreThePanel) {
  Click(desk, desk.main.Bt3_Sterio);
  platform.Answers = {"abc"};
  Click(desk, desk.main.S_AnGif);
  TickFor(36);
  EXPECT_EQ(Count("save AGIF abc.gif P_Sterio"), 18);
}

TEST_F(Recordings, DoNotTakeTheMapEvenIfItIsOpen) {
  desk.plot.Show();
  platform.Answers = {"abc"};
  Click(desk, desk.main.S_AnGif);
  TickFor(1);
  EXPECT_EQ(Count("save AGIF abc.gif Picture1"), 1);
}

TEST_F(Recordings, TurnByTwentyDegreesBetweenFrames) {
  // Every tick turns by ten degrees, and every second tick writes a frame.
  platform.Answers = {"abc"};
  Click(desk, desk.main.S_AnGif);
  Tick(desk, desk.main.Timer1);
  EXPECT_EQ(desk.recording.GifFrame, 1);
  Tick(desk, desk.main.Timer1);
  EXPECT_EQ(desk.recording.GifFrame, 2);
  EXPECT_EQ(Count("save AGIF abc.gif Picture1"), 1);
}

}  // namespace
}  // namespace orvane
