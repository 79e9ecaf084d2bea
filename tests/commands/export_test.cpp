// What a save command writes, from where, and under which names.

#include "commands/export.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desk_fixture.h"
#include "shell/start_up.h"

namespace orvane {
namespace {

using Lines = std::vector<std::string>;

struct Export : DeskAtWork, testing::Test {
  // The effects of a save when the box gets that answer.
  Lines Save(Control& entry, const std::string& answer) {
    platform.Effects.clear();
    platform.Answers = {answer};
    Click(desk, entry);
    return platform.Effects;
  }
};

TEST_F(Export, AsksUnderTheTitleOfTheFormat) {
  EXPECT_EQ(Save(desk.main.S_bmp, ""), Lines{"ask Type in file name | Output BMP format"});
  EXPECT_EQ(Save(desk.main.S_JPG, ""), Lines{"ask Type in file name | Output JPEG format"});
  EXPECT_EQ(Save(desk.main.S_Gif, ""), Lines{"ask Type in file name | Output GIF format"});
}

TEST_F(Export, ANameOfOneToThreeLettersIsWritten) {
  EXPECT_EQ(Save(desk.main.S_bmp, "abc").back(), "save BMP abc.bmp Picture1");
  EXPECT_EQ(Save(desk.main.S_JPG, "x").back(), "save JPG x.jpg Picture1");
  EXPECT_EQ(Save(desk.main.S_Gif, "no").back(), "save GIF no.gif Picture1");
}

TEST_F(Export, LettersAreCountedNotBytes) {
  EXPECT_EQ(Save(desk.main.S_bmp, "äöü").back(), "save BMP äöü.bmp Picture1");
  EXPECT_EQ(Save(desk.main.S_bmp, "äöüß").size(), 1U);
}

TEST_F(Export, LongerNamesWriteNothingWithOrWithoutTheirSuffix) {
  for (const char* name : {"abcd", "abc.bmp", "a.bmp", "picture", "x.jpeg"}) {
    EXPECT_EQ(Save(desk.main.S_bmp, name).size(), 1U) << name;  // the question alone
  }
}

TEST_F(Export, ACancelledBoxWritesNothingAndGivesThePointerBack) {
  EXPECT_EQ(Save(desk.main.S_bmp, "").size(), 1U);
  EXPECT_EQ(desk.main.MousePointer, kPointerDefault);
}

TEST_F(Export, TakesTheMapWhileItsWindowIsOpenEvenBesideAStereoPair) {
  Click(desk, desk.main.Bt3_Sterio);
  desk.plot.Show();
  EXPECT_EQ(Save(desk.main.S_bmp, "map").back(), "save BMP map.bmp Ramachandran");
}

TEST_F(Export, TakesThePanelOfASplitView) {
  Click(desk, desk.main.Bt3_Sterio);
  EXPECT_EQ(Save(desk.main.S_JPG, "two").back(), "save JPG two.jpg P_Sterio");
  Click(desk, desk.main.Bt3_Isomers, Reach::Forced);
  EXPECT_EQ(Save(desk.main.S_JPG, "two").back(), "save JPG two.jpg P_Sterio");
}

TEST_F(Export, TakesTheHiddenSurfaceWhileTheSecondToggleIsOn) {
  Click(desk, desk.main.Bt3_D_L_Str);
  ASSERT_FALSE(desk.main.P_Pic1.Visible);
  EXPECT_EQ(Save(desk.main.S_bmp, "abc").back(), "save BMP abc.bmp Picture1");
}

TEST_F(Export, ASaveThatFailsShowsTheBoxAndGivesThePointerBack) {
  platform.SaveFails = "the disk is full";
  const Lines effects = Save(desk.main.S_bmp, "abc");
  EXPECT_EQ(effects.back(), "failure BMP could not be finished: the disk is full.");
  EXPECT_EQ(desk.main.MousePointer, kPointerDefault);
}

TEST_F(Export, ARefusedNameIsQuotedInItsMessageWhichNoSaveReaches) {
  desk.main.MousePointer = kPointerHourglass;
  ReportRefusedName(desk, "abc");
  EXPECT_EQ(platform.Effects, Lines{"message 'abc' not accepted as a file name, try again"});
  EXPECT_EQ(desk.main.MousePointer, kPointerDefault);

  platform.SaveFails = "the disk is full";
  for (Control* entry : {&desk.main.S_bmp, &desk.main.S_JPG, &desk.main.S_Gif}) {
    for (const std::string& effect : Save(*entry, "abc")) {
      EXPECT_FALSE(effect.starts_with("message ")) << effect;
    }
  }
}

TEST_F(Export, ANameWithASeparatorIsRefusedInPlainWords) {
  for (const char* name : {"a/b", "/x", "..\\", "/"}) {
    const Lines effects = Save(desk.main.S_bmp, name);
    EXPECT_TRUE(effects.back().starts_with("failure ")) << name;
    EXPECT_THAT(effects.back(), testing::HasSubstr(name));
  }
}

TEST_F(Export, TheHourglassShowsWhileTheNameIsAskedFor) {
  struct Looking : FakePlatform {
    Orvane_Desk* desk = nullptr;
    int pointer = -1;
    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
      // cppcheck-suppress nullPointer ; set below, before the box is asked for
      pointer = desk->main.MousePointer;
      return "";
    }
  } looking;
  const auto other = StartDesk(looking);
  looking.desk = other.get();
  other->main.Show();

  Click(*other, other->main.S_bmp);

  EXPECT_EQ(looking.pointer, kPointerHourglass);
}

TEST_F(Export, AClickOnThePairWritesTestGifUnasked) {
  Click(desk, desk.main.Bt3_Sterio);
  platform.Effects.clear();
  Click(desk, desk.main.P_Sterio);
  Click(desk, desk.main.P_Sterio);
  EXPECT_EQ(platform.Effects, (Lines{"save GIF test.gif P_Sterio", "save GIF test.gif P_Sterio"}));
}

TEST_F(Export, JpegEndsARecordingsState) {
  desk.recording.GifRecording = -1;
  Save(desk.main.S_JPG, "");
  EXPECT_EQ(desk.recording.GifRecording, 0);
}

}  // namespace
}  // namespace orvane
