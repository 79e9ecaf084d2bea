// The scripts of the pages, step by step: a student can do every step at that moment.
#include <cctype>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "handbook/student.h"
#include "house/source_tree.h"
#include "replay/played.h"

namespace orvane {
namespace {

class Steps : public ::testing::TestWithParam<const char*> {};

// An action on a disabled control does nothing, and a page that asks for it would be wrong.
TEST_P(Steps, AreOpenToTheStudent) {
  const std::set<std::string> on_controls{"click", "select", "press", "move", "release", "bar"};
  Session session;
  std::istringstream script(house::ReadProjectFile(GetParam()));
  int steps = 0;
  for (std::string line; std::getline(script, line);) {
    const std::vector<std::string> words = WordsOf(line);
    if (!words.empty() && on_controls.contains(words[0])) {
      const Control* control = session.Desk().FindControl(words.at(1));
      ASSERT_NE(control, nullptr) << line;
      EXPECT_TRUE(control->IsOpenToUser()) << "step " << steps << ": " << line;
      ++steps;
    }
    session.Do(line);
  }
  EXPECT_GT(steps, 20);
}

// A press of the left button takes one atom, so that the tags are those of the page.
TEST_P(Steps, TakeOneAtomWithEachPress) {
  Session session;
  std::istringstream script(house::ReadProjectFile(GetParam()));
  for (std::string line; std::getline(script, line);) {
    const int before = session.Desk().measure.PickState;
    session.Do(line);
    if (!line.starts_with("press Picture1 1 ")) continue;
    EXPECT_EQ(session.Desk().measure.PickState, (before + 1) % 4) << line;
  }
}

INSTANTIATE_TEST_SUITE_P(Handbook, Steps,
                         ::testing::Values("docs/handbook/pictures.txt",
                                           "docs/lessons/peptide-bond/lesson.txt",
                                           "docs/lessons/hands/lesson.txt",
                                           "docs/lessons/base-pairs/lesson.txt"),
                         [](const auto& script) {
                           std::string name;
                           for (const char letter : std::string(script.param)) {
                             if (std::isalpha(static_cast<unsigned char>(letter))) name += letter;
                           }
                           return name;
                         });

}  // namespace
}  // namespace orvane
