// A command that asks ends while its question is open, and goes on with the answer. What it does in
// the end is what it does with an answer that is there at once.
#include <gtest/gtest.h>

#include "desk_fixture.h"
#include "replay/dumps.h"

namespace orvane {
namespace {

struct Asking {
  std::string Words;
  void (*Begin)(Orvane_Desk& desk);
  int Ticks = 0;  // of the spin, behind it
  std::string Answer{};
  std::string SaveFails{};
};

std::ostream& operator<<(std::ostream& out, const Asking& asking) { return out << asking.Words; }

struct Outcome {
  std::vector<std::string> Effects;
  std::string Dumps;
  int Pointer = 0;
};

// Answers each question as soon as the box is up, as a user does.
void AnswerWhatIsOpen(DeskAtWork& work, const std::string& answer) {
  if (!work.platform.HasBoxUp) return;
  work.platform.HasBoxUp = false;
  Answer(work.desk, answer);
}

Outcome Play(const Asking& asking, bool later) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.Pro_Lst, 0);
  work.platform.AnswersLater = later;
  work.platform.SaveFails = asking.SaveFails;
  if (!later) work.platform.Answers = {asking.Answer};
  asking.Begin(work.desk);
  AnswerWhatIsOpen(work, asking.Answer);
  for (int i = 0; i < asking.Ticks; ++i) {
    Tick(work.desk, work.desk.main.Timer1);
    AnswerWhatIsOpen(work, asking.Answer);
  }
  Outcome outcome{work.platform.Effects, "", work.desk.main.MousePointer};
  for (const char* name : {"", "controls", "atoms", "bonds", "survey"}) {
    outcome.Dumps += FindDump(name)(work.desk) + "\n";
  }
  return outcome;
}

void Bmp(Orvane_Desk& desk) { Click(desk, desk.main.S_bmp); }
void Jpeg(Orvane_Desk& desk) { Click(desk, desk.main.S_JPG); }
void Gif(Orvane_Desk& desk) { Click(desk, desk.main.S_Gif); }
void Record(Orvane_Desk& desk) { Click(desk, desk.main.S_AnGif); }

struct AskingTest : testing::TestWithParam<Asking> {};

TEST_P(AskingTest, EndsAsWithAnAnswerThatIsThereAtOnce) {
  const Outcome at_once = Play(GetParam(), false);
  const Outcome later = Play(GetParam(), true);

  EXPECT_EQ(later.Effects, at_once.Effects);
  EXPECT_EQ(later.Dumps, at_once.Dumps);
  EXPECT_EQ(later.Pointer, kPointerDefault);
  EXPECT_EQ(std::count(later.Effects.begin(), later.Effects.end(), at_once.Effects.front()), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, AskingTest,
    testing::Values(Asking{"a_bitmap", Bmp, 0, "abc"}, Asking{"a_cancelled_bitmap", Bmp},
                    Asking{"a_bitmap_that_fails", Bmp, 0, "abc", "no room"},
                    Asking{"a_jpeg", Jpeg, 0, "abc"}, Asking{"a_gif", Gif, 0, "abc"},
                    Asking{"a_cancelled_gif", Gif}, Asking{"a_name_too_long", Gif, 0, "abcd"},
                    Asking{"a_recording", Record, 40, "abc"},
                    Asking{"a_cancelled_recording", Record, 3},
                    Asking{"a_recording_that_fails", Record, 3, "abc", "no room"}),
    [](const auto& row) { return row.param.Words; });

TEST(AQuestion, HoldsTheDeskUntilItIsAnswered) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.Pro_Lst, 0);
  work.platform.AnswersLater = true;
  Click(work.desk, work.desk.main.S_AnGif);
  Tick(work.desk, work.desk.main.Timer1);
  ASSERT_TRUE(IsAsking(work.desk));
  const std::string before = DumpFields(work.desk) + DumpControls(work.desk);

  Tick(work.desk, work.desk.main.Timer1);
  Click(work.desk, work.desk.main.Bt3_Label);
  SelectRow(work.desk, work.desk.main.AA_Lst, 3);
  StepBar(work.desk, work.desk.main.VScroll1, 9);
  Press(work.desk, work.desk.main.Picture1, kLeftButton, 180, 180);

  EXPECT_EQ(DumpFields(work.desk) + DumpControls(work.desk), before);
  EXPECT_EQ(work.desk.main.MousePointer, kPointerHourglass);
}

// The outer tick lets events run, one of them a tick that asks.
TEST(AQuestion, IsAskedOnceThoughATickStandsRoundTheOneThatAsked) {
  DeskAtWork work;
  SelectRow(work.desk, work.desk.main.Pro_Lst, 0);
  work.platform.AnswersLater = true;
  Click(work.desk, work.desk.main.S_AnGif);
  work.platform.PendingEvents = [&] {
    work.platform.PendingEvents = nullptr;
    Tick(work.desk, work.desk.main.Timer1);
  };
  work.platform.Effects.clear();

  Tick(work.desk, work.desk.main.Timer1);

  EXPECT_EQ(work.platform.Effects,
            std::vector<std::string>{"ask Type in file name | Output GIF format"});
  AnswerWhatIsOpen(work, "abc");
  EXPECT_EQ(work.desk.recording.GifFrame, 1);
}

TEST(AQuestion, IsAnsweredByNobodyWhenNoneIsOpen) {
  DeskAtWork work;
  Answer(work.desk, "abc");
  EXPECT_TRUE(work.platform.Effects.empty());
}

}  // namespace
}  // namespace orvane
