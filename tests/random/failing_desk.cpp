#include "random/failing_desk.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "desk/actions.h"

namespace orvane {
namespace {

// A name from the source that is not on the screen, such as "Bt3_Reset", does not belong in a box.
bool IsNameOfAControl(const Orvane_Desk& desk, const std::string& subject) {
  const Control* control = desk.FindControl(subject);
  return control != nullptr && control->Caption != subject;
}

}  // namespace

FailingDesk::FailingDesk(const Situation& situation) {
  platform.Answers = {"abc"};
  situation.Prepare(desk);
  platform.Answers = {"abc", "xyz", "uvw"};
  platform.Calls.clear();
  platform.Effects.clear();
  WhatIsWrong(desk, {}, last, true);
}

int FailingDesk::Count(std::string_view beginning) const {
  return static_cast<int>(
      std::count_if(platform.Effects.begin(), platform.Effects.end(),
                    [&](const std::string& effect) { return effect.starts_with(beginning); }));
}

void ExpectPlainBox(const FailingDesk& work, const std::string& clause) {
  const std::string ending = " could not be finished: " + clause + ".";
  ASSERT_EQ(work.Count("failure "), 1);
  const std::string box = work.platform.Effects.back().substr(8);
  ASSERT_TRUE(box.ends_with(ending)) << box;
  const std::string subject = box.substr(0, box.size() - ending.size());
  EXPECT_NE(subject, "");
  EXPECT_FALSE(IsNameOfAControl(work.desk, subject)) << box;
}

void ExpectToGoOn(FailingDesk& work, const Command& command) {
  Orvane_Desk& desk = work.desk;
  work.platform.FailsAt = -1;
  command.Do(desk);
  EXPECT_EQ(work.Wrong(), "") << "at the second try";

  desk.main.Show();
  desk.plot.Hide();
  work.platform.Effects.clear();
  SelectRow(desk, desk.main.Pro_Lst, 1, Reach::Forced);
  EXPECT_EQ(desk.molecule.MoleculeReady, 1);
  EXPECT_GT(desk.molecule.AtomCount, 10);
  EXPECT_FALSE(desk.main.Picture1.Image()->Strokes.empty());
  StepBar(desk, desk.main.VScroll1, 90);
  Tick(desk, desk.main.Timer1);
  work.platform.Answers = {"abc"};
  desk.recording.GifRecording = 0;  // a recording should indeed go on
  Click(desk, desk.main.S_bmp);
  EXPECT_EQ(work.Count("save BMP abc.bmp "), 1);
  EXPECT_EQ(work.Count("failure "), 0);
  EXPECT_EQ(work.Wrong(), "") << "afterwards";
}

}  // namespace orvane
